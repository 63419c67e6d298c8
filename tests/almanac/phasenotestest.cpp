#include "almanac/phasenotes.h"

#include <gtest/gtest.h>

#include "fakes/scriptedlocale.h"

namespace tarvane::tests {
namespace {

using Notes = std::vector<std::string>;

Notes notesof(int month, int year) {
    LunarTexts texts;
    LunarPhases(month, year, texts);
    return phasenotes(texts, month, year, ScriptedLocale());
}

/// The dates of the phases are those of published almanacs.
TEST(PhaseNotes, PhasesOfOtherMonthsAndThoseThatAreLacking) {
    const struct {
        int month, year;
        Notes notes;
    } rows[] = {
        {6, 2024, {}},
        {11, 2026, {"Last quarter falls on 1 December 2026 as well"}},
        {12, 2026, {"Not listed: last quarter on 1 December 2026"}},
        {9,
         2025,
         {"Full moon falls on 7 October 2025 as well", "Last quarter falls on 13 October 2025",
          "Not listed: last quarter on 14 September 2025"}},
        {12,
         2024,
         {"First quarter falls on 6 January 2025", "Full moon falls on 13 January 2025",
          "Last quarter falls on 21 January 2025", "Not listed: new moon on 1 December 2024",
          "Not listed: first quarter on 8 December 2024", "Not listed: full moon on 15 December 2024",
          "Not listed: last quarter on 22 December 2024"}},
        // The list has the day of the calendar of that time, the program's dates are those of today's.
        {4,
         1500,
         {"New moon falls on 8 April 1500", "First quarter falls on 16 April 1500", "Full moon falls on 24 April 1500",
          "Last quarter falls on 30 April 1500", "Not listed: last quarter on 1 April 1500"}}};
    for (const auto& row : rows)
        EXPECT_EQ(notesof(row.month, row.year), row.notes) << row.year << "-" << row.month;
}

TEST(PhaseNotes, InTheLocalesNamesAndWithoutEndOfYears) {
    LunarTexts texts;
    LunarPhases(11, 2026, texts);
    ScriptedLocale german;
    german.months[11] = "Dezember";
    EXPECT_EQ(phasenotes(texts, 11, 2026, german), Notes{"Last quarter falls on 1 Dezember 2026 as well"});
    for (const int year : {100, 1582, 1899, 9999})
        for (int month = 1; month <= 12; ++month)
            EXPECT_LE(notesof(month, year).size(), 9U) << year << "-" << month;
}

}  // namespace
}  // namespace tarvane::tests
