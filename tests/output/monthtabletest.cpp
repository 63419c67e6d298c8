#include "output/monthtable.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "engine/testport.h"
#include "fakes/scriptedlocale.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

using tests::PortFiles;
using Strings = std::vector<std::string>;

HarmonicRecord flatport() {
    HarmonicRecord port;
    port.PortName = "Still Water";
    port.TimeZoneLetter = "L";
    port.Z0 = 3;
    return port;
}

/// Everything a table is made from; the option is off until told otherwise.
struct Maker {
    explicit Maker(const HarmonicRecord& record = tests::roundport()) : files(record) {
        port.portname = record.PortName;
    }

    MonthTable table(int year, int month, int day) {
        setdateonshow(onshow, makedate(year, month, day));
        MonthTable made;
        buildmonthtable(made, files.settings, port, onshow, locale);
        return made;
    }
    void summer(std::int16_t option) { files.settings.currentsummer = files.settings.summerflag2 = option; }

    PortFiles files;
    CurrentPort port;
    DateOnShow onshow;
    ScriptedLocale locale;
};

bool isdayhead(const std::string& row) {
    return row.ends_with(")") && row.find(" (") != std::string::npos && row[0] != '(';
}

int minutesof(const std::string& time) {
    return static_cast<int>(val(time.substr(0, 2)) * 60 + val(time.substr(3)));
}

TEST(MonthTable, TheWorkedDayInListColumnsAndCells) {
    Maker maker;
    const MonthTable table = maker.table(2024, 4, 20);
    EXPECT_EQ(Strings(table.monthspredictions.begin(), table.monthspredictions.begin() + 7),
              (Strings{" Months", "Prediction ", "Round Have", "4/2024", "(Standard Times)", "  ", "1 Apr (Mon)"}));
    const Strings rows{"  ",           "9 Apr (Tue)",  "04:40   5.54", "10:50   0.67",
                       "17:00   5.52", "23:10   0.67", "  ",           "10 Apr (Wed)"};
    EXPECT_NE(std::search(table.monthspredictions.begin(), table.monthspredictions.end(), rows.begin(), rows.end()),
              table.monthspredictions.end());
    EXPECT_EQ(table.monthtitle, "Monthly tidal prediction for Round Haven   ");
    EXPECT_EQ(table.monthheading, "Prediction for April 2024\rRound Haven");
    const Strings first{"", "9 Apr", "04:40", "10:50", "17:00", "23:10", "", "10 Apr"};
    const Strings second{"", "(Tue)", "5.54", "0.67", "5.52", "0.67", "", "(Wed)"};
    const auto at = std::search(table.monthcolumn1.begin(), table.monthcolumn1.end(), first.begin(), first.end());
    ASSERT_NE(at, table.monthcolumn1.end());
    const auto index = at - table.monthcolumn1.begin();
    EXPECT_TRUE(std::equal(second.begin(), second.end(), table.monthcolumn2.begin() + index));
    EXPECT_EQ(table.monthcolumn1[0] + "|" + table.monthcolumn2[0], "Round Haven|April 2024");
    for (std::size_t j = 1; j <= 4; ++j) {
        EXPECT_EQ(table.monthcells[9][1][j], first[j + 1]);
        EXPECT_EQ(table.monthcells[9][2][j], second[j + 1]);
    }
    EXPECT_EQ(table.monthcells[9][3][1], "4");
    EXPECT_EQ(table.monthcells[9][1][5] + table.monthcells[31][3][1] + table.monthcells[0][1][1], "");
}

TEST(MonthTable, EveryMonthHasItsDaysAndBothListsAgree) {
    Maker maker;
    for (const int year : {2023, 2024}) {
        for (int month = 1; month <= 12; ++month) {
            const MonthTable table = maker.table(year, month, 1);
            std::size_t rows = 5, day = 0;
            for (const std::string& row : table.monthspredictions)
                day += isdayhead(row);
            EXPECT_EQ(static_cast<int>(day), DaysInMonth(year, month));
            for (std::size_t d = 1; d <= day; ++d) {
                const auto count = static_cast<std::size_t>(val(table.monthcells[d][3][1]));
                EXPECT_GE(count, 3U) << year << " " << month << " " << d;
                rows += 2 + count;
            }
            EXPECT_EQ(table.monthspredictions.size(), rows);
            EXPECT_EQ(table.monthcolumn1.size(), rows - 4);
            EXPECT_EQ(table.monthcolumn2.size(), rows - 4);
            EXPECT_TRUE(table.monthcells[day + 1][3][1].empty());
        }
    }
}

TEST(MonthTable, DaysWithoutTurningPointsHaveAHeadAlone) {
    Maker flat(flatport());
    const MonthTable leap = flat.table(2024, 2, 10);
    EXPECT_EQ(leap.monthspredictions.size(), 5 + 2 * 29U);
    EXPECT_EQ(leap.monthspredictions.back(), "29 Feb (Thu)");
    EXPECT_EQ(leap.monthcells[29][3][1], "0");
    EXPECT_EQ(flat.table(2023, 2, 10).monthspredictions.back(), "28 Feb (Tue)");

    // the constants of 1 January 1990 divide by zero: it and the day that stands on it have no figures
    Maker maker;
    const MonthTable broken = maker.table(1990, 1, 15);
    for (const std::size_t d : {1U, 2U})
        EXPECT_EQ(broken.monthcells[d][3][1], "0");
    for (std::size_t d = 3; d <= 31; ++d)
        EXPECT_GE(val(broken.monthcells[d][3][1]), 3) << d;
}

