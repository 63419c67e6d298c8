#include "atlas/portfinder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <tuple>
#include <utility>

#include "atlas/namedplaces.h"
#include "atlas/typedplace.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

struct ShortName {
    const char* country;
    const char* names;
};

constexpr std::array<ShortName, 16> shortnames{{{"United States", "us usa america"},
                                                {"United Kingdom", "uk gb great britain england scotland wales"},
                                                {"New Zealand", "nz aotearoa"},
                                                {"Netherlands", "nl holland nederland"},
                                                {"Germany", "deutschland"},
                                                {"Spain", "espana"},
                                                {"Norway", "norge"},
                                                {"Denmark", "danmark"},
                                                {"Italy", "italia"},
                                                {"Brazil", "brasil"},
                                                {"Japan", "nippon"},
                                                {"Mexico", "mejico"},
                                                {"Ireland", "eire"},
                                                {"South Africa", "rsa"},
                                                {"Papua New Guinea", "png"},
                                                {"Virgin Islands", "usvi bvi"}}};

constexpr const char* whatnear =
    "Near what? A place such as \u201Cnear 50.1 N 1.4 W\u201D, \u201Cnear 50 06.2 N 1 24 "
    "W\u201D or \u201Cnear -33.85, 151.2\u201D, or a port";

constexpr std::size_t mostwords = 5;
constexpr std::size_t mostnear = 5;  // of a place, ahead of the ports that have its name in theirs

std::string countryof(const WorldPort& port) {
    if (!port.about) return "";
    const auto known = std::find_if(shortnames.begin(), shortnames.end(),
                                    [&](const ShortName& row) { return row.country == port.about->country; });
    return port.about->country + (known == shortnames.end() ? "" : std::string(" ") + known->names);
}

EarthPlace placeof(const WorldPort& port) {
    return {port.latitude, port.longitude};
}

std::vector<std::u32string> wordsof(std::u32string_view folded) {
    std::vector<std::u32string> words;
    for (std::size_t from = 0; from < folded.size();) {
        const std::size_t to = std::min(folded.find(U' ', from), folded.size());
        words.push_back(U' ' + std::u32string(folded.substr(from, to - from)));
        from = to + 1;
    }
    return words;
}

bool hasall(const std::u32string& text, const std::vector<std::u32string>& words) {
    return std::all_of(words.begin(), words.end(),
                       [&](const std::u32string& word) { return text.find(word) != std::u32string::npos; });
}

bool hasbeginning(std::u32string_view name, const std::vector<std::u32string>& words) {
    return std::any_of(words.begin(), words.end(), [&](const std::u32string& word) {
        return name.starts_with(std::u32string_view(word).substr(1));
    });
}

std::string plain(std::u32string_view folded) {
    // Folded letters that aren't plain ones are of no use in what is looked for by its near misses.
    std::string text;
    for (const char32_t letter : folded)
        if (letter < 0x80) text += static_cast<char>(letter);
    return text;
}

std::string portstext(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " port" : " ports");
}

/// What stands behind "near"; nothing for a text that isn't about that.
std::optional<std::string> behindnear(std::string_view text) {
    constexpr std::string_view near = "near";
    const std::string trimmed = trim(text);
    if (lowercase(trimmed.substr(0, near.size())) != near) return std::nullopt;
    if (trimmed.size() > near.size() && trimmed[near.size()] != ' ') return std::nullopt;
    return trim(trimmed.substr(near.size()));
}

/// Puts the first of some ports ahead of others, each once.
void addahead(const std::vector<FoundPort>& first, std::vector<FoundPort>& ports) {
    for (std::size_t i = 0; i < std::min(mostnear, first.size()); ++i) {
        std::erase_if(ports, [&](const FoundPort& each) { return each.place == first[i].place; });
        ports.insert(ports.begin() + static_cast<std::ptrdiff_t>(i), first[i]);
    }
}

/// No name, but perhaps the beginning of a place.
bool isnoname(std::string_view text) {
    return foldname(text).empty() || text.find_first_of("0123456789") != std::string_view::npos;
}

}  // namespace

