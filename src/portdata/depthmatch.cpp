#include "portdata/depthmatch.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>

#include "portdata/areaedits.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using DepthBytes = std::array<std::byte, userdepthrecordsize>;

struct Kept {
    DepthBytes bytes{};
    UserDepthRecord record;
    std::string name;  ///< of the port that it was made for; empty for none
    bool own = false;
    std::optional<std::size_t> place;  ///< of its port, from 0; nothing when it is dropped
};

std::vector<Kept> keptin(std::span<const std::byte> depths) {
    std::vector<Kept> all((depths.size() + userdepthrecordsize - 1) / userdepthrecordsize);
    for (Kept& each : all) {
        const auto bytes = depths.first(std::min(userdepthrecordsize, depths.size()));
        std::copy(bytes.begin(), bytes.end(), each.bytes.begin());
        depths = depths.subspan(bytes.size());
        each.record = decodeuserdepth(each.bytes);
        each.name = trim(each.record.DepthPortName);
        each.own = holdsowntext(each.record);
    }
    return all;
}

/// The first places of all: at their port already, at the one port of their name, left, dropped.
void placeall(std::vector<Kept>& all, const std::vector<std::string>& ports) {
    std::map<std::string, std::vector<std::size_t>> portsof;
    for (std::size_t i = 0; i < ports.size(); ++i)
        portsof[ports[i]].push_back(i);
    std::map<std::string, int> recordsof;
    for (const Kept& each : all)
        ++recordsof[each.name];
    for (std::size_t i = 0; i < all.size(); ++i) {
        Kept& each = all[i];
        const bool hasplace = i < ports.size();
        const std::size_t fits = each.name.empty() || !portsof.contains(each.name) ? 0 : portsof[each.name].size();
        if (hasplace && fits > 0 && ports[i] == each.name)
            each.place = i;
        else if (fits == 1 && recordsof[each.name] == 1)
            each.place = portsof[each.name][0];
        else if (each.own && (fits > 0 || each.name.empty()))
            each.place = i;
    }
}

/// Of two records for one place the one that stands there is left, and so then is the other at its own.
void partclashes(std::vector<Kept>& all) {
    for (bool changed = true; changed;) {
        changed = false;
        for (std::size_t i = 0; i < all.size(); ++i) {
            Kept& each = all[i];
            if (!each.place || *each.place == i || *each.place >= all.size()) continue;
            if (all[*each.place].place != each.place) continue;
            each.place.reset();
            if (each.own) each.place = i;
            changed = true;
        }
    }
}

std::string ownof(const Kept& each) {
    std::string text = each.name.empty() ? "a port without a name" : each.name;
    const bool depth = each.record.UserDepth != 0;
    UserDepthRecord noteonly = each.record;
    noteonly.UserDepth = 0;
    const bool note = holdsowntext(noteonly);
    text += ": ";
    if (depth) text += numbertext(each.record.UserDepth) + " m";
    if (depth && note) text += " and ";
    return note ? text + "a note" : text;
}

void count(const std::vector<Kept>& all, const std::vector<std::string>& ports, DepthMatch& match) {
    match.records = static_cast<int>(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Kept& each = all[i];
        const bool other = !each.name.empty() && (i >= ports.size() || ports[i] != each.name);
        if (other) ++match.elsewhere;
        if (!each.place) {
            ++match.dropped;
            if (each.own) match.lost.push_back(ownof(each));
        } else if (*each.place != i) {
            ++match.moved;
        } else {
            ++match.stayed;
            if (other) match.left.push_back(numbertext(static_cast<int>(i) + 1) + ", made for " + ownof(each));
        }
    }
}

void putnumber(DepthBytes& bytes, std::size_t number) {
    bytes[35] = static_cast<std::byte>(number & 0xFF);
    bytes[36] = static_cast<std::byte>(number >> 8);
}

}  // namespace

bool madeforanother(const UserDepthRecord& record, const HarmonicRecord& port) {
    const std::string name = trim(record.DepthPortName);
    return !name.empty() && name != trimmedname(port);
}

bool holdsowntext(const UserDepthRecord& record) {
    if (record.UserDepth != 0) return true;
    std::string note = trim(record.Notes);
    constexpr std::string_view position = "Position";
    if (!note.starts_with(position)) return !note.empty();
    note.erase(0, position.size());
    // The position that a record starts with, whose port may be gone: figures and one letter of each pair.
    const auto letters = [&note](char one, char other) {
        return std::count(note.begin(), note.end(), one) + std::count(note.begin(), note.end(), other);
    };
    return note.find_first_not_of(" .0123456789NSEW") != note.npos || letters('N', 'S') > 1 || letters('E', 'W') > 1;
}

DepthMatch matchdepths(std::span<const HarmonicRecord> ports, std::span<const std::byte> depths) {
    std::vector<std::string> names;
    for (const HarmonicRecord& port : ports)
        names.push_back(trimmedname(port));
    std::vector<Kept> all = keptin(depths);
    placeall(all, names);
    partclashes(all);
    DepthMatch match;
    count(all, names, match);
    std::vector<DepthBytes> matched;
    for (std::size_t i = 0; i < ports.size(); ++i)
        matched.push_back(encode(newdepthrecord(ports[i], static_cast<std::int16_t>(i + 1))));
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (!all[i].place) continue;
        if (*all[i].place != i) putnumber(all[i].bytes, *all[i].place + 1);
        while (matched.size() <= *all[i].place)
            matched.push_back(encode(UserDepthRecord{}));
        matched[*all[i].place] = all[i].bytes;
    }
    for (const DepthBytes& record : matched)
        match.matched.insert(match.matched.end(), record.begin(), record.end());
    return match;
}

DepthMatch matchdepths(const std::string& hcfile, const std::string& depfile) {
    const std::vector<HarmonicRecord> ports = readports(hcfile);
    const auto depths = wholefile(depfile);
    return ports.empty() || !depths ? DepthMatch{} : matchdepths(ports, *depths);
}

WriteOutcome writematched(const std::string& depfile, const DepthMatch& match) {
    // Not once a run: what each matching drops must be found beside it.
    AreaBackups thistime;
    const WriteOutcome kept = keepbackup(thistime, depfile);
    return kept ? replacefile(depfile, match.matched) : kept;
}

}  // namespace tarvane
