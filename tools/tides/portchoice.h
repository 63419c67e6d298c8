// Which ports of a sea area a text on the command line means. Must not read files.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

/// The chosen record numbers (from 1), or what is wrong with the choice in one line.
struct PortChoice {
    std::vector<std::int16_t> numbers;
    std::string fault;
};

/// `wanted` is "all", a record number or a name; `names` are the area's ports in file order. A name is looked for
/// without regard to case and accents, as a whole name first, then as a part of one; more than one fit is a fault that
/// names them, none a fault that names the nearest.
PortChoice chooseports(const std::vector<std::string>& names, const std::string& wanted, const std::string& areaname);

/// A name as it is compared: small letters without their accents, no blanks at its ends.
std::u32string foldname(std::string_view utf8);

/// Least number of letters to put in, take out or change that makes one text the other.
std::size_t editdistance(std::u32string_view a, std::u32string_view b);

}  // namespace tarvane
