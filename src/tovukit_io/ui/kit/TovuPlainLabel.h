#pragma once

// The label TovuLabels::plain makes; not installed.

#include <QLabel>

/// A QLabel that shares its size hints with every other label showing the same text in the
/// same font, margins and limits. QLabel lays a wrapping text out up to five times to size
/// it, and a page of rows repeats its short texts in every row (a scale's end labels). Only
/// plain text that cannot be selected is shared; anything else sizes itself as QLabel does.
class TovuPlainLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TovuPlainLabel(QWidget *parent = nullptr);
    ~TovuPlainLabel() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

private:
    enum class Measure { sizeHint, minimumSizeHint, heightForWidth };

    bool isShared() const;
    QSize shared(Measure measure, int width) const;
};
