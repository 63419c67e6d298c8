// What the views' texts for a sailor's terminal are made of. Columns align by characters, so that accented names do
// too. Must not compute anything that the tables don't.
#pragma once

#include <functional>
#include <ostream>
#include <string>

#include "tides/views.h"

namespace tarvane {

/// The last line under heights.
inline constexpr const char* heightscaution =
    "Heights in Metres, all data are derived and should therefore be considered as approximate";

std::string padright(const std::string& text, std::size_t width);
std::string padleft(const std::string& text, std::size_t width);

/// Every port's days in text under their headings, closed by the caution: what `whole` writes of a day with a
/// prediction or why there is none, then what `behind`, which may be empty, writes of any day.
void daystext(const ViewContext& context, std::ostream& out,
              const std::function<void(const PortInHand&, const Prediction&, Date)>& whole,
              const std::function<void(const PortInHand&, Date)>& behind = {});

/// A port's name, place and zone in two lines, with a blank line before all but the first.
void portheading(const ViewContext& context, const PortInHand& port, std::ostream& out);

/// The last line of a text, once behind all areas.
void conclusion(const ViewContext& context, const char* line, std::ostream& out);

/// Under which time a day's clock times stand.
std::string timeline(const ViewContext& context, const PortInHand& port, Date date);

/// The same of a single day, with what the port's clocks read otherwise.
std::string dayline(const ViewContext& context, const PortInHand& port, Date date);

/// What a port's heights include.
std::string datumline(const PortInHand& port);

/// Stands where a day's heights would.
std::string nopredictionline(const Prediction& prediction);

/// "Tuesday 9 April 2024".
std::string longdate(Date date);

/// Hours ahead of universal time: "UT", "UT+1", "UT-5".
std::string universaltext(int hoursahead);

/// A text from outside with its control characters made "?", so that it can't move the cursor or break a line.
std::string plaintext(const std::string& text);

}  // namespace tarvane
