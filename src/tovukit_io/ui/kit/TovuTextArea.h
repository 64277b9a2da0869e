#pragma once

#include <tovukit_io/ui/kit/TovuInputFrame.h>

#include <QPlainTextEdit>

/// A multi-line text input with the look and behaviour of TovuTextField: a painted
/// rounded frame (radius 8, a 1 border in system gray 4 over the system background),
/// 90 high, 8 points of padding, no scroll bars (it still scrolls with the cursor and the
/// wheel). On focus the border turns to `focusBorderColor` at width 2 over 0.2 s and any
/// error is cleared; on blur it goes back to its resting width. Tab moves the focus on
/// instead of typing a tab. Colours follow light and dark as the palette changes.
///
/// \code
/// auto *comment = new TovuTextArea(this);
/// comment->setFont(theme.font(15, QFont::Normal));
/// comment->setPlaceholderText(QStringLiteral("Tell us more\u2026"));
/// connect(comment, &TovuTextArea::blurred, this, [=] { viewModel->setComment(comment->toPlainText()); });
/// \endcode
class TovuTextArea : public QPlainTextEdit, public TovuInputFrame
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)
    Q_PROPERTY(qreal borderWidth READ borderWidth WRITE setBorderWidth)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius WRITE setCornerRadius)
    Q_PROPERTY(QColor focusBorderColor READ focusBorderColor WRITE setFocusBorderColor)
    Q_PROPERTY(bool hasError READ hasError WRITE setHasError)
    Q_PROPERTY(QColor currentBorderColor READ currentBorderColor)
    Q_PROPERTY(qreal currentBorderWidth READ currentBorderWidth)

public:
    explicit TovuTextArea(QWidget *parent = nullptr);
    ~TovuTextArea() override;

Q_SIGNALS:
    void focused();
    void blurred();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};
