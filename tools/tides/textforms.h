// The views as a sailor reads them on a terminal. Columns align by characters, so that accented names do too. Must not
// compute anything that the tables don't.
#pragma once

#include <ostream>
#include <string>

#include "tides/views.h"

namespace tarvane {

void tidestext(ViewContext& context, std::ostream& out);
void monthtext(ViewContext& context, std::ostream& out);
void samplestext(ViewContext& context, std::ostream& out);
void suntext(ViewContext& context, std::ostream& out);
void orbitaltext(ViewContext& context, std::ostream& out);
void listtext(ViewContext& context, std::ostream& out);

/// "Tuesday 9 April 2024".
std::string longdate(Date date);

/// Hours ahead of universal time: "UT", "UT+1", "UT-5".
std::string universaltext(int hoursahead);

/// A text from outside with its control characters made "?", so that it can't move the cursor or break a line.
std::string plaintext(const std::string& text);

}  // namespace tarvane
