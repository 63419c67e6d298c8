// Files that the program keeps for the user beside the configuration and writes anew at each change. Whatever stands in
// one and wasn't understood is kept beside it. Must not know what any of them holds.
#pragma once

#include <functional>
#include <string>

#include "files/wholefiles.h"

namespace tarvane {

/// How such a file was found.
struct KeptState {
    bool readable = true;  ///< false when it is there and can't be read
    bool whole = true;     ///< all that it holds was understood
    std::string untold;    ///< names of copies of what wasn't, of which the user hasn't been told
};

/// Gives the file's new text, in which `untold` has to come back by the next reading.
using KeptText = std::function<std::string(const std::string& untold)>;

/// The file's text, empty for one that isn't there or can't be read.
std::string readkept(const std::string& path, KeptState& state);

/// Writes the file, which was found so just now. One that wasn't understood whole is put beside it first, under
/// ".broken" or, where that is taken by another, ".broken2" and so on. Nothing is written over a file that can't be
/// read, or when the copy fails.
WriteOutcome writekept(const std::string& path, const KeptState& found, const KeptText& text);

/// What is wrong with a file that was found so, one line for a program that must not write; empty when nothing is.
std::string keptfault(const std::string& path, const KeptState& found, const std::string& missing);

/// What the user has to be told of a file that was found so, a sentence that names where the copy lies; empty when that
/// is nothing. It is told once: the file is written anew for that. `missing` says what a file lacks that can't be read:
/// "no favourites are listed".
std::string tellkept(const std::string& path, const KeptState& found, const std::string& missing, const KeptText& text);

}  // namespace tarvane
