#include <algorithm>
#include <array>
#include <cmath>

#include "output/pagetext.h"
#include "output/printouts.h"

namespace tarvane {
namespace {

/// A column of the sun page, behind so many tabs: one between columns, two where a group ends.
struct SunColumn {
    suncolumn::Number column;
    int tabs;
    const char* heading;
};

constexpr std::array<SunColumn, 7> suncolumns{{{suncolumn::date, 1, "Date"},
                                               {suncolumn::sunrise, 3, "Sunrise"},
                                               {suncolumn::sunset, 4, "Sunset"},
                                               {suncolumn::civildawn, 6, "Civil Twilights"},
                                               {suncolumn::civildusk, 7, ""},
                                               {suncolumn::nautdawn, 9, "Nautical Twilights"},
                                               {suncolumn::nautdusk, 10, ""}}};

/// Tab stops across the page: those of the columns, and as much again right of the last one's texts as left of the
/// first.
constexpr double stopsofpage = 12;

/// Heads and blank rows, beside those of days and phases.
constexpr double otherrows = 11;

/// Share of the page's height that the rows are spread over, and how many lines apart they may come.
constexpr double filledheight = 0.96;
constexpr double widestpitch = 1.75;

/// A date with the blank that days below 10 have in front.
std::string datecell(const SunTable& table, std::size_t day) {
    return (day < 10 ? " " : "") + table.suntext[day][suncolumn::date];
}

/// One sun page while it is printed: rows of one pitch, texts at tab stops.
class SunPrinting {
  public:
    SunPrinting(Printer& printerused, const SunTable& sun, const LunarTexts& phases);
    void page();
    double left() const { return stop; }

  private:
    void endrow(int rows = 1) { printer.setcurrenty(printer.currenty() + rows * pitch); }
    void put(double x, const std::string& text);
    double placeof(const SunColumn& column) const { return column.tabs * stop + right; }
    void titles();
    void headings();
    void day(std::size_t number);

    Printer& printer;
    const SunTable& table;
    const LunarTexts& lunar;
    const std::size_t days;
    const double stop;
    double widest = 0;  ///< of the dates
    double right = 0;   ///< how far the columns behind the dates stand right of their stops
    double pitch = 0;
};

SunPrinting::SunPrinting(Printer& printerused, const SunTable& sun, const LunarTexts& phases)
    : printer(printerused),
      table(sun),
      lunar(phases),
      days(static_cast<std::size_t>(daysofsuntable(sun))),
      stop(printer.width() / stopsofpage) {
    printer.setfontsize(bodysize);
    for (std::size_t number = 1; number <= days; ++number)
        widest = std::max(widest, printer.textwidth(datecell(table, number)));
    // Dates with a long name of the month push the columns to the next tab stop, as a tab would.
    if (widest + printer.textwidth(" ") > 2 * stop) right = stop;
    const double rows = otherrows + static_cast<double>(days) + lunar.lunarcount - 1;
    const double line = printer.textheight();
    const double room = filledheight * printer.height() - closingheight(printer, sunclosinglines);
    pitch = std::clamp(room / rows, line, widestpitch * line);
}

void SunPrinting::put(double x, const std::string& text) {
    printer.setcurrentx(x);
    printer.printon(text);
}

void SunPrinting::titles() {
    double x = stop;
    for (const std::size_t title : {1U, 3U, 2U}) {
        put(x, table.titles[title]);
        x = stop * (std::floor((printer.currentx() + printer.textwidth("  ")) / stop) + 1);
    }
    endrow();
}

void SunPrinting::headings() {
    for (const SunColumn& column : suncolumns)
        put(column.column == suncolumn::date ? stop : placeof(column), column.heading);
    endrow();
}

void SunPrinting::day(std::size_t number) {
    // A blank is narrower than a digit in most fonts, so the dates are lined up at their right ends.
    const std::string date = datecell(table, number);
    put(stop + widest - printer.textwidth(date), date);
    for (const SunColumn& column : suncolumns)
        if (column.column != suncolumn::date) put(placeof(column), table.suntext[number][column.column]);
    endrow();
}

void SunPrinting::page() {
    printer.setbold(true);
    endrow(2);
    titles();
    endrow(2);
    headings();
    endrow();
    printer.setbold(false);
    for (std::size_t number = 1; number <= days; ++number)
        day(number);
    endrow(3);
    // The list's first entry is always empty.
    for (int i = 2; i <= lunar.lunarcount; ++i) {
        put(stop, lunar.lunarlist[static_cast<std::size_t>(i)]);
        endrow();
    }
    endrow();
}

}  // namespace

void printsunpage(Printer& printer, const SunTable& table, const LunarTexts& lunar, const ClosingFacts& closing) {
    SunPrinting printing(printer, table, lunar);
    printing.page();
    printclosinglines(printer, printing.left(), closing, false);
}

}  // namespace tarvane
