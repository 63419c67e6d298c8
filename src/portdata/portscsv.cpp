#include "portdata/portscsv.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

#include "portdata/recordfiles.h"
#include "text/csvrows.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr std::size_t longestname = 35;
constexpr std::size_t longestlabel = 5;
enum class Holds { number, name, zone, value, level, source, label, month, bytes };

struct Column {
    std::string_view name;
    Holds holds = Holds::value;
    float HarmonicRecord::*member = nullptr;
    double least = 0;
    double most = 0;
    std::size_t month = 0;  ///< from 0
};

constexpr Column value(std::string_view name, float HarmonicRecord::*member, double least, double most) {
    return {name, Holds::value, member, least, most};
}

constexpr Column level(std::string_view name, std::size_t month) {
    return {name, Holds::level, nullptr, -5, 5, month};
}

constexpr Column month(std::string_view name, std::size_t month) {
    return {name, Holds::month, nullptr, 0, 20, month};
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
                                level("dz01", 0),
                                level("dz02", 1),
                                level("dz03", 2),
                                level("dz04", 3),
                                level("dz05", 4),
                                level("dz06", 5),
                                level("dz07", 6),
                                level("dz08", 7),
                                level("dz09", 8),
                                level("dz10", 9),
                                level("dz11", 10),
                                level("dz12", 11),
                                Column{"source", Holds::source},
                                Column{"portno", Holds::label},
                                month("mh01", 0),
                                month("mh02", 1),
                                month("mh03", 2),
                                month("mh04", 3),
                                month("mh05", 4),
                                month("mh06", 5),
                                month("mh07", 6),
                                month("mh08", 7),
                                month("mh09", 8),
                                month("mh10", 9),
                                month("mh11", 10),
                                month("mh12", 11),
                                Column{"record", Holds::bytes}};
constexpr std::size_t ofeverytable = 30;
static_assert(columns[ofeverytable].holds == Holds::source);

/// The columns of one table, in their order.
using Heads = std::vector<const Column*>;

bool hascolumn(const Heads& heads, Holds holds) {
    return std::any_of(heads.begin(), heads.end(), [holds](const Column* head) { return head->holds == holds; });
}

template <class Record>
auto& placeof(const Column& column, Record& port) {
    if (column.holds == Holds::level) return port.DeltaZ0[column.month];
    return column.holds == Holds::month ? port.MHm2[column.month] : port.*column.member;
}

/// What a field holds of a record; nothing of what no record has.
std::string fieldof(const Column& column, const HarmonicRecord& port, std::size_t number) {
    switch (column.holds) {
        case Holds::number:
            return std::to_string(number);
        case Holds::name:
            return trim(port.PortName);
        case Holds::zone:
            return trim(port.TimeZoneLetter);
        case Holds::label:
            return trim(port.PortNo);
        case Holds::value:
        case Holds::level:
        case Holds::month:
            return shortest(placeof(column, port));
        case Holds::source:
        case Holds::bytes:
            return "";
    }
    return "";
}

std::vector<std::string> fieldsof(const Heads& heads, const HarmonicRecord& port, std::size_t number) {
    std::vector<std::string> fields;
    for (const Column* head : heads)
        fields.push_back(fieldof(*head, port, number));
    return fields;
}

/// The whole text as a number, blanks around it apart.
std::optional<double> numberof(const std::string& field) {
    const std::string text = trim(field);
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size() || !std::isfinite(number)) return std::nullopt;
    return number;
}

std::string textfault(const std::string& text, std::size_t most) {
    if (!validutf8(text)) return "is not UTF-8 text";
    if (charactercount(text) > most) return "is longer than " + std::to_string(most) + " characters";
    if (!fitssinglebyte(text)) return "holds a character outside Windows-1252";
    const bool control = std::any_of(text.begin(), text.end(), [](char c) { return c >= 0 && c < ' '; });
    return control ? "holds a control character" : "";
}

std::string labelfault(const std::string& label) {
    const std::string fault = textfault(label, longestlabel);
    return fault.empty() ? "" : "the number shown " + fault;
}

