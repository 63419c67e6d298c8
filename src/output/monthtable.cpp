#include "output/monthtable.h"

#include "dates/dateformats.h"
#include "dates/summertime.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

/// What is the same for all days of one table.
struct Month {
    int year = 0;
    int number = 0;
    std::string name;
    std::int16_t shift = 0;
};

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

void addheadings(MonthTable& table, const Month& month, const std::string& portname, bool summer) {
    const std::string year = numbertext(month.year);
    table.monthspredictions = {" Months", "Prediction ", leftcharacters(portname, 10),
                               numbertext(month.number) + "/" + year};
    if (const char* row = timerow(month.number, summer)) table.monthspredictions.emplace_back(row);
    table.monthtitle = "Monthly tidal prediction for " + trim(portname) + "   ";
    table.monthheading = "Prediction for " + month.name + " " + year + "\r" + portname;
    addpair(table, trim(portname), month.name + " " + year);
}

void addday(MonthTable& table, const Month& month, int day, const std::string& weekday, const Prediction& prediction) {
    const std::string date = numbertext(day) + " " + leftcharacters(month.name, 3);
    const std::string inbrackets = "(" + leftcharacters(weekday, 3) + ")";
    table.monthspredictions.emplace_back("  ");
    addpair(table, "", "");
    table.monthspredictions.push_back(date + " " + inbrackets);
    addpair(table, date, inbrackets);
    auto& cells = table.monthcells[static_cast<std::size_t>(day)];
    for (std::size_t j = 1; j <= static_cast<std::size_t>(prediction.turningcount); ++j) {
        const TimedValue& point = prediction.turningpoints[j];
        cells[1][j] = ltrim(timetext(point.time));
        cells[2][j] = format(point.height, "0.00");
        table.monthspredictions.push_back(cells[1][j] + "   " + cells[2][j]);
        addpair(table, cells[1][j], cells[2][j]);
    }
    cells[3][1] = numbertext(prediction.turningcount);
}

}  // namespace

void clearmonthcells(MonthTable& table) {
    for (auto& day : table.monthcells)
        for (auto& column : day)
            column.fill({});
}

void buildmonthtable(MonthTable& table, const Settings& settings, const CurrentPort& port, const DateOnShow& onshow,
                     const Locale& locale) {
    clearmonthcells(table);
    table.monthcolumn1.clear();
    table.monthcolumn2.clear();
    Month month;
    month.year = yearof(onshow.tidedate);
    month.number = monthof(onshow.tidedate);
    const MonthFacts facts = MonthInfo(locale, month.year, month.number);
    month.name = facts.monthname;
    // kept: one shift, that of the day on show, serves the whole month, even the one in which summer time begins or
    // ends
    month.shift = summershift(onshow.tidedate, settings.summerflag2);
    addheadings(table, month, port.portname, settings.currentsummer != 0);
    Prediction prediction;
    for (int d = 1; d <= facts.daysinmonth; ++d) {
        const auto ofyear = static_cast<std::int16_t>(facts.daysbefore + d);
        predictday(settings, {month.year, month.number, ofyear, month.shift}, prediction);
        findturningpoints(prediction);
        addday(table, month, d, formatdate(locale, makedate(month.year, month.number, d), "dddd"), prediction);
    }
}

}  // namespace tarvane
