#pragma once

#include <tovukit_io/model/TovuSurvey.h>

#include <QWidget>

#include <optional>

class QLabel;
class TovuBox;
class TovuThankYouEntranceEffect;
class TovuUrlOpener;

/// The closing page: a green check mark, a title and a line under it. When
/// its question carries a web address, that address is opened 2.5 s after
/// the page is built, even if the sheet has closed by then.
///
/// The page comes in by fading in and zooming from 85 % to full size. The zoom
/// is painted: the page's size and layout stay still, so the sheet around it
/// does not move.
class TovuThankYouView : public QWidget
{
    Q_OBJECT

public:
    /// `opener` opens the redirect (the default opener when null, looked up
    /// when the redirect fires); a given opener must outlive the 2.5 s.
    explicit TovuThankYouView(std::optional<TovuQuestion> question, QWidget *parent = nullptr,
                              TovuUrlOpener *opener = nullptr);

    TovuBox *iconContainer() const { return m_iconContainer; }
    QLabel *iconView() const { return m_iconView; }
    QLabel *titleLabel() const { return m_titleLabel; }
    QLabel *subtitleLabel() const { return m_subtitleLabel; }
    const std::optional<TovuQuestion> &question() const { return m_question; }

    /// 0 just built, 1 once the entrance animation has finished.
    qreal entranceProgress() const { return m_entranceProgress; }
    /// The scale the page is drawn at: 0.85 just built, 1 once in (the spring may
    /// overshoot it briefly). Only the drawing scales, never the layout.
    qreal entranceScale() const;

    static constexpr int redirectDelayMs = 2500;

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildIcon();
    void restyle();
    void startEntrance();
    void setEntranceProgress(qreal progress);
    void scheduleRedirect(TovuUrlOpener *opener);

    std::optional<TovuQuestion> m_question;
    TovuBox *m_iconContainer = nullptr;
    QLabel *m_iconView = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_subtitleLabel = nullptr;
    TovuThankYouEntranceEffect *m_entranceEffect = nullptr;
    qreal m_entranceProgress = 0;
};