/// Puts a field into the record; what is wrong with it, or an empty text.
std::string takefield(const Column& column, const std::string& field, std::size_t wanted, HarmonicRecord& port) {
    switch (column.holds) {
        case Holds::number:
            port.PortNo = std::to_string(wanted);
            return trim(field) == port.PortNo ? "" : "the number should be " + port.PortNo;
        case Holds::name:
            port.PortName = trim(field);
            return portnamefault(port.PortName);
        case Holds::zone:
            port.TimeZoneLetter = trim(field);
            return port.TimeZoneLetter.size() == 1 && field.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") != field.npos
                       ? ""
                       : "the zone is no letter from A to Z";
        case Holds::label:
            port.PortNo = trim(field);
            return labelfault(port.PortNo);
        case Holds::value:
        case Holds::level:
        case Holds::month: {
            const auto number = numberof(field);
            if (!number) return "\"" + field + "\" is not a number";
            if (*number < column.least || *number > column.most) {
                return field + " is outside " + numbertext(column.least) + " to " + numbertext(column.most);
            }
            placeof(column, port) = static_cast<float>(*number);
            return "";
        }
        case Holds::source:
        case Holds::bytes:
            return "";
    }
    return "";
}

std::optional<CsvFault> takeheads(const CsvRow& row, Heads& heads) {
    const std::size_t count = row.fields.size();
    if (row.broken || count < ofeverytable) return CsvFault{row.line, 0, "", "the header line names other columns"};
    std::size_t next = 0;
    for (std::size_t i = 0; i < count; ++i, ++next) {
        const std::string name = trim(row.fields[i]);
        const std::size_t wanted = next;
        while (i >= ofeverytable && next < columns.size() && columns[next].name != name)
            ++next;
        if (next < columns.size() && columns[next].name == name) {
            heads.push_back(&columns[next]);
            continue;
        }
        const std::string_view other = wanted < columns.size() ? columns[wanted].name : "";
        return CsvFault{row.line, i + 1, std::string(other), "the header names \"" + row.fields[i] + "\""};
    }
    const auto months =
        std::count_if(heads.begin(), heads.end(), [](const Column* head) { return head->holds == Holds::month; });
    if (months != 0 && months != 12) return CsvFault{row.line, 0, "", "the header names only some of mh01 to mh12"};
    return std::nullopt;
}

/// The fields as a record; at fault with the column alone where one can't be taken.
std::optional<CsvFault> takefields(const Heads& heads, const std::vector<std::string>& fields, std::size_t wanted,
                                   HarmonicRecord& port) {
    for (std::size_t i = 0; i < heads.size(); ++i) {
        const std::string reason = takefield(*heads[i], fields[i], wanted, port);
        if (!reason.empty()) return CsvFault{0, i + 1, std::string(heads[i]->name), reason};
    }
    if (!hascolumn(heads, Holds::month)) port.MHm2.fill(port.M2Hm);
    return std::nullopt;
}

std::string digitsof(std::span<const std::byte> record) {
    constexpr std::string_view hexadecimal = "0123456789abcdef";
    std::string digits;
    for (const std::byte byte : record) {
        digits += hexadecimal[std::to_integer<std::size_t>(byte) / 16];
        digits += hexadecimal[std::to_integer<std::size_t>(byte) % 16];
    }
    return digits;
}

/// The bytes of a record in hexadecimal digits. The row's other fields must tell the same port.
std::string takebytes(const Heads& heads, const std::vector<std::string>& fields, std::size_t wanted,
                      std::array<std::byte, harmonicrecordsize>& record) {
    const std::string digits = trim(fields.back());
    if (digits.size() != 2 * record.size() || digits.find_first_not_of("0123456789abcdefABCDEF") != digits.npos)
        return "these are not the 394 hexadecimal digits of a record";
    for (std::size_t i = 0; i < record.size(); ++i) {
        unsigned value = 0;
        std::from_chars(digits.data() + 2 * i, digits.data() + 2 * i + 2, value, 16);
        record[i] = static_cast<std::byte>(value);
    }
    const std::vector<std::string> held = fieldsof(heads, decodeharmonic(record), wanted);
    for (std::size_t i = 0; i + 1 < heads.size(); ++i) {
        if (heads[i]->holds == Holds::source || trim(fields[i]) == trim(held[i])) continue;
        return "it holds another " + std::string(heads[i]->name) + " than the row; empty it to take the row's fields";
    }
    return "";
}

