#include <tovukit_io/ui/TovuProgressIndicator.h>

#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuProgressViewModel.h>
#include <tovukit_io/viewmodel/TovuSheetMetrics.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QPainter>
#include <QTextOption>

namespace {

using Metrics = TovuSheetMetrics;

class ProgressInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit ProgressInterface(TovuProgressIndicator *indicator)
        : QAccessibleWidget(indicator, QAccessible::ProgressBar)
    { }

    const TovuProgressViewModel &progress() const
    {
        return *static_cast<TovuProgressIndicator *>(widget())->viewModel();
    }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name)
            return progress().accessibleName();
        if (t == QAccessible::Value)
            return progress().text();
        return QAccessibleWidget::text(t);
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return progress().current(); }
    void setCurrentValue(const QVariant &) override { } // shown, never set by a reader
    QVariant maximumValue() const override { return progress().total(); }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }
};

QAccessibleInterface *progressFactory(const QString &, QObject *object)
{
    auto *indicator = qobject_cast<TovuProgressIndicator *>(object);
    return indicator && object->isWidgetType() ? new ProgressInterface(indicator) : nullptr;
}

} // namespace

TovuProgressIndicator::TovuProgressIndicator(TovuProgressViewModel *progress, QWidget *parent)
    : QWidget(parent)
    , m_progress(progress)
{
    static const bool installed = (QAccessible::installFactory(progressFactory), true);
    Q_UNUSED(installed);
    setFixedSize(qRound(Metrics::progressWidth), qRound(Metrics::progressHeight));
    setVisible(m_progress->isShown());
    connect(m_progress, &TovuProgressViewModel::changed, this, &TovuProgressIndicator::progressChanged);
}

void TovuProgressIndicator::progressChanged()
{
    setVisible(m_progress->isShown());
    update();
    if (!m_progress->isShown())
        return;
    QAccessibleEvent named(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&named);
    QAccessibleValueChangeEvent value(this, m_progress->current());
    QAccessible::updateAccessibility(&value);
}

void TovuProgressIndicator::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const TovuThemeEngine &theme = TovuThemeEngine::shared();
    const QColor accent = theme.primaryColor(this);
    const bool mirrored = isRightToLeft();

    const QSizeF bar(Metrics::progressBarWidth, Metrics::progressBarHeight);
    const qreal barY = (height() - bar.height()) / 2;
    const QRectF track(mirrored ? width() - bar.width() : 0, barY, bar.width(), bar.height());
    const qreal radius = bar.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(TovuPlatformColors::color(TovuPlatformColors::Role::gray4));
    painter.drawRoundedRect(track, radius, radius);
    const qreal filled = bar.width() * m_progress->fraction();
    painter.setBrush(accent);
    painter.drawRoundedRect(QRectF(mirrored ? track.right() - filled : track.left(), barY, filled, bar.height()),
                            radius, radius);

    const qreal textStart = bar.width() + Metrics::progressTextGap;
    const QRectF textArea(mirrored ? 0 : textStart, 0, width() - textStart, height());
    painter.setFont(theme.font(Metrics::progressFontSize, QFont::Normal));
    painter.setPen(TovuPlatformColors::color(TovuPlatformColors::Role::gray));
    painter.drawText(textArea, m_progress->text(),
                     QTextOption(Qt::AlignVCenter | (mirrored ? Qt::AlignRight : Qt::AlignLeft)));
}
