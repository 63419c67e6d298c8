#include <algorithm>
#include <cmath>
#include <set>

#include "output/pagetext.h"
#include "output/printouts.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr std::size_t pagecolumns = 5;
constexpr std::size_t rowsofday = 8;
constexpr std::size_t rowsofweek = 7 * rowsofday;
constexpr std::size_t fullday = 7;  ///< a day of so many rows doesn't go into the weekly layout
constexpr std::size_t rowsrunningon = 30;
constexpr double smallestsize = 5;

struct Row {
    std::string text;
    bool bold = false;
};

using Rows = std::vector<Row>;

/// A day's head and the rows of its tides.
Rows rowsof(const MonthDay& day) {
    Rows rows{{trim(day.head), true}};
    for (const WaterText& tide : day.tides)
        rows.push_back({tide.time + "   " + tide.height});
    if (!day.defined) rows.push_back({nopredictionword});
    return rows;
}

/// The rows of all weeks one behind the other, 56 to a week from Monday on, long enough for a sixth.
Rows weekrows(const std::vector<Rows>& blocks, Date first) {
    const auto beforefirst = static_cast<std::size_t>((weekdayof(first) + 6) % 7);
    Rows rows(beforefirst * rowsofday);
    for (const Rows& block : blocks) {
        rows.insert(rows.end(), block.begin(), block.end());
        rows.resize(rows.size() + rowsofday - block.size());
    }
    rows.resize(std::max(rows.size(), (pagecolumns + 1) * rowsofweek));
    // Also those of empty slots, so that all columns are of one height.
    for (std::size_t head = 0; head < rows.size(); head += rowsofday)
        rows[head].bold = true;
    return rows;
}

/// Why days of the month have no prediction, each reason once.
std::vector<std::string> reasons(const std::vector<MonthDay>& days) {
    std::set<std::string> all;
    for (const MonthDay& day : days)
        if (!day.defined) all.insert(nopredictiontext(day.whynot));
    return {all.begin(), all.end()};
}

/// One month's printing: what is on each of its pages.
class MonthPrinting {
  public:
    MonthPrinting(Printer& printerused, const MonthPage& pageprinted)
        : printer(printerused), page(pageprinted), notes(reasons(pageprinted.days)), columnwidth(printer.width() / 7) {}

    void weekly(const std::vector<Rows>& blocks);
    void plain(const std::vector<Rows>& blocks, std::size_t longest);

  private:
    double columnleft(std::size_t column) const { return static_cast<double>(column) * columnwidth; }
    void skipgap() { printer.setcurrenty(printer.currenty() + printer.textheight() / 2); }
    double roomforbody() {
        return printer.height() - printer.currenty() - closingheight(printer, closinglines + notes.size());
    }
    void titles();
    void fitbody(std::size_t rows);
    void closing();
    void put(const Row& row, std::size_t column);
    void plaincolumns(const std::vector<Rows>& columns, std::size_t first, std::size_t deepest);

    Printer& printer;
    const MonthPage& page;
    const std::vector<std::string> notes;
    const double columnwidth;
};

void MonthPrinting::titles() {
    printer.setfontsize(bodysize);
    printer.setbold(true);
    printat(printer, columnleft(1), "Port : " + page.portname + "  Tarvane Tides Months Predictions");
    const std::string heights =
        page.userdepth == 0 ? " - Heights to Chart Datum"
                            : " - Heights include user charted depth of " + enteredmetres(page.userdepth) + " Metres";
    printat(printer, columnleft(1), "Year : " + numbertext(page.tideyear) + heights);
    printer.setbold(false);
}

/// Size 9, or as much smaller as a low page needs to hold the rows and the closing lines.
void MonthPrinting::fitbody(std::size_t rows) {
    const double room = roomforbody();
    double size = bodysize;
    while (static_cast<double>(rows) * printer.textheight() > room && size > smallestsize) {
        size -= 0.5;
        printer.setfontsize(size);
    }
}

