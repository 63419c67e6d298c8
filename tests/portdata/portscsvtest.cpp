#include "portdata/portscsv.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "portdata/bytes.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

const char header[] =
    "number,name,latitude,longitude,zone,z0,m2g,m2h,s2g,s2h,k1g,k1h,o1g,o1h,f4,F4,f6,F6,"
    "dz01,dz02,dz03,dz04,dz05,dz06,dz07,dz08,dz09,dz10,dz11,dz12,source";

/// A sound row, its first five fields as given and the one at `column` (from 1) put in place of the sound one.
std::string row(const std::string& start, std::size_t column = 0, const std::string& field = "") {
    std::string text = start;
    const char* rest[] = {"3.1",   "131.2", "1.758", "172.2", "0.603", "99.3",  "0.056",
                          "342.3", "0.054", "283",   "0.02",  "325",   "0.0025"};
    for (std::size_t i = 0; i < std::size(rest); ++i)
        text += "," + (column == i + 6 ? field : rest[i]);
    for (std::size_t m = 1; m <= 12; ++m)
        text += "," + (column == m + 18 ? field : "0.0" + std::to_string(m % 10));
    return text + ",gauge";
}

std::string table(const std::string& rows) {
    return std::string(header) + "\n" + rows;
}

void expectfault(const std::string& text, std::size_t line, std::size_t column, const std::string& word) {
    const PortsTable read = readportscsv(text);
    EXPECT_TRUE(read.ports.empty()) << text;
    ASSERT_TRUE(read.fault.has_value()) << text;
    EXPECT_EQ(read.fault->line, line) << text;
    EXPECT_EQ(read.fault->column, column) << text;
    EXPECT_NE(read.fault->reason.find(word), std::string::npos) << read.fault->reason;
}

TEST(Portscsv, TheShippedTableIsSound) {
    const PortsTable read = readportscsv(filetext(std::string(TARVANE_DATA) + "/uk-ports.csv"));
    ASSERT_FALSE(read.fault.has_value()) << read.fault->line << " " << read.fault->reason;
    ASSERT_EQ(read.ports.size(), 84u);
    const HarmonicRecord& first = read.ports.front();
    EXPECT_EQ(first.PortNo + first.PortName + first.TimeZoneLetter, "1St Mary'sL");
    const float figures[] = {first.PortLong, first.Z0, first.O1Hm, first.SF4, first.LF6, first.DeltaZ0[11]};
    const float wanted[] = {-6.3171f, 3.1f, 0.054f, 283, 0.0025f, 0.07f};
    EXPECT_TRUE(std::equal(figures, figures + 6, wanted));
    EXPECT_EQ(read.ports[76].PortName + read.ports[76].TimeZoneLetter, "CherbourgM");
    for (const HarmonicRecord& port : read.ports) {
        for (const float amplitude : port.MHm2)
            EXPECT_EQ(amplitude, port.M2Hm);
        const auto bytes = encode(port);
        EXPECT_EQ(encode(decodeharmonic(bytes)), bytes) << port.PortName;
    }
}

TEST(Portscsv, TakesQuotesLineEndsAndBlankLines) {
    const std::string a = row("1,\"Rock, the \"\"Inner\"\"\",49.5,-6,A");
    const std::string b = row(" 2 , Fécamp ,-90,180, W ");
    for (const char* end : {"\n", "\r\n"}) {
        for (const char* start : {"", "\xEF\xBB\xBF"}) {
            const PortsTable read = readportscsv(std::string(start) + header + end + a + end + end + b);
            ASSERT_EQ(read.ports.size(), 2u);
            EXPECT_EQ(read.ports[0].PortName, "Rock, the \"Inner\"");
            EXPECT_EQ(read.ports[0].DeltaZ0[10], 0.01f);
            EXPECT_EQ(read.ports[1].PortName, "Fécamp");
            EXPECT_EQ(read.ports[1].PortNo, "2");
            EXPECT_EQ(read.ports[1].PortLong, 180.0f);
        }
    }
    const std::string unsourced = std::string(header).substr(0, std::string(header).rfind(',')) + "\n" +
                                  row("1,A,1,2,L").substr(0, row("1,A,1,2,L").rfind(','));
    EXPECT_EQ(readportscsv(unsourced).ports.size(), 1u);
}

TEST(Portscsv, RefusesAFieldByItsPlace) {
    const struct {
        std::size_t column;
        const char* field;
        const char* word;
    } rows[] = {{6, "x", "not a number"},     {7, "360.5", "outside 0 to 360"}, {7, "-1", "outside"},
                {8, "1.2.3", "not a number"}, {8, "-0.1", "outside"},           {9, "", "not a number"},
                {10, "nan", "not a number"},  {12, "inf", "not a number"},      {13, "1e999", "not a number"},
                {16, "0x10", "not a number"}, {19, "9", "outside -5 to 5"},     {30, "5 m", "not a number"}};
    for (const auto& wrong : rows)
        expectfault(table(row("1,A,1,2,L") + "\n" + row("2,B,1,2,L", wrong.column, wrong.field)), 3, wrong.column,
                    wrong.word);
    const std::string longname(36, 'n');
    const struct {
        std::size_t column;
        std::string start;
        const char* word;
    } starts[] = {{1, "1,B,1,2,L", "should be 2"},     {1, ",B,1,2,L", "should be 2"},
                  {1, "2.0,B,1,2,L", "should be 2"},   {2, "2,   ,1,2,L", "empty"},
                  {2, "2,日本,1,2,L", "Windows-1252"}, {2, "2,\xE9,1,2,L", "not UTF-8"},
                  {2, "2,\"a\tb\",1,2,L", "control"},  {2, "2," + longname + ",1,2,L", "longer than 35"},
                  {3, "2,B,90.01,2,L", "outside"},     {4, "2,B,1,-180.5,L", "outside"},
                  {5, "2,B,1,2,X", "A to W"},          {5, "2,B,1,2,l", "A to W"},
                  {5, "2,B,1,2,", "A to W"},           {5, "2,B,1,2,LM", "A to W"}};
    for (const auto& wrong : starts)
        expectfault(table(row("1,A,1,2,L") + "\n" + row(wrong.start)), 3, wrong.column, wrong.word);
    std::string widest;
    while (charactercount(widest) < 35)
        widest += "é";
    EXPECT_EQ(readportscsv(table(row("1," + widest + ",1,2,L"))).ports.size(), 1u);
}

TEST(Portscsv, RefusesBrokenTables) {
    const std::string good = row("1,A,1,2,L");
    expectfault("", 1, 0, "empty");
    expectfault("\n\r\n", 1, 0, "empty");
    expectfault(table(""), 1, 0, "no ports");
    expectfault(good, 1, 1, "header");
    expectfault("number,name\n" + good, 1, 0, "header");
    expectfault(table(good + ",more"), 2, 0, "32 fields instead of 31");
    expectfault(table(good.substr(0, good.rfind(','))), 2, 0, "30 fields");
    expectfault(table("1,A"), 2, 0, "2 fields");
    expectfault(table(good + "\n2,\"open,1,2\n\n"), 3, 2, "quoted");
    expectfault(table("1,\"A\"B,1,2\n" + good), 2, 2, "quoted");
    // A line end within quotes counts for the lines below it.
    expectfault(table("1,\"A\nB\",1,2,L"), 2, 0, "5 fields");
    expectfault(table(row("1,A,1,2,L") + "\n\n\n" + row("1,B,1,2,L")), 5, 1, "should be 2");
}

}  // namespace
}  // namespace tarvane
