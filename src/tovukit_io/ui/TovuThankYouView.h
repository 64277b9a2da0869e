#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <QWidget>

#include <optional>

class QLabel;
class TovuBox;
class TovuThankYouEntranceEffect;
class TovuUrlOpener;

/// The closing page: a green check mark, a title and a line under it, as its view
/// model (`viewModel()`) gives them. When its question carries a web address, that
/// address is opened TovuPageMetrics::redirectDelaySeconds after the page is built,
/// even if the sheet has closed by then.
///
/// The page comes in by fading in and zooming from thankYouStartScale to full size.
/// The zoom is painted: the page's size and layout stay still, so the sheet around it
/// does not move.
class TovuThankYouView : public QWidget
{
    Q_OBJECT

public:
    /// `opener` opens the redirect (the default opener when null, looked up
    /// when the redirect fires); a given opener must outlive the delay.
    explicit TovuThankYouView(std::optional<TovuQuestion> question, QWidget *parent = nullptr,
                              TovuUrlOpener *opener = nullptr);

    TovuBox *iconContainer() const { return m_iconContainer; }
    QLabel *iconView() const { return m_iconView; }
    QLabel *titleLabel() const { return m_titleLabel; }
    QLabel *subtitleLabel() const { return m_subtitleLabel; }
    const std::optional<TovuQuestion> &question() const;
    TovuThankYouViewModel *viewModel() const { return m_model; }

    /// 0 just built, 1 once the entrance animation has finished.
    qreal entranceProgress() const { return m_entranceProgress; }
    /// The scale the page is drawn at: thankYouStartScale just built, 1 once in (the
    /// spring may overshoot it briefly). Only the drawing scales, never the layout.
    qreal entranceScale() const;

    static constexpr int redirectDelayMs = TovuThankYouViewModel::redirectDelayMs;

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildIcon();
    void restyle();
    void startEntrance();
    void setEntranceProgress(qreal progress);

    TovuThankYouViewModel *m_model = nullptr;
    TovuBox *m_iconContainer = nullptr;
    QLabel *m_iconView = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_subtitleLabel = nullptr;
    TovuThankYouEntranceEffect *m_entranceEffect = nullptr;
    qreal m_entranceProgress = 0;
};
