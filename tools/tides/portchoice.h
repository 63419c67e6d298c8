// Which ports of a sea area a text on the command line means. Must not read files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

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

}  // namespace tarvane
