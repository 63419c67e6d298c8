#include "atlas/pastesigns.h"

#include <algorithm>
#include <set>

#include "atlas/tablefields.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

bool isword(const std::string& field, const char* word) {
    std::string plain = lowercase(field);
    std::erase(plain, '.');
    return plain == word;
}

bool istime(const std::string& field) {
    return readtime(field).has_value();
}

/// "09:53PM".
bool endswithhalfday(const std::string& field) {
    std::string plain = lowercase(field);
    std::erase(plain, '.');
    return (plain.ends_with("am") || plain.ends_with("pm")) && istime(field);
}

bool nameskind(const std::string& field) {
    const auto kind = readkind(field);
    return kind && *kind != WaterKind::either && !lowercase(field).ends_with("mar");
}

/// True where a "PM" in that place can be no half of the day.
bool iskindat(const LineFields& line, std::size_t at) {
    if (at > 0 && istime(line[at - 1])) {
        const int minute = *readtime(line[at - 1]);
        return lowercase(line[at - 1]).find('h') != std::string::npos || minute < 60 || minute >= 13 * 60;
    }
    return (at + 1 < line.size() && istime(line[at + 1])) || (at > 0 && readamount(line[at - 1]));
}

std::set<std::string> unitsin(const std::vector<std::string>& lines) {
    std::set<std::string> named;
    for (const std::string& line : lines) {
        std::string word;
        for (const char c : lowercase(line) + " ") {
            // "p.m." names no metres.
            if ((c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80 || (c == '.' && word.size() == 1)) {
                word += c;
                continue;
            }
            if (const auto metres = unitmetres(word)) named.insert(*metres == 1 ? "" : *metres < 0.1 ? " cm" : " ft");
            word.clear();
        }
    }
    return named;
}

}  // namespace

bool ispm(const std::string& field) {
    return isword(field, "pm");
}

bool isbm(const std::string& field) {
    return isword(field, "bm");
}

PmMeaning pmmeaning(const std::vector<LineFields>& lines) {
    bool half = false, kind = false;
    for (const LineFields& line : lines) {
        if (!std::any_of(line.begin(), line.end(), istime)) continue;
        const bool othername = std::any_of(line.begin(), line.end(), nameskind);
        for (std::size_t at = 0; at < line.size(); ++at) {
            half = half || isword(line[at], "am") || endswithhalfday(line[at]) || (ispm(line[at]) && othername);
            kind = kind || isbm(line[at]) || (ispm(line[at]) && iskindat(line, at));
        }
    }
    return half == kind ? PmMeaning::either : half ? PmMeaning::halfday : PmMeaning::kind;
}

PasteUnit pasteunit(const std::vector<std::string>& headings, const std::vector<std::string>& unread) {
    const std::set<std::string> named = unitsin(headings);
    if (named.size() == 1) return {*named.begin(), true};
    const std::set<std::string> others = unitsin(unread);
    return {"", named.empty() && std::all_of(others.begin(), others.end(), [](auto& name) { return name.empty(); })};
}

}  // namespace tarvane
