#include "sunmoon/suntimes.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <tuple>

#include "text/timetext.h"

namespace tarvane {
namespace {

using Events = std::array<double, 8>;

Events listed(const SunHours& sun) {
    return {sun.astrodawn, sun.nautdawn,  sun.civildawn, sun.sunrise,
            sun.sunset,    sun.civildusk, sun.nautdusk,  sun.astrodusk};
}

std::string texts(const SunHours& sun) {
    std::string joined;
    for (const double hours : listed(sun))
        joined += (hours == 0 ? "None" : timetext(hours)) + " ";
    return joined;
}

TEST(SunTimes, WorkedDays) {
    using Row = std::tuple<double, double, int, int, std::int16_t, const char*>;
    for (const auto& [latitude, longitude, day, month, summer, expected] :
         {Row{50.9, -1.4, 21, 6, 0, "None 01:55 03:05 03:52 20:23 21:10 22:20 None "},
          Row{50.9, -1.4, 21, 12, 0, "06:04 06:44 07:27 08:06 16:02 16:42 17:24 18:04 "},
          Row{0, 0, 21, 3, 0, "04:55 05:19 05:43 06:04 18:10 18:31 18:55 19:19 "},
          Row{70, 20, 21, 6, 0, "None None None None None None None None "},
          Row{70, 20, 21, 12, 0, "05:26 06:46 08:35 None None 12:42 14:31 15:51 "},
          Row{70, 20, 21, 6, -1, "01:00 01:00 01:00 01:00 01:00 01:00 01:00 01:00 "},
          Row{70, 20, 21, 12, -1, "06:26 07:46 09:35 01:00 01:00 13:42 15:31 16:51 "}})
        EXPECT_EQ(texts(SunTimes(latitude, longitude, day, month, 2024, summer, 0)), expected)
            << latitude << " " << month;
    // Every fourth year is a leap year here, 1900 too.
    EXPECT_EQ(SunTimes(50, 0, 1, 3, 1900, 0, 0).sunrise, SunTimes(50, 0, 1, 3, 1904, 0, 0).sunrise);
}

// Worked through apart from this program, to the last figures that its constants carry.
TEST(SunTimes, HoursInFull) {
    const std::pair<SunHours, Events> days[] = {{SunTimes(50.9, -1.4, 1, 2, 2023, 0, 0),
                                                 {5.8129419324, 6.4553995019, 7.1165060754, 7.7117552233, 16.9439068978,
                                                  17.5381049299, 18.1984509099, 18.8405149188}},
                                                {SunTimes(-36.8, 174.8, 9, 9, 2025, 0, 0),
                                                 {17.0867610956, 17.587818779, 18.0875004429, 18.5190491599,
                                                  6.1031063014, 6.5345203742, 7.0341958748, 7.5354169408}}};
    for (const auto& [sun, expected] : days)
        for (std::size_t i = 0; i < 8; ++i)
            EXPECT_NEAR(listed(sun)[i], expected[i], 1e-9) << i;
}

TEST(SunTimes, ZoneAndSummerRunOverTheMarkOfAMissingEvent) {
    using Row = std::tuple<std::int16_t, std::int16_t, double>;
    for (const auto& [zonehours, summer, missing] :
         {Row{0, 0, 0}, Row{0, -1, 1}, Row{-1, 0, 1}, Row{-1, -1, 2}, Row{1, 0, 23}, Row{1, -1, 24}, Row{12, 0, 12},
          Row{-24, 0, 24}, Row{0, 1, 0}})
        EXPECT_EQ(SunTimes(70, 20, 21, 6, 2024, summer, zonehours).sunrise, missing) << zonehours << " " << summer;
    // A summer hour after the wrap: past 24, not back to 0.
    EXPECT_EQ(timetext(SunTimes(58.6, -3, 1, 5, 2024, -1, -1).nautdusk), "00:09");
    EXPECT_EQ(timetext(SunTimes(58.6, -3, 1, 5, 2024, 0, -2).nautdusk), "00:09");
    EXPECT_EQ(timetext(SunTimes(58.6, -3, 1, 5, 2024, -1, -4).nautdusk), "03:09");
}

TEST(SunEvent, GrazingTheHorizon) {
    // A pole-less sky: with declination and latitude 0 the cosine of the hour angle is the zenith's own.
    const auto event = [](double coszenith, bool evening, double zoneangle = 0) {
        return SunEvent(coszenith, 0, 0, 0, 1.5708, evening, 6.28319, 0, 3, zoneangle);
    };
    const double noon = 3.81972 * (3 - 1.73364);
    EXPECT_NEAR(event(1, false), noon, 1e-9);
    EXPECT_NEAR(event(-1, true), noon + 12, 1e-4);
    EXPECT_NEAR(event(0.999999999, true), noon, 1e-3) << "the limit joins its neighbours";
    EXPECT_NEAR(event(1, true, 0.5), noon - 3.81972 * 0.5, 1e-9);
    EXPECT_EQ(event(1.0000001, true), 0);
    EXPECT_EQ(event(-1.0000001, false), 0);
}

// A typed position can be anything; the routine must come back.
TEST(SunTimes, AbsurdPositionsEnd) {
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double longitude : {1e9, -1e300, infinite, std::nan("")}) {
        EXPECT_FALSE(SunTimes(50, longitude, 1, 1, 2024, 0, 0).sunrise > 24.0001) << longitude;
        EXPECT_FALSE(SunTimes(longitude, 0, 1, 1, 2024, 0, 0).sunset > 24.0001) << longitude;
    }
}

}  // namespace
}  // namespace tarvane
