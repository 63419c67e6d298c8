// Small moves on a printed page that all printouts share.
#pragma once

#include <cmath>
#include <string>

#include "platform/printer.h"
#include "text/numbers.h"

namespace tarvane {

/// Prints a line that begins at x.
inline void printat(Printer& printer, double x, const std::string& text) {
    printer.setcurrentx(x);
    printer.print(text);
}

inline void printblanklines(Printer& printer, int count) {
    for (int i = 0; i < count; ++i)
        printer.print("");
}

/// Metres that the user entered, as a note tells them; a file can hold what is no number.
inline std::string enteredmetres(float metres) {
    return std::isfinite(metres) ? numbertext(metres) : "?";
}

}  // namespace tarvane
