// The day's high and low waters as texts: the caption of the day table and the lines that the clipboard takes.
// Must not predict anything.
#pragma once

#include <array>
#include <string>

#include "dates/calendar.h"
#include "engine/prediction.h"

namespace tarvane {

struct TurningText {
    std::string time;    ///< "hh:mm"
    std::string height;  ///< metres, one decimal
};

/// Row 0 of both arrays is unused.
struct DayTable {
    std::array<TurningText, 16> turningtext;
    std::array<std::string, 301> daylines;
    int daylinecount = 0;
    std::string daystide1;  ///< the day table's caption, CR LF and lone CR as line ends
};

/// Fills the table from the first n turning points; the date line is day first under every locale.
void buildpredictiontext(DayTable& table, const Prediction& prediction, int n, const std::string& portname,
                         const DateOnShow& onshow);

/// The line end of files and of clipboard texts.
inline constexpr const char* lineend = "\r\n";

/// A date day first under every locale, "9/4/2024".
std::string slashdate(double day, double month, double year);

/// A height as the readouts show it: metres, one decimal.
std::string heighttext(double height);

}  // namespace tarvane
