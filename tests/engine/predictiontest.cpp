#include "engine/prediction.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <limits>

#include "engine/springs.h"
#include "engine/testport.h"
#include "portdata/portscsv.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

using tests::PortFiles;
using tests::roundport;

Prediction predicted(PortFiles& files, const TideDay& day) {
    Prediction prediction;
    predictday(files.settings, day, prediction);
    findturningpoints(prediction);
    return prediction;
}

TEST(PredictDay, WorkedDay) {
    PortFiles files;
    const Prediction day = predicted(files, {2024, 4, 100, 0});
    const struct {
        const char* time;
        double height;
    } rows[] = {{"04:40", 5.54}, {"10:50", 0.67}, {"17:00", 5.52}, {"23:10", 0.67}};
    ASSERT_EQ(day.turningcount, 4);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(timetext(day.turningpoints[i + 1].time), rows[i].time);
        EXPECT_NEAR(day.turningpoints[i + 1].height, rows[i].height, 0.005);
    }
    EXPECT_EQ(day.samplecount, 147);
    EXPECT_NE(day.curvesamples[149].height, 0);
    EXPECT_EQ(day.curvesamples[150].height, 0);
}

/// Figures of the ports that ship, made apart from the program.
TEST(PredictDay, ShippedPortsOnScatteredDays) {
    std::ifstream table(TARVANE_DATA "/uk-ports.csv");
    const auto ports = readportscsv(std::string(std::istreambuf_iterator<char>(table), {})).ports;
    ASSERT_EQ(ports.size(), 84U);
    const struct {
        std::size_t port;
        TideDay day;
        float option;
        int count;
        double first, hundredth, range, lag, instant;
    } rows[] = {
        {77, {2026, 1, 1, 0}, 1, 4, 1.9187947848, 3.8371206299, 4.0710038105, 50 / 6.0, 3.1880852809},
        {9, {2026, 7, 195, -1}, 2, 10, 5.7634209515, 2.6289792765, 3.9482992837, 58 / 6.0, 4.3487199395},
        {35, {2024, 12, 366, 0}, 3, 12, 2.0926126820, 2.4312168135, 0.6325649838, 60 / 6.0, 0.6685200804},
        {7, {2001, 3, 87, 0}, 1, 8, 1.5150776183, 0.6016048102, 1.4249150380, 13 / 6.0, 1.9016642839},
        {20, {1989, 10, 302, 0}, 1, 4, 1.3291099095, 1.6652451000, 1.5629165071, 55 / 6.0, 1.2792269313},
        {48, {2055, 9, 265, -1}, 1, 4, 4.6596615920, 1.8942224036, 14.8937045841, 68 / 6.0, 6.7911430162},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.port);
        PortFiles files(ports[row.port - 1], 1.5F);
        files.settings.currentoutput = row.option;
        const Prediction day = predicted(files, row.day);
        EXPECT_EQ(day.turningcount, row.count);
        EXPECT_NEAR(day.curvesamples[1].height, row.first, 1e-9);
        EXPECT_NEAR(day.curvesamples[100].height, row.hundredth, 1e-9);
        EXPECT_NEAR(day.dayrange, row.range, 1e-9);
        EXPECT_NEAR(findspringslag(day).value_or(-1), row.lag, 1e-9);
        const TideDay& date = row.day;
        EXPECT_NEAR(heightat(files.settings, date.tidemonth, date.tideyear, date.dayofyear, 10.5).first, row.instant,
                    1e-9);
    }
}

TEST(PredictDay, SummerTimeShiftsTheSameTideByAnHour) {
    PortFiles files;
    const Prediction standard = predicted(files, {2024, 4, 100, 0});
    const Prediction summer = predicted(files, {2024, 4, 100, -1});
    for (std::size_t row = 1; row <= 143; ++row) {
        EXPECT_EQ(standard.curvesamples[row].height, summer.curvesamples[row + 6].height) << row;
        EXPECT_NEAR(summer.curvesamples[row + 6].time - standard.curvesamples[row].time, 1, 1e-12);
    }
    EXPECT_NE(summer.curvesamples[152].height, 0);
    EXPECT_EQ(summer.curvesamples[153].height, 0);
}

TEST(PredictDay, LayersAddUpToTheCurve) {
    PortFiles files(roundport(), 2.5F);
    files.settings.currentoutput = 3;
    const Prediction day = predicted(files, {2026, 11, 326, 0});
    for (std::size_t row = 1; row <= 149; ++row) {
        const double sum = day.m2layer[row].height + day.s2layer[row].height + day.k1layer[row].height +
                           day.o1layer[row].height + day.f4layer[row].height + day.f6layer[row].height +
                           day.sumlayer[row].height;
        EXPECT_NEAR(day.curvesamples[row].height, sum + 2.5, 1e-12);
    }
    EXPECT_EQ(day.z0level, 3);
}

