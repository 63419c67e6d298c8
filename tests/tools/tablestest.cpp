// The CSV and JSON tables: their headers, figures worked elsewhere, and that they stay well-formed whatever a file
// holds.
#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <locale>

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

/// Reads one JSON value, every rule of the grammar that `tides` can meet; false at the first fault.
class JsonReader {
  public:
    explicit JsonReader(std::string_view json) : text(json) {}
    bool whole() { return value() && (blanks(), at == text.size()); }

  private:
    void blanks() {
        while (at < text.size() && std::string_view(" \n\r\t").find(text[at]) != std::string_view::npos)
            ++at;
    }
    bool take(char wanted) {
        blanks();
        if (at >= text.size() || text[at] != wanted) return false;
        ++at;
        return true;
    }
    bool string() {
        if (!take('"')) return false;
        for (; at < text.size() && text[at] != '"'; ++at) {
            if (static_cast<unsigned char>(text[at]) < 0x20) return false;
            if (text[at] == '\\' && std::string_view("\"\\/bfnrtu").find(text[++at]) == std::string_view::npos)
                return false;
        }
        return take('"');
    }
    bool number() {
        const std::size_t from = at;
        while (at < text.size() && std::string_view("0123456789.-").find(text[at]) != std::string_view::npos)
            ++at;
        double read = 0;
        const auto result = std::from_chars(text.data() + from, text.data() + at, read);
        const std::size_t digits = from + (text[from] == '-' ? 1 : 0);
        const bool leadingzero = text[digits] == '0' && digits + 1 < at && text[digits + 1] != '.';
        return result.ec == std::errc{} && result.ptr == text.data() + at && text[digits] != '.' && !leadingzero;
    }
    template <typename Item>
    bool items(char open, char close, Item item) {
        if (!take(open)) return false;
        if (take(close)) return true;
        do {
            if (!item()) return false;
        } while (take(','));
        return take(close);
    }
    bool value() {
        blanks();
        if (at >= text.size()) return false;
        if (text[at] == '[') return items('[', ']', [&] { return value(); });
        if (text[at] == '{') return items('{', '}', [&] { return string() && take(':') && value(); });
        if (text[at] == '"') return string();
        if (text.substr(at, 4) == "null") return at += 4, true;
        return number();
    }
    std::string_view text;
    std::size_t at = 0;
};

const std::vector<std::vector<std::string>> viewoptions{{},        {"--samples"}, {"--month"},
                                                        {"--sun"}, {"--orbital"}, {"--list"}};

std::vector<std::string> with(std::vector<std::string> arguments, const std::vector<std::string>& more) {
    arguments.insert(arguments.end(), more.begin(), more.end());
    return arguments;
}

TEST(Rows, FixedDecimalsRoundTheExactValue) {
    const struct {
        double value;
        int decimals;
        const char* text;
    } rows[] = {{0.5, 0, "0"},      {1.5, 0, "2"},           {1.005, 2, "1.00"},
                {0.125, 2, "0.12"}, {-0.00001, 4, "0.0000"}, {-0.0, 2, "0.00"},
                {-0.5, 1, "-0.5"},  {24, 9, "24.000000000"}, {1e22, 1, "10000000000000000000000.0"}};
    for (const auto& row : rows)
        EXPECT_EQ(fixed(row.value, row.decimals), row.text);
    EXPECT_EQ(fixed(-std::numeric_limits<double>::max(), 12).size(), 1 + 309 + 1 + 12U);
    EXPECT_EQ(shortest(50.9F), "50.9");
    EXPECT_EQ(shortest(-1.4F), "-1.4");
    EXPECT_EQ(shortest(0.0F), "0");
}

TEST(Tables, WorkedDay) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    machine.configure(1);
    const auto lines = linesof(machine.run({"--date", "2024-04-09", "--summer", "off", "--format", "csv"}).out);
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0], "port,name,date,time,height,kind");
    const struct {
        const char* time;
        double height;
        const char* kind;
    } rows[] = {{"04:40", 5.54, "high"}, {"10:50", 0.67, "low"}, {"17:00", 5.52, "high"}, {"23:10", 0.67, "low"}};
    for (std::size_t i = 0; i < 4; ++i) {
        const auto fields = fieldsof(lines[i + 1]);
        ASSERT_EQ(fields.size(), 6U);
        EXPECT_EQ(fields[0] + fields[1] + fields[2], "1Round Haven2024-04-09");
        EXPECT_EQ(fields[3], rows[i].time);
        EXPECT_NEAR(val(fields[4]), rows[i].height, 0.005);
        EXPECT_EQ(fields[4].size() - fields[4].find('.'), 5U);
        EXPECT_EQ(fields[5], rows[i].kind);
    }
}

