// Records in their files: each call reads or replaces a file whole. Must not keep anything open.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "portdata/records.h"

namespace tarvane {

/// As many ports as an area file can hold: their numbers are 16-bit integers.
inline constexpr std::size_t mostports = 32767;

/// Ports in an area file: its length over 197 to the nearest whole number, halves to even; 0 if it can't be opened.
std::int16_t portcount(const std::string& path);

/// Record `recordnumber` (from 1) of an area file. A missing file, a number below 1 or past the end gives a record of
/// zeros with empty texts.
HarmonicRecord readport(const std::string& path, std::int16_t recordnumber);

/// Every record of an area file, `portcount` of them, in file order.
std::vector<HarmonicRecord> readports(const std::string& path);

/// Stores one record in place, the file growing with zeros when the number lies past its end. False if it couldn't, the
/// file then being as it was. A file that isn't there is made.
bool writeport(const std::string& path, std::int16_t recordnumber, const HarmonicRecord& record);

UserDepthRecord readdepth(const std::string& path, std::int16_t recordnumber);
bool writedepth(const std::string& path, std::int16_t recordnumber, const UserDepthRecord& record);

/// The name without the blanks at its ends.
std::string trimmedname(const HarmonicRecord& record);

}  // namespace tarvane
