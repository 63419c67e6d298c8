#include "engine/prediction.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "engine/height.h"
#include "engine/springs.h"
#include "fakes/testport.h"
#include "text/timetext.h"

namespace tarvane::tests {
namespace {

Prediction predicted(PortFiles& files, const TideDay& day) {
    Prediction prediction;
    predictday(files.settings, day, prediction);
    findturningpoints(prediction);
    return prediction;
}

TEST(PredictDay, WorkedDay) {
    PortFiles files;
    const Prediction day = predicted(files, {2024, 4, 100, 0});
    const std::pair<const char*, double> waters[] = {
        {"04:40", 5.54}, {"10:50", 0.67}, {"17:00", 5.52}, {"23:10", 0.67}};
    ASSERT_EQ(day.turningcount, 4);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(timetext(day.turningpoints[i + 1].time), waters[i].first);
        EXPECT_NEAR(day.turningpoints[i + 1].height, waters[i].second, 0.005);
    }
    EXPECT_EQ(day.samplecount, 147);
    EXPECT_NE(day.curvesamples[149].height, 0);
    EXPECT_EQ(day.curvesamples[150].height, 0);
    EXPECT_EQ(predicted(files, {2024, 4, 100, -1}).curvesamples[153].height, 0);
}

/// Figures of the ports that ship, made apart from the program.
TEST(PredictDay, ShippedPortsOnScatteredDays) {
    const auto ports = shippedports();
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
        const auto& [year, month, dayofyear, summer] = row.day;
        EXPECT_NEAR(heightat(files.settings, month, year, dayofyear, 10.5).first, row.instant, 1e-9);
    }
}

TEST(PredictDay, MissingRecordsGiveFlatWaterAndNonsenseDoesNoHarm) {
    PortFiles files;
    files.settings.currentport = 9;
    EXPECT_EQ(predicted(files, {2024, 4, 100, 0}).dayrange, 0);
    files.settings.hcfile = files.settings.depfile = files.folder / "none";
    for (const std::int16_t port : std::initializer_list<std::int16_t>{-5, 0, 1, 32767}) {
        files.settings.currentport = port;
        EXPECT_EQ(predicted(files, {2024, 4, 100, 0}).dayrange, 0);
    }
    using limits = std::numeric_limits<float>;
    for (const float nonsense : {limits::quiet_NaN(), limits::infinity(), limits::max()}) {
        HarmonicRecord port = roundport();
        port.M2g = port.S2Hm = port.Z0 = nonsense;
        PortFiles broken(port, nonsense);
        EXPECT_LE(predicted(broken, {2024, 4, 100, -1}).turningcount, 15);
    }
}

TEST(FindTurningPoints, TakesStrictExtremesOnly) {
    Prediction prediction;
    const auto height = [&](std::size_t row) -> double& { return prediction.curvesamples[row].height; };
    for (std::size_t row = 1; row <= 149; ++row)
        height(row) = 1;
    height(1) = 9;  // a crest in row 1 belongs to the day before
    height(2) = 0.5;
    height(20) = height(21) = 2;  // two equal samples at a crest yield nothing
    height(40) = 3;
    height(60) = -2;
    height(145) = 5;  // 24:00 is the day's last
    height(146) = -9;
    findturningpoints(prediction);
    ASSERT_EQ(prediction.turningcount, 4);
    const double found[] = {0.5, 3, -2, 5};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(prediction.turningpoints[i + 1].height, found[i]);
    EXPECT_EQ(prediction.dayrange, 11);
    using Row = std::pair<double, int>;
    for (const auto& [lasttime, count] : {Row{24.0844, 4}, Row{24.08441, 3}}) {
        prediction.curvesamples[145].time = lasttime;
        findturningpoints(prediction);
        EXPECT_EQ(prediction.turningcount, count);
    }
    for (const double level : {12000, -12000}) {
        prediction.curvesamples.fill({0, level});
        findturningpoints(prediction);
        EXPECT_EQ(prediction.dayrange, 12000 - 9999) << "reckoned from 9999 and -9999";
    }
    for (std::size_t row = 1; row <= 149; ++row)
        height(row) = row % 2 ? 1 : -1;
    findturningpoints(prediction);
    EXPECT_EQ(prediction.turningcount, 15) << "as many as there are rows for";
}

TEST(PredictDayLinked, GoesByTheDayItself) {
    PortFiles files;
    Prediction linked;
    predictdaylinked(predictedport(files.settings), {2024, 4, 100, 0}, 1.25, 2.5, linked);
    EXPECT_EQ(linked.samplecount, 148);
    using Row = std::tuple<std::size_t, double, double>;
    for (const auto& [row, time, height] : {Row{1, 0, 1.3580268803}, Row{100, 16.5, 5.3916825433},
                                            Row{147, 24 + 1.0 / 3, 1.0155710797}, Row{148, 99, 2.5}}) {
        EXPECT_NEAR(linked.curvesamples[row].time, time, 1e-12) << row;
        EXPECT_NEAR(linked.curvesamples[row].height, height, 1e-9) << row;
    }
}

TEST(HasPredictions, WantsTheDayBeforeToo) {
    const bool has[] = {true, false, false, true};
    for (int day = 0; day <= 3; ++day)
        EXPECT_EQ(haspredictions(1990, day), has[day]) << day;
}

}  // namespace
}  // namespace tarvane::tests
