// Small moves on a printed page that all printouts share.
#pragma once

#include <string>

#include "platform/printer.h"

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

}  // namespace tarvane
