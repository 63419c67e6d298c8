// Tidal diamonds in their files (.l20, .l30, .l40): records of 165 bytes, little-endian, without a header. Every change
// leaves the old file or the new one whole, and the file as it was before the run beside it. Must not ask or tell the
// user anything.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "files/wholefiles.h"
#include "portdata/areaedits.h"

namespace tarvane {

inline constexpr std::size_t diamondrecordsize = 165;

/// Hours of a diamond: HW -6 to HW +6, high water being the seventh.
inline constexpr std::size_t streamhours = 13;
inline constexpr std::size_t highwaterplace = 6;

/// As many diamonds as a file can hold: their numbers are 16-bit integers.
inline constexpr std::size_t mostdiamonds = 32767;

/// The stream of one hour: degrees, and rates in the unit of the data.
struct Stream {
    float StreamDir = 0;
    float SpringRate = 0;
    float NeapRate = 0;
    bool operator==(const Stream&) const = default;
};

/// One diamond. Positions in degrees, north and east positive; the letter is UTF-8, one character.
struct DiamondRecord {
    float DiamondLat = 0;
    float DiamondLong = 0;
    std::string DiamondID;
    std::array<Stream, streamhours> streams{};  ///< [0] is HW -6, [6] high water, [12] HW +6
};

using DiamondBytes = std::array<std::byte, diamondrecordsize>;

DiamondBytes encode(const DiamondRecord& record);

/// The record that the bytes hold. Fewer bytes than the record has read as if followed by zeros.
DiamondRecord decodediamond(std::span<const std::byte> bytes);

/// Why the file couldn't be read, `number` being what the system said of the attempt; 0 for nothing.
WriteOutcome whynotread(const std::string& path, int number);

/// What a file holds.
struct DiamondFile {
    std::vector<DiamondRecord> diamonds;  ///< the whole records, in file order
    std::size_t leftover = 0;             ///< bytes behind the last whole one
    WriteOutcome read;                    ///< why the file couldn't be read; one that isn't there is such a one
};

/// Every diamond of a file.
DiamondFile readdiamonds(const std::string& path);

/// What became of a change.
struct DiamondEdit {
    WriteOutcome written;
    std::size_t lost = 0;  ///< bytes of no whole record that had to go; the copy beside the file has them
};

/// Stores a record behind the last whole one; a file that isn't there is made.
DiamondEdit adddiamond(AreaBackups& backups, const std::string& path, const DiamondRecord& record);

/// Stores a record in place of the one at `index`, from 0. All else stays, bytes of no whole record too.
DiamondEdit amenddiamond(AreaBackups& backups, const std::string& path, std::size_t index, const DiamondRecord& record);

/// Takes the record at `index` out, by way of the scratch file, which is gone afterwards.
DiamondEdit deletediamond(AreaBackups& backups, const std::string& path, const std::string& scratch, std::size_t index);

}  // namespace tarvane
