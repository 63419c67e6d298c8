// What a command line may hold, which port it means, where the files are, and that nothing is ever written.
#include <gtest/gtest.h>

#include "tides/options.h"
#include "tides/portchoice.h"
#include "tools/companion.h"

namespace tarvane {
namespace {

using tests::Companion;
using tests::Outcome;
using tests::portnamed;

void expectrefused(const Outcome& outcome, const std::string& words, const std::string& what) {
    EXPECT_EQ(outcome.status, 2) << what;
    EXPECT_EQ(outcome.out, "") << what;
    EXPECT_EQ(tests::linesof(outcome.err).size(), 1U) << what << ": " << outcome.err;
    EXPECT_TRUE(outcome.err.ends_with("\n")) << what;
    EXPECT_NE(outcome.err.find(words), std::string::npos) << what << ": " << outcome.err;
}

TEST(CommandLine, FaultsAreOneLineAndNoOutput) {
    Companion machine;
    machine.store({portnamed("Fécamp"), portnamed("Le Havre"), portnamed("Port Ellen"), portnamed("Portland")});
    machine.configure(1);
    const struct {
        std::vector<std::string> arguments;
        const char* words;
    } rows[] = {
        {{"--tomorrow"}, "no option '--tomorrow'"},
        {{"Fécamp"}, "no option 'Fécamp'"},
        {{""}, "no option ''"},
        {{"--bad\nline"}, "'--bad?line'"},
        {{"--port"}, "--port needs a value"},
        {{"--port", "--sun"}, "--port needs a value"},
        {{"--port", ""}, "--port needs a value"},
        {{"--port", "  "}, "--port needs"},
        {{"--port", "1", "--port", "2"}, "--port is given twice"},
        {{"--sun", "--sun"}, "--sun is given twice"},
        {{"--sun", "--samples"}, "--sun and --samples exclude each other"},
        {{"--month", "--sun"}, "--month and --sun exclude each other"},
        {{"--format", "xml"}, "text, csv or json"},
        {{"--format", "CSV"}, "text, csv or json"},
        {{"--summer", "yes"}, "on or off"},
        {{"--days", "0"}, "1 to 3660"},
        {{"--days", "3661"}, "1 to 3660"},
        {{"--days", "-1"}, "1 to 3660"},
        {{"--days", "2.5"}, "1 to 3660"},
        {{"--days", "99999999999999999999"}, "1 to 3660"},
        {{"--date", "2024-02-30"}, "'2024-02-30' is no date"},
        {{"--date", "9999-12-31", "--days", "2"}, "past 9999-12-31"},
        {{"--port", "Fekamp"}, "the nearest names are 1 Fécamp"},
        {{"--port", "Elen"}, "3 Port Ellen"},
        {{"--port", "port"}, "fits 2 ports of UK.hc: 3 Port Ellen, 4 Portland"},
        {{"--port", "5"}, "the nearest is 4 Portland"},
        {{"--port", "0"}, "the nearest is 1 Fécamp"},
        {{"--port", "99999999999999999999"}, "the nearest is 4 Portland"},
        {{"--area", machine.folder / "None.hc"}, "None.hc can't be read"},
        {{"--area", machine.environment.home}, "can't be read"},
        {{"--area", machine.folder / "None.hc", "--orbital"}, "None.hc can't be read"},
        {{"--date", "1990-01-01", "--format", "csv"}, "1990-01-01"},
        {{"--date", "1990-01-02", "--format", "json", "--samples"}, "1990-01-02"},
        {{"--date", "1990-01-20", "--format", "csv", "--month"}, "1990-01-01"},
        {{"--date", "1989-12-31", "--days", "3", "--format", "csv", "--orbital"}, "1990-01-01"},
    };
    for (const auto& row : rows)
        expectrefused(machine.run(row.arguments), row.words, testing::PrintToString(row.arguments));
}

TEST(CommandLine, DatesThatExist) {
    for (const char* text : {"24-1-1", "2023-02-29", "1900-02-29", "2024-02-30", "2024-13-01", "2024-00-10",
                             "2024-01-00", "0000-01-01", "10000-01-01", "2024-1-01", "2024/01/01", "2024-01-01 ",
                             "+024-01-01", "today", "2024-04-31", "2024-01-1x", ""}) {
        EXPECT_FALSE(parseisodate(text)) << text;
    }
    EXPECT_EQ(parseisodate("0001-01-01"), makedate(1, 1, 1));
    EXPECT_EQ(parseisodate("9999-12-31"), makedate(9999, 12, 31));
    EXPECT_EQ(parseisodate("2000-02-29"), makedate(2000, 2, 29));
    EXPECT_EQ(parseisodate("2024-12-09"), makedate(2024, 12, 9));
}

TEST(CommandLine, PortsByNumberNameAndPart) {
    const std::vector<std::string> names{"Saint-Malo", "Fécamp",     "Île de Bréhat", "St Mary's",
                                         "Port",       "Port Ellen", "Port",          "Œuf"};
    const struct {
        const char* wanted;
        std::vector<std::int16_t> numbers;
        const char* fault;
    } rows[] = {
        {"2", {2}, ""},
        {" 002 ", {2}, ""},
        {"FECAMP", {2}, ""},
        {"fÉcAmP", {2}, ""},
        {"Fe\xCC\x81"
         "camp",
         {2},
         ""},
        {"ile", {3}, ""},
        {"brehat", {3}, ""},
        {"St Mary’s", {4}, ""},
        {"oeuf", {8}, ""},
        {"ellen", {6}, ""},
        {"malo", {1}, ""},
        {"all", {1, 2, 3, 4, 5, 6, 7, 8}, ""},
        {"port", {}, "fits 2 ports of Area: 5 Port, 7 Port"},
        {"e", {}, "fits 4 ports"},
        {"saint malo", {}, "nearest names are 1 Saint-Malo"},
        {"Elen", {}, "6 Port Ellen"},
        {"9", {}, "1 to 8"},
    };
    for (const auto& row : rows) {
        const PortChoice choice = chooseports(names, row.wanted, "Area");
        EXPECT_EQ(choice.numbers, row.numbers) << row.wanted;
        EXPECT_NE(choice.fault.find(row.fault), std::string::npos) << row.wanted << ": " << choice.fault;
        EXPECT_EQ(choice.fault.empty(), *row.fault == 0) << choice.fault;
    }
    EXPECT_NE(chooseports({}, "1", "Area").fault, "");
}

TEST(CommandLine, HelpShowsEveryOption) {
    const Companion machine;
    const Outcome outcome = machine.run({"--nonsense", "--help"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    for (const char* option : {"--area", "--port", "--date", "--days", "--summer", "--samples", "--month", "--sun",
                               "--orbital", "--list", "--format"}) {
        EXPECT_NE(outcome.out.find(option), std::string::npos) << option;
    }
}

TEST(Files, WithoutConfigurationTheFirstStartsValuesAndNothingMade) {
    Companion machine;
    machine.store(std::vector<HarmonicRecord>(76, portnamed("Other")));
    writeport(machine.areapath(), 77, portnamed("Seventy-seven"));
    const auto before = machine.everything();
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {}, {"--samples"}, {"--sun"}, {"--orbital"}, {"--list"}, {"--port", "1", "--format", "json"}, {"--bad"}}) {
        machine.run(arguments);
    }
    EXPECT_NE(machine.run({}).out.find("Seventy-seven, port 77 of UK.hc"), std::string::npos);
    EXPECT_NE(machine.run({}).out.find("Tuesday 9 April 2024"), std::string::npos);
    EXPECT_EQ(machine.everything(), before);
}

TEST(Files, StoredPortSummerAndArea) {
    Companion machine;
    machine.store({portnamed("First"), portnamed("Second")});
    machine.configure(2, 1, -1);
    const std::string shifted = machine.run({"--format", "csv"}).out;
    EXPECT_NE(shifted.find("2,Second,2024-04-09,05:40,"), std::string::npos) << shifted;
    EXPECT_NE(machine.run({"--format", "csv", "--summer", "off"}).out.find(",04:40,"), std::string::npos);
    // the rule of the day still decides under --summer on
    EXPECT_EQ(machine.run({"--format", "csv", "--date", "2024-01-15", "--summer", "on"}).out,
              machine.run({"--format", "csv", "--date", "2024-01-15", "--summer", "off"}).out);
    machine.configure(2, 1, 0);
    EXPECT_EQ(machine.run({"--format", "csv", "--summer", "on"}).out, shifted);
    machine.configure(3);
    expectrefused(machine.run({}), "has no port 3", "stored port");
}

TEST(Files, DepthsOfTheAreaInTheUsersDocuments) {
    Companion machine;
    machine.store({portnamed("Home")});
    machine.store({portnamed("Away")}, "Far.hc");
    machine.configure(1, 2);
    const std::string bare = machine.run({"--format", "csv"}).out;
    EXPECT_NE(bare.find(",5.5"), std::string::npos) << bare;
    std::filesystem::create_directories(machine.environment.home + "/.config");
    std::ofstream(machine.environment.home + "/.config/user-dirs.dirs")
        << "# XDG_DOCUMENTS_DIR=\"$HOME/No\"\nXDG_DESKTOP_DIR=\"$HOME/Desk\"\nXDG_DOCUMENTS_DIR=\"$HOME/Papers/\"\n";
    EXPECT_EQ(foldersof(machine.environment).docsfolder, machine.environment.home + "/Papers");
    machine.storedepth(10);
    machine.storedepth(20, "Far.DEP");
    EXPECT_NE(machine.run({"--format", "csv"}).out.find(",15.5"), std::string::npos);
    EXPECT_NE(machine.run({"--format", "csv", "--area", machine.areapath("Far.hc")}).out.find(",25.5"),
              std::string::npos);
    machine.configure(1, 1);
    EXPECT_EQ(machine.run({"--format", "csv"}).out, bare);
    machine.configure(1, 3);
    const std::string depths = foldersof(machine.environment).depthsfolder();
    std::filesystem::remove(depths + "/UK.DEP");
    std::filesystem::create_directories(depths + "/UK.DEP");
    expectrefused(machine.run({}), "UK.DEP can't be read", "depths file");
}

TEST(Files, FoldersFromTheEnvironment) {
    TidesEnvironment environment;
    environment.home = "/home/anne";
    EXPECT_EQ(foldersof(environment).docsfolder, "/home/anne/Documents");
    EXPECT_EQ(foldersof(environment).appdatafolder, "/home/anne/.local/share");
    environment.datahome = "/srv/data";
    EXPECT_EQ(foldersof(environment).appdatafolder, "/srv/data");
    environment.datahome = "relative";
    EXPECT_EQ(foldersof(environment).appdatafolder, "/home/anne/.local/share");
}

TEST(Files, BrokenOnesAreRefused) {
    Companion machine;
    std::ofstream(machine.areapath("Empty.hc")).close();
    expectrefused(machine.run({"--area", machine.areapath("Empty.hc"), "--port", "1"}), "holds no ports", "empty area");
    expectrefused(machine.run({}), "UK.hc can't be read", "no area beside the program");
    const ProgramFolders folders = foldersof(machine.environment);
    std::filesystem::create_directories(folders.configfolder());
    std::ofstream(folders.cfgpath()).close();
    expectrefused(machine.run({}), "names no sea area file", "empty configuration");
    std::filesystem::remove(folders.cfgpath());
    std::filesystem::create_directory(folders.cfgpath());
    expectrefused(machine.run({}), "configuration", "configuration that can't be read");
}

}  // namespace
}  // namespace tarvane
