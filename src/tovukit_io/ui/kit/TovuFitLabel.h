#pragma once

#include <tovukit_io/graphics/TovuTextFit.h>

#include <QLabel>

#include <optional>

/// A one-line plain-text label that fits its text to the width it is given: when the
/// text is wider, it is drawn in a smaller font, down to `minimumScaleFactor` of the
/// label's font, and elided only below that. Centred unless aligned otherwise. Its size
/// hint asks for little width, so it takes what the layout gives (a column under a
/// rating button, say). The text is also the accessible name.
///
/// \code
/// auto *caption = new TovuFitLabel(column.text, this);
/// caption->setFont(theme.font(11, QFont::Normal));
/// caption->setMinimumScaleFactor(0.7);
/// \endcode
class TovuFitLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(qreal minimumScaleFactor READ minimumScaleFactor WRITE setMinimumScaleFactor)

public:
    explicit TovuFitLabel(const QString &text = {}, QWidget *parent = nullptr);

    /// Sets the text (always plain) and the accessible name together.
    void setText(const QString &text);

    /// 0.5 by default; kept between 0.05 and 1.
    qreal minimumScaleFactor() const;
    void setMinimumScaleFactor(qreal factor);

    /// The font the text is drawn in at the label's current width.
    QFont fittedFont() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    // Measuring text is the dear part of painting a label: the fit is kept until the
    // text, the font or the width changes.
    const TovuTextFit &fit() const;
    void forgetFit();

    qreal m_minimumScaleFactor = 0.5;
    mutable std::optional<TovuTextFit> m_fit;
};
