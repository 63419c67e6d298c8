// The boxes of the editor of harmonic constants as one table: which field each shows, which keys it takes, and how a
// record becomes texts and texts a record. Must not know any control or open files.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "portdata/records.h"

namespace tarvane {

enum class BoxKind { text, latitude, longitude, zone, number };

/// One box and its field: a text, a number, or the value of one month.
struct PortBox {
    const char* name;     ///< of the control
    const char* caption;  ///< what it holds
    BoxKind kind;
    std::string HarmonicRecord::*text = nullptr;
    float HarmonicRecord::*number = nullptr;
    std::array<float, 12> HarmonicRecord::*months = nullptr;
    std::size_t month = 0;  ///< from 0
};

/// Every box in the order in which Tab goes through them.
std::span<const PortBox> portboxes();

/// Place of a box in the table; past its end when there is none of the name.
std::size_t boxplace(std::string_view name);

/// The texts of all boxes, in the order of the table.
using BoxTexts = std::vector<std::string>;

/// A record as the boxes show it.
BoxTexts boxtexts(const HarmonicRecord& record);

/// The record that the texts make. Text that isn't a number gives 0.
HarmonicRecord recordof(const BoxTexts& texts);

/// Why the texts don't fit into a record, a sentence; empty when they do.
std::string boxfault(const BoxTexts& texts);

/// True if nothing stands in any box.
bool allempty(const BoxTexts& texts);

/// What a key typed into a box becomes, 0 when it is dropped.
using BoxKey = char32_t (*)(char32_t);
BoxKey boxkey(BoxKind kind);

/// The boxes that get the text of the one that is left, by their places.
std::vector<std::size_t> filledfrom(std::string_view name);

}  // namespace tarvane
