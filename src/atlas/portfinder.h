// Finds a port among those of all areas by what a person types into one box. Must not read files or choose a port.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "atlas/finderkeeps.h"
#include "portdata/portsearch.h"
#include "world/greatcircle.h"
#include "world/worldports.h"

namespace tarvane {

/// How a text fits a port, the better first.
enum class Fit : int {
    whole,       ///< the name; this and the next two as `findports` has them
    begins,      ///< the beginning of the name
    wordbegins,  ///< the beginning of a later word of the name
    word,        ///< each word begins one of the port's words, and one of them the name: "newport us"
    words,       ///< each word begins one of the port's words: its name's, its area's, its country's
    within,      ///< letters within the name
    nearmiss,    ///< a few letters off
    none         ///< the list isn't of a text that was fitted
};

struct FoundPort {
    std::size_t place = 0;  ///< in the world's ports
    Fit fit = Fit::none;
    bool region = false;  ///< a near miss of its country or its area
};

struct Found {
    std::vector<FoundPort> ports;
    std::optional<EarthPlace> from;  ///< what distances are told from; nothing where that isn't known
    std::string told;                ///< what is listed and how many, or why nothing is; one line
};

/// Holds on to the world, which must stay as it is.
class Finder {
  public:
    /// `inhand` is the port from which distances are told and near ones come first.
    Finder(const World& world, std::optional<std::size_t> inhand);

    void setkeeps(const FinderKeeps& keeps);
    bool isfavourite(std::size_t place) const { return grades[place] == favourite; }

    /// Ports that fit the text, best first; of equally good ones favourites come first, then recent ones, then the
    /// nearer, by whole miles, and of equally near ones those of the area in hand. The whole text is looked for in the
    /// names; its words one by one, in any order, in names, areas and countries, some of which have short names too
    /// ("us", "uk", "nz"). Only when nothing fits are misses by a few letters found: of the text in the names and in
    /// what countries and areas are called, and else of the words that no port of the place has ("sydny australia"). A
    /// harbour town that has no port here ("cork") lists all by the distance from it.
    ///
    /// An empty text lists all: favourites, recent ones but that in hand, then by distance. "near 50.1 N 1.4 W" and
    /// "near brest" list all by the distance from there.
    Found find(std::string_view text) const;

  private:
    /// What a port is known by, folded, and where it is.
    struct Entry {
        std::u32string words;  ///< of its name, its area and its country, a blank before each, in both spellings
        std::size_t region;    ///< its place in `regions`
        EarthPlace at;
    };
    struct Fitted;
    enum Grade : char { favourite, recent, other };

    Found findnear(std::string_view text) const;
    Found everything() const;
    std::vector<Fitted> fits(std::string_view text) const;
    std::vector<Fitted> misses(const FoldedName& text, const std::vector<PortHit>& hits) const;
    void addmisses(const FoldedName& rest, const std::vector<std::size_t>& group, std::vector<Fitted>& found) const;
    void addregions(const FoldedName& rest, const std::vector<std::size_t>& group, const std::vector<char>& added,
                    std::vector<Fitted>& found) const;
    Found byplace(EarthPlace from, const std::string& where) const;
    std::vector<FoundPort> search(std::string_view text) const;
    bool elsewhere(std::size_t place) const;
    std::vector<FoundPort> bydistance(const std::vector<double>& miles) const;
    std::vector<double> milesfrom(EarthPlace from) const;

    const World& world;
    std::optional<std::size_t> inhand;
    std::vector<Entry> entries;
    std::vector<FoldedName> names;    ///< one an entry
    std::vector<FoldedName> regions;  ///< each area with each country of its ports
    std::vector<double> inhandmiles;  ///< from the port in hand; noughts without one
    std::vector<std::size_t> favourites, recents;
    std::vector<char> grades;  ///< a Grade each
};

}  // namespace tarvane
