// The CSV and JSON tables: their headers, figures worked elsewhere, and that they stay well-formed whatever a file
// holds.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <locale>
#include <string_view>

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

// Each takes what it is named after off the front of a text; false, whatever it has taken, when that isn't there.

bool take(std::string_view& text, std::string_view part) {
    if (!text.starts_with(part)) return false;
    text.remove_prefix(part.size());
    return true;
}

bool takedigits(std::string_view& text) {
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(count);
    return count > 0;
}

bool takenumber(std::string_view& text) {
    take(text, "-");
    return (take(text, "0") || takedigits(text)) && (!take(text, ".") || takedigits(text));
}

bool takeescape(std::string_view& text) {
    if (take(text, "u")) {
        const std::string_view code = text.substr(0, 4);
        text.remove_prefix(code.size());
        return code.size() == 4 && code.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
    }
    return text.find_first_of("\"\\bfnrt") == 0 && take(text, text.substr(0, 1));
}

bool takestring(std::string_view& text) {
    if (!take(text, "\"")) return false;
    while (!text.empty() && static_cast<unsigned char>(text.front()) >= 0x20) {
        if (take(text, "\"")) return true;
        if (!take(text, "\\"))
            text.remove_prefix(1);
        else if (!takeescape(text))
            return false;
    }
    return false;
}

bool takemember(std::string_view& text) {
    if (!takestring(text) || !take(text, ": ")) return false;
    return take(text, "null") || (text.starts_with('"') ? takestring(text) : takenumber(text));
}

bool takeobject(std::string_view& text) {
    if (!take(text, "{") || !takemember(text)) return false;
    while (take(text, ", "))
        if (!takemember(text)) return false;
    return take(text, "}");
}

/// Whether the text is a JSON array with one flat object a line.
bool soundjson(const std::string& json) {
    const auto lines = linesof(json);
    if (json == "[]\n") return true;
    if (lines.size() < 3 || lines.front() != "[" || lines.back() != "]") return false;
    for (std::size_t i = 1; i + 1 < lines.size(); ++i) {
        std::string_view line = lines[i];
        if (!takeobject(line) || line != (i + 2 < lines.size() ? "," : "")) return false;
    }
    return true;
}

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
    EXPECT_EQ(lines[0], "port,date,row,hours,height,m2,s2,k1,o1,f4,f6,z0");
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto fields = fieldsof(lines[i]);
        const std::size_t row = (i - 1) % 145 + 1;
        EXPECT_EQ(fields[1] + " " + fields[2], (i <= 145 ? "2024-04-09 " : "2024-04-10 ") + std::to_string(row));
        EXPECT_NEAR(val(fields[3]), static_cast<double>(row - 1) / 6, 1e-9);
        double sum = 2.5;
        for (std::size_t part = 5; part < 12; ++part)
            sum += val(fields[part]);
        EXPECT_NEAR(val(fields[4]), sum, 1e-8) << lines[i];
    }
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

TEST(Tables, ListAndQuoting) {
    Companion machine;
    HarmonicRecord west = portnamed("Hook, \"the\" West");
    west.TimeZoneLetter = "K";
    machine.store({portnamed("Fécamp"), west});
    EXPECT_EQ(machine.csv("--list"),
              "port,name,latitude,longitude,zone\n1,Fécamp,50.9,-1.4,L\n2,\"Hook, \"\"the\"\" West\",50.9,-1.4,K\n");
    EXPECT_EQ(machine.run("--list --format json").out,
              "[\n{\"port\": 1, \"name\": \"Fécamp\", \"latitude\": 50.9, \"longitude\": -1.4, \"zone\": \"L\"},\n"
              "{\"port\": 2, \"name\": \"Hook, \\\"the\\\" West\", \"latitude\": 50.9, \"longitude\": -1.4, "
              "\"zone\": \"K\"}\n]\n");
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
    machine.store({wild, huge, HarmonicRecord{}});
    for (const std::string view : viewoptions) {
        const auto json = machine.run(view + " --port all --days 2 --format json");
        EXPECT_EQ(json.status, 0) << json.err;
        EXPECT_TRUE(soundjson(json.out)) << json.out.substr(0, 2000);
        EXPECT_EQ(machine.run(view + " --port all --days 2").out.find_first_of("\t\x7F\r"), std::string::npos);
    }
    // flat water has no high or low water: an empty table is still a table
    EXPECT_EQ(machine.run("--port 3 --format json").out, "[]\n");
    EXPECT_EQ(machine.csv("--port 3"), "port,name,date,time,height,kind\n");
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
    const auto lines = linesof(machine.csv("--port all --date 2024-02-27 --days 4 --summer on"));
    std::map<std::string, int> waters;
    std::vector<std::string> before(6);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto fields = fieldsof(lines[i]);
        if (++waters[fields[0] + " " + fields[2]] > 1) {
            EXPECT_EQ(fields[5], val(fields[4]) > val(before[4]) ? "high" : "low") << lines[i];
        }
        before = fields;
    }
    EXPECT_EQ(waters.size(), 84U * 4);
    for (const auto& [day, count] : waters)
        EXPECT_GE(count, 3) << day;
}

TEST(Tables, DaysInARowAreTheSingleDays) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    const std::string days = "--port 1 --summer on --date ";
    using Row = std::pair<std::string, std::string>;
    for (const auto& [first, next] : {Row{"2023-12-31", "2024-01-01"}, Row{"2024-03-30", "2024-03-31"}}) {
        const std::string second = machine.csv(days + next);
        EXPECT_EQ(machine.csv(days + first + " --days 2"),
                  machine.csv(days + first) + second.substr(second.find('\n') + 1));
    }
}

}  // namespace
}  // namespace tarvane
