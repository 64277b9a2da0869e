#pragma once

#include <tovukit_io/ui/kit/TovuInputFrame.h>

#include <QLineEdit>

/// A one-line text input with a painted rounded frame: a border in system gray 4 over
/// the system background, sized by TovuPageMetrics (fieldCornerRadius, fieldBorderWidth,
/// fieldPadding left and right, fieldHeight). On focus the border turns to
/// `focusBorderColor` at fieldFocusedBorderWidth over fieldFocusSeconds and any error is
/// cleared; on blur it goes back. `hasError` paints the border red.
///
/// Text and placeholder take the platform label and secondary label colours and follow
/// light and dark as the palette changes. What is typed is kept as typed: no validator,
/// no trimming, no length limit. Font and input-method hints are the caller's.
///
/// \code
/// auto *email = new TovuTextField(this);
/// email->setFont(theme.font(TovuPageMetrics::fieldFontSize, QFont::Normal));
/// email->setPlaceholderText(QStringLiteral("Email\u2026"));
/// email->setInputMethodHints(Qt::ImhEmailCharactersOnly);
/// connect(email, &TovuTextField::focused, this, [=] { scrollToField(email); });
/// \endcode
class TovuTextField : public QLineEdit, public TovuInputFrame
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
    explicit TovuTextField(QWidget *parent = nullptr);
    ~TovuTextField() override;

Q_SIGNALS:
    void focused();
    void blurred();

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};
