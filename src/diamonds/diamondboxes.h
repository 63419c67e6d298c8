// The boxes of one side of the diamond editor as one table: their names, and how a record becomes texts and texts a
// record. Must not know any control or open files.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "diamonds/diamondfile.h"

namespace tarvane {

/// Places of the boxes: letter, latitude and longitude, then hour by hour direction, springs and neaps.
inline constexpr std::size_t idplace = 0, latitudeplace = 1, longitudeplace = 2, firsthourplace = 3;
inline constexpr std::size_t boxesanhour = 3;
inline constexpr std::size_t diamondboxes = firsthourplace + boxesanhour * streamhours;

/// The two sides of the window.
enum class Side { source, destination };

/// "txtspratem6" and "txtDestspratem6", "txtid" and "txtDestID".
std::string boxname(Side side, std::size_t place);

/// "HW -6" to "HW +6".
std::string hourcaption(std::size_t hour);

/// The texts of one side's boxes, `diamondboxes` of them.
using DiamondTexts = std::vector<std::string>;

DiamondTexts diamondtexts(const DiamondRecord& record);

/// The record that the texts make. Text that isn't a number gives 0.
DiamondRecord diamondof(const DiamondTexts& texts);

/// Why the texts don't fit into a record, a sentence; empty when they do.
std::string textsfault(const DiamondTexts& texts);

/// An entry of a list: letter, latitude and longitude.
// kept: a list that was read for the first time shows the edit forms, one that was refilled after a write the short
// ones
enum class ListForm { opened, rewritten };
std::string listentry(const DiamondRecord& record, ListForm form);

}  // namespace tarvane
