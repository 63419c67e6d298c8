// The four printouts, laid out on a printer's pages: the day's curve, its heights every 10 minutes, the month's tides
// and the month's sun and moon. Must not predict, ask or tell the user anything; the caller opens the document and
// hands it over.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/curvelimits.h"
#include "output/monthtable.h"
#include "platform/printer.h"
#include "portdata/configuration.h"
#include "sunmoon/lunarphases.h"
#include "sunmoon/suntable.h"

namespace tarvane {

/// Font sizes in points.
inline constexpr double bodysize = 9;
inline constexpr double closingsize = 7;

/// What the closing lines depend on.
struct ClosingFacts {
    std::int16_t currentsummer = 0;
    double tidemonth = 0;
};

/// The lines that end a printout, in size 7 from `left` (coordinates of the page in force); the size is 9 and not bold
/// afterwards. The notices on source and reproduction are left away on the sun printout.
void printclosinglines(Printer& printer, double left, const ClosingFacts& facts, bool notices);

/// How many they are with the notices, and without.
inline constexpr std::size_t closinglines = 10;
inline constexpr std::size_t sunclosinglines = 3;

/// Height of so many lines in size 7, twips. Leaves size 9.
double closingheight(Printer& printer, std::size_t lines = closinglines);

/// What the two printouts of a day take.
struct DayPage {
    std::string portbox, tidedatebox;  ///< the captions of the main window
    std::string daystide1;             ///< the caption of the day table
    const CurveOnShow& curve;
    int samplecount = 0;
    std::string whynot;  ///< why the day has no prediction, and then neither curve nor heights; else empty
    const Settings& settings;
    ClosingFacts closing;
};

/// The curve in the upper half of the page, captions, note and day table under it.
void printcurvepage(Printer& printer, const DayPage& page);

/// 144 heights in four columns of six hours.
void printtenminutepage(Printer& printer, const DayPage& page);

/// What the month's table takes.
struct MonthPage {
    const std::vector<MonthDay>& days;  ///< of one month, from its first
    std::string portname;
    double tideyear = 0;
    float userdepth = 0;
    ClosingFacts closing;
};

/// A column to a week; a month that runs on past five weeks, and one whose days are too full for that layout, take the
/// pages that they need. Without days nothing is printed.
void printmonthpages(Printer& printer, const MonthPage& page);

/// The sun table by days and the lunar phases, spread over the height of the page.
void printsunpage(Printer& printer, const SunTable& table, const LunarTexts& lunar, const ClosingFacts& closing);

}  // namespace tarvane
