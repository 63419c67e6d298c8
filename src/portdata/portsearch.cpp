#include "portdata/portsearch.h"

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>

#include "text/singlebyte.h"

namespace tarvane {
namespace {

struct LetterFold {
    std::u32string_view letters;
    std::u32string_view plain;
};

/// The letters of the single-byte repertoire behind the plain ones, lower-cased.
constexpr std::array<LetterFold, 16> letterfolds{{
    {U"àáâãäå", U"a"},
    {U"æ", U"ae"},
    {U"ç", U"c"},
    {U"ð", U"d"},
    {U"èéêë", U"e"},
    {U"ƒ", U"f"},
    {U"ìíîï", U"i"},
    {U"ñ", U"n"},
    {U"òóôõöø", U"o"},
    {U"œ", U"oe"},
    {U"š", U"s"},
    {U"ß", U"ss"},
    {U"þ", U"th"},
    {U"ùúûü", U"u"},
    {U"ýÿ", U"y"},
    {U"ž", U"z"},
}};

constexpr std::u32string_view apostrophes = U"'`´‘’ʼ′";
constexpr std::u32string_view wordbreaks = U" \t\r\n\u00A0-\u2010\u2011\u2012\u2013\u2014\u2015.,;:/\\()[]_";
constexpr std::array<std::u32string_view, 3> shortsaints{U"st", U"ste", U"sainte"};

bool isin(std::u32string_view letters, char32_t letter) {
    return letters.find(letter) != std::u32string_view::npos;
}

bool isplain(char32_t letter) {
    return (letter >= U'a' && letter <= U'z') || (letter >= U'0' && letter <= U'9');
}

void appendfolded(std::u32string& folded, char32_t letter) {
    const auto fold = std::find_if(letterfolds.begin(), letterfolds.end(),
                                   [&](const LetterFold& row) { return isin(row.letters, letter); });
    if (fold == letterfolds.end()) {
        folded += letter;
    } else {
        folded += fold->plain;
    }
}

/// The lower-cased letters of a text. Nearly all names are plain ones, for which the long way round takes most of a
/// search's time.
std::u32string lowerletters(std::string_view utf8) {
    if (std::any_of(utf8.begin(), utf8.end(), [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; })) {
        return codepoints(lowercase(utf8));
    }
    std::u32string letters(utf8.begin(), utf8.end());
    for (char32_t& letter : letters)
        if (letter >= U'A' && letter <= U'Z') letter += U'a' - U'A';
    return letters;
}

/// Folded but for the saints.
std::u32string foldletters(std::string_view utf8) {
    std::u32string folded;
    folded.reserve(utf8.size());
    bool newword = false;
    for (const char32_t letter : lowerletters(utf8)) {
        const bool plain = isplain(letter);
        // combining accents, as some systems write them behind their letter
        if (!plain && (isin(apostrophes, letter) || (letter >= 0x300 && letter <= 0x36F))) continue;
        if (!plain && isin(wordbreaks, letter)) {
            newword = !folded.empty();
            continue;
        }
        if (newword) folded += U' ';
        newword = false;
        if (plain) {
            folded += letter;
        } else {
            appendfolded(folded, letter);
        }
    }
    return folded;
}

/// Calls `act` with where each word of a folded text begins and ends.
template <typename Act>
void eachword(std::u32string_view folded, Act act) {
    for (std::size_t from = 0; from < folded.size();) {
        const std::size_t to = std::min(folded.find(U' ', from), folded.size());
        act(from, to);
        from = to + 1;
    }
}

bool isshortsaint(std::u32string_view word) {
    return std::find(shortsaints.begin(), shortsaints.end(), word) != shortsaints.end();
}

/// A folded text with its saints in one spelling; empty when it has none that changes.
std::u32string foldsaints(std::u32string_view folded) {
    std::u32string result;
    eachword(folded, [&](std::size_t from, std::size_t to) {
        const auto word = folded.substr(from, to - from);
        if (!isshortsaint(word) && result.empty()) return;
        if (result.empty())
            result = folded.substr(0, from);
        else
            result += U' ';
        result += isshortsaint(word) ? U"saint" : word;
    });
    return result;
}

/// Where `wanted` ends in `name` when it stands there from `from` on, whatever the blanks in both.
std::optional<std::size_t> endofmatch(std::u32string_view name, std::size_t from, std::u32string_view wanted) {
    for (const char32_t letter : wanted) {
        if (letter == U' ') continue;
        if (from < name.size() && name[from] == U' ') ++from;
        if (from == name.size() || name[from] != letter) return std::nullopt;
        ++from;
    }
    return from;
}

std::optional<int> rankof(std::u32string_view name, std::u32string_view wanted) {
    std::optional<int> rank;
    eachword(name, [&](std::size_t from, std::size_t) {
        const auto end = rank ? std::nullopt : endofmatch(name, from, wanted);
        if (!end) return;
        if (from > 0) {
            rank = PortHit::wordbegins;
        } else {
            rank = *end == name.size() ? PortHit::whole : PortHit::begins;
        }
    });
    if (!rank && name.find(wanted) != std::u32string_view::npos) rank = PortHit::within;
    return rank;
}

/// How far a text is from a name; the lesser is the nearer.
struct Miss {
    int distance = 0;
    bool unfinished = false;  ///< the text ends within a word of the name
    bool inner = false;       ///< the text begins at a later word of the name

