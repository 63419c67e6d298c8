#include "output/printouts.h"

#include <algorithm>
#include <array>

#include "dates/summertime.h"
#include "output/pagetext.h"
#include "output/textfiles.h"

namespace tarvane {
namespace {

const char* const approximateline = "All data are derived and should therefore be considered as approximate";

constexpr std::array<const char*, 7> notices{
    "",
    "Harmonic constants supplied with this program are derived, with changes, from TICON-4: Hart-Davis, Dettmering,",
    "Seitz (2025), SEANOE, https://doi.org/10.17882/109129, licence CC BY 4.0. Heights refer to levels derived from",
    "those constants, which are not official chart datum. Predictions are not for navigation.",
    "",
    "This printout may be reproduced for use on board as long as it is whole and these notices stay on it.",
    "The source and licence of the tidal data named above are to be given with every copy.",
};

const char* const makersline = "Tarvane Tides, tide predictions for yachtsmen\thttps://tarvane.example";

const char* timeline(const ClosingFacts& facts) {
    if (facts.currentsummer == 0) return uncorrectedoffline;
    return issummermonth(facts.tidemonth) ? adjustedline : uncorrectedline;
}

/// The columns of the sun page stand on tab stops, half an inch apart: one tab between columns, two where a group ends.
constexpr double tabstop = 720;

struct SunColumn {
    suncolumn::Number column;
    int stop;
    const char* heading;
};

constexpr std::array<SunColumn, 7> suncolumns{{{suncolumn::date, 1, "Date"},
                                               {suncolumn::sunrise, 3, "Sunrise"},
                                               {suncolumn::sunset, 4, "Sunset"},
                                               {suncolumn::civildawn, 6, "Civil Twilights"},
                                               {suncolumn::civildusk, 7, ""},
                                               {suncolumn::nautdawn, 9, "Nautical Twilights"},
                                               {suncolumn::nautdusk, 10, ""}}};

/// A date with the blank that days below 10 have in front.
std::string datecell(const SunTable& table, std::size_t day) {
    return (day < 10 ? " " : "") + table.suntext[day][suncolumn::date];
}

double widestdate(const Printer& printer, const SunTable& table) {
    double widest = 0;
    const auto days = static_cast<std::size_t>(daysofsuntable(table));
    for (std::size_t day = 1; day <= days; ++day)
        widest = std::max(widest, printer.textwidth(datecell(table, day)));
    return widest;
}

/// `right` is how far the columns behind the dates stand right of their stops.
void printsundays(Printer& printer, const SunTable& table, double widest, double right) {
    const auto days = static_cast<std::size_t>(daysofsuntable(table));
    for (std::size_t day = 1; day <= days; ++day) {
        // A blank is narrower than a digit in most fonts, so the dates are lined up at their right ends.
        const std::string date = datecell(table, day);
        printer.setcurrentx(tabstop + widest - printer.textwidth(date));
        printer.printon(date);
        for (std::size_t i = 1; i < suncolumns.size(); ++i) {
            printer.setcurrentx(suncolumns[i].stop * tabstop + right);
            printer.printon(table.suntext[day][suncolumns[i].column]);
        }
        printer.print("");
    }
}

}  // namespace

void printclosinglines(Printer& printer, double left, const ClosingFacts& facts, bool withnotices) {
    printer.setbold(false);
    printer.setfontsize(closingsize);
    printat(printer, left, approximateline);
    printat(printer, left, timeline(facts));
    if (withnotices)
        for (const char* line : notices)
            printat(printer, left, line);
    printat(printer, left, makersline);
    printer.setfontsize(bodysize);
}

double closingheight(Printer& printer) {
    printer.setfontsize(closingsize);
    const double height = (notices.size() + 3) * printer.textheight();
    printer.setfontsize(bodysize);
    return height;
}

void printsunpage(Printer& printer, const SunTable& table, const LunarTexts& lunar, const ClosingFacts& closing) {
    printer.setfontsize(bodysize);
    printer.setbold(true);
    printblanklines(printer, 2);
    printat(printer, tabstop, table.titles[1] + "\t" + table.titles[3] + "\t" + table.titles[2]);
    printblanklines(printer, 2);
    printer.setbold(false);
    const double widest = widestdate(printer, table);
    // Dates with a long name of the month push the columns to the next tab stop, as a tab would.
    const double right = widest + printer.textwidth(" ") > 2 * tabstop ? tabstop : 0;
    printer.setbold(true);
    for (const SunColumn& column : suncolumns) {
        printer.setcurrentx(column.stop * tabstop + (column.column == suncolumn::date ? 0 : right));
        printer.printon(column.heading);
    }
    printer.setbold(false);
    printblanklines(printer, 2);
    printsundays(printer, table, widest, right);
    printblanklines(printer, 3);
    // The list's first entry is always empty.
    for (int i = 2; i <= lunar.lunarcount; ++i)
        printat(printer, tabstop, lunar.lunarlist[static_cast<std::size_t>(i)]);
    printblanklines(printer, 1);
    printclosinglines(printer, tabstop, closing, false);
}

}  // namespace tarvane
