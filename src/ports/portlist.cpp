#include "ports/portlist.h"

#include <algorithm>
#include <utility>

#include "portdata/recordfiles.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr std::size_t namewidth = 35;

/// Index of the first entry from `start` on with `part` in its name; the list's length when there is none.
std::size_t findpart(const PortList& list, std::size_t start, std::string_view part) {
    const std::string wanted = uppercase(part);
    std::size_t i = std::min(start, list.displaylist.size());
    while (i < list.displaylist.size() && uppercase(list.displaylist[i].PortName).find(wanted) == std::string::npos)
        ++i;
    return i;
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

std::optional<std::size_t> searchfromstart(PortList& list, std::string_view part) {
    const std::size_t index = findpart(list, 0, part);
    if (index == list.displaylist.size()) return std::nullopt;
    return takehit(list, index);
}

std::optional<std::size_t> searchnext(PortList& list, std::string_view part) {
    // kept: sorting doesn't forget the place of the last hit, and the search goes on there in the new order
    const std::size_t index = findpart(list, static_cast<std::size_t>(list.searchposition + 1), part);
    if (index < list.displaylist.size()) return takehit(list, index);
    list.searchposition = -1;
    return std::nullopt;
}

bool searchhits(const PortList& list, std::string_view part) {
    return findpart(list, 0, part) < list.displaylist.size();
}

}  // namespace tarvane
