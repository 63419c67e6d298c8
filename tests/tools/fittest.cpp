// Constants fitted to readings in a terminal: what is found, how it is told, and what is refused.
#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "portdata/portscsv.h"
#include "text/numbers.h"
#include "tools/companion.h"

namespace tarvane::tests {
namespace {

struct Fit : Companion {
    Fit() {
        HarmonicRecord west = portnamed("West"), east = portnamed("East"), creek = portnamed("Creek");
        west.M2g = 100, east.M2g = 140, east.PortLong = -1;
        HarmonicRecord far = portnamed("Far");
        far.TimeZoneLetter = "M";
        far.SF6 = 200;
        store({west, east, creek, far});
    }

    /// The hours of the place that lies midway, `higher` metres above it and with one wild reading.
    std::string table(double higher) const {
        std::string text =
            "\xEF\xBB\xBF"
            "date,time,height\r\n";
        for (const std::string& line : linesof(csv("creek --summer off --samples"))) {
            const std::vector<std::string> fields = fieldsof(line);
            if (fields[0] == "port" || (val(fields[2]) - 1) / 6 != std::floor((val(fields[2]) - 1) / 6)) continue;
            const int hour = static_cast<int>((val(fields[2]) - 1) / 6);
            text += "2024-04-09," + format(hour, "00") + ":00," +
                    format(val(fields[4]) + (hour == 7 ? 5 : higher), "0.000") + "\r\n";
        }
        return text;
    }

    Outcome fit(const std::string& csv, const std::string& options = "--near west --near east") const {
        std::ofstream(folder / "read.csv") << csv;
        return run("fit --readings " + (folder / "read.csv") + " " + options);
    }
};

TEST_F(Fit, FindsWhatTheReadingsHold) {
    const auto before = everything();
    const std::string near = "--near 1 --near east --position 50.9,-1.2 ";
    const auto json = nlohmann::json::parse(fit(table(0.5), near + "--format json").out);
    EXPECT_NEAR(json["level"]["metres"].get<double>(), 0.5, 0.02);
    EXPECT_NEAR(json["factor"]["times"].get<double>(), 1, 0.02);
    EXPECT_NEAR(json["shift"]["minutes"].get<double>(), 0, 2);
    EXPECT_LT(json["after"]["rms"].get<double>(), 0.03);
    EXPECT_NEAR(json["before"]["rms"].get<double>(), 0.5, 0.05);
    EXPECT_EQ(json["leftout"][0]["line"], 9);
    EXPECT_EQ(json["near"][1]["name"], "East");
    EXPECT_EQ(everything().size(), before.size() + 1) << "the readings alone";

    const PortsTable read = readportscsv(fit(table(0.5), near + "--name Inner --format csv").out);
    ASSERT_EQ(read.ports.size(), 1U);
    const HarmonicRecord& place = read.ports[0];
    EXPECT_EQ(place.PortName + place.TimeZoneLetter, "InnerL");
    EXPECT_NEAR(place.M2g, 120, 0.5);
    EXPECT_NEAR(place.PortLong, -1.2, 1e-6);
    EXPECT_EQ(place.Z0, static_cast<float>(json["z0"].get<double>()));
    EXPECT_TRUE(has(fit(table(0.5), "--near west --near east --format csv").out, "\n1,,,,L,3.")) << "nothing made up";
    const std::string text = fit(table(0.5), near).out;
    EXPECT_TRUE(has(text, "Mean level 0.50 m (+/- 0.0")) << text;
    EXPECT_TRUE(has(text, "Left out as wild: 07:00")) << text;
}

TEST_F(Fit, RefusesInOneLine) {
    const std::string good = table(0), tenth = "2024-04-09,10:00,3\n";
    using Row = std::pair<std::string, const char*>;
    for (const auto& [csv, words] :
         {Row{"", "line 1: the header"}, Row{"time,height\n", "line 1: the header"},
          Row{good + "2024-04-10,01:00,3\n", "line 27: the readings are of two dates"},
          Row{good + "\n2024-02-30,01:00,3\n", "line 28: '2024-02-30' is no date"},
          Row{good + "2024-04-09,24:01,3", "line 27: '24:01' is no time"},
          Row{good + "2024-04-09,7:00,3", "'7:00' is no time"}, Row{good + "2024-04-09,07:60,3", "no time"},
          Row{good + "2024-04-09,07:00,3 m", "'3 m' is no height"}, Row{good + "2024-04-09,07:00,nan", "no height"},
          Row{good + "2024-04-09,07:00,3,5", "line 27: 4 fields"}, Row{good + "\"2024", "line 27: a quoted"},
          Row{"date,time,height\n" + tenth, "There are 1 readings; a fit needs ten"}}) {
        const Outcome outcome = fit(csv);
        EXPECT_EQ(outcome.status, 2) << words;
        EXPECT_EQ(outcome.out, "") << words;
        EXPECT_TRUE(has(outcome.err, words)) << outcome.err;
    }
    for (const auto& [options, words] :
         {Row{"--near west", "needs two ports"}, Row{"--near west --near east --near 3", "given thrice"},
          Row{"--near west --near all", "takes one port"}, Row{"--near west --near nest", "nearest names"},
          Row{"--near west --near far", "West is in zone L and Far in zone M"},
          Row{"--near 1 --near 2 --position 91,0", "--position takes"}, Row{"--near 1 --near 2 --position 5", "takes"},
          Row{"--near 1 --near 2 --name \xE6\x97\xA5", "Windows-1252"}, Row{"creek", "no option 'creek'"}})
        EXPECT_TRUE(has(fit(good, options).err, words)) << options;
    HarmonicRecord far = portnamed("Far");
    far.SF6 = 200;
    writeport(areapath(), 4, far);
    EXPECT_TRUE(has(fit(good, "--near west --near far").err, "mean of f6 points the other way"));
}

}  // namespace
}  // namespace tarvane::tests
