// What the lines of one paste show together that none shows alone. Must not read waters.
#pragma once

#include <string>
#include <vector>

namespace tarvane {

/// The fields of a line.
using LineFields = std::vector<std::string>;

/// "PM" is the afternoon, and high water in French, Spanish and Portuguese tables, where "BM" is low water.
enum class PmMeaning { halfday, kind, either };

/// What it means in all of these lines; either where nothing decides it or they contradict each other.
PmMeaning pmmeaning(const std::vector<LineFields>& lines);

/// True of "PM" and "p.m." alone.
bool ispm(const std::string& field);

/// True of "BM" and "b.m." alone.
bool isbm(const std::string& field);

/// The unit of heights that come without one.
struct PasteUnit {
    std::string name;   ///< "", " ft" or " cm" as it stands behind a height
    bool known = true;  ///< false where it may be another
};

/// Of lines without figures, and of those with figures that are no waters: these may name a unit of something else.
PasteUnit pasteunit(const std::vector<std::string>& headings, const std::vector<std::string>& unread);

}  // namespace tarvane