std::optional<CsvFault> takerow(const CsvRow& row, const Heads& heads, PortsTable& table) {
    if (row.broken) return CsvFault{row.line, row.fields.size(), "", "a quoted field doesn't end as it should"};
    if (row.fields.size() != heads.size()) {
        return CsvFault{row.line, 0, "",
                        std::to_string(row.fields.size()) + " fields instead of " + std::to_string(heads.size())};
    }
    const std::size_t wanted = table.ports.size() + 1;
    if (wanted > mostports) return CsvFault{row.line, 0, "", "there are more than 32767 ports"};
    std::array<std::byte, harmonicrecordsize> record{};
    if (heads.back()->holds == Holds::bytes && !trim(row.fields.back()).empty()) {
        const std::string reason = takebytes(heads, row.fields, wanted, record);
        if (!reason.empty()) return CsvFault{row.line, heads.size(), std::string(heads.back()->name), reason};
        table.ports.push_back(decodeharmonic(record));
    } else {
        HarmonicRecord port;
        if (auto fault = takefields(heads, row.fields, wanted, port)) {
            fault->line = row.line;
            return fault;
        }
        record = encode(port);
        table.ports.push_back(port);
    }
    table.area.insert(table.area.end(), record.begin(), record.end());
    return std::nullopt;
}

Heads headsof(bool labels = false, bool months = false, bool exact = false) {
    Heads heads;
    for (const Column& column : columns) {
        const bool wanted = column.holds < Holds::source || (labels && column.holds == Holds::label) ||
                            (months && column.holds == Holds::month) || (exact && column.holds == Holds::bytes);
        if (wanted) heads.push_back(&column);
    }
    return heads;
}

std::vector<std::string> namesof(const Heads& heads) {
    std::vector<std::string> names;
    for (const Column* head : heads)
        names.emplace_back(head->name);
    return names;
}

/// True if the fields are read back as the very bytes.
bool carried(const Heads& heads, const std::vector<std::string>& fields, std::size_t number,
             std::span<const std::byte> record) {
    HarmonicRecord back;
    return !takefields(heads, fields, number, back) && std::ranges::equal(encode(back), record);
}

}  // namespace

PortsTable readportscsv(std::string_view text) {
    CsvRows rows(text);
    const std::optional<CsvRow> header = rows.take();
    if (!header) return {{}, {}, CsvFault{1, 0, "", "the file is empty"}};
    Heads heads;
    if (auto fault = takeheads(*header, heads)) return {{}, {}, fault};
    PortsTable table;
    std::size_t last = header->line;
    while (const std::optional<CsvRow> row = rows.take()) {
        last = row->line;
        if (auto fault = takerow(*row, heads, table)) return {{}, {}, fault};
    }
    if (table.ports.empty()) return {{}, {}, CsvFault{last, 0, "", "there are no ports below the header"}};
    return table;
}

std::string portscsvof(std::span<const std::byte> area) {
    const std::size_t count = area.size() / harmonicrecordsize;
    std::vector<HarmonicRecord> ports;
    bool labels = false, months = false;
    for (std::size_t i = 0; i < count; ++i) {
        ports.push_back(decodeharmonic(area.subspan(i * harmonicrecordsize, harmonicrecordsize)));
        labels = labels || trim(ports[i].PortNo) != std::to_string(i + 1);
        for (const float amplitude : ports[i].MHm2)
            months = months || shortest(amplitude) != shortest(ports[i].M2Hm);
    }
    Heads heads = headsof(labels, months);
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> records;
    for (std::size_t i = 0; i < count; ++i) {
        const auto record = area.subspan(i * harmonicrecordsize, harmonicrecordsize);
        rows.push_back(fieldsof(heads, ports[i], i + 1));
        records.push_back(carried(heads, rows[i], i + 1, record) ? "" : digitsof(record));
    }
    const bool exact = std::any_of(records.begin(), records.end(), [](const auto& each) { return !each.empty(); });
    if (exact) heads = headsof(labels, months, true);
    std::string text = csvline(namesof(heads));
    for (std::size_t i = 0; i < count; ++i) {
        if (exact) rows[i].push_back(records[i]);
        text += csvline(rows[i]);
    }
    return text;
}

std::string portnamefault(const std::string& name) {
    const std::string fault = name.empty() ? "is empty" : textfault(name, longestname);
    return fault.empty() ? "" : "the name " + fault;
}

std::vector<std::string> portscsvnames() {
    return namesof(headsof());
}

std::vector<std::string> portscsvfields(const HarmonicRecord& port, std::size_t number) {
    return fieldsof(headsof(), port, number);
}

}  // namespace tarvane
