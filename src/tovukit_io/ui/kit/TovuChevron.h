#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

#include <memory>

class TovuKitAnimator;

/// The "chevron.down" symbol (TovuPageMetrics::chevronSize, semibold) of a dropdown
/// selector, placed inside its parent: centred vertically, its trailing edge
/// `trailingInset` in from the parent's (the leading side right to left), following the
/// parent as it resizes. Clicks pass through to the parent. `setExpanded` turns it half a
/// turn over chevronSeconds.
///
/// \code
/// auto *selector = new TovuButton(placeholder, this);
/// auto *chevron = new TovuChevron(selector); // places itself
/// chevron->setTag(99);
/// connect(selector, &QAbstractButton::clicked, this, [=] { chevron->setExpanded(!chevron->isExpanded()); });
/// \endcode
class TovuChevron : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor tint READ tint WRITE setTint)
    Q_PROPERTY(qreal rotation READ rotation WRITE setRotation)
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded)
    Q_PROPERTY(qreal trailingInset READ trailingInset WRITE setTrailingInset)
    Q_PROPERTY(int tag READ tag WRITE setTag)

public:
    explicit TovuChevron(QWidget *parent = nullptr);
    ~TovuChevron() override;

    /// Unset (an invalid QColor) follows the platform's system gray 2.
    QColor tint() const;
    void setTint(const QColor &color);
    /// Clockwise, in degrees: 0 points down, 180 up.
    qreal rotation() const;
    void setRotation(qreal degrees);
    bool isExpanded() const;
    /// Animates `rotation` to 180 (expanded) or 0 over chevronSeconds of motion time.
    void setExpanded(bool expanded);
    /// TovuPageMetrics::chevronTrailing by default.
    qreal trailingInset() const;
    void setTrailingInset(qreal inset);
    /// -1 by default.
    int tag() const;
    void setTag(int tag);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followParent();
    void place();

    QColor m_tint;
    qreal m_rotation = 0;
    qreal m_trailingInset;
    int m_tag = -1;
    bool m_expanded = false;
    QPointer<QWidget> m_followed;
    std::unique_ptr<TovuKitAnimator> m_animator;
};
