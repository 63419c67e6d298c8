// Comma-separated text to rows of fields and back. Must not know what the fields mean.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

struct CsvRow {
    std::size_t line = 0;  ///< where it starts, from 1
    std::vector<std::string> fields;
    bool broken = false;  ///< a quote that doesn't end, or text behind one
};

/// Takes rows off a text, one after another. Lines end in LF or CR LF, fields are quoted or not; blank lines and a byte
/// order mark at the start are passed over.
class CsvRows {
  public:
    explicit CsvRows(std::string_view text);

    /// Nothing behind the last row.
    std::optional<CsvRow> take();

  private:
    bool takelineend();
    std::string takefield(bool& broken);
    std::string takequoted(bool& broken);

    std::string_view text_;
    std::size_t next_ = 0;
    std::size_t line_ = 1;
};

/// Puts a field behind a line as a row holds it.
void appendcsvcell(std::string& line, std::string_view text);

/// A field as a row holds it, quoted where that is needed to read it back.
std::string csvcell(const std::string& text);

/// The fields with commas between and LF behind.
std::string csvline(const std::vector<std::string>& fields);

}  // namespace tarvane
