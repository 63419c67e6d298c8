// A table of ports in CSV to the records of an area file, and back. Must not write any file.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "portdata/records.h"

namespace tarvane {

/// Where a table is wrong and why. Line and column count from 1; the column is the field's position, 0 for the whole
/// row.
struct CsvFault {
    std::size_t line = 0;
    std::size_t column = 0;
    std::string columnname;
    std::string reason;
};

struct PortsTable {
    std::vector<HarmonicRecord> ports;
    std::vector<std::byte> area;    ///< the same as an area file holds them
    std::optional<CsvFault> fault;  ///< set: the table is refused and `ports` is empty
};

/// Reads a table with the columns number, name, latitude, longitude, zone, z0, m2g, m2h, s2g, s2h, k1g, k1h, o1g, o1h,
/// f4, F4, f6, F6, dz01 to dz12 in this order under a header line, and behind them, each optional: source, which is not
/// read; portno, the number that the port shows, which is otherwise its place in the table; mh01 to mh12, the monthly
/// M2 amplitudes, which are otherwise the annual one; record, empty or the record's bytes in hexadecimal digits, for a
/// port that the other fields can't tell. UTF-8, fields quoted or not. Refused: a wrong header, a wrong number of
/// fields, a field that is no number or out of its range (latitude -90..90, longitude -180..180, phases 0..360,
/// amplitudes and Z0 within sane limits), a zone that is no letter from A to Z, numbers that don't run 1, 2, 3 ..., an
/// empty name or one over 35 characters or outside Windows-1252, a record other than the row's fields tell it, no rows.
PortsTable readportscsv(std::string_view text);

/// The table of an area file's bytes, whole records: read again it gives the very bytes. The optional columns are there
/// when a port needs them.
std::string portscsvof(std::span<const std::byte> area);

/// Why a text can't be a port's name, "the name is empty"; empty when it can.
std::string portnamefault(const std::string& name);

/// The names of the columns that every table has, and what they hold of one port.
std::vector<std::string> portscsvnames();
std::vector<std::string> portscsvfields(const HarmonicRecord& port, std::size_t number);

}  // namespace tarvane
