// Heights observed at a place on one day, as they are kept in a file: times and metres in the order of entry. Must not
// judge a reading beyond saying that it is no number.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "files/wholefiles.h"

namespace tarvane {

inline constexpr std::size_t heightrecordsize = 55;

struct HeightRecord {
    float obstime = 0;    ///< decimal hours
    float obsheight = 0;  ///< metres
};

struct ObservedHeights {
    std::vector<HeightRecord> readings;
    std::string fault;  ///< why the file can't be used, a sentence; empty when it can
};

/// Every reading of a file, in its order. At fault: a file that can't be read, one that ends within a record, and
/// readings that are no numbers or stand outside the day (0 to 24 hours); a file of no readings is none.
ObservedHeights readheights(const std::string& path);

/// What became of a saving.
struct HeightsSaved {
    WriteOutcome written;
    std::size_t remaining = 0;  ///< old readings that stand behind the list
};

/// Writes the readings over the file's first records. The old readings behind a shorter list stay.
HeightsSaved writeheights(const std::string& path, const std::vector<HeightRecord>& readings);

}  // namespace tarvane
