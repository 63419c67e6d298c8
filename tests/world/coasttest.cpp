// The coast that ships against what everyone knows of the earth, at each level of detail; and broken files.
#include "world/coast.h"

#include <gtest/gtest.h>

#include "fakes/temporaryfolder.h"
#include "files/wholefiles.h"
#include "world/inland.h"
#include "world/mapview.h"

namespace tarvane {
namespace {

const std::vector<std::byte>& shippedcoast() {
    static const std::vector<std::byte> bytes = readwhole(std::string(TARVANE_DATA) + "/" + coastfile);
    return bytes;
}

struct Known {
    const char* name;
    double latitude, longitude;
    bool land;
};

constexpr Known knowns[] = {
    {"London", 51.5, -0.1, true},
    {"the Channel", 50, -4, false},
    {"New Jersey", 40.7, -74.5, true},
    {"New South Wales", -30, 150, true},
    {"the Tasman Sea", -37, 160, false},
    {"Iceland", 65, -18, true},
    {"New Caledonia", -21.3, 165.3, true},
    {"the island of Hawaii", 19.6, -155.5, true},
    {"Fiji", -17.8, 178, true},
    {"Chukotka before the date line", 67.5, 178, true},
    {"Chukotka on the date line", 67.5, 180, true},
    {"Chukotka behind the date line", 67.5, -178, true},
    {"Wrangel Island on the date line", 71.25, 180, true},
    {"the Caspian Sea", 42, 51, false},
    {"Kazakhstan", 48, 67, true},
    {"the Southern Ocean", -55, 180, false},
    {"the south pole", -89, 12, true},
    {"Antarctica on the date line", -84.9, 180, true},
    {"the Ross Sea", -75, 180, false},
    {"the Arctic Ocean", 88, 100, false},
};

TEST(Coast, LandAndSeaAreWhereTheyAreAtEachLevel) {
    const Coast coast = decodecoast(shippedcoast());
    ASSERT_EQ(coast.fault, "");
    ASSERT_GE(coast.levels.size(), 4U);
    for (const CoastLevel& level : coast.levels)
        for (const Known& known : knowns)
            EXPECT_EQ(tests::inland(level, mappoint(known.latitude, known.longitude)), known.land)
                << known.name << " at " << level.tolerance;
    // What is small is only in the finer ones.
    const MapPoint guernsey = mappoint(49.45, -2.58);
    EXPECT_TRUE(tests::inland(coast.levels.front(), guernsey));
    EXPECT_FALSE(tests::inland(coast.levels.back(), guernsey));
}

TEST(Coast, LevelsAreFewerPointsTheFartherTheWorld) {
    const Coast coast = decodecoast(shippedcoast());
    std::size_t before = 0;
    const CoastLevel* last = nullptr;
    for (double scale = 1000; scale < greatestscale; scale *= 1.5) {
        const CoastLevel* level = coastlevel(coast, scale);
        ASSERT_TRUE(level);
        if (level == last) continue;
        last = level;
        std::size_t points = 0;
        for (const CoastRing& ring : level->rings)
            points += ring.points.size();
        EXPECT_GT(points, before);
        before = points;
        if (scale > 1500) {
            EXPECT_LE(level->tolerance * scale, 1) << "off by more than is seen";
        }
    }
    EXPECT_EQ(last, &coast.levels.front());
    EXPECT_EQ(coastlevel({}, 1000), nullptr);
}

TEST(Coast, PiecesBoxTheirPoints) {
    const Coast coast = decodecoast(shippedcoast());
    for (const CoastRing& ring : coast.levels.back().rings) {
        ASSERT_EQ(ring.pieces.size(), (ring.points.size() - 2) / coastpiece + 1);
        for (std::size_t i = 0; i < ring.points.size(); ++i)
            for (const std::size_t piece : {i / coastpiece, (i + coastpiece - 1) / coastpiece}) {
                if (piece >= ring.pieces.size() || i < piece * coastpiece || i > (piece + 1) * coastpiece) continue;
                const CoastBox& box = ring.pieces[piece];
                const CoastPoint& point = ring.points[i];
                ASSERT_TRUE(point.x >= box.left && point.x <= box.right && point.y >= box.top && point.y <= box.bottom);
            }
    }
}

TEST(Coast, ABrokenFileIsToldAndNothingOfItIsShown) {
    const std::vector<std::byte>& whole = shippedcoast();
    const auto broken = [](const Coast& coast) {
        return coast.levels.empty() && coast.fault == "No coast is shown: its file coast.bin is broken.";
    };
    const std::span<const std::byte> file(whole);
    for (std::size_t size = 0; size < file.size(); size += size < 200 ? 1 : 249989) {
        EXPECT_TRUE(broken(decodecoast(file.first(size)))) << size;
        if (size > 12) {
            EXPECT_TRUE(broken(decodelevels(file.subspan(12, size - 12)))) << size;
        }
    }
    // A sum that fits what is nonsense: counts that promise more than there is, steps out of the world.
    for (std::size_t at = 12; at < 400; ++at)
        for (const unsigned value : {0x00U, 0x7FU, 0xFFU}) {
            std::vector<std::byte> body(whole.begin() + 12, whole.begin() + 4000);
            body[at - 12] = static_cast<std::byte>(value);
            EXPECT_TRUE(broken(decodelevels(body)));
        }
    std::vector<std::byte> longer(whole.begin() + 12, whole.end());
    longer.push_back(std::byte{});
    EXPECT_TRUE(broken(decodelevels(longer))) << "more than it tells of";
    std::vector<std::byte> flipped = whole;
    flipped[flipped.size() / 2] ^= std::byte{1};
    EXPECT_TRUE(broken(decodecoast(flipped)));
    fakes::TemporaryFolder folder;
    EXPECT_EQ(readcoast(folder / "").fault, "No coast is shown: its file coast.bin can't be found.");
}

}  // namespace
}  // namespace tarvane
