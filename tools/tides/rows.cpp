#include "tides/rows.h"

#include <cassert>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <utility>

#include "text/csvrows.h"

namespace tarvane {

namespace {

/// With its members in the order of the columns.
using Json = nlohmann::ordered_json;

/// A cell of digits as a number; null when it is none, as "nan" and "inf" are.
Json jsonnumber(const std::string& text) {
    const char* const end = text.data() + text.size();
    std::int64_t whole = 0;
    double value = 0;
    const auto readwhole = std::from_chars(text.data(), end, whole);
    if (readwhole.ec == std::errc{} && readwhole.ptr == end) return whole;
    const auto read = std::from_chars(text.data(), end, value);
    return read.ec == std::errc{} && read.ptr == end && std::isfinite(value) ? Json(value) : Json();
}

}  // namespace

RowWriter::RowWriter(std::ostream& out, OutputFormat format, std::vector<Column> columns)
    : stream(out), outputformat(format), heads(std::move(columns)) {}

void RowWriter::start() {
    if (outputformat == OutputFormat::json) {
        stream << "[";
        return;
    }
    std::vector<std::string> names;
    for (const Column& head : heads)
        names.push_back(head.name);
    stream << csvline(names);
}

void RowWriter::row(const std::vector<std::string>& cells) {
    assert(cells.size() == heads.size());
    if (rowcount == 0) start();
    if (outputformat == OutputFormat::csv) {
        stream << csvline(cells);
    } else {
        Json object;
        for (std::size_t i = 0; i < heads.size(); ++i)
            object[heads[i].name] = heads[i].isnumber ? jsonnumber(cells[i]) : Json(cells[i]);
        stream << (rowcount ? ",\n" : "\n") << object.dump(-1, ' ', false, Json::error_handler_t::replace);
    }
    ++rowcount;
}

void RowWriter::finish() {
    if (rowcount == 0) start();
    if (outputformat == OutputFormat::json) stream << (rowcount ? "\n]\n" : "]\n");
}

}  // namespace tarvane
