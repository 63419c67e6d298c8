// What is typed for "When can I go?" and what the planner keeps between runs: how it is read, refused, and survives.
#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/temporaryfolder.h"
#include "planner/planquestion.h"

namespace tarvane {
namespace {

TEST(PlanQuestion, NumbersAreReadAsASailorTypesThem) {
    const struct {
        const char* typed;
        std::optional<double> value;
    } rows[] = {{"1.9", 1.9},  {"1,9", 1.9},   {" 1.9 m ", 1.9}, {"1.9m", 1.9}, {"-2", -2.0},  {"\u22122", -2.0},
                {"+2", 2.0},   {".5", 0.5},    {"", {}},         {"m", {}},     {"1.2.3", {}}, {"1,2.3", {}},
                {"1,2,3", {}}, {"1e3", {}},    {"nan", {}},      {"inf", {}},   {"--2", {}},   {"2-", {}},
                {"0x10", {}},  {"1.9 ft", {}}, {"1 2", {}},      {"-", {}},     {"two", {}}};
    for (const auto& row : rows)
        EXPECT_EQ(typednumber(row.typed), row.value) << row.typed;
}

TEST(PlanQuestion, ARefusalNamesItsField) {
    const PlanQuestion good{"1.9", "0.5", "-2", "20", "18", "5", "45"};
    const QuestionRead read = readquestion(good);
    EXPECT_EQ(read.refusal, "");
    EXPECT_DOUBLE_EQ(read.passage.needed(), 4.4);
    EXPECT_DOUBLE_EQ(read.passage.ceiling().value(), 7);
    EXPECT_EQ(read.leastminutes, 45);
    const struct {
        PlanField field;
        const char* typed;
        const char* refusal;
    } rows[] = {
        {PlanField::draught, "", "Draught: write metres from 0 to 50, not \u201C\u201D"},
        {PlanField::clearance, "51", "Clearance: write metres from 0 to 50, not \u201C51\u201D"},
        {PlanField::bottom, "-51", "Bottom: write metres from -50 to 1000, not \u201C-51\u201D"},
        {PlanField::airdraught, "", "Mast: write how high it stands above the water, in metres"},
        {PlanField::bridgelevel, " ",
         "Bridge's level: write how many metres above chart datum the level lies that its height is given for"},
        {PlanField::least, "10081", "Least time: write minutes from 0 to 10080, not \u201C10081\u201D"},
    };
    for (const auto& row : rows) {
        PlanQuestion question = good;
        question[static_cast<std::size_t>(row.field)] = row.typed;
        EXPECT_EQ(readquestion(question).refusal, row.refusal);
        EXPECT_EQ(readquestion(question).refused, row.field) << row.refusal;
    }
    const QuestionRead unbridged = readquestion({"1.9", "0.5", "-2", "", "silly", "999", ""});
    EXPECT_EQ(unbridged.refusal, "");
    EXPECT_FALSE(unbridged.passage.ceiling());
    EXPECT_EQ(readquestion({"0", "0", "0", "", "", "", "0.2"}).leastminutes, 1) << "a part of a minute is one";
}

TEST(PlanQuestion, WhatIsAsStoredGoesOnFollowingThat) {
    Settings stored;
    stored.currentdraught = 1.9F;
    stored.currentukc = 0.5F;
    stored.userdepth = -2;
    PlanSettings settings;
    EXPECT_EQ(prefilledquestion(settings, stored, "UK.hc/Dover"), (PlanQuestion{"1.9", "0.5", "-2", "", "", "", ""}));
    keepquestion(readquestion({"1.90", "0.7", "3", "20", "18", "5", "30"}), stored, "UK.hc/Dover", true, settings);
    EXPECT_FALSE(settings.draught);
    stored.currentdraught = 2.2F;
    EXPECT_EQ(prefilledquestion(settings, stored, "UK.hc/Dover"),
              (PlanQuestion{"2.2", "0.7", "3", "20", "18", "5", "30"}));
    EXPECT_EQ(prefilledquestion(settings, stored, "UK.hc/Leith"),
              (PlanQuestion{"2.2", "0.7", "-2", "", "18", "", "30"}))
        << "a bottom and a bridge are of their port, the mast is of the boat";
    keepquestion(readquestion({"2.2", "0.7", "-2", "", "18", "", ""}), stored, "UK.hc/Dover", true, settings);
    EXPECT_TRUE(settings.bridges.empty());
    EXPECT_EQ(settings.airdraught, 18) << "the next bridge finds the mast as it was";
    stored.userdepth = 5;
    EXPECT_EQ(prefilledquestion(settings, stored, "UK.hc/Dover")[2], "-2") << "a bottom that was typed stays";
    keepquestion(readquestion({"2.2", "0.7", "5", "", "", "", ""}), stored, "UK.hc/Leith", false, settings);
    stored.userdepth = 6;
    EXPECT_EQ(prefilledquestion(settings, stored, "UK.hc/Leith")[2], "6");
    EXPECT_FALSE(settings.airdraught) << "what was cleared doesn't come back";
    for (const auto& [typed, kept] : {std::pair{"19,5", 19.5}, {"1999", 19.5}, {"x", 19.5}, {"12", 12.0}}) {
        const QuestionRead read = readquestion({"2.2", "0.7", "5", "", typed, "", ""});
        EXPECT_EQ(read.refusal, "") << "without a bridge nobody asks for it";
        keepquestion(read, stored, "UK.hc/Leith", false, settings);
        EXPECT_EQ(settings.airdraught, kept) << typed;
    }
}

TEST(PlanQuestion, StepsGoByTenthsAndQuartersWithinTheRange) {
    const struct {
        const char* text;
        PlanField field;
        int steps;
        const char* then;
    } rows[] = {{"1.9", PlanField::draught, 1, "2"},    {"1,9", PlanField::draught, -1, "1,8"},
                {"1.85", PlanField::draught, 1, "1.9"}, {"1.85", PlanField::draught, -1, "1.8"},
                {"0.05", PlanField::draught, -1, "0"},  {"0", PlanField::clearance, -1, "0"},
                {"50", PlanField::draught, 3, "50"},    {"0.2", PlanField::bottom, -3, "-0.1"},
                {"-0.1", PlanField::bottom, 1, "0"},    {"", PlanField::draught, 1, "0"},
                {"", PlanField::bridge, 1, "20"},       {"", PlanField::bridge, -1, ""},
                {"0.1", PlanField::bridge, -1, "0"},    {"0", PlanField::bridge, -1, ""},
                {"", PlanField::least, 1, "15"},        {"20", PlanField::least, 1, "30"},
                {"20", PlanField::least, -1, "15"},     {"15", PlanField::least, -1, "0"},
                {"0", PlanField::least, -1, ""},        {"two", PlanField::bottom, 1, "two"},
                {"300", PlanField::draught, -1, "50"}};
    for (const auto& row : rows)
        EXPECT_EQ(stepped(row.text, row.field, row.steps), row.then) << row.text << " by " << row.steps;
}

TEST(PlanSettings, ComeBackAsTheyWereWritten) {
    const fakes::TemporaryFolder folder;
    const std::string path = folder / "Planner.json";
    const PlanSettings first = readplansettings(path);
    EXPECT_EQ(first.days, 7);
    PlanSettings all = first;
    all.openatstart = all.night = all.twilight = true;
    all.asked = false;
    all.days = 31;
    all.clock = ClockChoice::computer;
    all.paper = Paper::letter;
    all.daylight = Daylight::whole;
    all.leastminutes = 90;
    all.weekdays = 0x41;
    all.draught = all.clearance = all.airdraught = 1.9;
    all.draught = 2.1;
    all.bridges = {{"UK.hc/Dover", {20.5, 6.8}}};
    all.bottoms = {{"UK.hc/B\u00F8m\u00E5", -2}, {"UK.hc/\xFF", 3}};
    ASSERT_TRUE(changeplansettings(path, {}, all));
    const PlanSettings read = readplansettings(path);
    const auto flat = [](const PlanSettings& s) {
        return std::tuple(s.openatstart, s.night, s.days, s.clock, s.paper, s.asked, s.twilight, s.daylight,
                          s.leastminutes, s.weekdays, s.draught, s.clearance, s.airdraught, s.bridges);
    };
    EXPECT_EQ(flat(read), flat(all));
    EXPECT_EQ(read.bottoms.at("UK.hc/B\u00F8m\u00E5"), -2);
    std::filesystem::create_directory(folder / "folder");
    EXPECT_FALSE(changeplansettings(folder / "folder", {}, all));
    EXPECT_FALSE(changeplansettings(folder / "nowhere/Planner.json", {}, all));
    const char* const texts[] = {
        "",
        "{",
        "[1, 2]",
        "null",
        "\xFF\xFE",
        "{\"days\": 1e999}",
        R"({"days": 0, "clock": 4, "paper": 2, "daylight": -1, "leastminutes": 10081, "weekdays": 0, "draught": 1001})",
        R"({"days": 32, "clock": -1, "paper": 18446744073709551615, "weekdays": 128, "bottoms": {"a": 1e9}})",
        R"({"bridges": {"a": 20, "b": {"height": 20}, "c": {"height": "20", "level": 3}, "d": null}})",
        R"({"bridges": [{"height": 20, "level": 3}]})",
        R"({"days": 7.5, "night": 1, "asked": "no", "openatstart": null, "draught": "deep", "bottoms": [1]})"};
    for (const char* text : texts) {
        ASSERT_TRUE(replacefile(path, std::string(text)));
        EXPECT_EQ(flat(readplansettings(path)), flat(first)) << text;
        EXPECT_TRUE(readplansettings(path).bottoms.empty()) << text;
        EXPECT_EQ(readplansettings(path).state.whole, *text == 0) << text;
    }
}

TEST(PlanSettings, TwoRunsOfTheProgramTakeNothingFromEachOther) {
    const fakes::TemporaryFolder folder;
    const std::string path = folder / "Planner.json";
    PlanSettings first;
    first.bottoms = {{"UK.hc/Dover", 1}, {"UK.hc/Leith", 2}};
    ASSERT_TRUE(changeplansettings(path, {}, first));
    PlanSettings one = first, other = first;
    one.bottoms["UK.hc/Dover"] = -2;
    one.bridges["UK.hc/Dover"] = {20, 5};
    one.night = true;
    ASSERT_TRUE(changeplansettings(path, first, one));
    other.draught = 1.7;
    other.bottoms.erase("UK.hc/Leith");
    ASSERT_TRUE(changeplansettings(path, first, other));
    const PlanSettings both = readplansettings(path);
    EXPECT_EQ(both.bottoms, (std::map<std::string, double>{{"UK.hc/Dover", -2}}));
    EXPECT_EQ(both.bridges, one.bridges);
    EXPECT_EQ(both.draught, 1.7);
    EXPECT_TRUE(both.night);
}

TEST(PlanSettings, WhatIsntUnderstoodIsKeptBesideThemAndToldOnce) {
    const fakes::TemporaryFolder folder;
    const std::string path = folder / "Planner.json", copy = path + ".broken";
    PlanSettings settings;
    settings.draught = 2.1;
    settings.bridges = {{"UK.hc/Dover", {20.5, 6.8}}};
    ASSERT_TRUE(changeplansettings(path, {}, settings));
    EXPECT_TRUE(readplansettings(path).state.whole);
    EXPECT_EQ(tellplansettings(path), "");
    const std::string broken = R"({"bottoms": {"UK.hc/Dover": -2, "UK.hc/Leith": "two"}, "colour": 3})";
    ASSERT_TRUE(replacefile(path, broken));
    const PlanSettings read = readplansettings(path);
    EXPECT_EQ(read.bottoms.size(), 1U);
    PlanSettings changed = read;
    changed.days = 3;
    ASSERT_TRUE(changeplansettings(path, read, changed));
    EXPECT_EQ(wholetext(copy), broken);
    EXPECT_NE(tellplansettings(path).find("Planner.json wasn't understood whole."), std::string::npos);
    EXPECT_EQ(tellplansettings(path), "");
    EXPECT_EQ(readplansettings(path).days, 3);
    EXPECT_TRUE(readplansettings(path).state.whole);
}

}  // namespace
}  // namespace tarvane
