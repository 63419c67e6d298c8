#include "portdata/aboutwords.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

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

constexpr std::array monthnames{"January", "February", "March",     "April",   "May",      "June",
                                "July",    "August",   "September", "October", "November", "December"};

std::string counted(int count, const std::string& one) {
    return numbertext(count) + " " + one + (count == 1 ? "" : "s");
}

std::string fitwords(const FitFigures& fit) {
    std::string words = "fitted to " + counted(fit.readings, "reading");
    if (fit.hours > 0) words += " over " + fixed(fit.hours, 1) + " hours";
    if (!fit.day.empty()) words += " of " + daywords(fit.day);
    words += ", which lie " + fixed(fit.after, 2) + " m (root mean square) and at most " +
             fixed(std::abs(fit.greatest), 2) + " m from its curve, " + fixed(fit.before, 2) + " m before the fit";
    if (fit.leftout > 0) words += "; " + counted(fit.leftout, "reading") + " left out as wild";
    return words;
}

/// What was done, behind "Entered by you on 3 March 2026".
std::string howwords(const OwnMade& made) {
    const std::string from = made.from.empty() ? "" : " from " + made.from;
    switch (made.how) {
        case OwnHow::changed:
            return ": the constants aren't those that the program brings";
        case OwnHow::entered:
            return "";
        case OwnHow::corrected:
            return " in place of the constants before";
        case OwnHow::derived:
            return ", derived" + from;
        case OwnHow::fitted:
            return ", " + (made.fit ? fitwords(*made.fit) : "fitted to readings");
        case OwnHow::copied:
            return ", copied" + from + (made.fit ? "; " + fitwords(*made.fit) : "");
    }
    return "";
}

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

std::string daywords(const std::string& day) {
    // "2026-03-03"
    const auto number = [&](std::size_t from, std::size_t count) { return std::atoi(day.substr(from, count).c_str()); };
    if (day.size() != 10 || day[4] != '-' || day[7] != '-') return day;
    const int month = number(5, 2);
    if (month < 1 || month > 12) return day;
    return numbertext(number(8, 2)) + " " + monthnames.at(static_cast<std::size_t>(month - 1)) + " " +
           numbertext(number(0, 4));
}

std::string ownwords(const OwnMade& made) {
    return (made.date.empty() ? "Entered by you, on a day that isn't known"
                              : "Entered by you on " + daywords(made.date)) +
           howwords(made);
}

std::string trustwords(const PortKnown& known) {
    if (!known.own) return trustwords(known.about);
    return ownwords(*known.own) +
           ". How good these tides are nobody has measured: compare some days with an official table before you rely "
           "on them.";
}

std::string trustclause(const PortKnown& known) {
    if (known.own) return "entered by you" + (known.own->date.empty() ? "" : " on " + daywords(known.own->date));
    if (!known.about) return "";
    return "nine waters in ten within " + within(known.about->timeninety, known.about->heightninety) +
           " of a full prediction";
}

}  // namespace tarvane
