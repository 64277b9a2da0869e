#pragma once

#include <QPointF>
#include <QPointer>
#include <QScrollArea>

class QAbstractButton;

/// A row that scrolls sideways only, with no scroll bar, frame or background of its
/// own: by a horizontal wheel or trackpad (or shift + wheel), by touch, and by dragging
/// with the mouse anywhere on it, also starting on one of its buttons. A drag longer than
/// the platform's drag distance scrolls and takes the press away from the button, so no
/// click fires; a plain click still clicks. Vertical wheel turns pass on to the enclosing
/// scroll area (the sheet).
///
/// The content fills the strip's height and at least its width, and scrolls when its
/// minimum width is wider. To keep buttons at their natural widths (and scroll) rather
/// than squeeze them, give them a horizontal size policy that does not shrink (Fixed).
///
/// \code
/// auto *strip = new TovuScrollStrip(row);
/// auto *buttons = new QWidget;
/// auto *layout = new QHBoxLayout(buttons);
/// for (...) layout->addWidget(columnButton(...));
/// strip->setWidget(buttons); // call it on the strip, not through QScrollArea
/// strip->setFixedHeight(44);
/// \endcode
class TovuScrollStrip : public QScrollArea
{
    Q_OBJECT

public:
    explicit TovuScrollStrip(QWidget *parent = nullptr);
    ~TovuScrollStrip() override;

    /// Like QScrollArea::setWidget, but keeps the content see-through and watches it (and
    /// what is later added to it) for mouse drags.
    void setWidget(QWidget *widget);

protected:
    void wheelEvent(QWheelEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watch(QObject *object);
    bool filterMouse(QObject *watched, QEvent *event);

    struct Drag {
        bool active = false;
        bool scrolling = false;
        QPointF pressPosition;
        int startValue = 0;
        QPointer<QAbstractButton> button;
    };
    Drag m_drag;
};
