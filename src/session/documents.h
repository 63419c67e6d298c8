// What every command shares that saves, prints or copies: the asking for a file, the opening and handing over of a
// printout, and what the user is told of it. Must not know what the documents hold.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "output/printouts.h"
#include "session/session.h"

namespace tarvane {

/// The title of the messages of these commands.
inline constexpr const char* messagetitle = "Tarvane";

/// What a command has done, told without a box: "Saved: /home/anna/tides.txt". Empty takes back what stands.
void answer(MainContext& context, const std::string& text);

/// Why a command has done nothing, told in a box: "The file could not be written:", and the reason under it.
void tellfailure(MainContext& context, const std::string& failed, const std::string& reason);

/// Why a command isn't to be had as it was asked for, told in a box. False, for its caller to hand on.
bool refuse(MainContext& context, const std::string& why);

/// Tells that something must be calculated before: "Calculate a months tides".
void tellmissing(MainContext& context, const std::string& first);

/// Asks where a table is to be saved, in the text output folder; nothing when the user cancelled. A sign of the
/// proposed name that no file name may hold is replaced.
std::optional<std::string> choosetextfile(MainContext& context, const std::string& title, const std::string& proposed);

/// Writes a file whole and tells the user that, or why not. What stood there stays then.
bool writedocument(MainContext& context, const std::string& path, const std::string& bytes);

/// What a printout holds: its document, a PDF's file and the answer are named after it.
struct Printout {
    std::string kind;   ///< "curve"
    std::string place;  ///< the port's name, or another title of the place
    Date date{};        ///< the day, or one of the month
    bool ofmonth = false;
};

/// One document from its opening to handing it over, and what the user is told of it.
void printdocument(MainContext& context, const Printout& printout, const std::function<void(Printer&)>& layout);

/// What the closing lines of a printout take of the session.
ClosingFacts closingfacts(const Session& session);

}  // namespace tarvane
