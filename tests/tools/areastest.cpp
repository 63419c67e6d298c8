// Several sea areas at once: which are read, which port a name means among them, and that their tables are those of
// each area put together.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <streambuf>

#include "tools/companion.h"

namespace tarvane::tests {
namespace {

/// Takes so many bytes and no more, as a full disk or a reader that goes away.
struct FullBuffer : std::streambuf {
    explicit FullBuffer(std::streamsize most) : room(most) {}
    int_type overflow(int_type character) override { return room-- > 0 ? character : traits_type::eof(); }
    std::streamsize xsputn(const char*, std::streamsize count) override {
        const std::streamsize taken = std::min(count, room);
        room -= taken;
        return taken;
    }
    std::streamsize room;
};

struct Areas : Companion {
    Areas() {
        store({portnamed("Dover"), portnamed("Saint Helier")});
        store({portnamed("Dover (DE)"), portnamed("Lewes"), portnamed("Calais")}, "US East, inner.hc");
        store({portnamed("Calais"), portnamed("calais")}, "France.hc");
    }
};

TEST_F(Areas, TablesOfAllAreThoseOfEachAndNameIt) {
    for (const std::string view : {"", "--samples", "--month", "--sun", "--list", "--waters", "--access --bottom -1"}) {
        std::string wanted;
        for (const auto& [file, cell] :
             {std::pair{"France.hc", "France"}, {"UK.hc", "UK"}, {"US East, inner.hc", "\"US East, inner\""}}) {
            std::string line = view + " --port all --days 2 --format csv --area";
            std::istringstream words(line);
            std::vector<std::string> arguments{std::istream_iterator<std::string>(words), {}};
            arguments.push_back(areapath(file));
            const auto lines = linesof(runwith(arguments).out);
            ASSERT_GT(lines.size(), 1U) << view;
            if (wanted.empty()) wanted = lines[0] + ",area\n";
            for (std::size_t i = 1; i < lines.size(); ++i)
                wanted += lines[i] + "," + cell + "\n";
        }
        EXPECT_EQ(csv(view + " --port all --days 2 --area all"), wanted) << view;
        const auto objects = nlohmann::json::parse(run(view + " --port all --days 2 --area all --format json").out);
        EXPECT_EQ(objects.size() + 1, linesof(wanted).size()) << view;
        EXPECT_EQ(objects.back()["area"], "US East, inner") << view;
    }
    const auto now = linesof(csv("--now --port all --area all"));
    ASSERT_EQ(now.size(), 8U);
    EXPECT_TRUE(now[0].ends_with(",area") && now[3].ends_with(",UK")) << now[3];
    EXPECT_EQ(csv("--orbital --area all"), csv("--orbital"));
}

TEST_F(Areas, LongRunsOfManyPortsKeepTheirOrder) {
    store(std::vector<HarmonicRecord>(9, portnamed("Many")), "Many.hc");
    const auto lines = linesof(csv("--port all --days 800 --area all"));
    std::string before;
    std::size_t rows = 0;
    for (const std::string& line : lines) {
        const auto fields = fieldsof(line);
        if (fields[1] != "Many") continue;
        const std::string place = fields[0] + " " + fields[6];
        EXPECT_LT(before, place);
        before = place;
        ++rows;
    }
    EXPECT_EQ(rows, 9 * (linesof(csv("--port 1 --days 800 --area " + areapath("Many.hc"))).size() - 1));
}

TEST_F(Areas, APortIsFoundByNameWhereverItIs) {
    for (const auto& [line, wanted] :
         {std::pair{"dover", "Dover, port 1 of UK.hc"},
          {"st helier", "Saint Helier, port 2 of UK.hc"},
          {"lew", "Lewes, port 2 of US East, inner.hc"},
          {"calais", "calais, port 2 of France.hc"},
          {"Calais", "'Calais' fits 3 ports: Calais of France.hc, calais of France.hc, Calais of US East, inner.hc"},
          {"do", "'do' fits 2 ports: Dover of UK.hc, Dover (DE) of US East, inner.hc"},
          {"doverr", "no area has a port 'doverr'; the nearest names are Dover of UK.hc"},
          {"2", "a port's number is one of an area"},
          {"", "--area all needs --port"}}) {
        const Outcome outcome = run(std::string("--area all ") + line);
        EXPECT_TRUE(has(outcome.out + outcome.err, wanted)) << line << ": " << outcome.out << outcome.err;
        EXPECT_EQ(outcome.out.empty(), outcome.status == 2) << line;
    }
}

TEST_F(Areas, OneTextOneCalendarAndOneConclusion) {
    const std::string text = run("--area all --port all").out;
    std::size_t conclusions = 0;
    for (const std::string& line : linesof(text))
        conclusions += line.starts_with("Heights in Metres") ? 1U : 0U;
    EXPECT_EQ(conclusions, 1U);
    EXPECT_TRUE(has(text, "\n\nDover, port 1 of UK.hc\n")) << text;
    EXPECT_TRUE(has(run("--area all --list").out, "\n\nUK.hc\n Port  Name"));
    const std::string calendar = run("--area all --port all --waters --format ics").out;
    EXPECT_EQ(calendar.find("BEGIN:VCALENDAR"), calendar.rfind("BEGIN:VCALENDAR"));
    EXPECT_TRUE(calendar.ends_with("END:VCALENDAR\r\n"));
}

TEST_F(Areas, WhatIsNoAreaIsToldAndPassedOver) {
    putfile(areapath("Empty.hc"), "");
    store({portnamed("Scratch")}, "scratch.hc");
    HarmonicRecord broken = portnamed("Broken");
    broken.Z0 = std::numeric_limits<float>::quiet_NaN();
    store({broken}, "Wreck.hc");
    const Outcome outcome = run("--area all --port all --format csv");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(has(outcome.err, "Empty.hc holds no ports"));
    EXPECT_TRUE(has(outcome.err, "no prediction for Broken, port 1 of Wreck.hc, on 2024-04-09")) << outcome.err;
    EXPECT_FALSE(has(outcome.out, "Scratch"));
}

TEST_F(Areas, AnOutputThatFailsEndsTheRun) {
    for (const char* line : {"--samples", "--waters", "--list", "", "--now --format text"}) {
        for (const std::streamsize room : {0, 1000}) {
            FullBuffer buffer(room);
            std::ostream out(&buffer);
            std::ostringstream err;
            std::istringstream words(std::string(line) + " --port all --area all");
            std::vector<std::string> arguments{std::istream_iterator<std::string>(words), {}};
            if (!has(line, "format")) arguments.insert(arguments.end(), {"--format", "csv"});
            if (!has(line, "now")) arguments.insert(arguments.end(), {"--days", "900"});
            EXPECT_EQ(runtides(arguments, environment, out, err), room == 0 || !has(line, "list") ? 2 : 0) << line;
            const bool told = err.str() == "tides: the result could not be written\n";
            EXPECT_EQ(told, room == 0 || !has(line, "list")) << line << err.str();
        }
    }
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {"--version"}, {"--help"}, {"about", "--help"}, {"fit", "--help"}, {"streams", "--help"}}) {
        FullBuffer buffer(0);
        std::ostream out(&buffer);
        std::ostringstream err;
        EXPECT_EQ(runtides(arguments, environment, out, err), 2) << arguments.front();
        EXPECT_EQ(err.str(), "tides: the result could not be written\n");
    }
}

}  // namespace
}  // namespace tarvane::tests
