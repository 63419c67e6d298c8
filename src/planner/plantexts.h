// A plan in words: times and heights, the rows of its tables, what a moment holds and the answer to "When can I go?".
// Whatever is written is on the plan's clock. Must not reckon tides.
#pragma once

#include <string>
#include <vector>

#include "planner/plan.h"
#include "platform/locale.h"

namespace tarvane {

/// "Sat 18 Jul", names the system's; with its year "Sat 18 Jul 2026".
std::string daytext(const Locale& locale, Date date, bool year = false);

/// "4.4 m"; a height that rounds to zero has no sign.
std::string metres(double height, int decimals = 1);

/// The same with centimetres where it has some: "4.4 m", "4.45 m".
std::string levelmetres(double height);

/// A moment's clock time; on a day on which the clock is changed with its name behind it: "01:30 BST".
std::string plainclock(const PortClock& clock, Moment moment);

/// When a window opens and closes: both with the clock's name where it is changed on the day of either.
struct WindowClocks {
    std::string opens, closes;
};
WindowClocks windowclocks(const PortClock& clock, const PlannedWindow& window);

/// Whether the clock is changed on a day: it ends with another offset than the day before it.
bool clockchangeson(const PortClock& clock, Date date);

/// "times by the port's clock (Europe/Paris)", "times by zone time (UT)"
std::string timesby(const PortClock& clock);

/// "1 h 05 min", "40 min", "3 days"
std::string durationtext(std::chrono::minutes duration);

/// "rising", "falling"; "standing" at less than 5 cm an hour.
const char* tendencyword(double rate);

/// One table: its headings and rows, and the moment to which a row leads.
struct PlanTable {
    std::vector<std::string> headings;
    struct Row {
        Moment moment;
        std::vector<std::string> cells;
        std::vector<double> keys;        ///< by which the columns are sorted
        std::vector<std::string> dated;  ///< its first cells again, their dates with the year
    };
    std::vector<Row> rows;
};

/// Every row carries its offset from universal time where the plan's clock is changed within the plan.
PlanTable tidestable(const Plan& plan, const Locale& locale);
PlanTable accesstable(const Plan& plan, const PlannedAccess& access, const Passage& passage, const Locale& locale);
PlanTable suntable(const Plan& plan, const Locale& locale);

/// A table as tab-separated text: a line that tells what it is of, the headings, the rows; dates with their years.
std::string tabbedtext(const PlanTable& table, const std::string& title);

/// "Sat 18 Jul 05:40: 4.42 m, rising 0.8 m/h, 6.4 m over the bottom"
std::string momenttext(const Plan& plan, Moment moment, const std::optional<Passage>& passage, const Locale& locale);

/// How the bottom's one signed number is read, and the height of tide that follows from it: "Bottom dries 2.0 m. Height
/// of tide needed: 4.4 m."
std::string neededtext(const Passage& passage, const std::string& datum);

/// The answer: its first windows, or that there are none and whether the water or the bridge is in the way, or that she
/// always passes, or why nothing is known. All but windows name the levels that they come from.
/// Those that have closed before `now` are only counted, unless all have.
std::string accesstext(const Plan& plan, const PlannedAccess& access, const Passage& passage, const Locale& locale,
                       std::optional<Moment> now = {});

/// The answer where there are no windows to tell: never, always, or none of them as wished; empty otherwise. `whynot`
/// is why some days have no prediction.
std::string accessverdict(const PlannedAccess& access, const Passage& passage, const std::string& whynot);

/// "Now 14:32: 3.4 m, rising 0.6 m/h. High water 5.1 m at 17:02, in 2 h 30 min. Low water 0.9 m at 23:20, in 8 h 48
/// min.", whichever comes first before the other; "at 17:02 (stand)" where the tide stands about it.
std::string nowtext(const Plan& plan, Moment moment);

/// The same in few words, of the next water alone and with the clock's name: "Now 3.4 m, rising 0.6 m/h, HW 17:02 BST";
/// empty without a prediction.
std::string shortnowtext(const Plan& plan, Moment moment);

}  // namespace tarvane
