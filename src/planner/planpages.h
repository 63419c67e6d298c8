// What leaves the planner on paper: some days, a month as a calendar, a year's almanac. Each routine reckons its plan
// once; the booklet that it makes keeps it and lays it out for whatever paper it is painted on. Must not print.
#pragma once

#include <optional>
#include <string>

#include "planner/plan.h"
#include "platform/drawings.h"
#include "platform/locale.h"
#include "portdata/portknown.h"

namespace tarvane {

/// What pages are made of.
struct PageOf {
    HarmonicRecord port;
    int number = 0;    ///< of the port in its area
    std::string area;  ///< its name, as its file has it
    std::string iana;  ///< the zone that the port's clocks keep; empty when it isn't known
    ClockChoice clock = ClockChoice::port;
    std::optional<Passage> passage = {};  ///< windows of passage are told
    WindowWishes wishes = {};
    bool twilight = false;  ///< daylight is wished with civil twilight
    PortKnown known = {};   ///< what is known of the port's constants
};

// Zones and locale are to outlive the booklet.

/// The days from `first` on as a picture, with their waters and windows, on one page. `days` from 1 to 366; waters for
/// which the page has no room are said to be left out.
Booklet spanpage(const PageOf& of, Date first, int days, const Zones& zones, const Locale& locale);

/// A month, 1 to 12, on one page: weeks from Monday on as rows.
Booklet monthpage(const PageOf& of, int year, int month, const Zones& zones, const Locale& locale);

/// A page a month, and one of the year's springs and neaps, moons, and how far the port is to be trusted.
Booklet almanac(const PageOf& of, int year, const Zones& zones, const Locale& locale);

}  // namespace tarvane
