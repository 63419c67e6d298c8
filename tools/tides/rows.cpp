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

void RowText::row(std::span<const std::string_view> cells) {
    const std::size_t known = columns->size() - (lastcell ? 1 : 0);
    assert(cells.size() == known);
    const auto cell = [&](std::size_t i) { return i < known ? cells[i] : std::string_view(*lastcell); };
    if (outputformat == OutputFormat::csv) {
        for (std::size_t i = 0; i < columns->size(); ++i) {
            if (i) text += ',';
            appendcsvcell(text, cell(i));
        }
        text += '\n';
    } else {
        Json object;
        for (std::size_t i = 0; i < columns->size(); ++i) {
            const std::string value(cell(i));
            const Column& column = (*columns)[i];
            object[column.name] = column.isnumber ? jsonnumber(value) : Json(value);
        }
        text += (rowcount ? ",\n" : "") + object.dump(-1, ' ', false, Json::error_handler_t::replace);
    }
    ++rowcount;
}

RowWriter::RowWriter(std::ostream& out, OutputFormat format, std::vector<Column> columns, const char* lastcolumn)
    : stream(out), outputformat(format), heads(std::move(columns)), haslast(lastcolumn != nullptr) {
    if (haslast) heads.push_back({lastcolumn, false});
}

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

RowText RowWriter::apart() const {
    return {outputformat, heads, haslast ? &lastcell : nullptr};
}

void RowWriter::add(const RowText& rows) {
    if (rows.rowcount == 0) return;
    if (rowcount == 0) start();
    if (outputformat == OutputFormat::json) stream << (rowcount ? ",\n" : "\n");
    stream << rows.text;
    rowcount += rows.rowcount;
}

void RowWriter::row(const std::vector<std::string>& cells) {
    RowText one = apart();
    one.row(std::vector<std::string_view>(cells.begin(), cells.end()));
    add(one);
}

void RowWriter::finish() {
    if (rowcount == 0) start();
    if (outputformat == OutputFormat::json) stream << (rowcount ? "\n]\n" : "]\n");
}

}  // namespace tarvane
