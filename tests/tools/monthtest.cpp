// The month table on the terminal: the worked day in it, the single days beside it, and the one shift of its date.
#include <gtest/gtest.h>

#include "text/numbers.h"
#include "tides/views.h"
#include "tools/companion.h"

namespace tarvane {
namespace {

using tests::fieldsof;
using tests::has;
using tests::linesof;
using tests::portnamed;

struct Month : testing::Test, tests::Companion {
    Month() { store({portnamed("Round Haven"), HarmonicRecord{}}); }
};

TEST_F(Month, TheWorkedDay) {
    const std::string month = "--port 1 --month --date 2024-04-20 --summer off";
    EXPECT_TRUE(csv(month).starts_with("port,name,year,month,day,weekday,time,height,moment,depth\n"));
    EXPECT_TRUE(has(csv(month),
                    "\n1,Round Haven,2024,4,9,Tue,04:40,5.54,2024-04-09T04:40+00:00,0\n"
                    "1,Round Haven,2024,4,9,Tue,10:50,0.67,2024-04-09T10:50+00:00,0\n"));
    for (const char* part :
         {"Round Haven, port 1 of UK.hc\n", "\nApril 2024\n", "WITHOUT SUMMER TIME CORRECTION (UT)\n",
          "\nTue  9   04:40   5.54   10:50   0.67   17:00   5.52   23:10   0.67\n", "\nTue 30   "})
        EXPECT_TRUE(has(run(month).out, part)) << part;
}

TEST_F(Month, TheSameAsItsDaysOneByOne) {
    using Row = std::pair<std::string, std::string>;
    for (const auto& [month, days] : {Row{"2024-02", "29"}, Row{"2023-02", "28"}, Row{"2024-12", "31"}}) {
        const auto table = linesof(csv("--port 1 --month --summer off --date " + month + "-15"));
        const auto single = linesof(csv("--port 1 --summer off --date " + month + "-01 --days " + days));
        ASSERT_EQ(table.size(), single.size());
        for (std::size_t i = 1; i < table.size(); ++i) {
            const auto ours = fieldsof(table[i]), theirs = fieldsof(single[i]);
            EXPECT_EQ(ours[8], theirs[6]);
            EXPECT_EQ(isodate(makedate(cint(val(ours[2])), cint(val(ours[3])), cint(val(ours[4])))), theirs[2]);
            EXPECT_EQ(ours[6], theirs[3]);
            EXPECT_NEAR(val(ours[7]), val(theirs[4]), 0.00506);
        }
    }
}

TEST_F(Month, OneShiftThatOfTheDateAndNoMatterHowManyDays) {
    const std::string standard = csv("--port 1 --month --summer off --date 2024-03-31");
    const std::string shifted = csv("--port 1 --month --summer on --date 2024-03-31");
    EXPECT_EQ(csv("--port 1 --month --summer on --date 2024-03-30"), standard);
    EXPECT_NE(shifted, standard);
    EXPECT_EQ(csv("--port 1 --month --summer on --date 2024-03-31 --days 900"), shifted);
}

}  // namespace
}  // namespace tarvane
