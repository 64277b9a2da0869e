// The graphics layer under a plain QGuiApplication, as a Qt Quick app has it: drawn
// symbols, and the shadow of a rounded box.

#include <tovukit_io/graphics/TovuShadow.h>
#include <tovukit_io/graphics/TovuSymbol.h>

#include <QImage>
#include <QPainter>

#include "TovuViewModelTesting.h"

#include <gtest/gtest.h>

#include <thread>
#include <utility>

namespace {

// Paints `name` into a 40 × 40 square at (20, 20) of an 80 × 80 transparent image.
QImage paintSymbol(QStringView name, QFont::Weight weight = QFont::Normal)
{
    QImage image(80, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    TovuSymbol::paint(painter, QRectF(20, 20, 40, 40), name, weight, QColor(0, 0, 255));
    return image;
}

// Painted area in pixels (alpha-weighted), within `area` or everywhere.
double covered(const QImage &image, const QRect &area = QRect())
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (area.isNull() || area.contains(x, y))
                sum += qAlpha(image.pixel(x, y)) / 255.0;
        }
    }
    return sum;
}

// A white `size` image at `dpr` with the shadow of the box at `box` painted on it.
QImage paintShadow(const QRectF &box, const QColor &color, qreal dpr, QSize size = QSize(100, 100))
{
    QImage image((QSizeF(size) * dpr).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::white);
    QPainter painter(&image);
    TovuShadow::paint(painter, box, 12, QPointF(0, 4), 8, color);
    return image;
}

int lightnessAt(const QImage &image, qreal x, qreal y)
{
    const qreal dpr = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(x * dpr), static_cast<int>(y * dpr)).lightness();
}

const QColor halfBlack(0, 0, 0, 128);

} // namespace

TEST(TovuSymbol, KnowsExactlyTheNamedSymbols)
{
    const QStringList names = TovuSymbol::names();
    EXPECT_EQ(names.size(), 11);
    for (const char *name : {"star", "star.fill", "heart", "heart.fill", "circle", "circle.fill", "square",
                             "square.fill", "checkmark", "checkmark.circle.fill", "chevron.down"}) {
        EXPECT_TRUE(names.contains(QLatin1StringView(name))) << name;
        EXPECT_TRUE(TovuSymbol::isKnown(QString::fromLatin1(name))) << name;
    }
    for (const char *name : {"", "Star", "star.half", "chevron.up", "fill"})
        EXPECT_FALSE(TovuSymbol::isKnown(QString::fromLatin1(name))) << name;
}

TEST(TovuSymbol, EverySymbolPaintsInsideItsRectangleInItsColourAndUnknownNamesNothing)
{
    for (const QString &name : TovuSymbol::names()) {
        SCOPED_TRACE(name.toStdString());
        const QImage image = paintSymbol(name);
        const double inside = covered(image, QRect(20, 20, 40, 40));
        EXPECT_GT(inside, 40.0);
        EXPECT_EQ(covered(image), inside); // nothing outside the rectangle
        for (int i = 20; i < 60; ++i) { // solid pixels on the diagonal are the exact colour
            const QColor colour = image.pixelColor(i, i);
            if (colour.alpha() == 255) {
                EXPECT_EQ(colour, QColor(0, 0, 255));
            }
        }
    }
    EXPECT_EQ(covered(paintSymbol(u"star.half")), 0.0);
    EXPECT_EQ(covered(paintSymbol(u"")), 0.0);
}

TEST(TovuSymbol, FilledSymbolsCoverMoreThanOutlinesAndWeightThickensStrokes)
{
    for (const char *outline : {"star", "heart", "circle", "square"}) {
        SCOPED_TRACE(outline);
        const QString name = QLatin1StringView(outline);
        EXPECT_GT(covered(paintSymbol(QString(name + QLatin1StringView(".fill")))), covered(paintSymbol(name)) * 1.5);
        EXPECT_GT(covered(paintSymbol(name, QFont::Bold)), covered(paintSymbol(name, QFont::Light)) * 1.2);
    }
    // The check is cut out of the disc: see-through where it runs, solid at the rim.
    const QImage knocked = paintSymbol(u"checkmark.circle.fill");
    EXPECT_LT(covered(knocked), covered(paintSymbol(u"circle.fill")) * 0.95);
    EXPECT_EQ(knocked.pixelColor(40, 22).alpha(), 255);
}

