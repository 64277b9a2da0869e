#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/viewmodel/TovuSheetMetrics.h>

#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

class QScrollArea;
class QVBoxLayout;
class TovuBox;
class TovuButton;
class TovuKeyboardLift;
class TovuProgressIndicator;
class TovuProgressViewModel;

/// The bottom sheet a native survey is shown in: a dimming layer over the
/// host widget, and a rounded panel with a grab handle, "Skip" and one slot
/// for the current page, which slides up from the bottom edge.
///
/// \code
/// auto *sheet = new TovuToasterView(survey);
/// sheet->onSkip = [] { qDebug() << "skipped"; };
/// sheet->setQuestionView(new TovuIntroView(*survey.introPage));
/// sheet->present(hostWindow);   // covers hostWindow and follows its size
/// \endcode
///
/// The panel is at most TovuSheetMetrics::maxHeightRatio of the host's
/// height; taller pages scroll inside it. It rises above the on-screen keyboard while one is shown and
/// keeps the focused field in view. While the sheet is up the host gets no
/// input: taps on the dimming layer do nothing, keyboard focus stays inside
/// the sheet and returns to the host's focused widget afterwards. Input ends
/// when dismissal begins. After dismiss() the sheet removes and deletes itself.
class TovuToasterView : public QWidget
{
    Q_OBJECT

public:
    explicit TovuToasterView(std::optional<TovuSurvey> survey, QWidget *parent = nullptr);
    ~TovuToasterView() override;

    /// Covers `host` (and follows its resizes) and slides the panel in.
    void present(QWidget *host);
    /// Slides the panel out and fades the sheet; then removes and deletes it.
    void dismiss();
    /// The only page in the slot from now on; the previous one is deleted.
    void setQuestionView(QWidget *view);
    /// Shows question `current` of `total` at the panel's top leading corner; a `total`
    /// of 0 hides it. The indicator is made on the first call that shows one.
    void setProgress(int current, int total);

    /// The keyboard is about to cover `keyboardFrame` (in screen or sheet
    /// coordinates; only its height counts), over `durationMs`.
    void keyboardWillShow(const QRectF &keyboardFrame, int durationMs);
    void keyboardWillHide(int durationMs);

    TovuBox *containerView() const { return m_containerView; }
    TovuBox *handleView() const { return m_handleView; }
    TovuButton *skipButton() const { return m_skipButton; }
    QVBoxLayout *contentStackView() const { return m_contentStack; }
    QScrollArea *contentScrollArea() const { return m_scrollArea; }
    /// Null until setProgress() first showed progress.
    TovuProgressIndicator *progressIndicator() const { return m_progressIndicator; }
    const std::optional<TovuSurvey> &survey() const { return m_survey; }
    /// How far the panel's bottom sits above the sheet's bottom edge (the keyboard's height, or 0).
    qreal containerBottomOffset() const { return m_bottomOffset; }
    /// The dimming layer's alpha: the survey theme's transparency, else TovuSheetMetrics::defaultDimmingAlpha.
    qreal dimmingAlpha() const { return m_dimmingAlpha; }
    /// The panel's slide: 0 in place, up to TovuSheetMetrics::offscreenDistance off the bottom edge.
    qreal panelTranslation() const { return m_translation; }
    bool isDismissing() const { return m_dismissing; }

    /// Told when the respondent taps Skip, before the sheet closes.
    std::function<void()> onSkip;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    /// Escape is Skip.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildPanel();
    void restyle();
    void skipTapped();
    void endInput();
    void restoreFocus();
    bool contains(const QWidget *widget) const;
    void focusMoved(QWidget *old, QWidget *now);
    void ensureFocusVisible(QWidget *focus);
    /// A new page: its first control takes focus and a screen reader hears its title.
    void greetPage(QWidget *view);
    void layoutPanel();
    int panelHeight() const;
    void setTranslation(qreal translation);
    void setBottomOffset(qreal offset);

    std::optional<TovuSurvey> m_survey;
    QPointer<QWidget> m_host;
    QPointer<QWidget> m_previousFocus;
    QMetaObject::Connection m_focusConnection;
    TovuBox *m_containerView = nullptr;
    TovuBox *m_handleView = nullptr;
    TovuButton *m_skipButton = nullptr;
    QScrollArea *m_scrollArea = nullptr;
    QWidget *m_content = nullptr;
    QVBoxLayout *m_contentStack = nullptr;
    TovuKeyboardLift *m_keyboardLift = nullptr;
    TovuProgressViewModel *m_progress = nullptr;
    TovuProgressIndicator *m_progressIndicator = nullptr;
    qreal m_dimmingAlpha = TovuSheetMetrics::defaultDimmingAlpha;
    qreal m_translation = 0;
    qreal m_bottomOffset = 0;
    bool m_dismissing = false;
    // Whether the respondent last used keys rather than a pointer: a new page's first
    // control then shows its focus ring.
    bool m_keyboardNavigation = false;
};