struct Finder::Fitted {
    std::size_t place;
    Fit fit;
    int distance = 0, shape = 0;  ///< of a near miss; the shape is 0 of a whole name, 1 of a country's or an area's
    bool region = false;          ///< a near miss of those
};

namespace {

/// The shape of a near miss among those of names and of regions: a whole name, a region's word, a word of a name, what
/// ends within one.
int shapeofname(const FoldedName& name, const FoldedName& wanted, const PortHit& hit) {
    const auto letters = [](const FoldedName& text) { return static_cast<int>(text.saints().size()); };
    return std::abs(letters(name) - letters(wanted)) <= hit.distance ? 0 : 2 + hit.shape;
}

int shapeofregion(const PortHit& hit) {
    return hit.shape < 2 ? 1 : 2 + hit.shape;
}

}  // namespace

Finder::Finder(const World& ports, std::optional<std::size_t> porthand) : world(ports), inhand(porthand) {
    std::map<std::string, std::size_t> known;
    for (const WorldPort& port : world.ports) {
        const FoldedName& name = names.emplace_back(port.name);
        const std::string text = world.areas[port.area].name + " " + countryof(port);
        const auto [region, fresh] = known.try_emplace(text, regions.size());
        if (fresh) regions.emplace_back(text);
        const FoldedName& place = regions[region->second];
        std::u32string words;
        for (const std::u32string* each : {&name.typed, &name.othersaints, &place.typed, &place.othersaints})
            words += U' ' + *each;
        entries.push_back({words, region->second, placeof(port)});
    }
    inhandmiles = inhand ? milesfrom(entries[*inhand].at) : std::vector<double>(entries.size());
    grades.assign(entries.size(), other);
}

void Finder::setkeeps(const FinderKeeps& keeps) {
    favourites = keptplaces(world, keeps.favourites);
    recents = keptplaces(world, keeps.recents);
    grades.assign(entries.size(), other);
    for (const std::size_t place : recents)
        grades[place] = recent;
    for (const std::size_t place : favourites)
        grades[place] = favourite;
}

std::vector<double> Finder::milesfrom(EarthPlace from) const {
    std::vector<double> miles;
    miles.reserve(entries.size());
    for (const Entry& entry : entries)
        miles.push_back(milesbetween(from, entry.at));
    return miles;
}

/// In another area than the port in hand.
bool Finder::elsewhere(std::size_t place) const {
    return inhand && world.ports[place].area != world.ports[*inhand].area;
}

std::vector<FoundPort> Finder::bydistance(const std::vector<double>& miles) const {
    std::vector<FoundPort> ports(entries.size());
    for (std::size_t place = 0; place < ports.size(); ++place)
        ports[place].place = place;
    // Of a port that two areas have, that of the area in hand comes first.
    const auto rankof = [&](const FoundPort& each) { return std::pair(miles[each.place], elsewhere(each.place)); };
    std::stable_sort(ports.begin(), ports.end(),
                     [&](const FoundPort& a, const FoundPort& b) { return rankof(a) < rankof(b); });
    return ports;
}

/// What fits as it is typed.
std::vector<Finder::Fitted> Finder::fits(std::string_view text) const {
    const FoldedName wanted(text);
    std::vector<Fitted> found;
    std::vector<char> placed(entries.size(), false);
    const auto add = [&](const PortHit& hit, Fit fit) {
        found.push_back({hit.place, fit});
        placed[hit.place] = true;
    };
    const std::vector<PortHit> hits = findports(names, wanted);
    constexpr std::array ranks{Fit::whole, Fit::begins, Fit::wordbegins};
    for (const PortHit& hit : hits)
        if (hit.rank <= PortHit::wordbegins) add(hit, ranks[static_cast<std::size_t>(hit.rank)]);
    const auto typed = wordsof(wanted.typed), saints = wordsof(wanted.saints());
    for (std::size_t place = 0; place < entries.size(); ++place) {
        const Entry& entry = entries[place];
        const bool all = hasall(entry.words, typed) || (!wanted.othersaints.empty() && hasall(entry.words, saints));
        if (placed[place] || !all) continue;
        const FoldedName& folded = names[place];
        const bool name = hasbeginning(folded.typed, typed) || hasbeginning(folded.saints(), saints);
        add({place}, name ? Fit::word : Fit::words);
    }
    for (const PortHit& hit : hits)
        if (!placed[hit.place] && hit.rank == PortHit::within) add(hit, Fit::within);
    return found.empty() ? misses(wanted, hits) : found;
}

