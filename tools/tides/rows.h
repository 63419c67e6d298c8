// Tables of results as CSV or JSON, written row by row. Must not use the process's locale or know what the columns
// mean.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "text/numbers.h"

namespace tarvane {

enum class OutputFormat { text, csv, json, ics };

struct Column {
    std::string name;
    bool isnumber = true;
};

/// Writes a header line and rows (CSV), or an array with one object a row (JSON), from the first row on. A number that
/// isn't finite reads "nan" or "inf" in CSV and null in JSON.
class RowWriter {
  public:
    RowWriter(std::ostream& out, OutputFormat format, std::vector<Column> columns);

    /// One cell a column.
    void row(const std::vector<std::string>& cells);

    /// Ends the table, one without rows too; to be called once, after the last row.
    void finish();

    bool empty() const { return rowcount == 0; }

  private:
    void start();

    std::ostream& stream;
    OutputFormat outputformat;
    std::vector<Column> heads;
    std::size_t rowcount = 0;
};

}  // namespace tarvane
