#include "portdata/portscsv.h"

#include <gtest/gtest.h>

#include <cstring>
#include <tuple>

#include "portdata/bytes.h"

namespace tarvane {
namespace {

const std::string header =
    "number,name,latitude,longitude,zone,z0,m2g,m2h,s2g,s2h,k1g,k1h,o1g,o1h,f4,F4,f6,F6,"
    "dz01,dz02,dz03,dz04,dz05,dz06,dz07,dz08,dz09,dz10,dz11,dz12";

/// A row of an area: its first six fields as given, the others sound.
std::string row(const std::string& start) {
    return start + ",131.2,1.758,172.2,0.603,99.3,0.056,342.3,0.054,283,0.02,325,0.0025," +
           "0.01,0.02,0.03,0.04,0.05,0.06,0.07,0.08,0.09,0.1,0.11,0.12";
}

void expectfault(const std::string& text, std::size_t line, std::size_t column, const std::string& word) {
    const PortsTable read = readportscsv(text);
    EXPECT_TRUE(read.ports.empty()) << text;
    ASSERT_TRUE(read.fault.has_value()) << text;
    EXPECT_EQ(std::pair(read.fault->line, read.fault->column), std::pair(line, column)) << text;
    EXPECT_NE(read.fault->reason.find(word), std::string::npos) << read.fault->reason;
}

TEST(PortsCsv, TheShippedTableIsSound) {
    const PortsTable read = readportscsv(filetext(TARVANE_DATA "/uk-ports.csv"));
    ASSERT_FALSE(read.fault.has_value()) << read.fault->line << " " << read.fault->reason;
    ASSERT_EQ(read.ports.size(), 84u);
    const HarmonicRecord& first = read.ports.front();
    EXPECT_EQ(first.PortNo + first.PortName + first.TimeZoneLetter, "1St Mary'sL");
    const std::vector<float> numbers{first.PortLong, first.Z0, first.O1Hm, first.SF4, first.LF6, first.DeltaZ0[11]};
    EXPECT_EQ(numbers, (std::vector<float>{-6.3171f, 3.1f, 0.054f, 283, 0.0025f, 0.07f}));
    EXPECT_EQ(read.ports[76].PortName + read.ports[76].TimeZoneLetter, "CherbourgM");
}

TEST(PortsCsv, TakesQuotesLineEndsBlankLinesAndSources) {
    for (const std::string end : {"\n", "\r\n"}) {
        const PortsTable read =
            readportscsv("\xEF\xBB\xBF" + header + ",source" + end + row("1,\"Rock, the \"\"Inner\"\"\",49.5,-6,A,1") +
                         ",gauge" + end + end + row(" 2 , Fécamp ,-90,180, W ,2") + ",gauge");
        ASSERT_EQ(read.ports.size(), 2u);
        EXPECT_EQ(read.ports[0].PortName, "Rock, the \"Inner\"");
        EXPECT_EQ(read.ports[0].DeltaZ0[10], 0.11f);
        EXPECT_EQ(read.ports[1].PortNo + read.ports[1].PortName, "2Fécamp");
        EXPECT_EQ(read.ports[1].PortLong, 180.0f);
    }
}

TEST(PortsCsv, AnAreaComesBackByteForByte) {
    const std::vector<std::byte> shipped = readportscsv(filetext(std::string(TARVANE_DATA) + "/uk-ports.csv")).area;
    const struct {
        const char* what;
        std::size_t offset;
        std::string bytes;  ///< put into the second record
        const char* columns;
    } rows[] = {
        {"as shipped", 0, "2", ""},
        {"commas, quotes and letters of Windows-1252", 5, "A, \"b\" \xE9\x9C\x92", ""},
        {"a single of many digits and the least", 149, {'\xFF', '\x67', '\x9C', '\x41', 1, 0, 0, 0}, ",mh"},
        {"another number shown", 0, "12a", ",portno"},
        {"zero bytes in position and zone", 40, std::string(9, '\0'), ",record"},
        {"a level that is no number", 53, std::string(4, '\xFF'), ",record"},
        {"a name that begins with a blank", 5, " x", ",record"},
        {"an unassigned code", 5, "\x81", ",record"},
    };
    for (const auto& row : rows) {
        std::vector<std::byte> area = shipped;
        std::memcpy(&area[harmonicrecordsize + row.offset], row.bytes.data(), row.bytes.size());
        const std::string text = portscsvof(area);
        const std::string columns = text.substr(header.size(), text.find('\n') - header.size());
        EXPECT_EQ(columns.substr(0, 3), std::string(row.columns).substr(0, 3)) << row.what;
        EXPECT_EQ(columns.ends_with("record"), std::string(row.columns) == ",record") << row.what;
        const PortsTable read = readportscsv(text);
        EXPECT_FALSE(read.fault) << row.what << ": " << (read.fault ? read.fault->reason : "");
        EXPECT_TRUE(read.area == area) << row.what;
    }
    std::vector<std::byte> area(harmonicrecordsize);
    std::string text = portscsvof(area);
    text.replace(text.find("\n1,,0") + 4, 1, "5");
    expectfault(text, 2, 32, "another latitude");
    text.erase(text.size() - 2, 1);
    expectfault(text, 2, 32, "394 hexadecimal");
    expectfault(header + ",mh01\n" + row("1,A,1,2,L,3") + ",1", 1, 0, "some of mh01");
    expectfault(header + ",portno,source\n", 1, 32, "source");
    expectfault(header + ",portno\n" + row("1,A,1,2,L,3") + ",123456", 2, 31, "longer than 5");
}

TEST(PortsCsv, RefusesAFieldByItsPlace) {
    using Row = std::tuple<const char*, std::size_t, const char*>;
    for (const auto& [start, column, word] :
         {Row{"1,B,1,2,L,3", 1, "should be 2"}, Row{"2,   ,1,2,L,3", 2, "empty"},
          Row{"2,日本,1,2,L,3", 2, "Windows-1252"}, Row{"2,\xE9,1,2,L,3", 2, "not UTF-8"},
          Row{"2,\"a\tb\",1,2,L,3", 2, "control"},
          Row{"2,one more than thirty-five characters,1,2,L,3", 2, "longer than 35"},
          Row{"2,B,90.01,2,L,3", 3, "outside"}, Row{"2,B,1,-180.5,L,3", 4, "outside"}, Row{"2,B,1,2,[,3", 5, "A to Z"},
          Row{"2,B,1,2,l,3", 5, "A to Z"}, Row{"2,B,1,2,L,", 6, "not a number"},
          Row{"2,B,1,2,L,nan", 6, "not a number"}, Row{"2,B,1,2,L,1e999", 6, "not a number"},
          Row{"2,B,1,2,L,5 m", 6, "not a number"}})
        expectfault(header + "\n" + row("1,A,1,2,L,3") + "\n" + row(start), 3, column, word);
}

TEST(PortsCsv, RefusesBrokenTables) {
    const std::string good = row("1,A,1,2,L,3");
    expectfault("\n\r\n", 1, 0, "empty");
    expectfault(header + "\n", 1, 0, "no ports");
    expectfault(good, 1, 1, "header");
    expectfault(header + "\n" + good + ",more", 2, 0, "31 fields instead of 30");
    expectfault(header + "\n" + good + "\n2,\"open,1,2\n\n", 3, 2, "quoted");
    expectfault(header + "\n1,\"A\"B,1,2\n" + good, 2, 2, "quoted");
    expectfault(header + "\n" + good + "\n\n\n" + row("1,B,1,2,L,3"), 5, 1, "should be 2");
}

}  // namespace
}  // namespace tarvane
