#include "shell/localeinfo.h"

#include "dates/dateformats.h"

namespace tarvane {
namespace {

struct Info {
    int lctype;
    const char* caption;
};

constexpr std::array<Info, 13> infos{{{1, "Language id"},
                                      {2, "Localised name of language"},
                                      {4097, "English name of language"},
                                      {34, "Long date format ordering"},
                                      {33, "Short date format ordering"},
                                      {32, "Long date format"},
                                      {31, "Short date format"},
                                      {36, "Century format specifier"},
                                      {29, "Date separator"},
                                      {4105, "Type of calendar"},
                                      {4107, "Additional calendar types"},
                                      {4108, "First day of week specifier"},
                                      {4109, "First week of year specifier"}}};

const char* orderingtext(const std::string& number) {
    if (number == "0") return "0   Month - Day - Year";
    if (number == "1") return "1   Day - Month - Year";
    if (number == "2") return "2   Year - Month - Day";
    return "";
}

}  // namespace

std::array<LocaleInfoRow, 13> localeinforows(const Locale& locale) {
    std::array<LocaleInfoRow, 13> rows;
    const int lcid = locale.systemid();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& [lctype, caption] = infos[i];
        const std::string text = LocaleInfoText(locale, lcid, lctype);
        const bool ordering = lctype == 33 || lctype == 34;
        rows[i] = {caption, ordering ? orderingtext(text) : text};
    }
    return rows;
}

}  // namespace tarvane
