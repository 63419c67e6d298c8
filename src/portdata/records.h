// The fixed-length records of the program's files, and their bytes. Packed, little-endian, single-byte text filled with
// blanks. Must not open files.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace tarvane {

inline constexpr std::size_t harmonicrecordsize = 197;
inline constexpr std::size_t userdepthrecordsize = 305;
inline constexpr std::size_t configrecordsize = 1307;

/// One port of a sea area. Texts are UTF-8, as wide as they stand in the file (blanks kept, cut at the first NUL).
/// Phases in degrees, amplitudes and levels in metres, positions in degrees, north and east positive.
struct HarmonicRecord {
    std::string PortNo;
    std::string PortName;
    float PortLat = 0;
    float PortLong = 0;
    std::string TimeZoneLetter;
    float Z0 = 0;
    float M2g = 0, M2Hm = 0;
    float S2g = 0, S2Hm = 0;
    float K1g = 0, K1Hm = 0;
    float O1g = 0, O1Hm = 0;
    float SF4 = 0, LF4 = 0;
    float SF6 = 0, LF6 = 0;
    std::array<float, 12> DeltaZ0{};
    std::array<float, 12> MHm2{};
};

/// The user's depth and note for the port of the same record number.
struct UserDepthRecord {
    std::string DepthPortName;
    std::int16_t DepthPortNo = 0;
    float UserDepth = 0;
    float DepthSpare1 = 0;
    float DepthSpare2 = 0;
    std::string Notes;
};

/// All that the program remembers between runs. Path fields are trimmed UTF-8; a path that Windows-1252 can't hold is
/// stored in its own UTF-8 bytes, and read back as such.
struct ConfigRecord {
    std::string hcfilepath;
    std::string ownermark;
    std::string spare1;
    std::string spare2;
    std::string wayfilepath;
    float portnumber = 0;
    float outputoption = 0;
    float draught = 0;
    float ukc = 0;
    float spareoption = 0;
    std::int16_t summertimeflag = 0;
    std::int16_t sortmode = 0;
    std::int32_t reserved1 = 0;
    std::int32_t reserved2 = 0;
};

std::array<std::byte, harmonicrecordsize> encode(const HarmonicRecord& record);
std::array<std::byte, userdepthrecordsize> encode(const UserDepthRecord& record);
std::array<std::byte, configrecordsize> encode(const ConfigRecord& record);

/// The record that the bytes hold. Fewer bytes than the record has read as if followed by zeros.
HarmonicRecord decodeharmonic(std::span<const std::byte> bytes);
UserDepthRecord decodeuserdepth(std::span<const std::byte> bytes);
ConfigRecord decodeconfig(std::span<const std::byte> bytes);

/// The zone in hours as the engine takes it: 76 minus the letter's code ("L" 0, "M" -1, "K" 1); 0 for an empty letter.
/// A blank is not treated specially and gives 44.
std::int16_t zonehoursof(const HarmonicRecord& record);

// kept: the next two are the conversions of the editor of constants, which disagree with the engine's

/// The letter that the editor saves for a zone in hours, compared exactly; "L" for any other value.
std::string zoneletter(double hours);

/// The hours that the editor shows for a letter of either case; "0" for any other text.
std::string zonetextof(const std::string& letter);

/// How constants are shown: " (g 257 : Hm 1.87)", " (f4 259 : F4 0.04)", " (f6 129 : F6 0.00)", " (Z0 3.57)".
std::string constituenttext(double phase, double amplitude);
std::string f4text(double phase, double magnitude);
std::string f6text(double phase, double magnitude);
std::string z0text(double level);

}  // namespace tarvane
