#include <tovukit_io/ui/kit/TovuCaptionRow.h>

#include <tovukit_io/viewmodel/TovuPageMetrics.h>

#include <QEvent>
#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

// As TovuFitLabel: no smaller than half the font before eliding.
constexpr qreal minimumScaleFactor = TovuPageMetrics::columnLabelMinimumScale;

} // namespace

TovuCaptionRow::TovuCaptionRow(QWidget *parent)
    : QWidget(parent)
{
    resolveFont();
}

TovuCaptionRow::~TovuCaptionRow() = default;

qsizetype TovuCaptionRow::indexOf(const QWidget *widget) const
{
    const auto found = std::find_if(m_captions.begin(), m_captions.end(),
                                    [widget](const Caption &caption) { return caption.widget == widget; });
    return found == m_captions.end() ? -1 : found - m_captions.begin();
}

void TovuCaptionRow::setCaption(QWidget *widget, const QString &text)
{
    if (!widget || widget->parentWidget() != this)
        return;
    const qsizetype index = indexOf(widget);
    if (text.isEmpty()) {
        if (index >= 0) {
            widget->removeEventFilter(this);
            m_captions.removeAt(index);
        }
    } else if (index >= 0) {
        m_captions[index] = Caption{widget, text, {}};
    } else {
        // The caption has to move (and repaint) with its widget.
        widget->installEventFilter(this);
        m_captions.append(Caption{widget, text, {}});
    }
    update();
}

QString TovuCaptionRow::caption(const QWidget *widget) const
{
    const qsizetype index = indexOf(widget);
    return index >= 0 ? m_captions.at(index).text : QString();
}

QFont TovuCaptionRow::captionFont() const
{
    return m_font;
}

void TovuCaptionRow::setCaptionFont(const QFont &font)
{
    m_requestedFont = font;
    resolveFont();
}

QColor TovuCaptionRow::captionColor() const
{
    return m_color.isValid() ? m_color : palette().color(QPalette::WindowText);
}

void TovuCaptionRow::setCaptionColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
}

int TovuCaptionRow::captionSpacing() const
{
    return m_spacing;
}

void TovuCaptionRow::setCaptionSpacing(int spacing)
{
    spacing = std::max(0, spacing);
    if (m_spacing == spacing)
        return;
    m_spacing = spacing;
    update();
}

int TovuCaptionRow::captionHeight() const
{
    return m_spacing + QFontMetrics(m_font).height();
}

void TovuCaptionRow::resolveFont()
{
    // What a label's font would be: the attributes asked for, the rest inherited, measured
    // at this widget's resolution.
    m_font = QFont(m_requestedFont.resolve(font()), this);
    forgetFits();
}

void TovuCaptionRow::forgetFits()
{
    for (Caption &caption : m_captions)
        caption.fit = TovuTextFit();
    update();
}

bool TovuCaptionRow::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        update();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void TovuCaptionRow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        resolveFont();
}

void TovuCaptionRow::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    QPalette palette = this->palette();
    palette.setColor(QPalette::WindowText, captionColor());
    const auto flags
        = static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignCenter)) | Qt::TextSingleLine;
    const int lineHeight = QFontMetrics(m_font).height();
    for (Caption &caption : m_captions) {
        const QWidget *widget = caption.widget.data();
        if (!widget || widget->parentWidget() != this || widget->isHidden())
            continue;
        const QRect above = widget->geometry();
        const QRect area(above.left(), above.bottom() + 1 + m_spacing, above.width(), lineHeight);
        if (!event->rect().intersects(area))
            continue;
        if (caption.fit.available() != area.width())
            caption.fit = TovuTextFit(caption.text, m_font, area.width(), minimumScaleFactor, *this);
        painter.setFont(caption.fit.font());
        style()->drawItemText(&painter, area, flags, palette, isEnabled(), caption.fit.shownText(area.width()),
                              QPalette::WindowText);
    }
}
