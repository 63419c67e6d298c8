// What "Program Settings" and the configuration view hold and do: the options over the configuration record, and the
// settings and ports read-only. Must not know any control.
#pragma once

#include <string>

#include "ports/usernotes.h"
#include "session/session.h"

namespace tarvane {

/// What `frmoutoptions` shows.
struct ProgramOptions {
    int displayoption = 1;               ///< which of Option1 to Option3 is set
    bool optNonDaylightsavings = false;  ///< neither of the two is set when the record holds neither -1 nor 0
    bool optDaylightSavings = false;
    std::string draughttext;  ///< metres
    std::string ukctext;      ///< metres
};

/// What `frmshowconf` shows.
struct ConfigurationView {
    std::string sealabel, confdraughtbox, confukcbox, confoutputoption;
    UserNotes port;        ///< the port picked, and the rows of `confportlist`
    int selectedrow = -1;  ///< from 0; -1 when the current port is not in the list
};

/// Metres as an option's text box shows them: 0 as "0.0", .5 as "0.5"; otherwise the plain number text.
std::string optiontext(float metres);

/// The dialog as it opens. Takes draught, port, area file, clearance, output and summer choice from the record; a
/// configuration that can't be opened leaves them as they are.
ProgramOptions openoptions(Session& session);

/// A click on Option1, Option2 or Option3 (1 to 3). `currentoutput` follows at once and Cancel does not undo it.
void chooseoutput(Session& session, ProgramOptions& options, int option);

/// A click on `Check1`, ticking or unticking alike.
void offermaintenance(Session& session);

/// `optionsok`: the options into the settings and the record, then the day on show anew. A record that can't be written
/// is told by a message, the settings being in force all the same.
void confirmoptions(MainContext& context, const ProgramOptions& options);

/// The configuration view as it opens, with the current port; `pickusernotes` shows another. Takes the same values as
/// `openoptions`, without the summer choice, and rebuilds the path of the user depths.
ConfigurationView openconfiguration(Session& session);

}  // namespace tarvane
