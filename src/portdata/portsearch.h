// Finds ports by what a person types: one routine for every list of ports and for the command line, so that a name is
// found alike wherever it is asked for. Must not read files or decide what is done with a hit.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

/// A name as it is compared: small letters without accents, its words parted by one blank each. Hyphens, full stops,
/// commas, slashes and brackets part words, apostrophes are left out, and "St", "St.", "Ste" and "Sainte" as words of
/// their own become "saint". Empty for a text without a letter or digit.
std::u32string foldname(std::string_view utf8);

/// A name prepared for searches: as it is typed, since "st" may be the beginning of any word, and as `foldname` has it.
struct FoldedName {
    explicit FoldedName(std::string_view utf8);

    const std::u32string& saints() const { return othersaints.empty() ? typed : othersaints; }

    std::u32string typed;
    std::u32string othersaints;  ///< empty when they are the same
};

struct PortHit {
    enum Rank : int { whole, begins, wordbegins, within, nearmiss };

    std::size_t place = 0;  ///< in the names searched, from 0
    int rank = whole;       ///< one of Rank: how the text fits the name
    int distance = 0;       ///< of a near miss: letters put in, left out, changed or swapped with the next
    int shape = 0;  ///< of a near miss: 0 ends with a word, 1 begins later in the name, from 2 on ends within one
};

/// The names that fit a text, best first, equal ones as they stand in `names`: those that are it, that begin with it,
/// that have a word that begins with it, that have it anywhere. Only when none fits, those that it misses by a few
/// letters, as a whole or from the beginning of a word: one from 4 letters on, two from 6, three from 10. A text that
/// folds to nothing fits every name.
std::vector<PortHit> findports(std::span<const std::string> names, std::string_view wanted);

/// The same among names folded beforehand, for lists that are searched at every key.
std::vector<PortHit> findports(std::span<const FoldedName> names, const FoldedName& wanted);

/// The places of the names nearest to a text, however far, nearest first; `most` at the most.
std::vector<std::size_t> nearestports(std::span<const std::string> names, std::string_view wanted, std::size_t most);

}  // namespace tarvane
