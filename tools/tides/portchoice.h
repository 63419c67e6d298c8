// Which ports of a sea area a text on the command line means. Must not read files.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "tides/environment.h"

namespace tarvane {

/// The chosen record numbers (from 1), or what is wrong with the choice in one line.
struct PortChoice {
    std::vector<std::int16_t> numbers;
    std::string fault;
};

/// `wanted` is "all", a record number or a name; `names` are the area's ports in file order. A name is found
/// as `findports` finds it, a whole name before a part of one; more than one fit is a fault that names them, none, a
/// near miss included, a fault that names the nearest.
PortChoice chooseports(const std::vector<std::string>& names, const std::string& wanted, const std::string& areaname);

/// The chosen record numbers of each area, or what is wrong with the choice in one line.
struct AreasChoice {
    std::vector<std::vector<std::int16_t>> numbers;
    std::string fault;
};

/// The same among several areas. A number is refused, for it is one of an area; of a name that several ports have, the
/// one that is written letter by letter as `wanted` is meant.
AreasChoice choosewithin(std::span<const AreaInHand> areas, const std::string& wanted);

}  // namespace tarvane
