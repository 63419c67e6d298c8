#include "output/monthtable.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/scriptedlocale.h"
#include "fakes/testport.h"
#include "text/numbers.h"

namespace tarvane::tests {
namespace {

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
    explicit Maker(const HarmonicRecord& record = roundport()) : files(record) { port.portname = record.PortName; }

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

TEST(MonthTable, TheWorkedDayInListColumnsAndCells) {
    Maker maker;
    const MonthTable table = maker.table(2024, 4, 20);
    EXPECT_EQ(Strings(table.monthspredictions.begin(), table.monthspredictions.begin() + 7),
              (Strings{" Months", "Prediction ", "Round Have", "4/2024", "(Standard Times)", "  ", "1 Apr (Mon)"}));
    const Strings times{"9 Apr", "04:40", "10:50", "17:00", "23:10", ""};
    const Strings heights{"(Tue)", "5.54", "0.67", "5.52", "0.67", ""};
    const auto& first = table.monthcolumn1;
    const auto at = std::find(first.begin(), first.end(), "9 Apr") - first.begin();
    ASSERT_LT(at + 6, std::ssize(first));
    for (std::size_t j = 0; j < 6; ++j) {
        const std::size_t row = static_cast<std::size_t>(at) + j;
        EXPECT_EQ(first[row] + "|" + table.monthcolumn2[row], times[j] + "|" + heights[j]);
        EXPECT_EQ(table.monthspredictions[row + 4], times[j] + (j == 0 ? " " : j < 5 ? "   " : "  ") + heights[j]);
        if (j > 0) {
            EXPECT_EQ(table.monthcells[9][1][j] + table.monthcells[9][2][j], times[j] + heights[j]);
        }
    }
}

TEST(MonthTable, EveryMonthHasItsDaysAndBothListsAgree) {
    Maker maker;
    for (int month = 1; month <= 12; ++month) {
        const MonthTable table = maker.table(2024, month, 1);
        ASSERT_EQ(table.days.size(), static_cast<std::size_t>(DaysInMonth(2024, month)));
        std::size_t rows = 5;
        for (std::size_t d = 1; d <= table.days.size(); ++d) {
            const MonthDay& day = table.days[d - 1];
            EXPECT_EQ(day.date, makedate(2024, month, static_cast<int>(d)));
            EXPECT_EQ(day.weekday, weekdayof(day.date));
            EXPECT_EQ(val(table.monthcells[d][3][1]), static_cast<double>(day.tides.size()));
            EXPECT_EQ(table.monthspredictions[rows + 1], day.head);
            rows += 2 + day.tides.size();
        }
        EXPECT_EQ(table.monthspredictions.size(), rows);
        EXPECT_EQ(table.monthcolumn1.size(), table.monthcolumn2.size());
    }
}

TEST(MonthTable, DaysWithoutTurningPointsHaveAHeadAlone) {
    Maker flat(flatport());
    EXPECT_EQ(flat.table(2024, 2, 10).monthspredictions.size(), 5 + 2 * 29U);

    // the constants of 1 January 1990 divide by zero: it and the day that stands on it have no figures
    Maker maker;
    const MonthTable broken = maker.table(1990, 1, 15);
    for (std::size_t d = 1; d <= 31; ++d) {
        EXPECT_EQ(broken.days[d - 1].defined, d > 2);
        EXPECT_EQ(broken.monthcells[d][3][1] == "0", d <= 2) << d;
    }
    EXPECT_EQ(Strings(broken.monthspredictions.begin() + 5, broken.monthspredictions.begin() + 11),
              (Strings{"  ", "1 Jan (Mon)", "No prediction", "The method has no", "constants for this day", "  "}));
    EXPECT_EQ(broken.monthcolumn1[3] + "|" + broken.monthcolumn2[3], std::string("No prediction|") + noconstants);
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
    for (const std::size_t d : {0U, 30U}) {
        const WaterText &from = standard.days[d].tides[1], &to = shifted.days[d].tides[1];
        EXPECT_EQ(val(to.time.substr(0, 2)), val(from.time.substr(0, 2)) + 1);
        EXPECT_EQ(to.time.substr(2) + to.height, from.time.substr(2) + from.height);
    }
    // the label follows the option while the shift follows its copy
    maker.files.settings.summerflag2 = 0;
    const MonthTable july = maker.table(2024, 7, 1);
    maker.summer(0);
    EXPECT_EQ(maker.table(2024, 7, 1).monthcolumn1, july.monthcolumn1);
    EXPECT_EQ(july.monthspredictions[4], "(Summer Times)");
}

TEST(MonthTable, TheMonthIsTheDatesWhateverTheMonthNumberLagsAtAndNothingIsCarriedOver) {
    Maker maker, flat(flatport());
    const MonthTable april = maker.table(2024, 4, 30);
    maker.onshow.tidemonth = 5;
    maker.onshow.tideday = 1;
    MonthTable later = flat.table(2024, 3, 1), february = april;
    buildmonthtable(later, maker.files.settings, maker.port, maker.onshow, maker.locale);
    EXPECT_EQ(later.monthspredictions, april.monthspredictions);
    EXPECT_EQ(maker.onshow.tidemonth, 5);
    const MonthTable fresh = flat.table(2024, 2, 1);
    buildmonthtable(february, flat.files.settings, flat.port, flat.onshow, flat.locale);
    EXPECT_EQ(february.monthspredictions, fresh.monthspredictions);
    EXPECT_EQ(february.monthcolumn1, fresh.monthcolumn1);
    EXPECT_EQ(february.monthcolumn2, fresh.monthcolumn2);
    EXPECT_EQ(february.monthcells, fresh.monthcells);
}

TEST(MonthTable, TellsWhatItWasMadeFor) {
    Maker maker;
    maker.files.settings.userdepth = 0;
    const MonthMade made = maker.table(2024, 4, 30).made;
    EXPECT_EQ(made.portname + numbertext(made.portnumber), "Round Haven1");
    EXPECT_EQ(made.year * 100 + made.month, 202404);
    EXPECT_EQ(made, monthmadenow(maker.files.settings, maker.port, maker.onshow));
    // another port, month, hour and output are the status line's test
    Settings elsewhere = maker.files.settings, deeper = elsewhere;
    elsewhere.hcfile += "x";
    deeper.userdepth = 3;
    for (const Settings& now : {elsewhere, deeper})
        EXPECT_NE(made, monthmadenow(now, maker.port, maker.onshow));
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
}  // namespace tarvane::tests
