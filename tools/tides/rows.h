// Tables of results as CSV or JSON, written row by row. Must not use the process's locale or know what the columns
// mean.
#pragma once

#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/numbers.h"

namespace tarvane {

enum class OutputFormat { text, csv, json, ics };

struct Column {
    std::string name;
    bool isnumber = true;
};

/// Rows of a table made apart from it, as on another processor; see `RowWriter::apart`.
class RowText {
  public:
    /// One cell a column that the views know of.
    void row(std::span<const std::string_view> cells);

  private:
    friend class RowWriter;
    RowText(OutputFormat format, const std::vector<Column>& heads, const std::string* last)
        : outputformat(format), columns(&heads), lastcell(last) {}

    OutputFormat outputformat;
    const std::vector<Column>* columns;
    const std::string* lastcell;  ///< of every row; null where there is none
    std::string text;
    std::size_t rowcount = 0;
};

/// Writes a header line and rows (CSV), or an array with one object a row (JSON), from the first row on. A number that
/// isn't finite reads "nan" or "inf" in CSV and null in JSON.
class RowWriter {
  public:
    /// With `lastcolumn` the rows have a column of texts of that name behind the others.
    RowWriter(std::ostream& out, OutputFormat format, std::vector<Column> columns, const char* lastcolumn = nullptr);

    /// What stands in the last column from here on.
    void setlast(const std::string& cell) { lastcell = cell; }

    /// One cell a column.
    void row(const std::vector<std::string>& cells);

    /// A place for rows that are added later, with the last cell as it is now. It mustn't outlive the writer or a
    /// change of that cell.
    RowText apart() const;
    void add(const RowText& rows);

    /// Ends the table, one without rows too; to be called once, after the last row.
    void finish();

    bool empty() const { return rowcount == 0; }

  private:
    void start();

    std::ostream& stream;
    OutputFormat outputformat;
    std::vector<Column> heads;
    bool haslast;
    std::string lastcell;
    std::size_t rowcount = 0;
};

}  // namespace tarvane
