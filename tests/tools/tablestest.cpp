// The CSV and JSON tables: their headers, figures worked elsewhere, and that they stay well-formed whatever a file
// holds.
#include <gtest/gtest.h>

#include <limits>
#include <locale>
#include <nlohmann/json.hpp>

#include "text/numbers.h"
#include "tides/rows.h"
#include "tools/companion.h"

namespace tarvane::tests {
namespace {

using Tables = Companion;

const char* const viewoptions[] = {"", "--samples", "--month", "--sun", "--orbital", "--list"};

TEST(Rows, FixedDecimalsRoundTheExactValue) {
    using Row = std::tuple<double, int, const char*>;
    for (const auto& [value, decimals, text] :
         {Row{0.5, 0, "0"}, Row{1.5, 0, "2"}, Row{1.005, 2, "1.00"}, Row{0.125, 2, "0.12"}, Row{-0.00001, 4, "0.0000"},
          Row{-0.0, 2, "0.00"}, Row{-0.5, 1, "-0.5"}, Row{1e22, 1, "10000000000000000000000.0"}})
        EXPECT_EQ(fixed(value, decimals), text);
    EXPECT_EQ(fixed(-std::numeric_limits<double>::max(), 12).size(), 1 + 309 + 1 + 12U);
    EXPECT_EQ(shortest(-1.4F) + shortest(0.0F), "-1.40");
}

TEST_F(Tables, SamplesAddUpToTheHeightWithTheDepth) {
    store({portnamed("Round Haven")});
    configure(1, 3);
    storedepth(2.5F);
    const auto lines = linesof(csv("--samples --days 2"));
    ASSERT_EQ(lines.size(), 1 + 2 * 145U);
    EXPECT_EQ(lines[0], "port,date,row,hours,height,m2,s2,k1,o1,f4,f6,z0,moment,depth");
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto fields = fieldsof(lines[i]);
        const std::size_t row = (i - 1) % 145 + 1;
        EXPECT_EQ(fields[1] + " " + fields[2], (i <= 145 ? "2024-04-09 " : "2024-04-10 ") + std::to_string(row));
        EXPECT_NEAR(val(fields[3]), static_cast<double>(row - 1) / 6, 1e-9);
        double sum = 2.5;
        for (std::size_t part = 5; part < 12; ++part)
            sum += val(fields[part]);
        EXPECT_NEAR(val(fields[4]), sum, 1e-8) << lines[i];
        EXPECT_EQ(fields[13], "2.5");
    }
    EXPECT_EQ(fieldsof(lines[2])[12], "2024-04-09T00:10+00:00");
    EXPECT_EQ(fieldsof(lines[145])[12], fieldsof(lines[146])[12]);
    // one day's 24:00 is the next day's 00:00 but for the whole degrees of the angles
    EXPECT_NEAR(val(fieldsof(lines[145])[4]), val(fieldsof(lines[146])[4]), 0.05);
}

TEST_F(Tables, AMonthHasOneShiftThatOfTheDateAndNoMatterHowManyDays) {
    store({portnamed("Round Haven")});
    const std::string april = csv("--port 1 --month --date 2024-04-20 --summer off");
    EXPECT_TRUE(april.starts_with("port,name,year,month,day,weekday,time,height,moment,depth\n"));
    EXPECT_TRUE(has(april,
                    "\n1,Round Haven,2024,4,9,Tue,04:40,5.54,2024-04-09T04:40+00:00,0\n"
                    "1,Round Haven,2024,4,9,Tue,10:50,0.67,2024-04-09T10:50+00:00,0\n"));
    const std::string shifted = csv("--port 1 --month --summer on --date 2024-03-31");
    EXPECT_TRUE(has(shifted, ",2024-03-01T02:30+01:00,0\n")) << shifted;
    EXPECT_TRUE(has(csv("--port 1 --month --summer on --date 2024-03-30"), "+00:00,0\n"));
    EXPECT_EQ(csv("--port 1 --month --summer on --date 2024-03-31 --days 900"), shifted);
}

TEST_F(Tables, JsonHoldsWhatCsvHolds) {
    HarmonicRecord west = portnamed("Hook \\ West");
    west.TimeZoneLetter = "K";
    store({portnamed("Fécamp"), west});
    configure(1, 2);
    storedepth(2.5F);
    for (const std::string view : viewoptions) {
        const auto lines = linesof(csv(view + " --port all --days 2"));
        const auto objects = nlohmann::ordered_json::parse(run(view + " --port all --days 2 --format json").out);
        ASSERT_EQ(objects.size() + 1, lines.size());
        for (std::size_t i = 0; i < objects.size(); ++i) {
            const auto heads = fieldsof(lines[0]), cells = fieldsof(lines[i + 1]);
            ASSERT_EQ(objects[i].size(), cells.size());
            std::size_t column = 0;
            for (const auto& [name, value] : objects[i].items()) {
                EXPECT_EQ(name, heads[column]);
                const std::string& cell = cells[column++];
                EXPECT_TRUE(value.is_string() ? value == cell : value == std::stod(cell)) << name << " " << cell;
            }
        }
    }
}

TEST_F(Tables, WellFormedWhateverTheFileHolds) {
    HarmonicRecord wild = portnamed("Tab\there \\ \"x\"\nnext\x7F");
    wild.M2g = std::numeric_limits<float>::quiet_NaN();
    wild.PortLat = std::numeric_limits<float>::infinity();
    HarmonicRecord huge = portnamed("");
    huge.MHm2.fill(std::numeric_limits<float>::max());
    huge.LF6 = std::numeric_limits<float>::max();
    huge.PortLong = std::numeric_limits<float>::lowest();
    store({wild, huge, HarmonicRecord{}, portnamed("Sound")});
    for (const std::string view : viewoptions) {
        const auto json = run(view + " --port all --days 2 --format json");
        EXPECT_EQ(json.status, 0) << json.err;
        EXPECT_TRUE(nlohmann::json::accept(json.out)) << json.out.substr(0, 2000);
        const std::string text = run(view + " --port all --days 2").out + json.err;
        EXPECT_EQ(text.find_first_of("\t\x7F\r"), std::string::npos);
        EXPECT_FALSE(has(text, "nan") || has(text, "inf")) << text.substr(0, 2000);
    }
    // flat water has no high or low water: an empty table is still a table
    EXPECT_EQ(run("--port 3 --format json").out, "[]\n");
    EXPECT_EQ(csv("--port 3"), "port,name,date,time,height,kind,moment,depth\n");
}

struct CommaPoint : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
};

TEST_F(Tables, TheSameUnderAnyLocaleAndRefusedWhenTheyCantBeWritten) {
    store({portnamed("Round Haven")});
    for (const std::string view : viewoptions) {
        for (const std::string format : {"csv", "json", "text"}) {
            std::vector<std::string> arguments{"--port", "1", "--format", format};
            if (!view.empty()) arguments.push_back(view);
            std::ostringstream out, err;
            out.imbue(std::locale(std::locale::classic(), new CommaPoint));
            EXPECT_EQ(runtides(arguments, environment, out, err), 0);
            EXPECT_EQ(out.str(), runwith(arguments).out);
            out.setstate(std::ios::badbit);
            EXPECT_EQ(runtides(arguments, environment, out, err), 2);
            EXPECT_NE(err.str(), "");
        }
    }
}

}  // namespace
}  // namespace tarvane::tests
