// The motion clock, and the graphics layer's placement agreeing with the widget styles'.

#include <tovukit_io/graphics/TovuPainting.h>
#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QStyle>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

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

// The emoji faces are placed with TovuPainting::alignedRect where they were placed with the
// widget style's before: every alignment, both directions, odd and even leftovers.
TEST(TovuPainting, AlignedRectPlacesAsTheWidgetStylesDo)
{
    const std::vector<Qt::Alignment> horizontal{{},
                                                Qt::AlignLeft,
                                                Qt::AlignRight,
                                                Qt::AlignHCenter,
                                                Qt::AlignJustify,
                                                Qt::AlignLeft | Qt::AlignAbsolute,
                                                Qt::AlignRight | Qt::AlignAbsolute,
                                                Qt::AlignAbsolute};
    const std::vector<Qt::Alignment> vertical{{}, Qt::AlignTop, Qt::AlignBottom, Qt::AlignVCenter, Qt::AlignBaseline};
    const std::vector<std::pair<QSize, QRect>> boxes{{QSize(30, 10), QRect(10, 20, 100, 50)},
                                                     {QSize(31, 11), QRect(-7, 3, 101, 50)},
                                                     {QSize(120, 60), QRect(0, 0, 100, 50)},
                                                     {QSize(0, 0), QRect(5, 5, 9, 9)}};
    for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        for (Qt::Alignment h : horizontal) {
            for (Qt::Alignment v : vertical) {
                for (const auto &[size, rect] : boxes) {
                    SCOPED_TRACE(testing::Message() << direction << " " << (h | v).toInt() << " " << size.width());
                    EXPECT_EQ(TovuPainting::alignedRect(direction, h | v, size, rect),
                              QStyle::alignedRect(direction, h | v, size, rect));
                }
            }
        }
    }
}
