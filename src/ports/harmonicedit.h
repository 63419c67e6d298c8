// The editor of harmonic constants, as far as it isn't controls: the choice of an area file and of a port, what is held
// against the texts, and the commands that change the file. Must not know any control.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "ports/portboxes.h"
#include "session/session.h"

namespace tarvane {

/// What the window shows, and what it has to remember.
struct HarmonicEdit {
    std::string editfilename;           ///< "UK.hc"; empty until one is chosen
    std::string editfilepath;           ///< where it lies
    std::vector<std::string> portlist;  ///< names, without the blanks at their ends
    int listindex = -1;                 ///< the highlighted port, from 0
    int rowinview = -1;                 ///< where the list is to be looked at after a change
    BoxTexts texts;                     ///< what stands in the boxes
    BoxTexts stored;                    ///< what stood there when it was last read from the file or written to it
    std::string status;                 ///< what the file now holds
    std::set<std::string> changed;      ///< paths of the files that were changed
    std::int16_t portbefore = 0;        ///< `currentport` as the window opened
};

/// The editor as it opens: no file, empty boxes.
HarmonicEdit openeditor(const Session& session);

/// `fileList` click. The boxes stay. False, told, when the file can't be read; none is chosen then.
bool pickarea(MainContext& context, HarmonicEdit& edit, const std::string& name);

/// `portlist` click: the port at `index`, from 0, comes into the boxes. False, told, when it can't be read; none is
/// highlighted then.
bool pickport(MainContext& context, HarmonicEdit& edit, int index);

// Each command is false when nothing was written, which is told; the texts stay then.

/// `chartok`: the highlighted port's record is written anew.
bool acceptchanges(MainContext& context, HarmonicEdit& edit);

/// `cmdAdd`: a new port behind the last.
bool addnewport(MainContext& context, HarmonicEdit& edit);

/// `cmdInsert`: behind the highlighted port, as `insertport` does it.
bool insertnewport(MainContext& context, HarmonicEdit& edit);

/// `cmdDelete`: the highlighted port goes.
bool deletehighlighted(MainContext& context, HarmonicEdit& edit);

/// True if something was typed that stands in no file; empty boxes are nothing.
bool unaccepted(const HarmonicEdit& edit);

/// What is asked before it is left, and what Yes does.
std::string acceptquestion(const HarmonicEdit& edit);
bool acceptorleave(MainContext& context, HarmonicEdit& edit);

/// The window has closed: the main view is read anew when its area was changed or its port is another.
void closeeditor(MainContext& context, const HarmonicEdit& edit);

/// "UK.hc: 84 ports"
std::string holds(const std::string& filename, std::int16_t ports);

}  // namespace tarvane
