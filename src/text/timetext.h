// Decimal hours to "hh:mm" and "hh:mm:ss".
#pragma once

#include <string>

namespace tarvane {

/// Decimal hours to "hh:mm". The hours are the integer part; the minutes 60 times the fraction, rounded
/// with halves to the even number; 60 minutes carry into the hours, and exactly 24 hours read "00". An hour past 24
/// stays (25.2 is "25:12"). Not a number or infinite reads "--:--".
std::string timetext(double hours);

/// Decimal hours to "hh:mm:ss" as a clock time: the fraction's seconds rounded with halves to the even number and
/// carried, hours taken modulo 24 (25.2 is "01:12:00"). Not a number or infinite reads "--:--:--".
std::string clocktext(double hours);

}  // namespace tarvane
