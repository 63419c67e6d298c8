// The CSV and JSON tables: their headers, figures worked elsewhere, and that they stay well-formed whatever a file
// holds.
#include <gtest/gtest.h>

#include <limits>
#include <locale>
#include <nlohmann/json.hpp>
#include <set>

#include "portdata/portscsv.h"
#include "text/numbers.h"
#include "text/timetext.h"
#include "tides/rows.h"
#include "tools/companion.h"

namespace tarvane {
namespace {

using tests::Companion;
using tests::fieldsof;
using tests::linesof;
using tests::portnamed;

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

TEST(Tables, SamplesAddUpToTheHeightWithTheDepth) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    machine.configure(1, 3);
    machine.storedepth(2.5F);
    const auto lines = linesof(machine.csv("--samples --days 2"));
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

TEST(Tables, OrbitalFiguresNeedNoAreaFile) {
    const auto lines = linesof(Companion().csv("--orbital --date 1998-01-01"));
    EXPECT_EQ(lines.at(0), "date,ma,mf,sa,sf,ka,kf,oa,of");
    const double wanted[] = {58, 1.1284, 4, 0.8633, 359, 1.2480, 68, 0.9240};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_NEAR(val(fieldsof(lines.at(1)).at(i + 1)), wanted[i], 0.00005) << i;
}

TEST(Tables, SunFigures) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    const auto lines = linesof(machine.csv("--sun --port 1 --date 2024-06-21"));
    EXPECT_EQ(lines.at(0), "port,date,astrodawn,nautdawn,civildawn,sunrise,sunset,civildusk,nautdusk,astrodusk");
    const char* times[] = {"00:00", "01:55", "03:05", "03:52", "20:23", "21:10", "22:20", "00:00"};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(timetext(val(fieldsof(lines.at(1)).at(i + 2))), times[i]) << lines[1];
}

TEST(Tables, JsonHoldsWhatCsvHolds) {
    Companion machine;
    HarmonicRecord west = portnamed("Hook \\ West");
    west.TimeZoneLetter = "K";
    machine.store({portnamed("Fécamp"), west});
    machine.configure(1, 2);
    machine.storedepth(2.5F);
    for (const std::string view : viewoptions) {
        const auto lines = linesof(machine.csv(view + " --port all --days 2"));
        const auto objects =
            nlohmann::ordered_json::parse(machine.run(view + " --port all --days 2 --format json").out);
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

TEST(Tables, NamesThatNeedQuotes) {
    Companion machine;
    const std::string name = "Hook, \"the\" West";
    machine.store({portnamed(name)});
    EXPECT_EQ(machine.csv("--list"), "port,name,latitude,longitude,zone\n1,\"Hook, \"\"the\"\" West\",50.9,-1.4,L\n");
    EXPECT_EQ(nlohmann::json::parse(machine.run("--list --format json").out)[0]["name"], name);
}

TEST(Tables, WellFormedWhateverTheFileHolds) {
    Companion machine;
    HarmonicRecord wild = portnamed("Tab\there \\ \"x\"\nnext\x7F");
    wild.M2g = std::numeric_limits<float>::quiet_NaN();
    wild.PortLat = std::numeric_limits<float>::infinity();
    HarmonicRecord huge = portnamed("");
    huge.MHm2.fill(std::numeric_limits<float>::max());
    huge.LF6 = std::numeric_limits<float>::max();
    huge.PortLong = std::numeric_limits<float>::lowest();
    machine.store({wild, huge, HarmonicRecord{}, portnamed("Sound")});
    for (const std::string view : viewoptions) {
        const auto json = machine.run(view + " --port all --days 2 --format json");
        EXPECT_EQ(json.status, 0) << json.err;
        EXPECT_TRUE(nlohmann::json::accept(json.out)) << json.out.substr(0, 2000);
        const std::string text = machine.run(view + " --port all --days 2").out + json.err;
        EXPECT_EQ(text.find_first_of("\t\x7F\r"), std::string::npos);
        EXPECT_FALSE(tests::has(text, "nan") || tests::has(text, "inf")) << text.substr(0, 2000);
    }
    // flat water has no high or low water: an empty table is still a table
    EXPECT_EQ(machine.run("--port 3 --format json").out, "[]\n");
    EXPECT_EQ(machine.csv("--port 3"), "port,name,date,time,height,kind,moment,depth\n");
}

TEST(Tables, DaysWithoutAPredictionAreLeftOutAndTold) {
    Companion machine;
    HarmonicRecord broken = portnamed("Broken");
    broken.S2Hm = std::numeric_limits<float>::infinity();
    machine.store({portnamed("Sound"), broken});
    const std::string noconstants = ": The method has no constants for this day\n";
    const std::string brokenrecord = ": The port's record holds values that are no numbers\n";
    const std::string told =
        "tides: no prediction for Sound, port 1, on 2 days from 1990-01-01 to 1990-01-02" + noconstants +
        "tides: no prediction for Broken, port 2, on 2 days from 1989-12-31 to 1990-01-03" + brokenrecord +
        "tides: no prediction for Broken, port 2, on 2 days from 1990-01-01 to 1990-01-02" + noconstants;
    for (const std::string view : {"", "--samples"}) {
        const auto outcome = machine.run(view + " --port all --date 1989-12-31 --days 4 --format csv");
        EXPECT_EQ(std::to_string(outcome.status) + outcome.err, "0" + told);
        const std::string after = machine.csv(view + " --port 1 --date 1990-01-03");
        EXPECT_EQ(outcome.out, machine.csv(view + " --port 1 --date 1989-12-31") + after.substr(after.find('\n') + 1));
    }
    using Row = std::pair<std::string, std::string>;
    for (const auto& [line, fault] :
         {Row{"1 --date 1990-01-02", "no prediction for Sound, port 1, on 1990-01-02" + noconstants},
          Row{"2 --month", "no prediction for Broken, port 2, on 30 days from 2024-04-01 to 2024-04-30" + brokenrecord},
          Row{"--orbital --date 1990-01-01", "no angles and factors on 1990-01-01" + noconstants}}) {
        for (const std::string format : {" --format csv", " --format json"}) {
            const auto outcome = machine.run(line + format);
            EXPECT_EQ(std::to_string(outcome.status) + outcome.out + outcome.err, "2tides: " + fault);
        }
    }
}

struct CommaPoint : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
};

TEST(Tables, TheSameUnderAnyLocaleAndRefusedWhenTheyCantBeWritten) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    for (const std::string view : viewoptions) {
        for (const std::string format : {"csv", "json", "text"}) {
            std::vector<std::string> arguments{"--port", "1", "--format", format};
            if (!view.empty()) arguments.push_back(view);
            std::ostringstream out, err;
            out.imbue(std::locale(std::locale::classic(), new CommaPoint));
            EXPECT_EQ(runtides(arguments, machine.environment, out, err), 0);
            EXPECT_EQ(out.str(), machine.runwith(arguments).out);
            out.setstate(std::ios::badbit);
            EXPECT_EQ(runtides(arguments, machine.environment, out, err), 2);
            EXPECT_NE(err.str(), "");
        }
    }
}

TEST(Tables, AWalkOverEveryShippedPort) {
    Companion machine;
    std::ifstream file(std::string(TARVANE_DATA) + "/uk-ports.csv", std::ios::binary);
    machine.store(readportscsv(std::string(std::istreambuf_iterator<char>(file), {})).ports);
    const auto lines = linesof(machine.csv("--port all --date 2026-07-14 --days 4 --summer on"));
    std::set<std::string> days;
    int midnights = 0;
    std::vector<std::string> before(8);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto fields = fieldsof(lines[i]);
        const bool centraleurope = val(fields[0]) >= 70 && val(fields[0]) != 79;
        EXPECT_EQ(fields[6], fields[2] + "T" + fields[3] + (centraleurope ? "+02:00" : "+01:00")) << lines[i];
        if (fields[0] == before[0]) {
            EXPECT_EQ(fields[5], val(fields[4]) > val(before[4]) ? "high" : "low") << lines[i];
            EXPECT_GT(fields[6], before[6]) << lines[i];
        }
        midnights += fields[3] == "00:00";
        days.insert(fields[0] + " " + fields[2]);
        before = fields;
    }
    EXPECT_GE(days.size(), 84U * 4);
    EXPECT_GT(midnights, 5);
}

TEST(Tables, EachDayHasItsOwnSummerShift) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    const std::string days = "--port 1 --summer on --date ";
    const std::string second = machine.csv(days + "2024-03-31");
    EXPECT_EQ(machine.csv(days + "2024-03-30 --days 2"),
              machine.csv(days + "2024-03-30") + second.substr(second.find('\n') + 1));
    EXPECT_TRUE(tests::has(second, "+01:00,0\n")) << second;
}

}  // namespace
}  // namespace tarvane
