#include "portdata/aboutports.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <filesystem>

#include "files/wholefiles.h"
#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"
#include "text/csvrows.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

struct AboutColumn {
    std::string_view name;
    std::string PortAbout::*text = nullptr;
    double PortAbout::*number = nullptr;  ///< neither of both: the port's number
};

constexpr std::array aboutcolumns{AboutColumn{"number"},
                                  AboutColumn{"name", &PortAbout::name},
                                  AboutColumn{"country", &PortAbout::country},
                                  AboutColumn{"timezone", &PortAbout::timezone},
                                  AboutColumn{"datum", &PortAbout::datum},
                                  AboutColumn{"record_from", &PortAbout::recordfrom},
                                  AboutColumn{"record_to", &PortAbout::recordto},
                                  AboutColumn{"licence", &PortAbout::licence},
                                  AboutColumn{"source", &PortAbout::source},
                                  AboutColumn{"time_error_median_min", nullptr, &PortAbout::timemedian},
                                  AboutColumn{"time_error_p90_min", nullptr, &PortAbout::timeninety},
                                  AboutColumn{"height_error_median_m", nullptr, &PortAbout::heightmedian},
                                  AboutColumn{"height_error_p90_m", nullptr, &PortAbout::heightninety},
                                  AboutColumn{"mean_range_m", nullptr, &PortAbout::meanrange}};

bool isheader(const CsvRow& row) {
    if (row.broken || row.fields.size() != aboutcolumns.size()) return false;
    for (std::size_t i = 0; i < aboutcolumns.size(); ++i)
        if (row.fields[i] != aboutcolumns[i].name) return false;
    return true;
}

/// False for a field that isn't what its column holds.
bool takefield(PortAbout& port, const AboutColumn& column, const std::string& field) {
    if (column.text) {
        port.*column.text = field;
        return true;
    }
    double number = 0;
    const auto read = std::from_chars(field.data(), field.data() + field.size(), number);
    if (read.ec != std::errc() || read.ptr != field.data() + field.size() || !(number >= 0 && number < 1e6))
        return false;
    if (column.number)
        port.*column.number = number;
    else
        port.number = static_cast<int>(number);
    return true;
}

/// Why a row is none of the table; empty when it was taken.
std::string takerow(const CsvRow& row, std::vector<PortAbout>& ports) {
    if (row.broken || row.fields.size() != aboutcolumns.size()) return "not the table's columns";
    PortAbout port;
    for (std::size_t i = 0; i < aboutcolumns.size(); ++i)
        if (!takefield(port, aboutcolumns[i], row.fields[i]))
            return std::string(aboutcolumns[i].name) + " is no number";
    ports.push_back(port);
    return {};
}

}  // namespace

AboutTable readabout(std::string_view csv) {
    CsvRows rows(csv);
    const auto header = rows.take();
    if (!header || !isheader(*header)) return {{}, "line 1: not the columns of such a table"};
    AboutTable table;
    while (const auto row = rows.take()) {
        const std::string fault = takerow(*row, table.ports);
        if (!fault.empty()) return {{}, "line " + std::to_string(row->line) + ": " + fault};
    }
    return table;
}

std::vector<std::string> aboutcolumnnames() {
    std::vector<std::string> names;
    for (const AboutColumn& column : aboutcolumns)
        names.emplace_back(column.name);
    return names;
}

std::vector<std::string> aboutfields(const PortAbout& about) {
    std::vector<std::string> fields;
    for (const AboutColumn& column : aboutcolumns) {
        if (column.text)
            fields.push_back(about.*column.text);
        else
            fields.push_back(numbertext(column.number ? about.*column.number : static_cast<double>(about.number)));
    }
    return fields;
}

std::string aboutname(std::string_view areafile) {
    std::string name = namebeforepoint(areafile);
    for (char& letter : name) {
        if (letter == ' ') letter = '-';
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
    return name + "-about.csv";
}

AboutTable aboutarea(const ProgramFolders& folders, const std::string& hcfile) {
    const std::string name = aboutname(std::filesystem::path(hcfile).filename().string());
    const std::string path = datafile(folders, name);
    if (!canopen(path)) return {};
    return readabout(wholetext(path));
}

std::optional<PortAbout> aboutport(const AboutTable& table, const HarmonicRecord& port, int number) {
    const PortAbout* nearest = nullptr;
    for (const PortAbout& each : table.ports)
        if (each.name == trimmedname(port) &&
            (!nearest || std::abs(each.number - number) < std::abs(nearest->number - number)))
            nearest = &each;
    if (!nearest) return std::nullopt;
    return *nearest;
}

}  // namespace tarvane
