// The files for analysis. Their figures were reckoned by a separate script, from the method's steps alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <sstream>

#include "dates/calendar.h"
#include "fakes/testport.h"
#include "output/dayconstants.h"
#include "output/juliandate.h"
#include "output/yeartides.h"
#include "text/csvrows.h"
#include "text/numbers.h"

namespace tarvane::tests {
namespace {

TEST(JulianDate, ThereAndBack) {
    const struct {
        int day, month, year, hour, minute;
        double second, julian;
        int backday;
    } rows[] = {{1, 1, 2000, 0, 0, 0, 2451544.5, 1},
                {14, 7, 2026, 18, 0, 0, 2461236.25, 14},
                {1, 1, 99, 0, 0, 0, 2451179.5, 1},
                {1, 2, 1900, 0, 0, 0, 2415051.5, 1},
                {4, 10, 1957, 19, 26, 24, 2436116.31, 4},
                {29, 2, 2024, 23, 59, 30, 2460370.4996527777, 29},
                {28, 2, 2100, 0, 0, 0, 2488127.5, 28},
                {1, 3, 2100, 0, 0, 0, 2488129.5, 2},
                {31, 12, 2099, 12, 30, 0, 2488069.0208333335, 31}};
    for (const auto& row : rows) {
        const double julian = juliandate(row.day, row.month, row.year, row.hour, row.minute, row.second);
        EXPECT_NEAR(julian, row.julian, 1e-9);
        // A moment off the instant itself, where the parts of a fraction are cut and not rounded.
        const JulianMoment back = juliantodate(julian + 2e-6);
        EXPECT_EQ(back.year, row.year < 1000 ? row.year + 1900 : row.year);
        EXPECT_EQ(back.month, row.month);
        EXPECT_EQ(back.day, row.backday);
        EXPECT_EQ(back.hour * 60 + back.minute, row.hour * 60 + row.minute);
        EXPECT_NEAR(back.second, row.second + 0.17, 0.05);
    }
    const JulianMoment newyear = juliantodate(2451544.5);
    EXPECT_EQ(newyear.hour + newyear.minute + newyear.second, 0);
    EXPECT_EQ(juliantodate(2299159.5).day, 4);
    EXPECT_EQ(juliantodate(2299160.5).day, 15);
}

std::vector<std::vector<std::string>> cells(const std::string& file) {
    std::vector<std::vector<std::string>> rows;
    CsvRows left(file);
    while (const auto row = left.take())
        rows.push_back(row->fields);
    return rows;
}

TEST(DayConstants, TheFirstRowIsTheDayBeforesAndTheLastIsNotWritten) {
    const auto rows = dayconstants(2016);
    ASSERT_EQ(rows.size(), 731U);
    const std::string withid = dayconstantsfile(rows, true), plain = dayconstantsfile(rows, false);
    EXPECT_TRUE(
        withid.starts_with("id,Julian,Day,Year,ma,mf,sa,sf,ka,kf,oa,of,dam,dfm,das,dfs,dak,dfk "
                           ",dao,dfo\r\n0,2457388.5,1,2016,134,0.9498"));
    EXPECT_TRUE(plain.starts_with(
        "Julian,Day,Year,ma,mf,sa,sf,ka,kf,oa,of,dAm,dFm,dAs,dfs,dAk,dfk ,dAo,dfo\r\n2457388.5,1,2016,134,0.9498"));
    EXPECT_TRUE(plain.ends_with("\r\n"));
    const auto lines = cells(withid);
    ASSERT_EQ(lines.size(), 731U);
    for (const std::string worked :
         {"0 2457388.5 1 2016 134 0.9498064653 4 0.8650922310 356 1.1689080998 138 0.7019422218 29.0833333333 "
          "-0.0011618325 30 0.0001108733 15 -0.0002537238 14.0416666667 -0.0006560818",
          "1 2457389.5 2 2016 178 0.9017142754 5 0.8706912194 356 1.1591235973 184 0.6787084338",
          "365 2457753.5 366 2016 42 0.9446498751 3 0.8562215897 1 1.2149524629 44 0.7595295822 29.0416666667 "
          "0.0007420747 30 0.0000951466 15 0.0004215547 14 0.0010213276",
          "366 2457754.5 1 2017 65 0.9624596689", "729 2458117.5 364 2017 271 1.1660959719 1 0.8394566490 2"}) {
        std::istringstream figures(worked);
        const auto& line = lines[static_cast<std::size_t>(val(worked.substr(0, worked.find(' ')))) + 1];
        ASSERT_EQ(line.size(), 20U);
        double figure = 0;
        for (std::size_t i = 0; figures >> figure; ++i)
            EXPECT_NEAR(val(line[i]), figure, 1e-10) << worked << " " << i;
    }
    EXPECT_EQ(dayconstants(2017).size(), 730U);
}

std::vector<YearTideRow> runof(const HarmonicRecord& port, int year, int days) {
    YearTides run = startyeartides(port, year);
    while (days-- > 0 && addday(run)) {
    }
    return run.rows;
}

TEST(YearTides, WorkedDays) {
    ASSERT_EQ(daysofrun(startyeartides(roundport(), 2024)), 731);
    const auto rows = runof(roundport(), 2024, 731);
    const struct {
        std::size_t id;
        int day, year;
        double range, first, second;
    } worked[] = {
        {1, 1, 2024, 3.06818361297294, 2460310.81458333, 2460311.33402778},
        {2, 1, 2024, 2.78115974560333, 2460311.84166667, 2460312.36180556},
        {6, 5, 2024, 1.92604766216452, 2460315.98680556, -1},
        {100, 99, 2024, 4.85625796947187, 2460409.69513889, 2460410.21041667},
        {119, 118, 2024, 3.27237404965237, 2460428.78819444, 2460429.29791667},  // its last low is the next day's
        {366, 365, 2024, 3.41290664144074, 2460675.68819444, 2460676.20555556},
        {367, 1, 2025, 3.65040432513884, 2460676.71666667, 2460677.23472222},
        {730, 364, 2025, 2.62068688968679, 2461040.0125, -1}};
    for (const auto& row : worked) {
        const YearTideRow& has = rows[row.id - 1];
        EXPECT_EQ(has.daynumber, row.day);
        EXPECT_EQ(has.year, row.year);
        EXPECT_NEAR(has.range, row.range, 1e-9) << row.id;
        EXPECT_NEAR(has.firsthw, row.first, 1e-7) << row.id;
        EXPECT_NEAR(has.secondhw, row.second, 1e-7) << row.id;
    }
    const std::string file = yeartidesfile(rows);
    EXPECT_TRUE(file.starts_with("id,YearNo,DayNo,Range,FirstHW,SecondHW\r\n1,2024,1,3.068183612"));
    EXPECT_TRUE(file.ends_with(",2461040.0125,-1\r\n"));
    EXPECT_NE(file.find(",2460315.98680556,-1\r\n7,2024,6,"), std::string::npos);
    EXPECT_EQ(cells(file).size(), 731U);
}

std::vector<TimedValue> samplesof(const std::vector<std::pair<double, double>>& peaks) {
    std::vector<TimedValue> samples;
    for (int i = 0; i <= 3000; ++i)
        samples.push_back({i / 60.0, 2});
    for (const auto& [hour, height] : peaks)
        samples[static_cast<std::size_t>(std::lround(hour * 60))].height = height;
    samples.push_back({});
    return samples;
}

TEST(HighTimes, TheEdgesOfTheDayAndTheRangeWithoutItsFirstPoint) {
    double range = 0;
    const auto highs =
        hightimes(samplesof({{23.9, 9}, {24, 5}, {30, 1}, {36, 4}, {47.95, 3}, {48, 8}, {49.5, 0.5}}), range);
    ASSERT_EQ(highs.size(), 3U);
    EXPECT_NEAR(highs[0].time, 0, 1e-9);
    EXPECT_NEAR(highs[1].time, 12, 1e-9);
    EXPECT_EQ(highs[1].height, 4);
    EXPECT_NEAR(highs[2].time, 23.95, 1e-9);
    // The low water of the next morning counts; the first high water of 5 m and that of 48:00 don't.
    EXPECT_EQ(range, 3.5);
    EXPECT_EQ(hightimes(samplesof({{30, 5}}), range).size(), 1U);
    EXPECT_EQ(range, -19998);
    EXPECT_TRUE(hightimes(samplesof({}), range).empty());
    // The empty last element makes a low water of a last sample below datum.
    hightimes(samplesof({{30, 5}, {36, 3}, {50, -1}}), range);
    EXPECT_EQ(range, 4);
    EXPECT_TRUE(hightimes({}, range).empty());
}

/// The high waters of the day's prediction, which stand on a grid of ten minutes.
std::vector<double> predictedhighs(const HarmonicRecord& port, Date date) {
    Prediction day;
    predictday({port, 1, 0, 1}, {yearof(date), monthof(date), static_cast<std::int16_t>(dayofyear(date)), 0}, day);
    findturningpoints(day);
    std::vector<double> highs;
    for (int i = 1; i <= day.turningcount; ++i)
        if (ishighwater(day, i)) highs.push_back(day.turningpoints[static_cast<std::size_t>(i)].time);
    return highs;
}

/// Away from midnight, where a high water is the one day's by the minute and the other's on the grid.
bool inday(double hours) {
    return hours > 0.2 && hours < 23.8;
}

TEST(YearTides, HighWatersAreThoseOfTheDaysPredictions) {
    const auto ports = shippedports();
    const std::pair<std::size_t, int> runs[] = {{77, 1992}, {30, 2023}};
    for (const auto& [number, year] : runs) {
        int compared = 0;
        int day = 0;
        for (const YearTideRow& row : runof(ports[number - 1], year, 400)) {
            const Date date = makedate(year, 1, ++day);
            const double midnight = juliandate(1, 1, year, 0, 0, 0) + day - 1;
            const auto predicted = predictedhighs(ports[number - 1], date);
            for (const double moment : {row.firsthw, row.secondhw}) {
                const double hours = (moment - midnight) * 24;
                if (moment < 0 || !inday(hours)) continue;
                ++compared;
                EXPECT_TRUE(std::any_of(predicted.begin(), predicted.end(),
                                        [&](double high) { return std::abs(high - hours) < 10.5 / 60; }))
                    << number << " " << year << " " << day << " " << hours;
            }
        }
        EXPECT_GT(compared, 700);
    }
}

TEST(YearTides, DaysWithoutAPredictionEndTheRunAndSayWhy) {
    YearTides run = startyeartides(roundport(), 1989);
    run.julian += 364;
    EXPECT_TRUE(addday(run));
    EXPECT_FALSE(addday(run));
    EXPECT_STREQ(run.whynot, noconstants);
    HarmonicRecord broken = roundport();
    broken.S2g = std::numeric_limits<float>::quiet_NaN();
    run = startyeartides(broken, 2026);
    EXPECT_FALSE(addday(run));
    EXPECT_STREQ(run.whynot, brokenrecord);
    // The seasonal values are those of each day's own month; a port without tides has rows all the same.
    HarmonicRecord flat;
    flat.MHm2[1] = 1;
    const auto rows = runof(flat, 2026, 32);
    EXPECT_EQ(rows[30].firsthw, -1);
    EXPECT_EQ(rows[30].range, -19998);
    EXPECT_GT(rows[31].firsthw, 0);
}

}  // namespace
}  // namespace tarvane::tests