TEST(PredictDay, EveryDayOfFourYearsIsWhole) {
    PortFiles files;
    for (const int year : {1989, 2000, 2023, 2024}) {
        const int days = year % 4 == 0 ? 366 : 365;
        double midnight = 0;
        for (int number = 1; number <= days; ++number) {
            const Prediction day =
                predicted(files, {year, 1 + (number - 1) / 31, static_cast<std::int16_t>(number), 0});
            ASSERT_TRUE(day.defined);
            EXPECT_GE(day.turningcount, 3) << year << ' ' << number;
            EXPECT_LE(day.turningcount, 4) << year << ' ' << number;
            EXPECT_GT(day.dayrange, 0.5);
            for (std::size_t i = 1; i <= static_cast<std::size_t>(day.turningcount); ++i) {
                const double grid = day.turningpoints[i].time * 6;
                EXPECT_NEAR(grid, std::round(grid), 1e-9);
                EXPECT_GT(day.turningpoints[i].time, 0);
                EXPECT_LE(day.turningpoints[i].time, 24);
            }
            // Factors are carried on in a straight line over the day before: the days meet within a decimetre.
            if (number > 1) {
                EXPECT_NEAR(day.curvesamples[1].height, midnight, 0.1) << year << " " << number;
            }
            midnight = day.curvesamples[145].height;
        }
    }
}

TEST(PredictDay, SeesAChangedRecordAtOnce) {
    PortFiles files;
    const double before = predicted(files, {2024, 4, 100, 0}).curvesamples[1].height;
    HarmonicRecord port = roundport();
    port.Z0 = 4.0F;
    files.store(port);
    EXPECT_NEAR(predicted(files, {2024, 4, 100, 0}).curvesamples[1].height - before, 1, 1e-6);
    UserDepthRecord user;
    user.UserDepth = 7;
    writedepth(files.settings.depfile, 1, user);
    files.settings.currentoutput = 2;
    EXPECT_NEAR(predicted(files, {2024, 4, 100, 0}).curvesamples[1].height - before, 8, 1e-6);
}

TEST(PredictDay, MissingRecordsGiveFlatWaterAndNonsenseDoesNoHarm) {
    PortFiles files;
    files.settings.currentport = 9;
    EXPECT_EQ(predicted(files, {2024, 4, 100, 0}).turningcount, 0);
    files.settings.hcfile = files.folder / "none.hc";
    files.settings.depfile = files.folder / "none.DEP";
    for (const std::int16_t port : {std::int16_t{-5}, std::int16_t{0}, std::int16_t{1}, std::int16_t{32767}}) {
        files.settings.currentport = port;
        EXPECT_EQ(predicted(files, {2024, 4, 100, 0}).dayrange, 0);
    }
    using limits = std::numeric_limits<float>;
    for (const float nonsense : {limits::quiet_NaN(), limits::infinity(), -limits::infinity(), limits::max()}) {
        HarmonicRecord port = roundport();
        port.M2g = port.S2Hm = port.Z0 = nonsense;
        PortFiles broken(port, nonsense);
        EXPECT_LE(predicted(broken, {2024, 4, 100, -1}).turningcount, 15);
    }
}

TEST(PredictDay, DivisionByZeroIsMarkedAndLeavesNoNumberBehind) {
    PortFiles files;
    Prediction day = predicted(files, {2024, 4, 100, 0});
    for (const std::int16_t number : {std::int16_t{1}, std::int16_t{2}}) {
        predictday(files.settings, {1990, 1, number, 0}, day);
        findturningpoints(day);
        EXPECT_FALSE(day.defined);
        EXPECT_EQ(day.turningcount + day.dayrange + day.m2layer[10].height, 0);
    }
    EXPECT_TRUE(predicted(files, {1990, 1, 3, 0}).defined);
}

TEST(FindTurningPoints, TakesStrictExtremesOnly) {
    Prediction prediction;
    for (std::size_t row = 1; row <= 149; ++row)
        prediction.curvesamples[row] = {(static_cast<double>(row) - 1) / 6, 1};
    const auto height = [&](std::size_t row) -> double& { return prediction.curvesamples[row].height; };
    height(1) = 9;                // a crest in row 1 belongs to the day before
    height(20) = height(21) = 2;  // two equal samples at a crest yield nothing
    height(40) = 3;
    height(60) = -2;
    height(145) = 5;  // 24:00 is the day's last
    findturningpoints(prediction);
    ASSERT_EQ(prediction.turningcount, 3);
    EXPECT_EQ(prediction.turningpoints[1].height, 3);
    EXPECT_EQ(prediction.turningpoints[2].height, -2);
    EXPECT_DOUBLE_EQ(prediction.turningpoints[3].time, 24);
    EXPECT_EQ(prediction.dayrange, 11);
    for (std::size_t row = 1; row <= 149; ++row)
        height(row) = row % 2 ? 1 : -1;
    findturningpoints(prediction);
    EXPECT_EQ(prediction.turningcount, 15) << "as many as there are rows for";
}

TEST(PredictDayLinked, GoesByTheDayItself) {
    PortFiles files;
    Prediction linked;
    predictdaylinked(files.settings, {2024, 4, 100, 0}, 1.25, 2.5, linked);
    const Prediction day = predicted(files, {2024, 4, 100, 0});
    EXPECT_EQ(linked.samplecount, 148);
    EXPECT_EQ(linked.curvesamples[1].time, 0);
    EXPECT_EQ(linked.curvesamples[148].time, 99);
    EXPECT_EQ(linked.curvesamples[148].height, 2.5);
    EXPECT_LT(linked.curvesamples[147].time, 24.5);
    for (std::size_t row = 1; row <= 145; ++row)
        EXPECT_NEAR(linked.curvesamples[row].height, day.curvesamples[row].height, 0.08) << row;
}

}  // namespace
}  // namespace tarvane
