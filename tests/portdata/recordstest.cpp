#include "portdata/records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <vector>

#include "portdata/bytes.h"

namespace tarvane {
namespace {

constexpr float infinite = std::numeric_limits<float>::infinity();
constexpr float notanumber = std::numeric_limits<float>::quiet_NaN();

TEST(HarmonicRecordBytes, StandAtTheirOffsets) {
    HarmonicRecord record;
    record.PortNo = "77";
    record.PortName = "Saint-Vaast-la-Hougue et ses environs, Manche";
    record.TimeZoneLetter = "M";
    float* const numbers[] = {&record.PortLat, &record.PortLong, &record.Z0,  &record.M2g,  &record.M2Hm,
                              &record.S2g,     &record.S2Hm,     &record.K1g, &record.K1Hm, &record.O1g,
                              &record.O1Hm,    &record.SF4,      &record.LF4, &record.SF6,  &record.LF6};
    const std::size_t offsets[] = {40, 44, 49, 53, 57, 61, 65, 69, 73, 77, 81, 85, 89, 93, 97};
    for (std::size_t i = 0; i < std::size(offsets); ++i)
        *numbers[i] = 1.5f + static_cast<float>(i);
    for (std::size_t m = 0; m < 12; ++m) {
        record.DeltaZ0[m] = -0.25f * static_cast<float>(m);
        record.MHm2[m] = 100 + static_cast<float>(m);
    }
    const auto bytes = encode(record);
    ASSERT_EQ(bytes.size(), 197u);
    EXPECT_EQ(textat(bytes, 0, 5), "77   ");
    EXPECT_EQ(textat(bytes, 5, 35), "Saint-Vaast-la-Hougue et ses enviro");
    EXPECT_EQ(textat(bytes, 48, 1), "M");
    for (std::size_t i = 0; i < std::size(offsets); ++i)
        EXPECT_EQ(numberat<float>(bytes, offsets[i]), *numbers[i]) << i;
    for (std::size_t m = 0; m < 12; ++m) {
        EXPECT_EQ(numberat<float>(bytes, 101 + 4 * m), record.DeltaZ0[m]);
        EXPECT_EQ(numberat<float>(bytes, 149 + 4 * m), record.MHm2[m]);
    }
    EXPECT_EQ(decodeharmonic(bytes).PortNo, "77   ");
    EXPECT_EQ(encode(decodeharmonic(bytes)), bytes);
    record.Z0 = notanumber;
    record.M2Hm = -infinite;
    record.PortLat = -0.0f;
    EXPECT_EQ(encode(decodeharmonic(encode(record))), encode(record));
}

TEST(HarmonicRecordBytes, AnyLengthDecodes) {
    HarmonicRecord record;
    record.PortNo = "1";
    record.PortName = "Fécamp";
    record.TimeZoneLetter = "M";
    record.PortLat = 49.765f;
    record.MHm2.fill(2.5f);
    const auto bytes = encode(record);
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        std::vector<std::byte> padded(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
        const auto piece = encode(decodeharmonic(padded));
        padded.resize(bytes.size());
        EXPECT_EQ(piece, encode(decodeharmonic(padded))) << length;
    }
    const HarmonicRecord empty = decodeharmonic({});
    EXPECT_EQ(empty.PortName + empty.PortNo + empty.TimeZoneLetter, "");
    EXPECT_EQ(zonehoursof(empty), 0);
    EXPECT_EQ(decodeharmonic(std::span(bytes).first(8)).PortName, "Féc");
    EXPECT_EQ(decodeharmonic(std::span(bytes).first(195)).MHm2[11], 0.0f);
}

TEST(UserDepthRecordBytes, StandAtTheirOffsets) {
    UserDepthRecord record{"Fécamp", 84, -1.25f, 2, 3, "Œuvre – note " + std::string(300, 'x')};
    const auto bytes = encode(record);
    ASSERT_EQ(bytes.size(), 305u);
    EXPECT_EQ(textat(bytes, 0, 35), filled("F\xE9\x63\x61mp", 35));
    EXPECT_EQ(numberat<std::int16_t>(bytes, 35), 84);
    EXPECT_EQ(numberat<float>(bytes, 37), -1.25f);
    EXPECT_EQ(numberat<float>(bytes, 41), 2);
    EXPECT_EQ(numberat<float>(bytes, 45), 3);
    EXPECT_EQ(textat(bytes, 49, 256), "\x8Cuvre \x96 note " + std::string(256 - 13, 'x'));
    EXPECT_EQ(encode(decodeuserdepth(bytes)), bytes);
}

TEST(Zones, TheThreeTablesWalkedCompletely) {
    const std::map<char, const char*> shown = {
        {'A', "11"}, {'B', "10"}, {'C', "9"},  {'D', "8"},  {'E', "7"},   {'F', "6"},  {'G', "5"},  {'H', "4"},
        {'I', "3"},  {'J', "2"},  {'K', "1"},  {'L', "0"},  {'M', "-1"},  {'N', "-2"}, {'O', "-3"}, {'P', "-4"},
        {'Q', "-5"}, {'R', "-6"}, {'S', "-8"}, {'T', "-7"}, {'U', "-10"}, {'V', "-11"}};
    for (int code = 1; code < 128; ++code) {
        HarmonicRecord port;
        port.TimeZoneLetter = static_cast<char>(code);
        EXPECT_EQ(zonehoursof(port), 76 - code);
        const int capital = code >= 'a' && code <= 'z' ? code - 32 : code;
        const auto row = shown.find(static_cast<char>(capital));
        EXPECT_EQ(zonetextof(port.TimeZoneLetter), row == shown.end() ? "0" : row->second) << code;
    }
    EXPECT_EQ(zonetextof("") + zonetextof("TT") + zonetextof("W") + zonetextof("é"), "0000");
    for (int hours = -11; hours <= 11; ++hours) {
        HarmonicRecord port;
        port.TimeZoneLetter = zoneletter(hours);
        EXPECT_EQ(zonehoursof(port), hours);
    }
    for (const double other : {12.0, -12.0, 0.5, -0.0, 1e300, static_cast<double>(notanumber)}) {
        EXPECT_EQ(zoneletter(other), "L") << other;
    }
    HarmonicRecord accented;
    accented.TimeZoneLetter = "é";
    EXPECT_EQ(zonehoursof(accented), 76 - 0xE9);
}

TEST(Constants, AreShownAsLabelsHaveThem) {
    EXPECT_EQ(constituenttext(256.5, 1.865), " (g 257 : Hm 1.87)");
    EXPECT_EQ(f4text(7.2, 0.0351), " (f4 007 : F4 0.04)");
    EXPECT_EQ(f6text(129, 0.0049), " (f6 129 : F6 0.00)");
    EXPECT_EQ(z0text(-0.125), " (Z0 -0.13)");
}

}  // namespace
}  // namespace tarvane
