// What every command shares that saves or prints: the asking for a file, the opening and handing over of a printout,
// and what the user is told of both. Must not know what the documents hold.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "output/printouts.h"
#include "session/session.h"

namespace tarvane {

/// The title of the messages of these commands.
inline constexpr const char* messagetitle = "Tarvane";

/// Asks where a table is to be saved, in the text output folder; nothing when the user cancelled.
std::optional<std::string> choosetextfile(MainContext& context, const std::string& title, const std::string& proposed);

/// Writes a file whole and tells the user when it can't be written. What stood there stays then.
bool writedocument(MainContext& context, const std::string& path, const std::string& bytes);

/// One document from its opening to handing it over, and what the user is told of it. `name` is the kind of printout.
void printdocument(MainContext& context, const std::string& name, const std::function<void(Printer&)>& layout);

/// Tells that something must be calculated before: "Calculate a months tides".
void tellmissing(MainContext& context, const std::string& first);

/// What the closing lines of a printout take of the session.
ClosingFacts closingfacts(const Session& session);

/// The month on show as a document's name carries it, "2026-07".
std::string monthtext(const DateOnShow& onshow);

}  // namespace tarvane
