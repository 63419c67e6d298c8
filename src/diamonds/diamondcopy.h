// The copying of tidal diamonds, as far as it isn't controls: the files and entries of both sides, what is held against
// the texts, and the commands that change a file. Must not know any control.
#pragma once

#include <string>
#include <vector>

#include "diamonds/diamondboxes.h"
#include "session/session.h"

namespace tarvane {

/// What one side of the window shows, and what it has to remember.
struct DiamondSide {
    std::string file;                  ///< path of the file in hand, `sourcefile` or `destfile`; empty for none
    std::vector<std::string> entries;  ///< of its list
    int listindex = -1;                ///< the highlighted entry, from 0; the destination never has one
    DiamondTexts texts = DiamondTexts(diamondboxes);   ///< what stands in the boxes
    DiamondTexts stored = DiamondTexts(diamondboxes);  ///< what stood there when it was last read from or written to
};

struct DiamondCopy {
    std::vector<std::string> files;  ///< names of the diamond files, for both file lists
    DiamondSide source, destination;
    std::string txtDestFile;   ///< name or path of the file to add to, as typed
    int selecteddiamond = -1;  ///< list index of the source entry last shown
    std::string Lbldiamno;     ///< its number
    std::string status;        ///< what the file used last now holds
};

/// What the window says of its use.
extern const char* const diamondinstructions;

/// The window as it opens: no file chosen, empty boxes.
DiamondCopy opendiamonds(const Session& session);

/// The names of the files that are there now.
void listdiamondfiles(const Session& session, DiamondCopy& copy);

// Each is false when nothing was done, which is told.

/// `fileSource` and `fileDest` click. The boxes stay.
bool picksourcefile(MainContext& context, DiamondCopy& copy, const std::string& name);
bool pickdestfile(MainContext& context, DiamondCopy& copy, const std::string& name);

/// `List1` click: the entry at `index`, from 0, comes into the boxes.
bool pickdiamond(MainContext& context, DiamondCopy& copy, int index);

/// `cmdCopy`: all texts of the source's boxes, in the destination's.
void copyacross(DiamondCopy& copy);

/// A double click on the direction at that place: the three boxes of its hour.
void emptyhour(DiamondTexts& texts, std::size_t direction);

/// `cmdAdd`: the destination's boxes behind the last entry of the file that is named, which is made if there is none.
bool addtodestination(MainContext& context, DiamondCopy& copy);

/// `cmdAddtoFile`: the source's boxes behind the last entry of their file.
bool addtosource(MainContext& context, DiamondCopy& copy);

/// `cmdAmend`: the source's boxes over the highlighted entry.
bool amendhighlighted(MainContext& context, DiamondCopy& copy);

/// `cmdDelete`: the highlighted entry goes, unasked.
bool deletehighlighted(MainContext& context, DiamondCopy& copy);

/// True if something was typed that stands in no file; empty boxes are nothing.
bool unwritten(const DiamondSide& side);

/// What is asked before what was typed goes, and what Yes does. True if it may go.
bool amendorleave(MainContext& context, DiamondCopy& copy);
bool addorleave(MainContext& context, DiamondCopy& copy);

/// Files may have changed behind the window: both lists anew. An entry that another takes the place of loses its
/// highlight.
void rereaddiamonds(const Session& session, DiamondCopy& copy);

}  // namespace tarvane
