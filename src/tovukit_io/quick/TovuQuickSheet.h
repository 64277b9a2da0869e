#pragma once

#include <tovukit_io/viewmodel/TovuProgressViewModel.h>

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <functional>

class TovuKeyboardLift;

/// The behaviour of the Qt Quick bottom sheet; `TovuSurveySheet` in QML draws it.
///
/// The sheet covers its host item and takes every tap, wheel turn, hover and key
/// the host would otherwise get while it is up: the dimming layer is inert, and
/// keyboard focus stays on the sheet's controls (Tab cycles through them only) and
/// returns to the host's focused item afterwards. The panel slides in with a
/// spring, rises above the on-screen keyboard, and slides out and fades on
/// dismissal, after which the sheet removes and deletes itself. Input ends when
/// dismissal begins, so Skip is told at most once.
class TovuQuickSheet : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The dimming layer's alpha: the survey theme's transparency, else 0.5.
    Q_PROPERTY(qreal dimmingAlpha READ dimmingAlpha WRITE setDimmingAlpha NOTIFY dimmingAlphaChanged)
    /// The panel's slide: 0 in place, up to 1000 below the bottom edge.
    Q_PROPERTY(qreal panelTranslation READ panelTranslation NOTIFY panelTranslationChanged)
    /// How far the panel sits above the bottom edge: the keyboard's height, or 0.
    Q_PROPERTY(qreal bottomOffset READ bottomOffset NOTIFY bottomOffsetChanged)
    Q_PROPERTY(bool dismissing READ isDismissing NOTIFY dismissingChanged)
    /// The page shown, or null.
    Q_PROPERTY(QQuickItem *currentPage READ currentPage NOTIFY currentPageChanged)
    /// Where pages go: set by the QML look.
    Q_PROPERTY(QQuickItem *contentSlot READ contentSlot WRITE setContentSlot NOTIFY contentSlotChanged)
    /// Which question of how many is shown, for the progress indicator; hidden while its total is 0.
    Q_PROPERTY(TovuProgressViewModel *progress READ progress CONSTANT)

public:
    explicit TovuQuickSheet(QQuickItem *parent = nullptr);
    ~TovuQuickSheet() override;

    qreal dimmingAlpha() const { return m_dimmingAlpha; }
    void setDimmingAlpha(qreal alpha);
    qreal panelTranslation() const { return m_translation; }
    qreal bottomOffset() const { return m_bottomOffset; }
    bool isDismissing() const { return m_dismissing; }
    QQuickItem *currentPage() const { return m_page; }
    QQuickItem *contentSlot() const { return m_slot; }
    void setContentSlot(QQuickItem *slot);
    TovuProgressViewModel *progress() const { return m_progress; }
    /// Shows question `current` of `total`; a `total` of 0 hides the indicator.
    void setProgress(int current, int total);

    /// Covers `host` (and follows its size) and slides the panel in.
    void present(QQuickItem *host);
    /// Slides the panel out and fades the sheet; then removes and deletes it.
    Q_INVOKABLE void dismiss();
    /// The Skip button: tells `onSkip`, then dismisses. Ignored once dismissal began.
    Q_INVOKABLE void skipTapped();
    /// The only page from now on (the sheet takes it); the previous one is deleted.
    void setQuestionView(QQuickItem *page);

    /// The keyboard is about to cover `keyboardFrame` (only its height counts), over `durationMs`.
    void keyboardWillShow(const QRectF &keyboardFrame, int durationMs);
    void keyboardWillHide(int durationMs);

    /// Told when the respondent taps Skip, before the sheet closes.
    std::function<void()> onSkip;

Q_SIGNALS:
    void dimmingAlphaChanged();
    void panelTranslationChanged();
    void bottomOffsetChanged();
    void dismissingChanged();
    void currentPageChanged();
    void contentSlotChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void touchEvent(QTouchEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    bool contains(const QQuickItem *item) const;
    bool moveFocus(bool forward);
    void activeFocusMoved();
    void restoreFocus();
    void scrollIntoView(QQuickItem *item);
    /// A new page: its first control takes focus and a screen reader hears its title.
    void greetPage(QQuickItem *page);
    void setTranslation(qreal translation);
    void setBottomOffset(qreal offset);

    QPointer<QQuickItem> m_host;
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_previousFocus;
    QPointer<QQuickItem> m_lastFocus;
    QPointer<QQuickItem> m_page;
    QPointer<QQuickItem> m_slot;
    TovuKeyboardLift *m_keyboardLift = nullptr;
    TovuProgressViewModel *m_progress = nullptr;
    qreal m_dimmingAlpha = 0.5;
    qreal m_translation = 0;
    qreal m_bottomOffset = 0;
    bool m_dismissing = false;
};
