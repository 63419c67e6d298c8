// Where the constants of an area's ports come from and how good they are, as a table beside the area tells it. Must not
// know what is shown of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "portdata/configuration.h"
#include "portdata/records.h"

namespace tarvane {

/// One port's row. The errors are those of high and low waters against a prediction from all constituents of the same
/// gauge: median and 90th percentile, minutes and metres.
struct PortAbout {
    int number = 0;  ///< record number in the area that ships
    std::string name, country;
    std::string timezone;  ///< the IANA zone whose clocks the port keeps
    std::string datum;     ///< "LAT", "MLLW"
    std::string recordfrom, recordto, licence, source;
    double timemedian = 0, timeninety = 0;
    double heightmedian = 0, heightninety = 0;
    double meanrange = 0;  ///< metres
};

struct AboutTable {
    std::vector<PortAbout> ports;
    std::string fault;  ///< set: the table is refused, "line 7: ..."
};

/// Reads a table with the columns number, name, country, timezone, datum, record_from, record_to, licence, source,
/// time_error_median_min, time_error_p90_min, height_error_median_m, height_error_p90_m, mean_range_m under a header.
AboutTable readabout(std::string_view csv);

/// The names of these columns, and what they hold of a port.
std::vector<std::string> aboutcolumnnames();
std::vector<std::string> aboutfields(const PortAbout& about);

/// The name of the table that tells of an area: "us-west-coast-about.csv" of "US West Coast.hc".
std::string aboutname(std::string_view areafile);

/// The table of an area by the area's path, from the folders of data files; an empty one when there is none.
AboutTable aboutarea(const ProgramFolders& folders, const std::string& hcfile);

/// The row of a port: the one of its name, and of several with that name the one nearest to its number. Nothing when
/// none has its name.
std::optional<PortAbout> aboutport(const AboutTable& table, const HarmonicRecord& port, int number);

}  // namespace tarvane
