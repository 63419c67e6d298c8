// The words for Wednesday and Thursday by which the probe of the date order recognises a system's language. A system
// shortens its day names to them; must not hold a rule.
#pragma once

#include <array>
#include <string_view>

namespace tarvane {

struct DayWords {
    std::string_view language;
    std::string_view wednesday;
    std::string_view thursday;
};

inline constexpr std::array<DayWords, 9> daywords{{
    {"ENGLISH", "Wed", "Thu"},
    {"BASQUE", "az.", "og."},
    // kept: the French Thursday is tested without the full stop that its Wednesday has
    {"FRENCH", "mer.", "jeu"},
    {"GERMAN", "Mi", "Do"},
    {"SPANISH", "mi\u00e9", "jue"},
    {"PORTUGESE", "qua", "qui"},
    {"NYNORSK", "on", "to"},
    {"ITALIAN", "mer", "gio"},
    {"DUTCH", "wo", "do"},
}};

}  // namespace tarvane
