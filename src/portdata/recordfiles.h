// Record files on disk: each call opens, uses and closes its file. Writers make the new file beside the old one and
// rename it over, so that a crash or a full disk leaves either the old file or the new one whole. Must not keep
// anything open.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "portdata/records.h"

namespace tarvane {

/// True if the file can be opened for reading (a folder can't).
bool canopen(const std::string& path);

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

/// The whole file's bytes; nothing if it can't be opened.
std::vector<std::byte> readwhole(const std::string& path);

/// Puts `bytes` in place of what stands at `path`: written beside it, flushed to the disk, renamed over it. False if
/// that failed at any byte, the old file standing untouched. A link is followed; the old file's permissions stay.
bool replacefile(const std::string& path, std::span<const std::byte> bytes);
bool replacefile(const std::string& path, const std::string& bytes);

/// The name without the blanks at its ends.
std::string trimmedname(const HarmonicRecord& record);

}  // namespace tarvane
