// The list of heights read on one day as its window keeps it: entries made of clicks, edited, read from a file and
// saved to one. Must not know any control.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "portdata/configuration.h"
#include "portdata/heightfiles.h"

namespace tarvane {

/// The places clicked in the lists; -1 for none.
struct HeightClicks {
    int hours = -1, minutes = -1;  ///< the minutes in fives
    int metres = -1, tenths = -1, hundredths = -1;
};

/// "09:05" of the clicked hours and minutes, "1.35" of the clicked metres; what isn't clicked counts 0.
std::string clickedtime(const HeightClicks& clicks);
std::string clickedheight(const HeightClicks& clicks);

struct HeightEntries {
    std::vector<std::string> rows;   ///< "09:05, 1.35"
    std::vector<std::string> saved;  ///< as they stand in a file; they differ while something waits to be saved
};

/// What an entry's two halves say; the time's minutes to the nearest five for the lists.
struct HeightEntry {
    std::string time, height;
    HeightClicks clicks;
};
HeightEntry entryof(const std::string& row);

/// Adds an entry, or puts it in place of one. Gives what is to be said instead, empty when it was done.
std::string addentry(HeightEntries& entries, const std::string& time, const std::string& height);
std::string changeentry(HeightEntries& entries, int index, const std::string& time, const std::string& height);

/// What came of a file command.
struct HeightsFiled {
    std::string message;  ///< what stopped it; empty when it was done
    std::string path;     ///< the file
    std::string answer;   ///< what was done
};

/// Reads a file's entries behind those that stand in the list. The name is cut at its first point.
HeightsFiled openentries(const ProgramFolders& folders, const std::string& name, HeightEntries& entries);

/// Saves the list in its order.
HeightsFiled saveentries(const ProgramFolders& folders, const std::string& name, HeightEntries& entries);

}  // namespace tarvane
