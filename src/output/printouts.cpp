#include "output/printouts.h"

#include <array>

#include "dates/summertime.h"
#include "output/pagetext.h"

namespace tarvane {
namespace {

const char* const approximateline = "All data are derived and should therefore be considered as approximate";

constexpr std::array<const char*, 7> notices{
    "",
    "Harmonic constants supplied with this program are derived, with changes, from TICON-4: Hart-Davis, Dettmering,",
    "Seitz (2025), SEANOE, https://doi.org/10.17882/109129, and Kartverket (both CC BY 4.0), and from NOAA. Heights",
    "refer to levels derived from them, which are not official chart datum. Predictions are not for navigation.",
    "",
    "This printout may be reproduced for use on board as long as it is whole and these notices stay on it.",
    "The source and licence of the tidal data named above are to be given with every copy.",
};

static_assert(closinglines == notices.size() + sunclosinglines);

const char* const makersline = "Tarvane Tides, tide predictions for yachtsmen\thttps://tarvane.example";

const char* timeline(const ClosingFacts& facts) {
    if (facts.currentsummer == 0) return uncorrectedoffline;
    return issummermonth(facts.tidemonth) ? adjustedline : uncorrectedline;
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

double closingheight(Printer& printer, std::size_t lines) {
    printer.setfontsize(closingsize);
    const double height = static_cast<double>(lines) * printer.textheight();
    printer.setfontsize(bodysize);
    return height;
}

}  // namespace tarvane
