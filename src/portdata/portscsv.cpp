#include "portdata/portscsv.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr std::size_t longestname = 35;
constexpr std::size_t mostports = std::numeric_limits<std::int16_t>::max();

enum class Holds { number, name, zone, value, level, source };

struct Column {
    std::string_view name;
    Holds holds = Holds::value;
    float HarmonicRecord::*member = nullptr;
    double least = 0;
    double most = 0;
};

constexpr Column value(std::string_view name, float HarmonicRecord::*member, double least, double most) {
    return {name, Holds::value, member, least, most};
}

constexpr Column level(std::string_view name) {
    return {name, Holds::level, nullptr, -5, 5};
}

constexpr std::array columns = {Column{"number", Holds::number},
                                Column{"name", Holds::name},
                                value("latitude", &HarmonicRecord::PortLat, -90, 90),
                                value("longitude", &HarmonicRecord::PortLong, -180, 180),
                                Column{"zone", Holds::zone},
                                value("z0", &HarmonicRecord::Z0, -20, 20),
                                value("m2g", &HarmonicRecord::M2g, 0, 360),
                                value("m2h", &HarmonicRecord::M2Hm, 0, 20),
                                value("s2g", &HarmonicRecord::S2g, 0, 360),
                                value("s2h", &HarmonicRecord::S2Hm, 0, 20),
                                value("k1g", &HarmonicRecord::K1g, 0, 360),
                                value("k1h", &HarmonicRecord::K1Hm, 0, 20),
                                value("o1g", &HarmonicRecord::O1g, 0, 360),
                                value("o1h", &HarmonicRecord::O1Hm, 0, 20),
                                value("f4", &HarmonicRecord::SF4, 0, 360),
                                value("F4", &HarmonicRecord::LF4, 0, 100),
                                value("f6", &HarmonicRecord::SF6, 0, 360),
                                value("F6", &HarmonicRecord::LF6, 0, 1000),
                                level("dz01"),
                                level("dz02"),
                                level("dz03"),
                                level("dz04"),
                                level("dz05"),
                                level("dz06"),
                                level("dz07"),
                                level("dz08"),
                                level("dz09"),
                                level("dz10"),
                                level("dz11"),
                                level("dz12"),
                                Column{"source", Holds::source}};
constexpr std::size_t firstlevel = 18;
static_assert(columns[firstlevel].name == "dz01" && columns[firstlevel + 11].name == "dz12");

struct Row {
    std::size_t line = 0;  ///< where it starts
    std::vector<std::string> fields;
    bool broken = false;  ///< a quote that doesn't end, or text behind one
};

/// Takes rows off a text, one after another; blank lines are passed over.
class Rows {
  public:
    explicit Rows(std::string_view text) : text_(text) {
        if (text_.starts_with("\xEF\xBB\xBF")) next_ = 3;
    }

    std::optional<Row> take() {
        while (next_ < text_.size() && takelineend()) {
        }
        if (next_ >= text_.size()) return std::nullopt;
        Row row{line_, {}, false};
        for (;;) {
            row.fields.push_back(takefield(row.broken));
            if (next_ >= text_.size() || takelineend()) return row;
            if (text_[next_] == ',') {
                ++next_;
                continue;
            }
            row.broken = true;
            next_ = std::min(text_.find('\n', next_), text_.size());
            return row;
        }
    }

  private:
    bool takelineend() {
        if (text_.substr(next_).starts_with("\r\n")) ++next_;
        if (text_[next_] != '\n') return false;
        ++next_;
        ++line_;
        return true;
    }

    std::string takefield(bool& broken) {
        if (next_ < text_.size() && text_[next_] == '"') return takequoted(broken);
        const std::size_t end = std::min(text_.find_first_of(",\r\n", next_), text_.size());
        std::string field(text_.substr(next_, end - next_));
        next_ = end;
        return field;
    }

    std::string takequoted(bool& broken) {
        std::string field;
        for (++next_; next_ < text_.size(); ++next_) {
            if (text_[next_] == '"') {
                ++next_;
                if (next_ >= text_.size() || text_[next_] != '"') return field;
            }
            if (text_[next_] == '\n') ++line_;
            field += text_[next_];
        }
        broken = true;
        return field;
    }

