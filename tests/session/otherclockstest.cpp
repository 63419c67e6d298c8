// Clocks of the world against times on show, by the zones' own rules.
#include "session/otherclocks.h"

#include <gtest/gtest.h>

#include "platform/systemzones/systemzones.h"

namespace tarvane {
namespace {

using std::chrono::hours;

TEST(OtherClocks, AreToldWithWhatTheyReadAndForWhichPartOfTheDay) {
    const SystemZones zones;
    const struct {
        const char* zone;
        int year, month, day, ahead;
        const char* told;
    } rows[] = {
        {"America/Chicago", 2026, 7, 14, -6, "clocks there read one hour more (CDT)"},
        {"America/Chicago", 2026, 1, 14, -6, ""},
        {"America/Chicago", 2026, 3, 8, -6, "clocks there read one hour more (CDT) from 02:00"},
        {"America/Chicago", 2026, 11, 1, -6, "clocks there read one hour more (CDT) until 01:00"},
        {"America/Chicago", 2026, 11, 1, -5, "clocks there read one hour less (CST) from 02:00"},
        {"Australia/Sydney", 2026, 1, 14, 10, "clocks there read one hour more (AEDT)"},
        {"Australia/Sydney", 2026, 7, 14, 11, "clocks there read one hour less (AEST)"},
        {"Australia/Adelaide", 2026, 7, 14, 10, "clocks there read half an hour less (ACST)"},
        {"Australia/Adelaide", 2026, 1, 14, 9, "clocks there read 1 hour 30 minutes more (ACDT)"},
        {"Australia/Eucla", 2026, 7, 14, 9, "clocks there read 15 minutes less (UT+8:45)"},
        {"Antarctica/Troll", 2026, 7, 14, 0, "clocks there read 2 hours more (UT+2)"},
        {"Europe/London", 2027, 3, 28, 1, "clocks there read one hour less (GMT) until 02:00"},
        {"Europe/London", 2027, 7, 14, 1, ""},
        {"Asia/Tokyo", 2027, 7, 14, 9, ""},
        {"Europe/Nowhere", 2027, 7, 14, 9, ""},
        {"", 2027, 7, 14, 9, ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(otherclocks(makedate(row.year, row.month, row.day), hours(row.ahead), row.zone, zones), row.told)
            << row.zone << " " << row.month << " " << row.ahead;
}

}  // namespace
}  // namespace tarvane
