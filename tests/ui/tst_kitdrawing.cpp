// Drawn symbols and the motion clock.

#include <tovukit_io/ui/kit/TovuSymbol.h>
#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
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

class TovuMotionTest : public testing::Test
{
protected:
    void TearDown() override { TovuMotion::setDurationScale(1); }
};

TEST_F(TovuMotionTest, DurationsFollowTheGlobalScale)
{
    constexpr qreal nan = std::numeric_limits<qreal>::quiet_NaN();
    EXPECT_EQ(TovuMotion::durationScale(), 1.0);
    EXPECT_EQ(TovuMotion::durationMs(0.35), 350);
    EXPECT_EQ(TovuMotion::durationMs(0.0804), 80);
    EXPECT_EQ(TovuMotion::durationMs(-1), 0);
    EXPECT_EQ(TovuMotion::durationMs(nan), 0);
    EXPECT_EQ(TovuMotion::durationMs(std::numeric_limits<qreal>::infinity()), 0);
    TovuMotion::setDurationScale(0.5);
    EXPECT_EQ(TovuMotion::durationMs(0.35), 175);
    TovuMotion::setDurationScale(3);
    EXPECT_EQ(TovuMotion::durationMs(0.1), 300);
    TovuMotion::setDurationScale(0);
    EXPECT_EQ(TovuMotion::durationMs(0.35), 0);
    for (qreal bad : {-2.0, nan}) {
        TovuMotion::setDurationScale(bad);
        EXPECT_EQ(TovuMotion::durationScale(), 0.0);
    }
}

TEST_F(TovuMotionTest, SpringsRunFromZeroToOneAndOvershootOnlyWhenUnderdamped)
{
    // Highest value and largest step back over a fine sampling.
    auto extremes = [](const QEasingCurve &curve) {
        double highest = 0, largestDrop = 0, previous = 0;
        for (int i = 0; i <= 1000; ++i) {
            const double value = curve.valueForProgress(i / 1000.0);
            highest = std::max(highest, value);
            largestDrop = std::max(largestDrop, previous - value);
            previous = value;
        }
        return std::pair{highest, largestDrop};
    };
    for (auto [damping, velocity] : {std::pair{0.5, 0.0}, {0.7, 0.5}, {0.8, 1.2}, {1.0, 0.0}, {2.0, 0.0}}) {
        SCOPED_TRACE(damping);
        const QEasingCurve curve = TovuMotion::spring(damping, velocity);
        EXPECT_EQ(curve.valueForProgress(0), 0.0);
        EXPECT_EQ(curve.valueForProgress(1), 1.0);
        EXPECT_NEAR(curve.valueForProgress(0.999), 1.0, 0.01); // settled, no jump at the end
        EXPECT_GT(curve.valueForProgress(0.3), 0.5);
    }
    EXPECT_GT(extremes(TovuMotion::spring(0.5, 0)).first, 1.08);
    EXPECT_LT(extremes(TovuMotion::spring(0.5, 0)).first, 1.3);
    EXPECT_GT(extremes(TovuMotion::spring(0.5, 0)).second, 0.0);
    EXPECT_GT(extremes(TovuMotion::spring(0.8, 1.2)).first, 1.0);
    EXPECT_LT(extremes(TovuMotion::spring(0.8, 1.2)).first, 1.05);
    for (double damping : {1.0, 1.5, 4.0}) {
        const auto [high, drop] = extremes(TovuMotion::spring(damping, 0));
        EXPECT_LE(high, 1.0 + 1e-9) << damping;
        EXPECT_LT(drop, 1e-3) << damping;
    }

    // More distinct springs than a host would ever use still give whole curves, and a
    // spring asked for twice is the same curve.
    for (int i = 0; i < 50; ++i) {
        const QEasingCurve curve = TovuMotion::spring(0.3 + i * 0.02, i * 0.1);
        EXPECT_EQ(curve.valueForProgress(0), 0.0);
        EXPECT_EQ(curve.valueForProgress(1), 1.0);
    }
    EXPECT_EQ(TovuMotion::spring(0.8, 1.2).valueForProgress(0.2), TovuMotion::spring(0.8, 1.2).valueForProgress(0.2));
    EXPECT_NE(TovuMotion::spring(0.5, 0).valueForProgress(0.2), TovuMotion::spring(0.9, 0).valueForProgress(0.2));
}

TEST_F(TovuMotionTest, EaseOutStartsFastAndEndsAtOne)
{
    const QEasingCurve curve = TovuMotion::easeOut();
    EXPECT_NEAR(curve.valueForProgress(0), 0.0, 1e-6);
    EXPECT_NEAR(curve.valueForProgress(1), 1.0, 1e-6);
    EXPECT_GT(curve.valueForProgress(0.25), 0.35);
}
