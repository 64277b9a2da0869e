#pragma once

#include <tovukit_io/graphics/TovuTextFit.h>

#include <QColor>
#include <QFont>
#include <QList>
#include <QPointer>
#include <QWidget>

/// A row of widgets (the content of a TovuScrollStrip, say) that paints a one-line
/// caption under each of them itself, so a grid of captioned buttons needs no label
/// widget per cell. A caption is as wide as its widget and `captionSpacing` below it,
/// centred, in `captionFont` and `captionColor`, fitted like a TovuFitLabel's text
/// (smaller down to half size, then elided); it follows its widget wherever the row's
/// layout puts it, right to left too. Captions are plain text and no accessible objects
/// of their own: give each widget an accessible name that includes its caption.
///
/// The row does not lay out its widgets: leave captionHeight() free below them, for
/// instance as the bottom margin of the row's layout.
///
/// \code
/// auto *row = new TovuCaptionRow;
/// row->setCaptionFont(theme.font(10, QFont::Normal));
/// auto *layout = new QHBoxLayout(row);
/// layout->setContentsMargins(0, 0, 0, row->captionHeight());
/// auto *star = new TovuSymbolButton(QStringLiteral("star"), row);
/// layout->addWidget(star);
/// row->setCaption(star, column.text);
/// strip->setWidget(row);
/// \endcode
class TovuCaptionRow : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QFont captionFont READ captionFont WRITE setCaptionFont)
    Q_PROPERTY(QColor captionColor READ captionColor WRITE setCaptionColor)
    Q_PROPERTY(int captionSpacing READ captionSpacing WRITE setCaptionSpacing)

public:
    explicit TovuCaptionRow(QWidget *parent = nullptr);
    ~TovuCaptionRow() override;

    /// Shows `text` under `widget`, which must be a child of the row; an empty text takes
    /// the caption away.
    void setCaption(QWidget *widget, const QString &text);
    /// The caption under `widget`; empty when it has none.
    QString caption(const QWidget *widget) const;

    /// Resolved against the row's own font, as a child widget's font would be.
    QFont captionFont() const;
    void setCaptionFont(const QFont &font);
    /// Unset (an invalid QColor) follows the palette's window text.
    QColor captionColor() const;
    void setCaptionColor(const QColor &color);
    /// Between a widget and its caption; 2 by default.
    int captionSpacing() const;
    void setCaptionSpacing(int spacing);
    /// The room a caption takes below its widget: the spacing and one line of the font.
    int captionHeight() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Caption {
        QPointer<QWidget> widget;
        QString text;
        // Kept until the text, the font or the width changes: measuring is the dear part.
        TovuTextFit fit;
    };

    qsizetype indexOf(const QWidget *widget) const;
    void resolveFont();
    void forgetFits();

    QList<Caption> m_captions;
    QFont m_requestedFont;
    QFont m_font;
    QColor m_color;
    int m_spacing = 2;
};