TEST(MonthTable, TheRowOnTimeGoesByMonthAndOption) {
    Maker maker(flatport());
    for (int month = 1; month <= 12; ++month) {
        for (const std::int16_t option : {std::int16_t{0}, std::int16_t{-1}}) {
            maker.summer(option);
            const std::string row = maker.table(2026, month, 1).monthspredictions[4];
            const bool gap = month > 10 && option != 0;
            const bool summer = month >= 4 && month <= 10 && option != 0;
            EXPECT_EQ(row, gap ? "  " : summer ? "(Summer Times)" : "(Standard Times)") << month << " " << option;
        }
    }
}

TEST(MonthTable, OneShiftThatOfTheDayOnShowServesTheMonth) {
    Maker maker;
    const MonthTable standard = maker.table(2024, 3, 31);
    maker.summer(-1);
    EXPECT_EQ(maker.table(2024, 3, 30).monthcolumn1, standard.monthcolumn1);
    const MonthTable shifted = maker.table(2024, 3, 31);
    EXPECT_EQ(shifted.monthspredictions[4], "(Standard Times)");
    for (std::size_t d = 1; d <= 31; ++d) {
        const auto& from = standard.monthcells[d];
        const auto& to = shifted.monthcells[d];
        for (std::size_t j = 1; j <= static_cast<std::size_t>(val(from[3][1])); ++j) {
            const int minutes = minutesof(from[1][j]);
            if (minutes == 0 || minutes > 22 * 60 + 50) continue;  // it falls past the shifted day's end
            const auto found = std::find_if(to[1].begin() + 1, to[1].end(), [&](const std::string& time) {
                return !time.empty() && minutesof(time) == (minutes + 60) % 1440;
            });
            ASSERT_NE(found, to[1].end()) << d << " " << from[1][j];
            EXPECT_EQ(to[2][static_cast<std::size_t>(found - to[1].begin())], from[2][j]) << d;
        }
    }
    // the label follows the option while the shift follows its copy
    maker.files.settings.summerflag2 = 0;
    const MonthTable july = maker.table(2024, 7, 1);
    maker.summer(0);
    EXPECT_EQ(maker.table(2024, 7, 1).monthcolumn1, july.monthcolumn1);
    EXPECT_EQ(july.monthspredictions[4], "(Summer Times)");
}

TEST(MonthTable, TheMonthIsTheDatesWhateverTheMonthNumberLagsAt) {
    HarmonicRecord port = tests::roundport();
    port.DeltaZ0[4] = 9;
    Maker maker(port);
    const MonthTable april = maker.table(2024, 4, 30);
    maker.onshow.tidemonth = 5;
    maker.onshow.tideday = 1;
    MonthTable lagging;
    buildmonthtable(lagging, maker.files.settings, maker.port, maker.onshow, maker.locale);
    EXPECT_EQ(lagging.monthspredictions, april.monthspredictions);
    EXPECT_EQ(maker.onshow.tidemonth, 5);
}

TEST(MonthTable, NothingIsCarriedOver) {
    Maker maker;
    MonthTable table = maker.table(2024, 1, 31);
    Maker flat(flatport());
    const MonthTable fresh = flat.table(2024, 2, 1);
    buildmonthtable(table, flat.files.settings, flat.port, flat.onshow, flat.locale);
    EXPECT_EQ(table.monthspredictions, fresh.monthspredictions);
    EXPECT_EQ(table.monthcolumn1, fresh.monthcolumn1);
    EXPECT_EQ(table.monthcolumn2, fresh.monthcolumn2);
    EXPECT_EQ(table.monthcells, fresh.monthcells);
    clearmonthcells(table);
    EXPECT_EQ(table.monthcells, MonthTable{}.monthcells);
    EXPECT_EQ(table.monthspredictions, fresh.monthspredictions);
}

TEST(MonthTable, NamesOfTheSystemAndOfThePortCutByCharacters) {
    struct Row {
        int year, month;
        const char *monthname, *weekday, *portname, *head, *place, *heading;
    };
    for (const Row& row :
         {Row{2024, 3, "März", "Freitag", "Büsum an der Nordsee", "1 Mär (Fre)", "Büsum an d", "März 2024"},
          Row{2023, 2, "février", "mercredi", "Fécamp", "1 fév (mer)", "Fécamp", "février 2023"},
          Row{2023, 12, "décembre", "vendredi", "Île", "1 déc (ven)", "Île", "décembre 2023"},
          Row{2024, 5, "mai", "mi", "  Quay  ", "1 mai (mi)", "  Quay  ", "mai 2024"}}) {
        Maker maker(flatport());
        maker.port.portname = row.portname;
        maker.locale.months.at(static_cast<std::size_t>(row.month - 1)) = row.monthname;
        maker.locale.days.fill(row.weekday);
        const MonthTable table = maker.table(row.year, row.month, 9);
        EXPECT_EQ(table.monthspredictions[2], row.place);
        EXPECT_EQ(table.monthspredictions[6], row.head);
        EXPECT_EQ(table.monthcolumn2[0], row.heading);
        EXPECT_EQ(table.monthheading, std::string("Prediction for ") + row.heading + "\r" + row.portname);
        EXPECT_EQ(table.monthcolumn1[0].find("  "), std::string::npos);
        EXPECT_EQ(table.monthtitle, "Monthly tidal prediction for " + table.monthcolumn1[0] + "   ");
    }
}

}  // namespace
}  // namespace tarvane