TEST(Tables, SamplesAddUpToTheHeightWithTheDepth) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    machine.configure(1, 3);
    machine.storedepth(2.5F);
    const auto lines = linesof(machine.run({"--samples", "--format", "csv", "--days", "2"}).out);
    ASSERT_EQ(lines.size(), 1 + 2 * 145U);
    EXPECT_EQ(lines[0], "port,date,row,hours,height,m2,s2,k1,o1,f4,f6,z0");
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto fields = fieldsof(lines[i]);
        ASSERT_EQ(fields.size(), 12U);
        const std::size_t row = (i - 1) % 145 + 1;
        EXPECT_EQ(fields[1], i <= 145 ? "2024-04-09" : "2024-04-10");
        EXPECT_EQ(fields[2], std::to_string(row));
        EXPECT_NEAR(val(fields[3]), static_cast<double>(row - 1) / 6, 1e-9);
        double sum = 2.5;
        for (std::size_t part = 5; part < 12; ++part)
            sum += val(fields[part]);
        EXPECT_NEAR(val(fields[4]), sum, 1e-8) << lines[i];
        for (std::size_t part = 3; part < 12; ++part) {
            EXPECT_EQ(fields[part].size() - fields[part].find('.'), 10U) << lines[i];
        }
    }
    // one day's 24:00 is the next day's 00:00 but for the whole degrees of the angles
    EXPECT_NEAR(val(fieldsof(lines[145])[4]), val(fieldsof(lines[146])[4]), 0.05);
}

TEST(Tables, OrbitalFiguresNeedNoAreaFile) {
    const Companion machine;
    const struct {
        const char* date;
        int angles[4];
        double factors[4];
    } rows[] = {{"1998-01-01", {58, 4, 359, 68}, {1.1284, 0.8633, 1.2480, 0.9240}},
                {"2024-04-09", {7, 355, 240, 115}, {1.1976, 1.3083, 0.9395, 1.4669}}};
    for (const auto& row : rows) {
        const auto lines = linesof(machine.run({"--orbital", "--date", row.date, "--format", "csv"}).out);
        ASSERT_EQ(lines.size(), 2U);
        EXPECT_EQ(lines[0], "date,ma,mf,sa,sf,ka,kf,oa,of");
        const auto fields = fieldsof(lines[1]);
        ASSERT_EQ(fields.size(), 9U);
        EXPECT_EQ(fields[0], row.date);
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(fields[1 + 2 * i], std::to_string(row.angles[i]));
            EXPECT_NEAR(val(fields[2 + 2 * i]), row.factors[i], 0.00005);
            EXPECT_EQ(fields[2 + 2 * i].size() - fields[2 + 2 * i].find('.'), 13U);
        }
    }
}

TEST(Tables, SunFigures) {
    Companion machine;
    HarmonicRecord north = portnamed("North");
    north.PortLat = 70;
    north.PortLong = 20;
    machine.store({portnamed("Round Haven"), north});
    const struct {
        const char* port;
        const char* date;
        const char* times[8];
    } rows[] = {
        {"1", "2024-06-21", {"00:00", "01:55", "03:05", "03:52", "20:23", "21:10", "22:20", "00:00"}},
        {"1", "2024-12-21", {"06:04", "06:44", "07:27", "08:06", "16:02", "16:42", "17:24", "18:04"}},
        {"2", "2024-12-21", {"05:26", "06:46", "08:35", "00:00", "00:00", "12:42", "14:31", "15:51"}},
    };
    for (const auto& row : rows) {
        const auto lines =
            linesof(machine.run({"--sun", "--port", row.port, "--date", row.date, "--format", "csv"}).out);
        ASSERT_EQ(lines.size(), 2U);
        EXPECT_EQ(lines[0], "port,date,astrodawn,nautdawn,civildawn,sunrise,sunset,civildusk,nautdusk,astrodusk");
        const auto fields = fieldsof(lines[1]);
        ASSERT_EQ(fields.size(), 10U);
        for (std::size_t i = 0; i < 8; ++i)
            EXPECT_EQ(timetext(val(fields[i + 2])), row.times[i]) << lines[1];
    }
    const auto summer =
        linesof(machine.run({"--sun", "--port", "1", "--date", "2024-06-21", "--format", "csv", "--summer", "on"}).out);
    EXPECT_EQ(timetext(val(fieldsof(summer.at(1)).at(5))), "04:52");
}