/// Misses of the whole text; where no name has one, of what is left of it without the words that a port has.
std::vector<Finder::Fitted> Finder::misses(const FoldedName& text, const std::vector<PortHit>& hits) const {
    std::vector<Fitted> found;
    if (!hits.empty()) {
        std::vector<char> added(entries.size(), false);
        for (const PortHit& hit : hits) {
            found.push_back({hit.place, Fit::nearmiss, hit.distance, shapeofname(names[hit.place], text, hit)});
            added[hit.place] = true;
        }
        std::vector<std::size_t> all(entries.size());
        std::iota(all.begin(), all.end(), std::size_t{0});
        addregions(text, all, added, found);
        return found;
    }
    const auto words = wordsof(text.saints());
    // So many words are no port, and each may be left out or not.
    if (words.size() > mostwords) return {};
    // By the words that are left, a bit each.
    std::array<std::vector<std::size_t>, 1U << mostwords> groups;
    for (std::size_t place = 0; place < entries.size(); ++place) {
        std::size_t left = 0;
        for (std::size_t i = 0; i < words.size(); ++i)
            if (entries[place].words.find(words[i]) == std::u32string::npos) left |= std::size_t{1} << i;
        groups[left].push_back(place);
    }
    for (std::size_t left = 1; left < groups.size(); ++left) {
        std::u32string rest;
        for (std::size_t i = 0; i < words.size(); ++i)
            if ((left >> i & 1U) != 0) rest += words[i];
        if (!groups[left].empty()) addmisses(FoldedName(plain(rest)), groups[left], found);
    }
    return found;
}

/// The misses in the names of some ports, or else in what their areas and countries are called.
void Finder::addmisses(const FoldedName& rest, const std::vector<std::size_t>& group,
                       std::vector<Fitted>& found) const {
    // The whole text was looked for in all the names before.
    std::vector<FoldedName> texts;
    if (group.size() < entries.size())
        for (const std::size_t place : group)
            texts.push_back(names[place]);
    std::vector<char> added(entries.size(), false);
    for (const PortHit& hit : findports(texts, rest)) {
        found.push_back({group[hit.place], Fit::nearmiss, hit.distance, shapeofname(texts[hit.place], rest, hit)});
        added[group[hit.place]] = true;
    }
    addregions(rest, group, added, found);
}

/// Ports of countries and areas that the text misses. One that was found by its name stays as it is, unless it is
/// nearer by these.
void Finder::addregions(const FoldedName& rest, const std::vector<std::size_t>& group, const std::vector<char>& added,
                        std::vector<Fitted>& found) const {
    std::map<std::size_t, PortHit> hits;
    for (const PortHit& hit : findports(regions, rest))
        if (hit.rank == PortHit::nearmiss) hits[hit.place] = hit;
    const auto byregion = [&](std::size_t place) -> std::optional<Fitted> {
        const auto hit = hits.find(entries[place].region);
        if (hit == hits.end()) return std::nullopt;
        return Fitted{place, Fit::nearmiss, hit->second.distance, shapeofregion(hit->second), true};
    };
    const auto nearness = [](const Fitted& each) { return std::pair(each.distance, each.shape); };
    for (Fitted& each : found)
        if (const auto miss = byregion(each.place); miss && nearness(*miss) < nearness(each)) each = *miss;
    for (const std::size_t place : group)
        if (const auto miss = byregion(place); miss && !added[place]) found.push_back(*miss);
}