void MonthPrinting::closing() {
    printer.setbold(false);
    printer.setfontsize(closingsize);
    for (const std::string& note : notes)
        printat(printer, columnleft(1), note);
    printclosinglines(printer, columnleft(1), page.closing, true);
}

void MonthPrinting::put(const Row& row, std::size_t column) {
    printer.setbold(row.bold);
    printat(printer, columnleft(column), row.text);
}

void MonthPrinting::weekly(const std::vector<Rows>& blocks) {
    const Rows rows = weekrows(blocks, page.days.front().date);
    titles();
    skipgap();
    fitbody(rowsofweek);
    const double top = printer.currenty();
    for (std::size_t column = 0; column < pagecolumns; ++column) {
        printer.setcurrenty(top);
        for (std::size_t row = 0; row < rowsofweek; ++row)
            put(rows[column * rowsofweek + row], column + 1);
    }
    closing();
    const auto next = rows.begin() + pagecolumns * rowsofweek;
    if (std::all_of(next, next + rowsrunningon, [](const Row& row) { return row.text.empty(); })) return;
    printer.newpage();
    titles();
    skipgap();
    fitbody(rowsofweek);
    for (auto row = next; row != next + rowsofweek; ++row)
        put(*row, 1);
    closing();
}

/// Whole days down each column, none deeper than `deepest` rows; a blank row between days.
std::vector<Rows> fillcolumns(const std::vector<Rows>& blocks, std::size_t deepest) {
    std::vector<Rows> columns(1);
    for (const Rows& block : blocks) {
        if (!columns.back().empty() && columns.back().size() + 1 + block.size() > deepest) columns.emplace_back();
        Rows& column = columns.back();
        if (!column.empty()) column.emplace_back();
        column.insert(column.end(), block.begin(), block.end());
    }
    return columns;
}

void MonthPrinting::plaincolumns(const std::vector<Rows>& columns, std::size_t first, std::size_t deepest) {
    const double top = printer.currenty();
    for (std::size_t i = first; i < std::min(columns.size(), first + pagecolumns); ++i) {
        printer.setcurrenty(top);
        for (const Row& row : columns[i])
            put(row, i - first + 1);
    }
    printer.setcurrenty(top + static_cast<double>(deepest) * printer.textheight());
}

void MonthPrinting::plain(const std::vector<Rows>& blocks, std::size_t longest) {
    const auto begin = [&] {
        titles();
        printat(printer, columnleft(1), "(Complex predictions - print is unformated)");
        skipgap();
    };
    begin();
    const double fitting = std::floor(roomforbody() / printer.textheight() - 0.5);
    const std::size_t capacity = std::max(longest, static_cast<std::size_t>(std::max(fitting, 0.0)));
    std::size_t rows = 0;
    for (const Rows& block : blocks)
        rows += block.size() + 1;
    // The least depth at which one page takes the month, so that its columns are about even.
    std::size_t deepest = std::min(capacity, rows / pagecolumns + 1);
    while (deepest < capacity && fillcolumns(blocks, deepest).size() > pagecolumns)
        ++deepest;
    const std::vector<Rows> columns = fillcolumns(blocks, deepest);
    for (std::size_t first = 0; first < columns.size(); first += pagecolumns) {
        if (first > 0) {
            printer.newpage();
            begin();
        }
        plaincolumns(columns, first, deepest);
        skipgap();
        closing();
    }
}

}  // namespace

void printmonthpages(Printer& printer, const MonthPage& page) {
    if (page.days.empty()) return;
    std::vector<Rows> blocks;
    std::size_t longest = 0;
    for (const MonthDay& day : page.days) {
        blocks.push_back(rowsof(day));
        longest = std::max(longest, blocks.back().size());
    }
    MonthPrinting printing(printer, page);
    if (longest >= fullday)
        printing.plain(blocks, longest);
    else
        printing.weekly(blocks);
}

}  // namespace tarvane
