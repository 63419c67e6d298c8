// What is known of a port in sentences, for the pages, the terminal and the windows alike. Must not show them anywhere.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "portdata/portknown.h"

namespace tarvane {

/// How near a port's waters come to a full prediction, by nine in ten of them: close within 20 minutes and 0.2 m, fair
/// within 45 minutes and 0.4 m, else rough. Of the ports that ship these are 59, 30 and 11 in a hundred.
enum class Grade { close, fair, rough };
Grade gradeof(const PortAbout& about);

/// "close", "fair" or "rough".
const char* gradeword(Grade grade);

/// "mean lower low water" of "MLLW"; empty for letters that aren't known.
std::string datumwords(std::string_view datum);

/// What heights at a port are above, by the letters of its datum: "chart datum", "chart datum (MLLW)" where that isn't
/// the lowest astronomical tide.
std::string chartdatum(std::string_view datum);

/// "half of the high and low waters are within 6 minutes and 0.07 m of a full prediction from all of the gauge's
/// constituents, nine in ten within 14 minutes and 0.17 m; weather not counted"
std::string errorwords(const PortAbout& about);

/// "a gauge's record of 2006-05-31 to 2025-05-31", "a gauge's record" where its days aren't known.
std::string recordwords(const PortAbout& about);

/// How good a port's waters are and what they come from, in sentences; says so when nothing is known of it.
std::string trustwords(const std::optional<PortAbout>& about);

/// The same, or how the user made it himself.
std::string trustwords(const PortKnown& known);

/// The same in one short clause without a full stop: "nine waters in ten within 14 minutes and 0.17 m of a full
/// prediction", "entered by you on 3 March 2026"; empty when nothing is known.
std::string trustclause(const PortKnown& known);

/// "Entered by you on 3 March 2026, fitted to 24 readings over 11.5 hours of 1 March 2026: ..."
std::string ownwords(const OwnMade& made);

/// "3 March 2026" of "2026-03-03"; another text as it is.
std::string daywords(const std::string& day);

}  // namespace tarvane
