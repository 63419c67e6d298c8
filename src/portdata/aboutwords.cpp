#include "portdata/aboutwords.h"

#include <algorithm>
#include <array>

#include "text/numbers.h"

namespace tarvane {
namespace {

struct Limits {
    Grade grade;
    double minutes, metres;  ///< of nine waters in ten
};
constexpr std::array limits{Limits{Grade::close, 20, 0.2}, Limits{Grade::fair, 45, 0.4}};

struct DatumName {
    std::string_view letters;
    const char* words;
};
constexpr std::array datums{
    DatumName{"LAT", "lowest astronomical tide"},      DatumName{"MLLW", "mean lower low water"},
    DatumName{"LLWLT", "lower low water, large tide"}, DatumName{"MLWS", "mean low water springs"},
    DatumName{"NLLW", "nearly lowest low water"},      DatumName{"TLT", "lower low water of tropic tides"}};

std::string within(double minutes, double metres) {
    return numbertext(minutes) + (minutes == 1 ? " minute" : " minutes") + " and " + fixed(metres, 2) + " m";
}

}  // namespace

Grade gradeof(const PortAbout& about) {
    const auto kept = std::find_if(limits.begin(), limits.end(), [&](const Limits& each) {
        return about.timeninety <= each.minutes && about.heightninety <= each.metres;
    });
    return kept == limits.end() ? Grade::rough : kept->grade;
}

const char* gradeword(Grade grade) {
    constexpr std::array words{"close", "fair", "rough"};
    return words.at(static_cast<std::size_t>(grade));
}

std::string datumwords(std::string_view datum) {
    const auto known =
        std::find_if(datums.begin(), datums.end(), [&](const auto& each) { return each.letters == datum; });
    return known == datums.end() ? "" : known->words;
}

std::string chartdatum(std::string_view datum) {
    const bool usual = datum.empty() || datum == "LAT";
    return usual ? "chart datum" : "chart datum (" + std::string(datum) + ")";
}

std::string errorwords(const PortAbout& about) {
    return "half of the high and low waters are within " + within(about.timemedian, about.heightmedian) +
           " of a full prediction from all of the gauge's constituents, nine in ten within " +
           within(about.timeninety, about.heightninety) + "; weather not counted";
}

std::string recordwords(const PortAbout& about) {
    if (about.recordfrom.empty() || about.recordto.empty()) return "a gauge's record";
    return "a gauge's record of " + about.recordfrom + " to " + about.recordto;
}

std::string trustwords(const std::optional<PortAbout>& about) {
    if (!about)
        return "Nothing is known of where this port's constants come from or how good they are. Compare some days with "
               "an official table before you rely on them.";
    std::string words = "The constants come from " + about->source;
    if (!about->licence.empty()) words += " (" + about->licence + ")";
    const std::string datum = datumwords(about->datum);
    words += ", from " + recordwords(*about) + "; heights are above " + about->datum +
             (datum.empty() ? "" : " (" + datum + ")") +
             " as that record has it, which needn't be the chart's own datum. ";
    std::string errors = errorwords(*about);
    errors[0] = 'H';
    return words + errors + ".";
}

}  // namespace tarvane
