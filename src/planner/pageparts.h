// What the planner's pages have in common: sizes of type, the facts of each day, heads and feet, small curves. Must not
// know what a page holds between its head and its foot.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "paint/colours.h"
#include "planner/planpages.h"

namespace tarvane {

/// In 1/96 inch: 18, 10.5, 9, 7.5 and 6.75 points.
namespace pagetype {
inline constexpr double title = 24, heading = 14, body = 12, lesser = 10, least = 9;
}

/// What a page tells of a day.
struct DayFacts {
    Date date{};
    Moment begins, ends;
    std::vector<PlannedWater> waters;
    std::optional<Moment> sunrise, sunset;
    bool sunatnoon = false;
    std::optional<int> moon;         ///< the phase on that day, 0 new to 3 last quarter
    std::optional<SpringTide> tide;  ///< springs or neaps on that day
    std::optional<Moment> change;    ///< the first moment at which the clock shows another offset
    std::string missing;             ///< in words, what isn't told of its waters; mostly empty

    bool exists() const { return begins < ends; }
    bool weekend() const { return weekdayof(date) % 6 == 0; }
};

struct HeightScale {
    double least = 0, greatest = 1;
};

/// A plan for pages with all its days' facts.
struct PagePlan {
    PagePlan(const PageOf& of, Date first, int days, const Zones& zones, const Locale& locale);

    PageOf of;
    const Locale& locale;
    Plan plan;
    std::vector<DayFacts> days;
    HeightScale heights;                  ///< of all its waters
    std::optional<PlannedAccess> access;  ///< when a passage is given
};

/// "05:40"; "02:30*" behind a change of the clock on that day.
std::string watertime(const PagePlan& pages, const DayFacts& day, Moment moment);

/// "4.4", in metres.
std::string waterheight(const Water& water);

/// Below which the height of all waters of a page is left out.
TextLook waterlook(const Water& water, double size);

/// "Draught 1.9 m and 0.3 m under the keel over a bottom that dries 2.0 m: 4.2 m of tide needed."
std::string passagewords(const PagePlan& pages);

/// "50°39'N 1°37'W, no. 77 of UK"
std::string placewords(const PageOf& of);

/// A text no wider than `width`: smaller where it must be, and cut at the least size.
void fittedtext(Canvas& canvas, Place place, std::string text, TextLook look, double width);

/// Words broken into lines no wider than `width`.
std::vector<std::string> wrapped(const Canvas& canvas, const std::string& text, const TextLook& look, double width);

/// Paints wrapped words from the top of `area` on; where they end.
double paragraph(Canvas& canvas, const Area& area, const std::string& text, const TextLook& look);

void hairline(Canvas& canvas, Place from, Place to, Rgb colour, double width = 0.5);

/// Port and place at the left, what the page is of at the right; where the page goes on below.
double pagehead(Canvas& canvas, const Area& area, const PagePlan& pages, const std::string& what);

/// What a foot tells besides the clock, its changes on the days, the datum and the caution.
struct FootOf {
    std::size_t first = 0, last = 0;  ///< days on the page, the last behind them
    std::string more;                 ///< sentences
    std::string page;                 ///< "page 3 of 13"
    bool marked = false;              ///< times behind a change are those of `watertime`
};

/// Where the page has to end above.
double pagefoot(Canvas& canvas, const Area& area, const PagePlan& pages, const FootOf& foot);

/// The curve from one moment to another over all of `area`, broken where there is no prediction, the water below it
/// tinted.
void smallcurve(Canvas& canvas, const Area& area, const PagePlan& pages, Moment from, Moment to,
                std::chrono::minutes step);

}  // namespace tarvane