    std::string_view text_;
    std::size_t next_ = 0;
    std::size_t line_ = 1;
};

/// The whole text as a number, blanks around it apart.
std::optional<double> numberof(const std::string& field) {
    const std::string text = trim(field);
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size() || !std::isfinite(number)) return std::nullopt;
    return number;
}

std::string namefault(const std::string& name) {
    if (name.empty()) return "the name is empty";
    if (!validutf8(name)) return "the name is not UTF-8 text";
    if (charactercount(name) > longestname) return "the name is longer than 35 characters";
    if (!fitssinglebyte(name)) return "the name holds a character outside Windows-1252";
    const bool control = std::any_of(name.begin(), name.end(), [](char c) { return c >= 0 && c < ' '; });
    return control ? "the name holds a control character" : "";
}

/// Puts a field into the record; what is wrong with it, or an empty text.
std::string takefield(const Column& column, std::size_t index, const std::string& field, std::size_t wanted,
                      HarmonicRecord& port) {
    switch (column.holds) {
        case Holds::number:
            port.PortNo = std::to_string(wanted);
            return trim(field) == port.PortNo ? "" : "the number should be " + port.PortNo;
        case Holds::name:
            port.PortName = trim(field);
            return namefault(port.PortName);
        case Holds::zone:
            port.TimeZoneLetter = trim(field);
            return port.TimeZoneLetter.size() == 1 && field.find_first_of("ABCDEFGHIJKLMNOPQRSTUVW") != field.npos
                       ? ""
                       : "the zone is no letter from A to W";
        case Holds::value:
        case Holds::level: {
            const auto number = numberof(field);
            if (!number) return "\"" + field + "\" is not a number";
            if (*number < column.least || *number > column.most) {
                return field + " is outside " + numbertext(column.least) + " to " + numbertext(column.most);
            }
            float& place = column.member ? port.*column.member : port.DeltaZ0[index - firstlevel];
            place = static_cast<float>(*number);
            return "";
        }
        case Holds::source:
            return "";
    }
    return "";
}

std::optional<CsvFault> headerfault(const Row& row) {
    const std::size_t count = row.fields.size();
    if (row.broken || (count != columns.size() && count != columns.size() - 1)) {
        return CsvFault{row.line, 0, "", "the header line names other columns"};
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (trim(row.fields[i]) == columns[i].name) continue;
        return CsvFault{row.line, i + 1, std::string(columns[i].name), "the header names \"" + row.fields[i] + "\""};
    }
    return std::nullopt;
}

std::optional<CsvFault> takerow(const Row& row, std::size_t count, std::vector<HarmonicRecord>& ports) {
    if (row.broken) return CsvFault{row.line, row.fields.size(), "", "a quoted field doesn't end as it should"};
    if (row.fields.size() != count) {
        return CsvFault{row.line, 0, "",
                        std::to_string(row.fields.size()) + " fields instead of " + std::to_string(count)};
    }
    if (ports.size() == mostports) return CsvFault{row.line, 0, "", "there are more than 32767 ports"};
    HarmonicRecord port;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string reason = takefield(columns[i], i, row.fields[i], ports.size() + 1, port);
        if (!reason.empty()) return CsvFault{row.line, i + 1, std::string(columns[i].name), reason};
    }
    port.MHm2.fill(port.M2Hm);
    ports.push_back(port);
    return std::nullopt;
}

}  // namespace

PortsTable readportscsv(std::string_view text) {
    Rows rows(text);
    const std::optional<Row> header = rows.take();
    if (!header) return {{}, CsvFault{1, 0, "", "the file is empty"}};
    if (auto fault = headerfault(*header)) return {{}, fault};
    PortsTable table;
    std::size_t last = header->line;
    while (const std::optional<Row> row = rows.take()) {
        last = row->line;
        if (auto fault = takerow(*row, header->fields.size(), table.ports)) return {{}, fault};
    }
    if (table.ports.empty()) return {{}, CsvFault{last, 0, "", "there are no ports below the header"}};
    return table;
}

}  // namespace tarvane
