#include "output/monthtable.h"

#include "dates/dateformats.h"
#include "dates/summertime.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

/// The heading row on time by the month's number alone; nothing where no row is due.
const char* timerow(int month, bool summer) {
    if (issummermonth(month) && summer) return "(Summer Times)";
    // kept: November and December have no row at all while the summer option is on
    if (month > 10 && summer) return nullptr;
    return "(Standard Times)";
}

void addpair(MonthTable& table, const std::string& first, const std::string& second) {
    table.monthcolumn1.push_back(first);
    table.monthcolumn2.push_back(second);
}

void addheadings(MonthTable& table, const std::string& monthname, bool summer) {
    const std::string& portname = table.made.portname;
    const std::string year = numbertext(table.made.year);
    table.monthspredictions = {" Months", "Prediction ", leftcharacters(portname, 10),
                               numbertext(table.made.month) + "/" + year};
    if (const char* row = timerow(table.made.month, summer)) table.monthspredictions.emplace_back(row);
    table.monthtitle = "Monthly tidal prediction for " + trim(portname) + "   ";
    table.monthheading = "Prediction for " + monthname + " " + year + "\r" + portname;
    table.monthcolumn1.clear();
    table.monthcolumn2.clear();
    addpair(table, trim(portname), monthname + " " + year);
}

MonthDay monthday(Date date, const Prediction& prediction) {
    MonthDay day{date, weekdayof(date), {}, {}, prediction.defined, prediction.whynot};
    for (std::size_t j = 1; j <= static_cast<std::size_t>(prediction.turningcount); ++j) {
        const TimedValue& point = prediction.turningpoints[j];
        day.tides.push_back({ltrim(timetext(point.time)), format(point.height, "0.00")});
    }
    return day;
}

void addday(MonthTable& table, MonthDay day, const std::string& monthname, const std::string& weekday) {
    const std::string date = numbertext(dayof(day.date)) + " " + leftcharacters(monthname, 3);
    const std::string inbrackets = "(" + leftcharacters(weekday, 3) + ")";
    day.head = date + " " + inbrackets;
    table.monthspredictions.emplace_back("  ");
    addpair(table, "", "");
    table.monthspredictions.push_back(day.head);
    addpair(table, date, inbrackets);
    auto& cells = table.monthcells[static_cast<std::size_t>(dayof(day.date))];
    std::size_t j = 0;
    for (const WaterText& tide : day.tides) {
        ++j;
        cells[1][j] = tide.time;
        cells[2][j] = tide.height;
        table.monthspredictions.push_back(tide.time + "   " + tide.height);
        addpair(table, tide.time, tide.height);
    }
    cells[3][1] = numbertext(static_cast<int>(day.tides.size()));
    if (!day.defined) {
        addpair(table, nopredictionword, day.whynot);
        table.monthspredictions.emplace_back(nopredictionword);
        for (std::string& row : shortlines(day.whynot))
            table.monthspredictions.push_back(std::move(row));
    }
    table.days.push_back(std::move(day));
}

}  // namespace

void clearmonthcells(MonthTable& table) {
    for (auto& day : table.monthcells)
        for (auto& column : day)
            column.fill({});
}

MonthMade monthmadenow(const Settings& settings, const CurrentPort& port, const DateOnShow& onshow) {
    // kept: one shift, that of the day on show, serves the whole month, even the one in which summer time begins or
    // ends
    return {settings.hcfile,         settings.currentport,     port.portname,
            yearof(onshow.tidedate), monthof(onshow.tidedate), summershift(onshow.tidedate, settings.summerflag2),
            settings.currentoutput,  settings.userdepth};
}

void buildmonthtable(MonthTable& table, const Settings& settings, const CurrentPort& port, const DateOnShow& onshow,
                     const Locale& locale) {
    clearmonthcells(table);
    table.days.clear();
    table.made = monthmadenow(settings, port, onshow);
    const auto [year, month] = std::pair{table.made.year, table.made.month};
    const MonthFacts facts = MonthInfo(locale, year, month);
    addheadings(table, facts.monthname, settings.currentsummer != 0);
    Prediction prediction;
    for (int d = 1; d <= facts.daysinmonth; ++d) {
        const Date date = makedate(year, month, d);
        const auto ofyear = static_cast<std::int16_t>(facts.daysbefore + d);
        predictday(settings, {year, month, ofyear, table.made.summer}, prediction);
        findturningpoints(prediction);
        addday(table, monthday(date, prediction), facts.monthname, formatdate(locale, date, "dddd"));
    }
    table.made.userdepth = prediction.port.userdepth;
}

}  // namespace tarvane
