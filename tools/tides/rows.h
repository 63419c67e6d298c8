// Tables of results as CSV or JSON, written row by row, and numbers with a fixed count of decimals. Must not use the
// process's locale or know what the columns mean.
#pragma once

#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace tarvane {

enum class OutputFormat { text, csv, json };

struct Column {
    const char* name;
    bool isnumber;
};

/// The value with so many decimals, its exact binary value rounded once; a value that rounds to zero carries no sign.
std::string fixed(double value, int decimals);

/// The shortest plain decimals that read back as the same single.
std::string shortest(float value);

/// Writes a header line and rows (CSV), or an array with one object a row (JSON). A number that isn't finite reads
/// "nan" or "inf" in CSV and null in JSON.
class RowWriter {
  public:
    RowWriter(std::ostream& out, OutputFormat format, std::span<const Column> columns);

    /// One cell a column.
    void row(const std::vector<std::string>& cells);

    /// Ends the table; to be called once, after the last row.
    void finish();

  private:
    std::ostream& stream;
    OutputFormat outputformat;
    std::span<const Column> heads;
    bool first = true;
};

}  // namespace tarvane
