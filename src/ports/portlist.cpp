#include "ports/portlist.h"

#include <algorithm>
#include <set>
#include <utility>

#include "portdata/portsearch.h"
#include "portdata/recordfiles.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr std::size_t namewidth = 35;

/// Places of the entries with `part` in their names, as they stand; where there is none, of those that it is likely to
/// mean, likeliest first.
std::vector<std::size_t> hitsof(const PortList& list, std::string_view part) {
    const std::string wanted = uppercase(part);
    std::vector<std::size_t> hits;
    for (std::size_t i = 0; i < list.displaylist.size(); ++i)
        if (uppercase(list.displaylist[i].PortName).find(wanted) != std::string::npos) hits.push_back(i);
    if (!hits.empty()) return hits;
    for (const PortHit& hit : findports(portnames(list), part))
        hits.push_back(hit.place);
    return hits;
}

std::optional<std::size_t> takehit(PortList& list, std::size_t index) {
    if (trimmedname(list.displaylist[index]).empty()) return std::nullopt;
    list.searchposition = static_cast<std::int16_t>(index);
    return index;
}

}  // namespace

void loadportlist(PortList& list, const std::string& areafile) {
    list.displaylist = readports(trim(areafile));
    list.filelist = list.displaylist;
}

void sortbyname(PortList& list) {
    if (list.displaylist.empty()) return;
    // kept: a real port is overwritten, the last of the list, and the sorted list ends one entry short
    list.displaylist.back().PortName = std::string(8, '~') + std::string(namewidth - 8, ' ');
    std::vector<std::pair<std::u32string, HarmonicRecord>> keyed;
    keyed.reserve(list.displaylist.size());
    for (HarmonicRecord& port : list.displaylist) {
        auto key = codepoints(lowercase(port.PortName));
        keyed.emplace_back(std::move(key), std::move(port));
    }
    // An exchange sort that swaps only where the first name is greater ends in the same order as a stable one.
    std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(keyed.begin(), keyed.end(), list.displaylist.begin(),
                   [](auto& entry) { return std::move(entry.second); });
    list.displaylist.pop_back();
}

std::vector<std::string> portnames(const PortList& list) {
    std::vector<std::string> names;
    names.reserve(list.displaylist.size());
    std::transform(list.displaylist.begin(), list.displaylist.end(), std::back_inserter(names), trimmedname);
    return names;
}

std::string missingports(const PortList& list) {
    std::multiset<std::string> shown;
    for (const HarmonicRecord& port : list.displaylist)
        shown.insert(trimmedname(port));
    std::vector<std::string> missing;
    for (const HarmonicRecord& port : list.filelist) {
        const auto found = shown.find(trimmedname(port));
        if (found == shown.end())
            missing.push_back(trimmedname(port));
        else
            shown.erase(found);
    }
    if (missing.empty()) return "";
    const std::string others =
        missing.size() == 1 ? " is" : " and " + numbertext(static_cast<int>(missing.size()) - 1) + " more are";
    return missing.front() + others + " not in this list: sort geographically to choose there.";
}

std::optional<std::string> pickport(PortList& list, std::string_view entry) {
    std::string name = trim(entry);
    if (const auto tab = name.find('\t'); tab != std::string::npos) name.erase(0, tab + 1);
    std::optional<std::string> picked;
    // kept: no early end, so that of two ports with one name the later record is meant
    for (std::size_t i = 0; i < list.filelist.size(); ++i) {
        if (trimmedname(list.filelist[i]) != name) continue;
        list.selectedport = static_cast<std::int16_t>(i + 1);
        picked = name;
    }
    return picked;
}

std::optional<std::size_t> placeofrecord(const PortList& list, std::int16_t number) {
    if (number < 1 || number > static_cast<int>(list.filelist.size())) return std::nullopt;
    const std::size_t record = static_cast<std::size_t>(number - 1);
    const std::string name = trimmedname(list.filelist[record]);
    const auto named = [&](const HarmonicRecord& port) { return trimmedname(port) == name; };
    // Ports with one name stand in the order of the file in either list.
    auto before = std::count_if(list.filelist.begin(), list.filelist.begin() + (number - 1), named);
    for (std::size_t i = 0; i < list.displaylist.size(); ++i) {
        if (named(list.displaylist[i]) && before-- == 0) return i;
    }
    return std::nullopt;
}

std::optional<std::size_t> stepbyletters(const PortList& list, int from, std::string_view typed) {
    const std::u32string letters = codepoints(uppercase(typed));
    if (letters.empty()) return std::nullopt;
    const bool repeated = letters.find_first_not_of(letters.front()) == std::u32string::npos;
    const std::u32string wanted = repeated ? letters.substr(0, 1) : letters;
    const std::size_t count = list.displaylist.size();
    const std::size_t start = static_cast<std::size_t>(std::max(from, 0)) + (repeated && from >= 0 ? 1 : 0);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t place = (start + i) % count;
        if (codepoints(uppercase(list.displaylist[place].PortName)).starts_with(wanted)) return place;
    }
    return std::nullopt;
}

std::optional<std::size_t> searchfromstart(PortList& list, std::string_view part) {
    const std::vector<std::size_t> hits = hitsof(list, part);
    if (hits.empty()) return std::nullopt;
    return takehit(list, hits.front());
}

std::optional<std::size_t> searchnext(PortList& list, std::string_view part) {
    const std::vector<std::size_t> hits = hitsof(list, part);
    auto next = std::find(hits.begin(), hits.end(), static_cast<std::size_t>(list.searchposition));
    // kept: sorting doesn't forget the place of the last hit, and the search goes on there in the new order
    if (next != hits.end())
        ++next;
    else
        next = std::find_if(hits.begin(), hits.end(),
                            [&](std::size_t hit) { return static_cast<int>(hit) > list.searchposition; });
    if (next != hits.end()) return takehit(list, *next);
    list.searchposition = -1;
    return std::nullopt;
}

bool searchhits(const PortList& list, std::string_view part) {
    return !hitsof(list, part).empty();
}

}  // namespace tarvane
