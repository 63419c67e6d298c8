#include "diamonds/streamrose.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "fakes/scriptedsurface.h"

namespace tarvane::tests {
namespace {

TideStreams tideof(double direction, double turn, double rate, double growth) {
    TideStreams tide;
    for (std::size_t i = 0; i < streamhours; ++i)
        tide.rows[i] = {static_cast<int>(i) - 6, {}, direction + turn * double(i), rate + growth * double(i)};
    return tide;
}

bool apart(const RoseLabel& one, const RoseLabel& other) {
    return one.right <= other.left || other.right <= one.left || one.bottom <= other.top || other.bottom <= one.top;
}

TEST(StreamRose, ArrowsGoTheirWayAsLongAsTheirRate) {
    const Rose rose = layrose(tideof(0, 30, 0.5, 0.125), {400, 300, 16, 8});
    EXPECT_EQ(rose.ringrate, 2);
    ASSERT_EQ(rose.arrows.size(), 13U);
    EXPECT_NEAR(rose.arrows[0].tip.x, 200, 1e-9);
    EXPECT_NEAR(rose.arrows[0].tip.y, 150 - rose.radius / 4, 1e-9);
    EXPECT_NEAR(rose.arrows[3].tip.x, 200 + rose.radius * 0.875 / 2, 1e-9);
    EXPECT_NEAR(rose.arrows[3].tip.y, 150, 1e-9);
    EXPECT_NEAR(rose.arrows[12].tip.y, 150 - rose.radius, 1e-9);
    const std::pair<double, double> rings[] = {{0, 1}, {0.07, 0.08}, {0.3, 0.3}, {1.1, 1.5},
                                               {7, 8}, {9.1, 10},    {12, 15}};
    for (const auto& [rate, ring] : rings)
        EXPECT_NEAR(layrose(tideof(0, 30, rate, 0), {400, 300, 16, 8}).ringrate, ring, 1e-9) << rate;
}

TEST(StreamRose, NoLabelLiesOnAnotherOrOffThePicture) {
    // Evenly round, to and fro as in a channel, all one way, and slack water.
    const TideStreams tides[] = {tideof(0, 27.7, 1, 0), tideof(80, 180, 0.4, 0.1), tideof(270, 0, 2, 0),
                                 tideof(45, 1, 0, 0)};
    for (const TideStreams& tide : tides)
        for (const RosePicture& picture :
             {RosePicture{380, 380, 16, 9}, RosePicture{300, 500, 20, 11}, RosePicture{900, 700, 16, 9}}) {
            const Rose rose = layrose(tide, picture);
            std::vector<RoseLabel> labels = rose.letters;
            for (const RoseArrow& arrow : rose.arrows)
                labels.push_back(arrow.label);
            for (std::size_t i = 0; i < labels.size(); ++i) {
                EXPECT_NE(labels[i].text, "") << i;
                EXPECT_TRUE(labels[i].left >= 0 && labels[i].top >= 0 && labels[i].right <= picture.width &&
                            labels[i].bottom <= picture.height)
                    << labels[i].text;
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_TRUE(apart(labels[i], labels[j])) << labels[i].text << " " << labels[j].text;
            }
        }
}

TEST(StreamRose, TheHourAtAPlaceIsThatOfItsArrowOrLabel) {
    const Rose rose = layrose(tideof(0, 27.7, 1, 0), {400, 400, 16, 8});
    for (const RoseArrow& arrow : rose.arrows) {
        EXPECT_EQ(hourat(rose, arrow.label.middle()), arrow.hour);
        EXPECT_EQ(hourat(rose, {(arrow.tip.x * 3 + 200) / 4 + 2, (arrow.tip.y * 3 + 200) / 4}), arrow.hour);
    }
    EXPECT_FALSE(hourat(rose, {2, 2}));
    EXPECT_FALSE(hourat({}, {0, 0}));
}

TEST(StreamRose, TheStrongHourLiesOverTheRoseAndGoesAgain) {
    ScriptedSurface surface;
    TideStreams tide = tideof(0, 27.7, 1, 0.1);
    tide.rows[4].direction = std::numeric_limits<double>::quiet_NaN();
    const Rose rose = layrose(tide, {400, 400, 16, 8});
    EXPECT_EQ(rose.arrows.size(), 12U);
    drawrose(surface, rose);
    const std::string drawn = ScriptedSurface::log(surface.persistentlayer);
    for (const char* text : {" HW\n", " -6\n", " +6\n", " N\n", " 3\n", " 1.5\n"})
        EXPECT_NE(drawn.find(text), std::string::npos) << text;
    EXPECT_EQ(drawn.find(" -2\n"), std::string::npos);
    drawstrong(surface, rose, 3);
    const auto strong = ScriptedSurface::only(surface.passinglayer, ScriptedSurface::Kind::line, red);
    ASSERT_GE(strong.size(), 4U);
    EXPECT_EQ(strong.back().width, 3);
    EXPECT_NEAR(strong.back().x1, rose.arrows[8].tip.x, 1e-9);
    drawstrong(surface, rose, std::nullopt);
    EXPECT_TRUE(surface.passinglayer.empty());
    EXPECT_EQ(ScriptedSurface::log(surface.persistentlayer), drawn);
}

}  // namespace
}  // namespace tarvane::tests
