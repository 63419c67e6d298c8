#include "ports/portboxes.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "portdata/coordinates.h"
#include "ports/usernotes.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using Port = HarmonicRecord;

constexpr std::size_t portnolength = 5;
constexpr std::size_t portnamelength = 35;

constexpr PortBox text(const char* name, const char* caption, std::string Port::*field, BoxKind kind = BoxKind::text) {
    return {name, caption, kind, field};
}

constexpr PortBox number(const char* name, const char* caption, float Port::*field, BoxKind kind = BoxKind::number) {
    return {name, caption, kind, nullptr, field};
}

constexpr PortBox month(const char* name, const char* caption, std::array<float, 12> Port::*field, std::size_t at) {
    return {name, caption, BoxKind::number, nullptr, nullptr, field, at};
}

constexpr PortBox boxes[] = {
    text("txtportno", "&Number", &Port::PortNo),
    text("txtportname", "Na&me", &Port::PortName),
    number("txtportlat", "La&titude", &Port::PortLat, BoxKind::latitude),
    number("txtportlong", "Lon&gitude", &Port::PortLong, BoxKind::longitude),
    text("txtTimeZone", "Time &zone (hours)", &Port::TimeZoneLetter, BoxKind::zone),
    number("txtz0", "Mean level Z&0 (metres)", &Port::Z0),
    number("txtm2g", "M2 phase g, degrees", &Port::M2g),
    number("txtm2hm", "M2 amplitude Hm, metres", &Port::M2Hm),
    number("txts2g", "S2 phase g, degrees", &Port::S2g),
    number("txts2hm", "S2 amplitude Hm, metres", &Port::S2Hm),
    number("txtk1g", "K1 phase g, degrees", &Port::K1g),
    number("txtk1hm", "K1 amplitude Hm, metres", &Port::K1Hm),
    number("txto1g", "O1 phase g, degrees", &Port::O1g),
    number("txto1hm", "O1 amplitude Hm, metres", &Port::O1Hm),
    number("txtsf4", "Phase f4, degrees", &Port::SF4),
    number("txtlf4", "Magnitude F4, per metre", &Port::LF4),
    number("txtsf6", "Phase f6, degrees", &Port::SF6),
    number("txtlf6", "Magnitude F6, per square metre", &Port::LF6),
    month("txtjanm2", "M2 amplitude in January, metres", &Port::MHm2, 0),
    month("txtfebm2", "M2 amplitude in February, metres", &Port::MHm2, 1),
    month("txtmarm2", "M2 amplitude in March, metres", &Port::MHm2, 2),
    month("txtaprm2", "M2 amplitude in April, metres", &Port::MHm2, 3),
    month("txtmaym2", "M2 amplitude in May, metres", &Port::MHm2, 4),
    month("txtjunm2", "M2 amplitude in June, metres", &Port::MHm2, 5),
    month("txtjulm2", "M2 amplitude in July, metres", &Port::MHm2, 6),
    month("txtaugm2", "M2 amplitude in August, metres", &Port::MHm2, 7),
    month("txtsepm2", "M2 amplitude in September, metres", &Port::MHm2, 8),
    month("txtoctm2", "M2 amplitude in October, metres", &Port::MHm2, 9),
    month("txtnovm2", "M2 amplitude in November, metres", &Port::MHm2, 10),
    month("txtdecm2", "M2 amplitude in December, metres", &Port::MHm2, 11),
    month("txtjandz0", "Change of the mean level in January, metres", &Port::DeltaZ0, 0),
    month("txtfebdz0", "Change of the mean level in February, metres", &Port::DeltaZ0, 1),
    month("txtmardz0", "Change of the mean level in March, metres", &Port::DeltaZ0, 2),
    month("txtaprdz0", "Change of the mean level in April, metres", &Port::DeltaZ0, 3),
    month("txtmaydz0", "Change of the mean level in May, metres", &Port::DeltaZ0, 4),
    month("txtjundz0", "Change of the mean level in June, metres", &Port::DeltaZ0, 5),
    month("txtjuldz0", "Change of the mean level in July, metres", &Port::DeltaZ0, 6),
    month("txtaugdz0", "Change of the mean level in August, metres", &Port::DeltaZ0, 7),
    month("txtsepdz0", "Change of the mean level in September, metres", &Port::DeltaZ0, 8),
    month("txtoctdz0", "Change of the mean level in October, metres", &Port::DeltaZ0, 9),
    month("txtnovdz0", "Change of the mean level in November, metres", &Port::DeltaZ0, 10),
    month("txtdecdz0", "Change of the mean level in December, metres", &Port::DeltaZ0, 11),
};

