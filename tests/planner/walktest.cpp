// Waters and windows against a plain walk by minutes, over a year from one New Year to the next.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "engine/waters.h"
#include "fakes/testport.h"
#include "planner/access.h"
#include "planner/minutewalk.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using tests::MinuteWalk;

constexpr Date newyear = std::chrono::year{2027} / 12 / 1;
#ifdef __SANITIZE_ADDRESS__
constexpr int walkeddays = 40;
constexpr std::size_t everyport = 12;
#else
constexpr int walkeddays = 366;
constexpr std::size_t everyport = 1;
#endif
constexpr long minutesaday = 24 * 60;

long frommidnight(long minute) {
    return std::min(minute % minutesaday, minutesaday - minute % minutesaday);
}

/// A halt between two rows of ten minutes, of less than a millimetre.
bool ishalt(const std::vector<tests::WalkedWater>& walked, std::size_t i) {
    const auto beside = [&](std::size_t j) {
        return j < walked.size() && std::abs(walked[j].minute - walked[i].minute) < 10 &&
               std::abs(walked[j].height - walked[i].height) < 0.001;
    };
    return beside(i - 1) || beside(i + 1);
}

/// Near midnight the same turn is seen from two days or from none; there one water must stand for it.
void comparewaters(const std::string& port, const std::vector<Water>& waters, const MinuteWalk& walk) {
    const auto walked = walk.waters();
    const auto minuteof = [](const Water& water) { return std::lround(water.hours * 60); };
    for (std::size_t i = 0; i < walked.size(); ++i) {
        const auto& each = walked[i];
        const auto near = std::count_if(waters.begin(), waters.end(), [&](const Water& water) {
            return water.high == each.high && std::abs(minuteof(water) - each.minute) <= 1 &&
                   std::abs(water.height - each.height) < 0.001;
        });
        if (near != 1 && frommidnight(each.minute) > 60 && !ishalt(walked, i))
            ADD_FAILURE() << port << ": " << near << " waters at minute " << each.minute;
    }
    for (std::size_t i = 0; i < waters.size(); ++i) {
        const Water& water = waters[i];
        const bool found = std::any_of(walked.begin(), walked.end(), [&](const auto& each) {
            return water.high == each.high && std::abs(minuteof(water) - each.minute) <= 1;
        });
        if (!found && frommidnight(minuteof(water)) > 1) ADD_FAILURE() << port << ": invented at " << minuteof(water);
        if (i > 0 && waters[i - 1].high == water.high) ADD_FAILURE() << port << ": two of a kind at " << water.hours;
    }
}

void comparewindows(const std::string& port, const Access& access, const MinuteWalk& walk, double floor,
                    double ceiling) {
    auto walked = walk.windows(floor, ceiling);
    std::erase_if(walked, [](const auto& each) { return each.first == each.last; });
    // Walked windows part where a single minute fails; the height may touch the level between two minutes as well.
    std::size_t matched = 0;
    for (const Window& window : access.windows)
        matched += std::any_of(walked.begin(), walked.end(), [&](const auto& each) {
            return each.first == window.opens && (each.last == window.closes || window.cutatend);
        });
    EXPECT_EQ(matched, access.windows.size()) << port << " at " << floor;
    EXPECT_EQ(walked.size(), access.windows.size()) << port << " at " << floor;
}

TEST(Waters, AreThoseOfAWalkByMinutesAtEveryPort) {
    const auto ports = tests::shippedports();
    for (std::size_t i = 0; i < ports.size(); i += everyport) {
        const HarmonicRecord& port = ports[i];
        const MinuteWalk walk(port, newyear, walkeddays);
        const std::string name = trim(port.PortName);
        comparewaters(name, watersof(port, newyear, walkeddays), walk);
        const TideSpan span(port, newyear, walkeddays);
        for (const double share : {0.1, 0.5, 0.9}) {
            const double floor = port.Z0 + (share - 0.5) * meanspringrange(port);
            Passage passage;
            passage.bottom = -floor;
            comparewindows(name, accessof(span, {0, span.hours()}, passage, {}, {}), walk, floor, HUGE_VAL);
            passage.bridge = 20;
            passage.airdraught = 20 - floor - 0.4;
            comparewindows(name, accessof(span, {0, span.hours()}, passage, {}, {}), walk, floor, floor + 0.4);
        }
    }
}

}  // namespace
}  // namespace tarvane
