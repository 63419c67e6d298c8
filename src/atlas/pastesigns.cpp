#include "atlas/pastesigns.h"

#include <algorithm>

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

}  // namespace tarvane
