// The copying of ports from area files into another, as far as it isn't controls: the ports of a source, those gathered
// in the work file, and the saving of them. Must not know any control.
#pragma once

#include <string>
#include <vector>

#include "session/session.h"

namespace tarvane {

/// What the window shows, and what it has to remember.
struct PortsCopy {
    std::string source;               ///< path of the file in hand; empty for none
    std::vector<std::string> ports;   ///< its ports' names, without the blanks at their ends
    std::vector<std::string> listed;  ///< ports of the destination as it is, and those gathered since it was chosen
    std::string name;                 ///< to save as, without ".hc"
    int gathered = 0;                 ///< ports in the work file
    std::vector<std::string> from;    ///< the areas that those came from, by name
    int notedindex = -1;              ///< of the gathered list, by a double click
};

/// The window's loading: the work file of the last time goes.
void startgathering(MainContext& context);

/// `fillist` click. False, told, when the file can't be read.
bool picksource(MainContext& context, PortsCopy& copy, const std::string& name);

/// `List1` click: the port at `index`, from 0 and negative for none, goes into the work file. False when it couldn't,
/// which is told.
bool gather(MainContext& context, PortsCopy& copy, int index);

/// `fileDestName` click: its name, and its ports in place of those listed. False, told, when the file can't be read.
bool pickdestination(MainContext& context, PortsCopy& copy, const std::string& name);

/// `cmdcopy`: what was gathered goes behind the ports of the file of that name, which is made if there is none. True
/// when the window is to close; else the user was told why not.
bool saveports(MainContext& context, const PortsCopy& copy);

/// "2 ports gathered"
std::string gatheredtext(const PortsCopy& copy);

}  // namespace tarvane
