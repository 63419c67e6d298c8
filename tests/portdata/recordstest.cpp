#include "portdata/records.h"

#include <gtest/gtest.h>

#include <vector>

#include "portdata/bytes.h"

namespace tarvane {
namespace {

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
    EXPECT_EQ(textat(bytes, 0, 40), "77   Saint-Vaast-la-Hougue et ses enviro");
    EXPECT_EQ(textat(bytes, 48, 1), "M");
    for (std::size_t i = 0; i < std::size(offsets); ++i)
        EXPECT_EQ(numberat<float>(bytes, offsets[i]), *numbers[i]) << i;
    for (std::size_t m = 0; m < 12; ++m) {
        EXPECT_EQ(numberat<float>(bytes, 101 + 4 * m), record.DeltaZ0[m]);
        EXPECT_EQ(numberat<float>(bytes, 149 + 4 * m), record.MHm2[m]);
    }
    EXPECT_EQ(encode(decodeharmonic(bytes)), bytes);
}

TEST(UserDepthRecordBytes, StandAtTheirOffsets) {
    const auto bytes = encode(UserDepthRecord{"Fécamp", 84, -1.25f, 2, 3, "Œuvre – note " + std::string(300, 'x')});
    EXPECT_EQ(textat(bytes, 0, 35), filled("F\xE9\x63\x61mp", 35));
    EXPECT_EQ(numberat<std::int16_t>(bytes, 35), 84);
    const float numbers[] = {-1.25f, 2, 3};
    EXPECT_EQ(0, std::memcmp(&bytes[37], numbers, sizeof numbers));
    EXPECT_EQ(textat(bytes, 49, 256), "\x8Cuvre \x96 note " + std::string(256 - 13, 'x'));
    EXPECT_EQ(encode(decodeuserdepth(bytes)), bytes);
}

/// Whether every shorter piece of a record's bytes reads as if zeros followed, and longer ones as the record.
template <typename Bytes, typename Decode>
void expectanylength(const Bytes& bytes, Decode decode) {
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        std::vector<std::byte> piece(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
        const auto read = encode(decode(piece));
        piece.resize(bytes.size() + 90);
        EXPECT_EQ(read, encode(decode(piece))) << length;
    }
}

TEST(RecordBytes, OfAnyLengthDecode) {
    HarmonicRecord port;
    port.PortNo = "1";
    port.PortName = "Fécamp";
    port.MHm2.fill(2.5f);
    const auto bytes = encode(port);
    expectanylength(bytes, decodeharmonic);
    EXPECT_EQ(decodeharmonic(std::span(bytes).first(8)).PortName, "Féc");
    EXPECT_EQ(decodeharmonic(std::span(bytes).first(195)).MHm2[11], 0.0f);
    ConfigRecord config;
    config.hcfilepath = "/opt/tarvane/UK.hc";
    config.reserved1 = -2;
    config.reserved2 = 0x01020304;
    config.draught = 1.25F;
    config.ukc = 2.5F;
    expectanylength(encode(config), decodeconfig);
    EXPECT_EQ(numberat<float>(encode(config), 1283) + 10 * numberat<float>(encode(config), 1287), 26.25F);
    EXPECT_EQ(textat(encode(config), 1299, 8), "\xFE\xFF\xFF\xFF\x04\x03\x02\x01");
}

TEST(Zones, TheThreeTablesWalkedCompletely) {
    const char* const shown[] = {"11", "10", "9",  "8",  "7",  "6",  "5",  "4",  "3",  "2",   "1",
                                 "0",  "-1", "-2", "-3", "-4", "-5", "-6", "-8", "-7", "-10", "-11"};  // "A" to "V"
    HarmonicRecord port;
    for (int code = 1; code < 128; ++code) {
        port.TimeZoneLetter = static_cast<char>(code);
        EXPECT_EQ(zonehoursof(port), 76 - code);
        const int capital = code >= 'a' && code <= 'z' ? code - 32 : code;
        EXPECT_EQ(zonetextof(port.TimeZoneLetter), capital < 'A' || capital > 'V' ? "0" : shown[capital - 'A']) << code;
    }
    for (int hours = -11; hours <= 11; ++hours) {
        port.TimeZoneLetter = zoneletter(hours);
        EXPECT_EQ(zonehoursof(port), hours);
    }
    EXPECT_EQ(zoneletter(12) + zoneletter(0.5) + zoneletter(1e300), "LLL");
    EXPECT_EQ(zonetextof("") + zonetextof("TT") + zonetextof("é"), "000");
    port.TimeZoneLetter = "é";
    EXPECT_EQ(zonehoursof(port), 76 - 0xE9);
}

}  // namespace
}  // namespace tarvane
