#include <algorithm>
#include <array>
#include <cmath>

#include "output/pagetext.h"
#include "output/printouts.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr std::size_t headingrows = 5;  ///< rows of the list before its days
constexpr std::size_t pagecolumns = 5;
constexpr std::size_t rowsofday = 8;
constexpr std::size_t rowsofweek = 7 * rowsofday;
constexpr std::size_t fullday = 7;  ///< a day of so many rows doesn't go into the weekly layout
constexpr std::size_t rowsrunningon = 30;
constexpr double smallestsize = 5;

/// A day's head and the rows of its tides, without the blank rows between days.
using DayBlock = std::vector<std::string>;
using Rows = std::vector<std::string>;

bool ishead(const std::string& row) {
    return row.find('(') != std::string::npos;
}

std::vector<DayBlock> dayblocks(const Rows& list) {
    std::vector<DayBlock> blocks;
    for (std::size_t i = headingrows; i < list.size(); ++i) {
        if (ishead(list[i]))
            blocks.push_back({trim(list[i])});
        else if (!blocks.empty() && !trim(list[i]).empty())
            blocks.back().push_back(trim(list[i]));
    }
    return blocks;
}

std::size_t longestblock(const std::vector<DayBlock>& blocks) {
    std::size_t longest = 0;
    for (const DayBlock& block : blocks)
        longest = std::max(longest, block.size());
    return longest;
}

/// "Mon" to "Sun", as the rows abbreviate the system's day names.
std::array<std::string, 7> daywords(const Locale& locale) {
    std::array<std::string, 7> words;
    for (std::size_t i = 0; i < words.size(); ++i)
        words[i] = leftcharacters(locale.dayname(static_cast<int>((i + 1) % 7)), 3);
    return words;
}

/// Days of the first week that lie before the month: 0 for a month that begins on Monday.
std::size_t emptydays(const DayBlock& firstday, const std::array<std::string, 7>& words) {
    const std::string& head = firstday.front();
    const std::size_t open = head.find('(') + 1;
    const std::string word = head.substr(open, head.find(')') - open);
    const auto found = std::find(words.begin(), words.end(), word);
    return found == words.end() ? 0 : static_cast<std::size_t>(found - words.begin());
}

/// The rows of all weeks one behind the other, 56 to a week, long enough for a sixth.
Rows weekrows(const std::vector<DayBlock>& blocks, std::size_t emptyfirst) {
    Rows rows(emptyfirst * rowsofday);
    for (const DayBlock& block : blocks) {
        rows.insert(rows.end(), block.begin(), block.end());
        rows.resize(rows.size() + rowsofday - block.size());
    }
    rows.resize(std::max(rows.size(), (pagecolumns + 1) * rowsofweek));
    return rows;
}

/// One month's printing: what is on each of its pages.
class MonthPrinting {
  public:
    MonthPrinting(Printer& printerused, const MonthPage& pageprinted)
        : printer(printerused), page(pageprinted), columnwidth(printerused.width() / 7) {}

    void weekly(const std::vector<DayBlock>& blocks, const std::array<std::string, 7>& words);
    void plain(const std::vector<DayBlock>& blocks);

  private:
    double columnleft(std::size_t column) const { return static_cast<double>(column) * columnwidth; }
    void skipgap() { printer.setcurrenty(printer.currenty() + printer.textheight() / 2); }
    double roomforbody() { return printer.height() - printer.currenty() - closingheight(printer); }
    void titles();
    void fitbody(std::size_t rows);
    void closing();
    void plaincolumns(const std::vector<Rows>& columns, std::size_t first, std::size_t deepest);

    Printer& printer;
    const MonthPage& page;
    double columnwidth;
};

void MonthPrinting::titles() {
    printer.setfontsize(bodysize);
    printer.setbold(true);
    printat(printer, columnleft(1), "Port : " + page.portname + "  Tarvane Tides Months Predictions");
    const std::string heights =
        page.userdepth == 0 ? " - Heights to Chart Datum"
                            : " - Heights include user charted depth of " + numbertext(page.userdepth) + " Metres";
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
    printclosinglines(printer, columnleft(1), page.closing, true);
}

void MonthPrinting::weekly(const std::vector<DayBlock>& blocks, const std::array<std::string, 7>& words) {
    const Rows rows = weekrows(blocks, emptydays(blocks.front(), words));
    titles();
    skipgap();
    fitbody(rowsofweek);
    const double top = printer.currenty();
    for (std::size_t column = 0; column < pagecolumns; ++column) {
        printer.setcurrenty(top);
        for (std::size_t row = 0; row < rowsofweek; ++row) {
            printer.setbold(row % rowsofday == 0);
            printat(printer, columnleft(column + 1), rows[column * rowsofweek + row]);
        }
    }
    closing();
    const auto next = rows.begin() + pagecolumns * rowsofweek;
    if (std::all_of(next, next + rowsrunningon, [](const std::string& row) { return row.empty(); })) return;
    printer.newpage();
    titles();
    skipgap();
    fitbody(rowsofweek);
    for (auto row = next; row != next + rowsofweek; ++row) {
        printer.setbold(std::any_of(words.begin(), words.end(),
                                    [&](const std::string& word) { return row->find(word) != std::string::npos; }));
        printat(printer, columnleft(1), *row);
    }
    closing();
}

/// Whole days down each column, none deeper than `deepest` rows; a blank row between days.
std::vector<Rows> fillcolumns(const std::vector<DayBlock>& blocks, std::size_t deepest) {
    std::vector<Rows> columns(1);
    for (const DayBlock& block : blocks) {
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
        for (const std::string& row : columns[i])
            printat(printer, columnleft(i - first + 1), row);
    }
    printer.setcurrenty(top + static_cast<double>(deepest) * printer.textheight());
}

void MonthPrinting::plain(const std::vector<DayBlock>& blocks) {
    const auto begin = [&] {
        titles();
        printat(printer, columnleft(1), "(Complex predictions - print is unformated)");
        skipgap();
    };
    begin();
    const double fitting = std::floor(roomforbody() / printer.textheight() - 0.5);
    const std::size_t capacity = std::max(longestblock(blocks), static_cast<std::size_t>(std::max(fitting, 0.0)));
    std::size_t rows = 0;
    for (const DayBlock& block : blocks)
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

void printmonthpages(Printer& printer, const MonthPage& page, const Locale& locale) {
    const std::vector<DayBlock> blocks = dayblocks(page.monthspredictions);
    if (blocks.empty()) return;
    MonthPrinting printing(printer, page);
    if (longestblock(blocks) >= fullday)
        printing.plain(blocks);
    else
        printing.weekly(blocks, daywords(locale));
}

}  // namespace tarvane
