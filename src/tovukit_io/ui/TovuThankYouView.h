#pragma once

#include <tovukit_io/model/TovuSurvey.h>

#include <QWidget>

#include <optional>

class QGraphicsOpacityEffect;
class QLabel;
class QVariantAnimation;
class TovuBox;
class TovuUrlOpener;

/// The closing page: a green check mark, a title and a line under it. When
/// its question carries a web address, that address is opened 2.5 s after
/// the page is built, even if the sheet has closed by then.
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

    static constexpr int redirectDelayMs = 2500;

private:
    void buildIcon();
    void startEntrance();
    void setEntranceProgress(qreal progress);
    void scheduleRedirect(TovuUrlOpener *opener);

    std::optional<TovuQuestion> m_question;
    TovuBox *m_iconContainer = nullptr;
    QLabel *m_iconView = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_subtitleLabel = nullptr;
    QWidget *m_content = nullptr;
    QGraphicsOpacityEffect *m_opacity = nullptr;
    qreal m_entranceProgress = 0;
};