TEST(TovuSymbol, PixmapIsPointSizeTimesRatioAndDrawnAtDeviceResolution)
{
    for (auto [points, dpr] : {std::pair{24.0, 1.0}, {24.0, 2.0}, {13.0, 3.0}, {10.0, 1.5}}) {
        SCOPED_TRACE(dpr);
        const QPixmap pixmap = TovuSymbol::pixmap(u"star.fill", points, QFont::Normal, Qt::black, dpr);
        EXPECT_EQ(pixmap.size(), QSize(qRound(points * dpr), qRound(points * dpr)));
        EXPECT_EQ(pixmap.devicePixelRatio(), dpr);
        EXPECT_NEAR(covered(pixmap.toImage()) / (points * points * dpr * dpr), 0.45, 0.12);
    }
    EXPECT_TRUE(TovuSymbol::pixmap(u"star", 0, QFont::Normal, Qt::black, 2).isNull());
    EXPECT_TRUE(TovuSymbol::pixmap(u"star", 24, QFont::Normal, Qt::black, 0).isNull());
    const QImage unknown = TovuSymbol::pixmap(u"nope", 24, QFont::Normal, Qt::black, 2).toImage();
    EXPECT_EQ(unknown.size(), QSize(48, 48));
    EXPECT_EQ(covered(unknown), 0.0);
}

TEST(TovuShadow, FallsAroundTheBoxMovedByItsOffsetAndFadesWithinItsSpread)
{
    const QRectF box(20, 20, 60, 40);
    EXPECT_EQ(TovuShadow::spread(8), 12); // 1.5 blur radii, in whole points
    EXPECT_EQ(TovuShadow::shadowRect(box, QPointF(0, 4), 8), QRectF(8, 12, 84, 64));
    for (qreal dpr : {1.0, 2.0}) {
        SCOPED_TRACE(dpr);
        const QImage image = paintShadow(box, halfBlack, dpr);
        EXPECT_LT(lightnessAt(image, 50, 63), 230); // just below the box: offset 4 down
        EXPECT_GT(lightnessAt(image, 50, 17), lightnessAt(image, 50, 63)); // above: lighter
        EXPECT_LT(lightnessAt(image, 50, 40), lightnessAt(image, 50, 63)); // under the box: darkest
        EXPECT_GT(lightnessAt(image, 50, 73), lightnessAt(image, 50, 63)); // fading outwards
        EXPECT_EQ(lightnessAt(image, 50, 77), 255); // beyond the spread
        EXPECT_EQ(lightnessAt(image, 5, 40), 255);
    }
}

TEST(TovuShadow, RoundedCornersShadowLessThanSquareOnes)
{
    QImage rounded(100, 100, QImage::Format_ARGB32_Premultiplied);
    rounded.fill(Qt::white);
    QImage square = rounded;
    {
        QPainter painter(&rounded);
        TovuShadow::paint(painter, QRectF(20, 20, 60, 40), 20, QPointF(), 2, halfBlack);
    }
    {
        QPainter painter(&square);
        TovuShadow::paint(painter, QRectF(20, 20, 60, 40), 0, QPointF(), 2, halfBlack);
    }
    EXPECT_GT(rounded.pixelColor(21, 21).lightness(), square.pixelColor(21, 21).lightness());
    EXPECT_EQ(rounded.pixelColor(50, 40), square.pixelColor(50, 40));
}

TEST(TovuShadow, PaintsNothingForAClearColourOrAnEmptyBox)
{
    QImage blank(100, 100, QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::white);
    EXPECT_EQ(paintShadow(QRectF(20, 20, 60, 40), Qt::transparent, 1), blank);
    EXPECT_EQ(paintShadow(QRectF(20, 20, 0, 40), halfBlack, 1), blank);
}

TEST(TovuShadow, PictureIsMadeOncePerLookAndPixelRatio)
{
    const QImage first = TovuShadow::image(QSizeF(60, 40), 12, 8, halfBlack, 2);
    EXPECT_EQ(first.size(), QSize(168, 128)); // (60 + 2 × 12) × 2 by (40 + 2 × 12) × 2
    EXPECT_EQ(first.devicePixelRatio(), 2.0);
    EXPECT_EQ(TovuShadow::image(QSizeF(60, 40), 12, 8, halfBlack, 2).cacheKey(), first.cacheKey());
    for (const QImage &other :
         {TovuShadow::image(QSizeF(60, 40), 12, 8, halfBlack, 1),
          TovuShadow::image(QSizeF(60, 41), 12, 8, halfBlack, 2), TovuShadow::image(QSizeF(60, 40), 6, 8, halfBlack, 2),
          TovuShadow::image(QSizeF(60, 40), 12, 4, halfBlack, 2),
          TovuShadow::image(QSizeF(60, 40), 12, 8, QColor(255, 0, 0, 128), 2)})
        EXPECT_NE(other.cacheKey(), first.cacheKey());
}

TEST(TovuShadow, PaintsTheSameOnAnotherThread)
{
    // A Qt Quick painted item paints on the scene graph's render thread.
    const QRectF box(10, 10, 50, 30);
    QImage elsewhere;
    std::thread render([&] { elsewhere = paintShadow(box, QColor(0, 0, 80, 100), 3, QSize(70, 60)); });
    render.join();
    EXPECT_EQ(elsewhere, paintShadow(box, QColor(0, 0, 80, 100), 3, QSize(70, 60)));
}