TEST(Tables, ListAndQuoting) {
    Companion machine;
    HarmonicRecord west = portnamed("Hook, \"the\" West");
    west.TimeZoneLetter = "K";
    machine.store({portnamed("Fécamp"), west});
    EXPECT_EQ(machine.run({"--list", "--format", "csv"}).out,
              "port,name,latitude,longitude,zone\n1,Fécamp,50.9,-1.4,L\n2,\"Hook, \"\"the\"\" West\",50.9,-1.4,K\n");
    EXPECT_EQ(machine.run({"--list", "--format", "json"}).out,
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
    for (const auto& view : viewoptions) {
        const auto json = machine.run(with(view, {"--port", "all", "--days", "2", "--format", "json"}));
        EXPECT_EQ(json.status, 0) << json.err;
        EXPECT_TRUE(JsonReader(json.out).whole()) << json.out.substr(0, 2000);
        const auto csv = machine.run(with(view, {"--port", "3", "--days", "2", "--format", "csv"}));
        const auto text = machine.run(with(view, {"--port", "all", "--days", "2"}));
        EXPECT_EQ(csv.status + text.status, 0);
        EXPECT_EQ(text.out.find_first_of("\t\x7F\r"), std::string::npos);
    }
    // flat water has no high or low water: an empty table is still a table
    EXPECT_EQ(machine.run({"--port", "3", "--format", "json"}).out, "[]\n");
    EXPECT_EQ(machine.run({"--port", "3", "--format", "csv"}).out, "port,name,date,time,height,kind\n");
}

struct CommaPoint : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
};

TEST(Tables, TheSameUnderAnyLocaleAndRefusedWhenTheyCantBeWritten) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    for (const auto& view : viewoptions) {
        for (const char* format : {"csv", "json", "text"}) {
            const auto arguments = with(view, {"--port", "1", "--format", format});
            std::ostringstream out;
            std::ostringstream err;
            out.imbue(std::locale(std::locale::classic(), new CommaPoint));
            EXPECT_EQ(runtides(arguments, machine.environment, out, err), 0);
            EXPECT_EQ(out.str(), machine.run(arguments).out);
            out.setstate(std::ios::badbit);
            EXPECT_EQ(runtides(arguments, machine.environment, out, err), 2);
            EXPECT_NE(err.str(), "");
        }
    }
}

TEST(Tables, AWalkOverEveryShippedPort) {
    Companion machine;
    std::ifstream file(std::string(TARVANE_DATA) + "/uk-ports.csv", std::ios::binary);
    const PortsTable table = readportscsv(std::string(std::istreambuf_iterator<char>(file), {}));
    ASSERT_FALSE(table.fault) << table.fault->reason;
    machine.store(table.ports);
    EXPECT_EQ(linesof(machine.run({"--list", "--format", "csv"}).out).size(), table.ports.size() + 1);
    const auto lines = linesof(
        machine.run({"--port", "all", "--date", "2024-02-27", "--days", "4", "--summer", "on", "--format", "csv"}).out);
    std::size_t line = 1;
    for (std::size_t port = 1; port <= table.ports.size(); ++port) {
        for (const char* date : {"2024-02-27", "2024-02-28", "2024-02-29", "2024-03-01"}) {
            std::size_t count = 0;
            double before = 0;
            for (; line < lines.size() && fieldsof(lines[line])[0] == std::to_string(port) &&
                   fieldsof(lines[line])[2] == date;
                 ++line, ++count) {
                const auto fields = fieldsof(lines[line]);
                const double height = val(fields[4]);
                if (count > 0) {
                    EXPECT_EQ(fields[5], height > before ? "high" : "low") << lines[line];
                }
                before = height;
            }
            EXPECT_GE(count, 3U) << port << " " << date;
        }
    }
    EXPECT_EQ(line, lines.size());
}

TEST(Tables, DaysInARowAreTheSingleDays) {
    Companion machine;
    machine.store({portnamed("Round Haven")});
    const auto arguments = [](const char* date, const char* days) {
        return std::vector<std::string>{"--port", "1",      "--summer", "on",       "--date",
                                        date,     "--days", days,       "--format", "csv"};
    };
    for (const std::vector<const char*>& days : std::vector<std::vector<const char*>>{
             {"2023-12-31", "2024-01-01"}, {"2024-03-30", "2024-03-31"}, {"2024-10-26", "2024-10-27"}}) {
        const std::string second = machine.run(arguments(days[1], "1")).out;
        EXPECT_EQ(machine.run(arguments(days[0], "2")).out,
                  machine.run(arguments(days[0], "1")).out + second.substr(second.find('\n') + 1));
    }
}

}  // namespace
}  // namespace tarvane
