// The line under the main window that tells what tides are on show, made of the prediction alone, and the notes beside
// it where something else on show differs. Must never read a text off the screen to tell what was predicted.
#pragma once

#include <string>
#include <vector>

#include "session/session.h"

namespace tarvane {

/// The day that a prediction is of, by what it was asked for.
Date dateof(const TideDay& day);

/// "Tides of Lerwick (30), Saturday 28 November 2026, UT+1 (summer time), heights above chart datum", or why there are
/// none; an area of the user's own is named. `area` is the origin of the prediction's area, `datum` the letters of what
/// heights are above there.
std::string statusline(const Prediction& prediction, const FileOrigin& area, const std::string& datum,
                       const Locale& locale);

/// What on show is not of this prediction, a clause each, the gravest first; none when all agree.
std::vector<std::string> statusnotes(const Session& session, const Locale& locale);

/// Brings line and notes in the view up to date.
void refreshstatus(MainContext& context);

}  // namespace tarvane