std::vector<FoundPort> Finder::search(std::string_view text) const {
    std::vector<Fitted> found = fits(text);
    const auto rankof = [&](const Fitted& each) {
        return std::tuple(each.fit, each.distance, each.shape, grades[each.place], std::round(inhandmiles[each.place]),
                          elsewhere(each.place), each.place);
    };
    std::sort(found.begin(), found.end(), [&](const Fitted& a, const Fitted& b) { return rankof(a) < rankof(b); });
    std::vector<FoundPort> ports;
    for (const Fitted& each : found)
        ports.push_back({each.place, each.fit, each.region});
    return ports;
}

Found Finder::everything() const {
    Found found;
    std::vector<char> listed(entries.size(), false);
    const auto add = [&](std::size_t place) {
        if (!std::exchange(listed[place], true)) found.ports.push_back({place, Fit::none});
    };
    for (const std::size_t place : favourites)
        add(place);
    for (const std::size_t place : recents)
        if (place != inhand) add(place);
    const std::size_t kept = found.ports.size();
    for (const FoundPort& each : bydistance(inhandmiles))
        add(each.place);
    std::vector<std::string> order;
    if (!favourites.empty()) order.push_back("your favourites");
    if (kept > favourites.size()) order.push_back("recent ones");
    if (inhand) order.push_back("the nearest to " + world.ports[*inhand].name);
    found.told = portstext(found.ports.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        found.told += (i == 0 ? ": " : i + 1 < order.size() ? ", " : ", then ") + order[i];
    return found;
}

Found Finder::findnear(std::string_view text) const {
    std::optional<EarthPlace> from = readplace(text);
    std::string where = from ? placetext(*from) : "";
    if (!from && !isnoname(text)) {
        const std::vector<FoundPort> hits = search(text);
        const NamedPlace* named = hits.empty() || hits.front().fit != Fit::whole ? namedplace(text) : nullptr;
        if (named) return byplace(named->at, named->name);
        if (hits.empty()) return {{}, {}, "No port is called so; " + std::string(whatnear)};
        from = entries[hits.front().place].at;
        where = world.ports[hits.front().place].name;
    }
    if (!from) return {{}, {}, whatnear};
    return byplace(*from, where);
}

/// All by their distance from a place.
Found Finder::byplace(EarthPlace from, const std::string& where) const {
    return {bydistance(milesfrom(from)), from, portstext(entries.size()) + ", the nearest to " + where + " first"};
}

Found Finder::find(std::string_view text) const {
    if (const auto near = behindnear(text)) return findnear(*near);
    Found found = foldname(text).empty() ? everything() : Found{search(text), {}, ""};
    if (inhand) found.from = entries[*inhand].at;
    if (!found.told.empty()) return found;
    const bool fits = !found.ports.empty() && found.ports.front().fit != Fit::nearmiss;
    const NamedPlace* place = fits && found.ports.front().fit == Fit::whole ? nullptr : namedplace(text);
    if (fits && place) {
        found.told = "No port is called so; the nearest to " + std::string(place->name) + ", then " +
                     portstext(found.ports.size()) + " with a name like it";
        addahead(byplace(place->at, place->name).ports, found.ports);
    } else if (fits) {
        found.told = portstext(found.ports.size());
    } else if (place) {
        found = byplace(place->at, place->name);
        found.told = "No port is called so; " + found.told;
    } else if (found.ports.empty()) {
        found.told = "No port is called so. Try less of the name, a country, or \u201Cnear 50.1 N 1.4 W\u201D";
    } else {
        const bool region =
            std::any_of(found.ports.begin(), found.ports.end(), [](const FoundPort& each) { return each.region; });
        found.told = "No port is called so; " + std::to_string(found.ports.size()) +
                     (found.ports.size() == 1 ? " has a name like it" : " have names like it") +
                     (region ? ", or their country or area has" : "");
    }
    return found;
}

}  // namespace tarvane
