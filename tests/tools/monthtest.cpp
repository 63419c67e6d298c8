// The month table on the terminal: the worked day in it, the single days beside it, and the one shift of its date.
#include <gtest/gtest.h>

#include "text/numbers.h"
#include "tools/companion.h"

namespace tarvane {
namespace {

using tests::Companion;
using tests::fieldsof;
using tests::linesof;
using tests::portnamed;

/// A machine with one port.
struct OnePort : Companion {
    OnePort() { store({portnamed("Round Haven")}); }

    std::string month(const std::string& date, const char* summer, const char* format = "csv") const {
        return run({"--port", "1", "--month", "--date", date, "--summer", summer, "--format", format}).out;
    }
};

TEST(Month, TheWorkedDayInEveryFormat) {
    const OnePort machine;
    const std::string csv = machine.month("2024-04-20", "off");
    EXPECT_TRUE(csv.starts_with("port,name,year,month,day,weekday,time,height\n1,Round Haven,2024,4,1,Mon,02:20,"));
    EXPECT_NE(csv.find("\n1,Round Haven,2024,4,9,Tue,04:40,5.54\n1,Round Haven,2024,4,9,Tue,10:50,0.67\n"
                       "1,Round Haven,2024,4,9,Tue,17:00,5.52\n1,Round Haven,2024,4,9,Tue,23:10,0.67\n"),
              std::string::npos)
        << csv;
    EXPECT_NE(
        machine.month("2024-04-20", "off", "json")
            .find("{\"port\": 1, \"name\": \"Round Haven\", \"year\": 2024, \"month\": 4, \"day\": 9, \"weekday\": "
                  "\"Tue\", \"time\": \"17:00\", \"height\": 5.52}"),
        std::string::npos);
    const std::string text = machine.month("2024-04-20", "off", "text");
    for (const char* part :
         {"Round Haven, port 1 of UK.hc\n", "\nApril 2024\n", "WITHOUT SUMMER TIME CORRECTION (UT)\n",
          "\nTue  9   04:40   5.54   10:50   0.67   17:00   5.52   23:10   0.67\n", "\nTue 30   "})
        EXPECT_NE(text.find(part), std::string::npos) << part << "\n" << text;
    EXPECT_NE(machine.month("2024-04-20", "on", "text").find("FOR SUMMER TIME (UT+1)\n"), std::string::npos);
}

TEST(Month, TheSameAsItsDaysOneByOne) {
    const OnePort machine;
    for (const char* month : {"2024-02", "2023-02", "2024-12", "2025-01"}) {
        const std::string first = std::string(month) + "-01";
        const auto table = linesof(machine.month(std::string(month) + "-15", "off"));
        const int days =
            DaysInMonth(static_cast<int>(val(first.substr(0, 4))), static_cast<int>(val(first.substr(5, 2))));
        const auto single = linesof(machine
                                        .run({"--port", "1", "--date", first, "--days", std::to_string(days),
                                              "--summer", "off", "--format", "csv"})
                                        .out);
        ASSERT_EQ(table.size(), single.size());
        EXPECT_EQ(fieldsof(table.back())[4], std::to_string(days));
        for (std::size_t i = 1; i < table.size(); ++i) {
            const auto ours = fieldsof(table[i]), theirs = fieldsof(single[i]);
            EXPECT_EQ(val(ours[4]), val(theirs[2].substr(8))) << table[i];
            EXPECT_EQ(ours[6], theirs[3]);
            EXPECT_NEAR(val(ours[7]), val(theirs[4]), 0.00506);
        }
    }
}

TEST(Month, OneShiftThatOfTheDateAndNoMatterHowManyDays) {
    const OnePort machine;
    const std::string standard = machine.month("2024-03-31", "off");
    EXPECT_EQ(machine.month("2024-03-01", "off"), standard);
    EXPECT_EQ(machine.month("2024-03-30", "on"), standard);
    const std::string shifted = machine.month("2024-03-31", "on");
    EXPECT_NE(shifted, standard);
    EXPECT_EQ(fieldsof(linesof(shifted)[1])[4], "1");
    EXPECT_EQ(machine
                  .run({"--port", "1", "--month", "--date", "2024-03-31", "--summer", "on", "--days", "900", "--format",
                        "csv"})
                  .out,
              shifted);
}

TEST(Month, DaysWithoutFiguresSaySo) {
    Companion machine;
    HarmonicRecord flat;
    flat.PortName = "Still Water";
    flat.TimeZoneLetter = "L";
    machine.store({portnamed("Round Haven"), flat});
    const auto count = [](const std::string& text, const char* part) {
        std::size_t found = 0;
        for (const std::string& line : linesof(text))
            found += line.find(part) != std::string::npos;
        return found;
    };
    const std::string broken = machine.run({"--port", "1", "--month", "--date", "1990-01-20"}).out;
    EXPECT_EQ(count(broken, "divides by zero"), 2U) << broken;
    EXPECT_NE(broken.find("\nTue  2   No prediction"), std::string::npos);
    const std::string still = machine.run({"--port", "2", "--month", "--date", "2024-02-20"}).out;
    EXPECT_EQ(count(still, "No high or low water on this day"), 29U);
    EXPECT_EQ(machine.run({"--port", "all", "--month", "--date", "9999-12-31"}).status, 0);
}

}  // namespace
}  // namespace tarvane
