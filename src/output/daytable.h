// The day's high and low waters as texts: the caption of the day table and the lines that the clipboard takes; and the
// few text forms that all output shares. Must not predict anything.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "dates/calendar.h"
#include "engine/prediction.h"

namespace tarvane {

struct WaterText {
    std::string time;    ///< "hh:mm"
    std::string height;  ///< metres
};

/// Row 0 of both arrays is unused.
struct DayTable {
    std::array<WaterText, 16> turningtext;  ///< heights with one decimal
    std::array<std::string, 301> daylines;
    int daylinecount = 0;
    std::string daystide1;  ///< the day table's caption, CR LF and lone CR as line ends
};

/// Fills the table from the first n turning points; the date line is day first under every locale. A day without a
/// prediction says so, and why.
void buildpredictiontext(DayTable& table, const Prediction& prediction, int n, const std::string& portname,
                         const DateOnShow& onshow);

/// What stands where a day has no prediction.
inline constexpr const char* nopredictionword = "No prediction";

/// "No prediction. " and the reason, in one line.
std::string nopredictiontext(const std::string& whynot);

/// A text in lines that the day table and the month's list have room for, broken at its blanks.
std::vector<std::string> shortlines(const std::string& text);

/// The line end of files and of clipboard texts.
inline constexpr const char* lineend = "\r\n";

/// A date day first under every locale, "9/4/2024".
std::string slashdate(double day, double month, double year);

/// A height as the readouts show it: metres, one decimal.
std::string heighttext(double height);

}  // namespace tarvane