/// The number that a text gives for its field.
double valueof(const PortBox& box, const std::string& typed) {
    switch (box.kind) {
        case BoxKind::latitude:
            return ParseLatitude(typed);
        case BoxKind::longitude:
            return ParseLongitude(typed);
        default:
            return val(typed);
    }
}

std::string shown(const PortBox& box, const HarmonicRecord& record) {
    switch (box.kind) {
        case BoxKind::text:
            return trim(record.*box.text);
        case BoxKind::zone:
            return zonetextof(record.*box.text);
        case BoxKind::latitude:
            return LatitudeEditText(record.*box.number);
        case BoxKind::longitude:
            return LongitudeEditText(record.*box.number);
        case BoxKind::number:
            break;
    }
    return numbertext(box.months ? (record.*box.months)[box.month] : record.*box.number);
}

void store(const PortBox& box, const std::string& typed, HarmonicRecord& record) {
    if (box.kind == BoxKind::text)
        record.*box.text = trim(typed);
    else if (box.kind == BoxKind::zone)
        // kept: what is no whole hour within eleven saves as zone 0
        record.*box.text = zoneletter(val(typed));
    else
        (box.months ? (record.*box.months)[box.month] : record.*box.number) = static_cast<float>(valueof(box, typed));
}

bool storable(std::string_view typed) {
    const bool control = std::any_of(typed.begin(), typed.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; });
    return !control && fitssinglebyte(typed);
}

std::string plain(std::string_view caption) {
    std::string text(caption);
    std::erase(text, '&');
    return text;
}

std::string faultof(const PortBox& box, const std::string& typed) {
    const std::string what = "\"" + plain(box.caption) + "\"";
    if (box.kind == BoxKind::text) {
        const std::size_t longest = box.text == &Port::PortNo ? portnolength : portnamelength;
        if (charactercount(trim(typed)) > longest)
            return what + " has room for " + numbertext(static_cast<int>(longest)) + " characters";
        return storable(typed) ? "" : what + " holds characters that an area file can't hold";
    }
    constexpr double most = std::numeric_limits<float>::max();
    return std::fabs(valueof(box, typed)) <= most ? "" : what + " is too large for an area file: " + typed;
}

char32_t anykey(char32_t key) {
    return key;
}

char32_t numberkey(char32_t key) {
    return key == U'+' ? key : depthkey(key);
}

char32_t hemispherekey(char32_t key, char32_t first, char32_t second) {
    constexpr char32_t backspace = 8;
    const char32_t capital = key >= U'a' && key <= U'z' ? key - U'a' + U'A' : key;
    if (capital == first || capital == second) return capital;
    return (key >= U'0' && key <= U'9') || key == U'.' || key == backspace ? key : 0;
}

char32_t northkey(char32_t key) {
    return hemispherekey(key, U'N', U'S');
}

char32_t eastkey(char32_t key) {
    return hemispherekey(key, U'E', U'W');
}

}  // namespace

std::span<const PortBox> portboxes() {
    return boxes;
}

std::size_t boxplace(std::string_view name) {
    const auto found =
        std::find_if(std::begin(boxes), std::end(boxes), [&](const PortBox& b) { return b.name == name; });
    return static_cast<std::size_t>(found - std::begin(boxes));
}

BoxTexts boxtexts(const HarmonicRecord& record) {
    BoxTexts texts;
    for (const PortBox& box : boxes)
        texts.push_back(shown(box, record));
    return texts;
}

HarmonicRecord recordof(const BoxTexts& texts) {
    HarmonicRecord record;
    for (std::size_t i = 0; i < texts.size(); ++i)
        store(boxes[i], texts[i], record);
    return record;
}

std::string boxfault(const BoxTexts& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (std::string fault = faultof(boxes[i], texts[i]); !fault.empty()) return fault;
    return {};
}

bool allempty(const BoxTexts& texts) {
    return std::all_of(texts.begin(), texts.end(), [](const std::string& text) { return text.empty(); });
}

BoxKey boxkey(BoxKind kind) {
    switch (kind) {
        case BoxKind::text:
            return anykey;
        case BoxKind::latitude:
            return northkey;
        case BoxKind::longitude:
            return eastkey;
        case BoxKind::zone:
        case BoxKind::number:
            break;
    }
    return numberkey;
}

std::vector<std::size_t> filledfrom(std::string_view name) {
    if (name == "txtjanm2") return {boxplace("txtfebm2")};
    std::vector<std::size_t> places;
    // kept: going through the annual value puts it over twelve that differed
    if (name == "txtm2hm")
        for (std::size_t i = 0; i < std::size(boxes); ++i)
            if (boxes[i].months == &Port::MHm2) places.push_back(i);
    return places;
}

}  // namespace tarvane
