#include "files/filenames.h"

namespace tarvane {
namespace {

constexpr std::string_view oddsigns = "/\\:*?\"<>|\x7f";
constexpr std::string_view unknowncharacter = "\xEF\xBF\xBD";

}  // namespace

std::string safefilename(std::string_view text) {
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    std::string name;
    while (!text.empty()) {
        const bool unknown = text.starts_with(unknowncharacter);
        const char sign = text.front();
        const bool odd = static_cast<unsigned char>(sign) < ' ' || oddsigns.find(sign) != std::string_view::npos;
        name += unknown || odd || (name.empty() && sign == '.') ? '_' : sign;
        text.remove_prefix(unknown ? unknowncharacter.size() : 1);
    }
    return name.empty() ? "Tarvane" : name;
}

}  // namespace tarvane
