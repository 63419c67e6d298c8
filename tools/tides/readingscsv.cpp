#include "tides/readingscsv.h"

#include <charconv>
#include <cmath>
#include <optional>

#include "text/csvrows.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "tides/options.h"

namespace tarvane {

namespace {

/// The whole text as a number.
template <class Number>
std::optional<Number> wholeof(std::string_view text) {
    Number number{};
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc{} || read.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

/// Hours of a time hh:mm.
std::optional<float> hoursof(const std::string& text) {
    if (text.size() != 5 || text[2] != ':') return std::nullopt;
    const auto hours = wholeof<int>(std::string_view(text).substr(0, 2));
    const auto minutes = wholeof<int>(std::string_view(text).substr(3));
    if (!hours || !minutes || *hours < 0 || *minutes < 0 || *minutes > 59) return std::nullopt;
    if (*hours * 60 + *minutes > 24 * 60) return std::nullopt;
    return static_cast<float>(*hours + *minutes / 60.0);
}

/// Takes a row behind the header; what is wrong with it, empty when nothing is.
std::string takerow(const CsvRow& row, DayOfReadings& day) {
    if (row.broken) return "a quoted field doesn't end as it should";
    if (row.fields.size() != 3) {
        return numbertext(static_cast<int>(row.fields.size())) +
               " fields instead of a date, a time and a height, with a point for its decimals";
    }
    const std::string dated = trim(row.fields[0]), timed = trim(row.fields[1]), measured = trim(row.fields[2]);
    const auto date = parseisodate(dated);
    if (!date) return inquotes(dated) + " is no date; write YYYY-MM-DD";
    const auto time = hoursof(timed);
    if (!time) return inquotes(timed) + " is no time of the day; write hh:mm";
    const auto height = wholeof<float>(measured);
    if (!height || !std::isfinite(*height)) return inquotes(measured) + " is no height in metres";
    if (day.readings.empty()) day.date = *date;
    if (*date != day.date) {
        return "the readings are of two dates from here on; a fit takes those of one day, whose tide alone it reckons";
    }
    day.readings.push_back({*time, *height});
    day.lines.push_back(row.line);
    return "";
}

bool isheader(const CsvRow& row) {
    return !row.broken && row.fields.size() == 3 && trim(row.fields[0]) == "date" && trim(row.fields[1]) == "time" &&
           trim(row.fields[2]) == "height";
}

}  // namespace

DayOfReadings readingsof(std::string_view csv) {
    CsvRows rows(csv);
    DayOfReadings day;
    const auto header = rows.take();
    if (!header || !isheader(*header)) {
        day.fault = "line " + numbertext(static_cast<int>(header ? header->line : 1)) +
                    ": the header should be date,time,height";
    }
    while (day.fault.empty()) {
        const auto row = rows.take();
        if (!row) break;
        const std::string fault = takerow(*row, day);
        if (!fault.empty()) day.fault = "line " + numbertext(static_cast<int>(row->line)) + ": " + fault;
    }
    return day;
}

}  // namespace tarvane