    bool operator<(const Miss& other) const {
        return std::tie(distance, unfinished, inner) < std::tie(other.distance, other.unfinished, other.inner);
    }
};

/// Works out distances with rows that it keeps from call to call.
class MissFinder {
  public:
    MissFinder(std::u32string_view text, int most) : wanted(text), limit(most) {}

    /// Right up to the limit; anything beyond it is told as no letter in common.
    Miss missof(std::u32string_view name) {
        Miss best{static_cast<int>(wanted.size()), true, true};
        eachword(name, [&](std::size_t from, std::size_t) {
            const auto rest = name.substr(from, wanted.size() + static_cast<std::size_t>(limit));
            if (!filldistances(rest)) return;
            for (std::size_t j = 0; j <= rest.size(); ++j) {
                const bool wordend = from + j == name.size() || name[from + j] == U' ';
                best = std::min(best, Miss{last[j], !wordend, from > 0});
            }
        });
        return best;
    }

  private:
    /// Fills `last` with the distances of the text to every beginning of `rest`, two letters swapped counting as one.
    /// False as soon as all are beyond the limit.
    bool filldistances(std::u32string_view rest) {
        last.resize(rest.size() + 1);
        for (std::size_t j = 0; j <= rest.size(); ++j)
            last[j] = static_cast<int>(j);
        for (std::size_t i = 1; i <= wanted.size(); ++i) {
            earlier.swap(before);
            before.swap(last);
            last.resize(rest.size() + 1);
            last[0] = static_cast<int>(i);
            int least = last[0];
            for (std::size_t j = 1; j <= rest.size(); ++j) {
                const bool same = wanted[i - 1] == rest[j - 1];
                last[j] = std::min({before[j - 1] + (same ? 0 : 1), before[j] + 1, last[j - 1] + 1});
                const bool swapped = i > 1 && j > 1 && wanted[i - 1] == rest[j - 2] && wanted[i - 2] == rest[j - 1];
                if (swapped) last[j] = std::min(last[j], earlier[j - 2] + 1);
                least = std::min(least, last[j]);
            }
            if (least > limit) return false;
        }
        return true;
    }

    std::u32string_view wanted;
    int limit;
    std::vector<int> earlier, before, last;
};

int misslimit(std::u32string_view typed) {
    const auto letters = std::count_if(typed.begin(), typed.end(), [](char32_t letter) { return letter != U' '; });
    if (letters < 4) return 0;
    if (letters < 6) return 1;
    return letters < 10 ? 2 : 3;
}

struct RankedMiss {
    std::size_t place = 0;
    Miss miss;
};

/// How far the text is from every name, nearest first; right up to the limit.
std::vector<RankedMiss> missesof(std::span<const FoldedName> names, const FoldedName& wanted, int limit) {
    MissFinder finder(wanted.saints(), limit);
    std::vector<RankedMiss> misses;
    for (std::size_t place = 0; place < names.size(); ++place)
        misses.push_back({place, finder.missof(names[place].saints())});
    std::stable_sort(misses.begin(), misses.end(),
                     [](const RankedMiss& a, const RankedMiss& b) { return a.miss < b.miss; });
    return misses;
}

std::vector<FoldedName> foldedof(std::span<const std::string> names) {
    return {names.begin(), names.end()};
}

std::optional<int> rankof(const FoldedName& name, const FoldedName& wanted) {
    if (wanted.typed.empty()) return PortHit::begins;
    const auto typed = rankof(name.typed, wanted.typed);
    if (name.othersaints.empty() && wanted.othersaints.empty()) return typed;
    const auto saints = rankof(name.saints(), wanted.saints());
    return typed && saints ? std::min(*typed, *saints) : typed ? typed : saints;
}

}  // namespace

FoldedName::FoldedName(std::string_view utf8) : typed(foldletters(utf8)), othersaints(foldsaints(typed)) {}

std::u32string foldname(std::string_view utf8) {
    return FoldedName(utf8).saints();
}

std::vector<PortHit> findports(std::span<const std::string> names, std::string_view wanted) {
    return findports(foldedof(names), FoldedName(wanted));
}

std::vector<PortHit> findports(std::span<const FoldedName> names, const FoldedName& wanted) {
    std::vector<PortHit> hits;
    for (std::size_t place = 0; place < names.size(); ++place) {
        if (const auto rank = rankof(names[place], wanted)) hits.push_back({place, *rank, 0});
    }
    std::stable_sort(hits.begin(), hits.end(), [](const PortHit& a, const PortHit& b) { return a.rank < b.rank; });
    const int limit = misslimit(wanted.typed);
    if (!hits.empty() || limit == 0) return hits;
    for (const RankedMiss& row : missesof(names, wanted, limit))
        if (row.miss.distance <= limit)
            hits.push_back({row.place, PortHit::nearmiss, row.miss.distance, 2 * row.miss.unfinished + row.miss.inner});
    return hits;
}

std::vector<std::size_t> nearestports(std::span<const std::string> names, std::string_view wanted, std::size_t most) {
    const FoldedName text(wanted);
    std::vector<std::size_t> places;
    for (const RankedMiss& row : missesof(foldedof(names), text, static_cast<int>(text.saints().size())))
        if (places.size() < most) places.push_back(row.place);
    return places;
}

}  // namespace tarvane
