#pragma once

#include <tovukit_io/ui/kit/TovuButton.h>

#include <QColor>
#include <QFont>
#include <QString>

/// A TovuButton that shows one TovuSymbol, centred at `symbolPointSize`, instead of a
/// title: a rating star, heart or circle. Transparent and borderless unless told
/// otherwise, with no content insets. It has no title, so set an accessible name.
///
/// \code
/// auto *star = new TovuSymbolButton(QStringLiteral("star"), row);
/// star->setSymbolTint(ratingColor);
/// star->setAccessibleName(QStringLiteral("3 of 5 stars"));
/// star->setTag(3);
/// connect(star, &QAbstractButton::clicked, view, [=] {
///     star->setSymbolName(QStringLiteral("star.fill"));
///     star->tapScale(1.2, 0.1);
/// });
/// \endcode
class TovuSymbolButton : public TovuButton
{
    Q_OBJECT
    Q_PROPERTY(QString symbolName READ symbolName WRITE setSymbolName)
    Q_PROPERTY(QColor symbolTint READ symbolTint WRITE setSymbolTint)
    Q_PROPERTY(qreal symbolPointSize READ symbolPointSize WRITE setSymbolPointSize)
    Q_PROPERTY(QFont::Weight symbolWeight READ symbolWeight WRITE setSymbolWeight)

public:
    explicit TovuSymbolButton(const QString &symbolName = {}, QWidget *parent = nullptr);

    /// One of TovuSymbol::names(); an unknown name draws nothing.
    QString symbolName() const;
    void setSymbolName(const QString &name);
    /// Unset (an invalid QColor) follows the platform's system gray 3.
    QColor symbolTint() const;
    void setSymbolTint(const QColor &color);
    /// Side of the symbol in logical pixels; 32 by default.
    qreal symbolPointSize() const;
    void setSymbolPointSize(qreal size);
    /// Medium by default; heavier weights draw thicker outlines.
    QFont::Weight symbolWeight() const;
    void setSymbolWeight(QFont::Weight weight);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

protected:
    void paintLabel(QPainter &painter, const QRectF &contentRect) override;

private:
    QString m_symbolName;
    QColor m_symbolTint;
    qreal m_symbolPointSize = 32;
    QFont::Weight m_symbolWeight = QFont::Medium;
};
