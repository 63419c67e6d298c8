#include "tides/portchoice.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <numeric>

#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {

namespace {

struct LetterFold {
    std::u32string_view letters;
    std::u32string_view plain;
};

constexpr std::array<LetterFold, 16> letterfolds{{
    {U"àáâãäå", U"a"},
    {U"æ", U"ae"},
    {U"ç", U"c"},
    {U"ð", U"d"},
    {U"èéêë", U"e"},
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
    {U"‘’", U"'"},
}};

constexpr std::size_t nearestcount = 3;
constexpr std::size_t candidatecount = 8;

std::string listed(const std::vector<std::string>& names, const std::vector<std::size_t>& picked, std::size_t most) {
    std::string text;
    for (std::size_t i = 0; i < picked.size() && i < most; ++i) {
        text += (i ? ", " : "") + numbertext(static_cast<int>(picked[i] + 1)) + " " + names[picked[i]];
    }
    if (picked.size() > most) text += " and " + numbertext(static_cast<int>(picked.size() - most)) + " more";
    return text;
}

/// Distance to a name as a whole or to the nearest of its words, so that "bresst" finds a two-word name with "Brest" in
/// it.
std::size_t namedistance(const std::u32string& wanted, const std::u32string& name) {
    std::size_t least = editdistance(wanted, name);
    for (std::size_t from = 0; from < name.size();) {
        const std::size_t to = std::min(name.find(U' ', from), name.size());
        // a word is one worse than the same distance to a whole name
        if (to > from) {
            least = std::min(least, editdistance(wanted, std::u32string_view(name).substr(from, to - from)) + 1);
        }
        from = to + 1;
    }
    return least;
}

std::vector<std::size_t> nearestnames(const std::vector<std::u32string>& folded, const std::u32string& wanted) {
    std::vector<std::size_t> distances;
    for (const std::u32string& name : folded)
        distances.push_back(namedistance(wanted, name));
    std::vector<std::size_t> order(folded.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return distances[a] < distances[b]; });
    if (order.size() > nearestcount) order.resize(nearestcount);
    return order;
}

PortChoice choosenumber(const std::vector<std::string>& names, const std::string& wanted, const std::string& areaname) {
    std::size_t number = 0;
    const auto read = std::from_chars(wanted.data(), wanted.data() + wanted.size(), number);
    const bool past = read.ec != std::errc{} || number > names.size();
    if (!past && number > 0) return {{static_cast<std::int16_t>(number)}, ""};
    const std::size_t nearest = past ? names.size() - 1 : 0;
    return {{},
            areaname + " has no port " + wanted + ", its ports run from 1 to " +
                numbertext(static_cast<int>(names.size())) + "; the nearest is " +
                listed(names, {nearest}, nearestcount)};
}

PortChoice choosename(const std::vector<std::string>& names, const std::string& wanted, const std::string& areaname) {
    const std::u32string folded = foldname(wanted);
    if (folded.empty()) return {{}, "--port needs a number, a name or all"};
    std::vector<std::u32string> foldednames;
    std::vector<std::size_t> whole;
    std::vector<std::size_t> parts;
    for (std::size_t i = 0; i < names.size(); ++i) {
        foldednames.push_back(foldname(names[i]));
        if (foldednames[i] == folded) whole.push_back(i);
        if (foldednames[i].find(folded) != std::u32string::npos) parts.push_back(i);
    }
    const std::vector<std::size_t>& fits = whole.empty() ? parts : whole;
    if (fits.size() == 1) return {{static_cast<std::int16_t>(fits[0] + 1)}, ""};
    if (fits.empty()) {
        return {{},
                areaname + " has no port '" + wanted + "'; the nearest names are " +
                    listed(names, nearestnames(foldednames, folded), nearestcount)};
    }
    return {{},
            "'" + wanted + "' fits " + numbertext(static_cast<int>(fits.size())) + " ports of " + areaname + ": " +
                listed(names, fits, candidatecount)};
}

}  // namespace

std::u32string foldname(std::string_view utf8) {
    std::u32string folded;
    for (const char32_t letter : codepoints(lowercase(trim(utf8)))) {
        // combining accents, as some systems write them behind their letter
        if (letter >= 0x300 && letter <= 0x36F) continue;
        const auto fold = std::find_if(letterfolds.begin(), letterfolds.end(), [&](const LetterFold& row) {
            return row.letters.find(letter) != std::u32string_view::npos;
        });
        if (fold == letterfolds.end()) {
            folded += letter;
        } else {
            folded += fold->plain;
        }
    }
    return folded;
}

std::size_t editdistance(std::u32string_view a, std::u32string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t change = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({change, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row[b.size()];
}

PortChoice chooseports(const std::vector<std::string>& names, const std::string& wanted, const std::string& areaname) {
    if (names.empty()) return {{}, areaname + " holds no ports"};
    const std::string text = trim(wanted);
    if (foldname(text) == U"all") {
        PortChoice every;
        for (std::size_t i = 1; i <= names.size(); ++i)
            every.numbers.push_back(static_cast<std::int16_t>(i));
        return every;
    }
    const bool isnumber = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return isnumber ? choosenumber(names, text, areaname) : choosename(names, text, areaname);
}

}  // namespace tarvane
