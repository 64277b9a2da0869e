#pragma once

#include <tovukit_io/graphics/TovuBoxLook.h>

#include <QAbstractButton>
#include <QColor>
#include <QMargins>

#include <memory>

class TovuKitAnimator;

/// A button with the look of a TovuBox: background, border and corner radius, a title
/// in the widget's font and `titleColor` that wraps onto several lines when narrow, and
/// an optional radio or checkbox mark at the leading edge that shows `isChecked()`.
///
/// The title is shown literally: no mnemonics, no markup. The accessible name follows
/// the title unless something else was set. Left and right insets are the leading and
/// trailing ones and swap in right-to-left layouts, as does the accessory.
///
/// \code
/// auto *row = new TovuButton(option.text, parent);
/// row->setAccessory(TovuButton::Accessory::radio);
/// row->setCheckable(true);
/// row->setTitleAlignment(Qt::AlignLeading);
/// row->setContentInsets(QMargins(48, 14, 16, 14));
/// connect(row, &QAbstractButton::clicked, view, [=] {
///     // pressing alone never animates; views choose the bump
///     row->tapScale(TovuPageMetrics::pressScale, TovuPageMetrics::pressSeconds);
///     ...
/// });
/// \endcode
///
/// Subclasses that show something other than a title (a symbol, say) override
/// paintLabel(); box, scale, opacity, accessory and focus ring stay the base's.
class TovuButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)
    Q_PROPERTY(qreal borderWidth READ borderWidth WRITE setBorderWidth)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius WRITE setCornerRadius)
    Q_PROPERTY(QColor titleColor READ titleColor WRITE setTitleColor)
    Q_PROPERTY(Qt::Alignment titleAlignment READ titleAlignment WRITE setTitleAlignment)
    Q_PROPERTY(QMargins contentInsets READ contentInsets WRITE setContentInsets)
    Q_PROPERTY(Accessory accessory READ accessory WRITE setAccessory)
    Q_PROPERTY(QColor accessoryColor READ accessoryColor WRITE setAccessoryColor)
    Q_PROPERTY(qreal accessorySize READ accessorySize WRITE setAccessorySize)
    Q_PROPERTY(qreal accessoryInset READ accessoryInset WRITE setAccessoryInset)
    Q_PROPERTY(qreal scale READ scale WRITE setScale)
    Q_PROPERTY(qreal opacity READ opacity WRITE setOpacity)
    Q_PROPERTY(int tag READ tag WRITE setTag)

public:
    enum class Accessory { none, radio, checkbox };
    Q_ENUM(Accessory)

    explicit TovuButton(const QString &title = {}, QWidget *parent = nullptr);
    ~TovuButton() override;

    /// Sets the title; also keeps the accessible name in step (see the class comment).
    void setText(const QString &title);

    /// Unset colours (or an invalid QColor) follow the platform colours: system
    /// background, system gray 4, label and blue.
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);
    QColor borderColor() const;
    void setBorderColor(const QColor &color);
    qreal borderWidth() const;
    void setBorderWidth(qreal width);
    qreal cornerRadius() const;
    void setCornerRadius(qreal radius);
    QColor titleColor() const;
    void setTitleColor(const QColor &color);
    /// Only the horizontal part counts; the title is always centred vertically. Centred by default.
    Qt::Alignment titleAlignment() const;
    void setTitleAlignment(Qt::Alignment alignment);
    /// Space around the title: (16, 10, 16, 10) by default. With an accessory the leading
    /// inset grows if needed so the title never runs into the mark.
    QMargins contentInsets() const;
    void setContentInsets(const QMargins &insets);

    Accessory accessory() const;
    void setAccessory(Accessory accessory);
    /// Fill of the checked mark and its border.
    QColor accessoryColor() const;
    void setAccessoryColor(const QColor &color);
    /// Side of the mark: TovuPageMetrics::radioSize for a radio circle and checkboxSize
    /// for a checkbox unless set.
    qreal accessorySize() const;
    void setAccessorySize(qreal size);
    /// Distance of the mark from the leading edge; TovuPageMetrics::markLeading by default.
    qreal accessoryInset() const;
    void setAccessoryInset(qreal inset);

    /// Drawing scale about the centre; 1 is normal. Above 1 the button draws beyond its
    /// bounds, as a bump animation expects.
    qreal scale() const;
    void setScale(qreal scale);
    /// Animates `scale` from where it is to `to` over `seconds`, then back to 1 over
    /// `seconds`, easing out (motion time, see TovuMotion). With motion off it ends on 1 at
    /// once; a second call while one runs starts again from the current scale.
    void tapScale(qreal to, qreal seconds);
    bool isTapScaling() const;

    /// Opacity of everything the button paints, 0 to 1; 1 by default. A disabled button
    /// paints at half of it. Painted, not an effect, so it combines with `scale`.
    qreal opacity() const;
    void setOpacity(qreal opacity);

    /// A number the view gives the button (a score, a column); -1 by default.
    int tag() const;
    void setTag(int tag);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

protected:
    /// Draws what the button shows inside `contentRect` (the bounds less the content
    /// insets, mirrored right to left): the title by default. The painter is already
    /// scaled, faded and antialiased; it need not be restored.
    virtual void paintLabel(QPainter &painter, const QRectF &contentRect);

    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    /// Space, Enter and Return click; arrow keys move among the buttons of its group
    /// (see TovuButtonKeys) and never out of it.
    void keyPressEvent(QKeyEvent *event) override;

private:
    friend class TovuButtonScaleEffect;

    void paintContent(QPainter &painter);
    void paintAccessory(QPainter &painter, const QRectF &bounds);
    void syncTitle();
    void updateScaleEffect();
    int textFlags() const;
    QMargins visualInsets() const;
    int textHeight(int width) const;
    void invalidateSizeCache();

    TovuBoxLook m_look;
    QColor m_titleColor;
    QColor m_accessoryColor;
    Qt::Alignment m_titleAlignment = Qt::AlignHCenter;
    QMargins m_contentInsets = QMargins(16, 10, 16, 10);
    Accessory m_accessory = Accessory::none;
    qreal m_accessorySize = -1;
    qreal m_accessoryInset;
    qreal m_scale = 1;
    qreal m_opacity = 1;
    int m_tag = -1;
    bool m_keyboardFocus = false;
    QString m_syncedTitle;
    QString m_autoAccessibleName;
    // Layouts ask for sizes many times per pass; measuring text is the dear part.
    mutable int m_cachedTextWidth = -1;
    mutable int m_cachedHeightWidth = -1;
    mutable int m_cachedHeight = 0;
    std::unique_ptr<TovuKitAnimator> m_tapAnimator;
};
