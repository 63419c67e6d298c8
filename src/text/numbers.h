// Numbers to text and back, in one place and never by the process's locale: results are compared digit by digit.
// Must not use printf, streams or the C locale; everything stands on std::to_chars and std::from_chars.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvane {

/// Nearest whole number as a 16-bit integer, halves to the even number. Out of range is clamped to
/// -32768..32767; NaN gives 0.
std::int16_t cint(double value);

/// Nearest whole number, halves to the even number, not narrowed. NaN gives NaN.
double roundeven(double value);

/// The leading number of a text: blanks (also tabs and line ends) are skipped wherever they stand, then sign, digits,
/// one point, an exponent. 0 when there is none; never fails. "1.2.3" gives 1.2, "-" 0, "1e3" 1000, " 5 m" 5.
double val(std::string_view text);

/// Plain number text that keeps its leading place: a blank or "-", no leading zero (" .5", "-.5", " 12").
/// A float gives 7 significant digits, a double 15, in shortest form; negative zero reads " 0".
std::string str(double value);
std::string str(float value);
std::string str(int value);

/// A number as it is joined into a text or put in a box: no leading place, with a leading zero ("0.5", "-20").
std::string numbertext(double value);
std::string numbertext(float value);
std::string numbertext(int value);

/// The shortest plain decimals that read back as the same single; "nan" and "inf" for what is none.
std::string shortest(float value);

/// The value with so many decimals, its exact binary value rounded once; a value that rounds to zero carries no sign.
std::string fixed(double value, int decimals);

/// A value under one of the patterns of digits ("0", "#"), point, grouping comma and sections (";"): "0.0", "000",
/// "00.00", "#,#0.0;;;", "#,##0.00;;;", "###000", "###,000", "##0.0" and their like. Decimal rounding is half away from
/// zero on the 15-digit text of the value; an empty section falls back to the first, so a negative keeps its sign and a
/// zero is written. A value that rounds to zero carries no sign. The point is always "." and the grouping mark ",". Not
/// a number or infinite gives an empty text.
std::string format(double value, std::string_view pattern);

}  // namespace tarvane
