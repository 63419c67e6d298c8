// A date as a person types it: read in the order in which this system writes dates, or refused with a sentence. Must
// not guess: a text that can be meant for two days is none.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "dates/dateformats.h"

namespace tarvane {

/// The years that can be typed.
inline constexpr int firsttypedyear = 100;
inline constexpr int lasttypedyear = 9999;

struct ReadDate {
    std::optional<Date> date;
    std::string refusal;  ///< why the text is no date; empty with one
};

/// Reads day, month and year in the system's order, or year, month and day where the text begins with a year in full.
/// Blanks, "/", "-", "." and "," part them; eight digits, or six in an order that ends with the year, need nothing
/// between. The month may be a name in the system language, or its beginning from three letters on; its place is free
/// then. A year of two digits, taken only in an order that ends with it, lies within 49 years before and 50 after
/// today.
ReadDate readdate(std::string_view typed, const DateConventions& conventions, const Locale& locale, Date today);

/// A date as the system writes it with its year in full, "05/02/2027"; `readdate` gives it back.
std::string typeddate(Date date, const DateConventions& conventions, const Locale& locale);

}  // namespace tarvane
