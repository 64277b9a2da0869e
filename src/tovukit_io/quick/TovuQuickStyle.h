#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the QML pages paint with, as the `TovuStyle` singleton of `import TovuKit`:
/// the theme engine's colours, fonts and corner radius, the platform colours of
/// the current light or dark appearance, and the motion clock's durations. The
/// same sources the Qt Widgets pages read, so both front ends look alike.
///
/// Every colour is resolved again when the application palette changes (a light
/// → dark switch) or refresh() is called (a new survey theme), and bindings follow.
class TovuQuickStyle : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TovuStyle)
    QML_SINGLETON
    Q_PROPERTY(QColor primaryColor READ primaryColor NOTIFY changed)
    /// Whether the respondent moves with keys rather than a pointer: focus rings show then.
    Q_PROPERTY(bool keyboardNavigation READ keyboardNavigation NOTIFY keyboardNavigationChanged)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY changed)
    Q_PROPERTY(QColor textColor READ textColor NOTIFY changed)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius NOTIFY changed)
    Q_PROPERTY(QColor label READ label NOTIFY changed)
    Q_PROPERTY(QColor secondaryLabel READ secondaryLabel NOTIFY changed)
    Q_PROPERTY(QColor systemBackground READ systemBackground NOTIFY changed)
    Q_PROPERTY(QColor gray READ gray NOTIFY changed)
    Q_PROPERTY(QColor gray2 READ gray2 NOTIFY changed)
    Q_PROPERTY(QColor gray3 READ gray3 NOTIFY changed)
    Q_PROPERTY(QColor gray4 READ gray4 NOTIFY changed)
    Q_PROPERTY(QColor gray5 READ gray5 NOTIFY changed)
    Q_PROPERTY(QColor gray6 READ gray6 NOTIFY changed)
    Q_PROPERTY(QColor red READ red NOTIFY changed)

public:
    explicit TovuQuickStyle(QObject *parent = nullptr);
    ~TovuQuickStyle() override;

    QColor primaryColor() const;
    QColor backgroundColor() const;
    QColor textColor() const;
    qreal cornerRadius() const;
    QColor label() const;
    QColor secondaryLabel() const;
    QColor systemBackground() const;
    QColor gray() const;
    QColor gray2() const;
    QColor gray3() const;
    QColor gray4() const;
    QColor gray5() const;
    QColor gray6() const;
    QColor red() const;

    /// The theme's font at `size` points (scaled by the survey's base size) and `weight`.
    Q_INVOKABLE QFont font(qreal size, int weight) const;
    /// The colour emoji font at `pixelSize`, for faces.
    Q_INVOKABLE QFont emojiFont(qreal pixelSize) const;
    /// `seconds` scaled by the motion clock, in milliseconds (0 with motion off).
    Q_INVOKABLE int durationMs(qreal seconds) const;
    /// `color` at `alpha`.
    Q_INVOKABLE QColor withAlpha(const QColor &color, qreal alpha) const;
    /// Whether the library's texts are in a right-to-left language (or the app is right to left).
    Q_INVOKABLE bool isRightToLeft() const;
    /// Animates `property` of `target` from `from` to `to` along the library's damped
    /// spring, after `delaySeconds`; at once with motion off.
    Q_INVOKABLE void spring(QObject *target, const QString &property, qreal from, qreal to, qreal seconds,
                            qreal dampingRatio, qreal initialVelocity, qreal delaySeconds = 0) const;

    /// Every style singleton resolves its colours again (a new survey theme, say).
    static void refreshAll();
    static bool keyboardNavigation();
    /// The sheet says how the respondent last moved: keys (true) or a pointer.
    static void setKeyboardNavigation(bool keys);

Q_SIGNALS:
    void changed();
    void keyboardNavigationChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
