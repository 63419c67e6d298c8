// The month table of the desktop program, one port and one month. It predicts by itself only to tell why a day has no
// waters.
#include "dates/englishlocale.h"
#include "dates/summertime.h"
#include "output/monthtable.h"
#include "text/numbers.h"
#include "tides/textforms.h"
#include "tides/views.h"

namespace tarvane {

namespace {

struct MonthWater {
    Date date{};  ///< the day's, or the next day's for midnight at its end
    std::string clock;
    std::string height;
};

struct MonthDay {
    Date date{};
    std::vector<MonthWater> waters;
    Prediction prediction;  ///< made when there are no waters
};

/// Calls `act` for each day of the port's month table. One summer shift, that of the date on show, holds for all days.
template <typename Act>
void eachmonthday(const ViewContext& context, const PortInHand& port, Act act) {
    Settings settings = context.settings;
    settings.currentport = port.port.number;
    const HarmonicRecord& record = port.port.record;
    DateOnShow onshow;
    setdateonshow(onshow, context.dateonshow);
    MonthTable table;
    buildmonthtable(table, settings, {port.name, record.PortLat, record.PortLong, zonehoursof(record)}, onshow,
                    EnglishLocale());
    MonthDay day;
    eachday(context, [&](Date date) {
        day.date = date;
        day.waters.clear();
        const auto& cells = table.monthcells[static_cast<std::size_t>(dayof(date))];
        const auto count = static_cast<std::size_t>(val(cells[3][1]));
        for (std::size_t i = 1; i <= count; ++i) {
            // no water stands at the day's beginning
            const bool atdaysend = cells[1][i] == "00:00";
            day.waters.push_back({date + std::chrono::days(atdaysend ? 1 : 0), cells[1][i], cells[2][i]});
        }
        if (count == 0) predictport(context, port, date, day.prediction);
        act(day);
    });
}

std::vector<Column> monthcolumns() {
    return {{"port"},           {"name", false}, {"year"},   {"month"},         {"day"},
            {"weekday", false}, {"time", false}, {"height"}, {"moment", false}, {"depth"}};
}

void monthrows(const ViewContext& context, RowWriter& writer, Absences& absences) {
    const std::int16_t shift = summershift(context.dateonshow, context.settings.summerflag2);
    for (const PortInHand& port : context.ports) {
        eachmonthday(context, port, [&](const MonthDay& day) {
            for (const auto& [date, clock, height] : day.waters) {
                writer.row({numbertext(port.port.number), port.name, numbertext(yearof(date)),
                            numbertext(monthof(date)), numbertext(dayof(date)),
                            EnglishLocale().dayabbreviation(weekdayof(date)), clock, height,
                            isomoment(date, clock, std::chrono::hours(hoursahead(port, shift))),
                            shortest(includeddepth(port))});
            }
            if (day.waters.empty()) noteabsence(absences, port, day.prediction, day.date);
        });
    }
}

std::string daynumber(Date date) {
    return formatdate(EnglishLocale(), date, "ddd ") + padleft(numbertext(dayof(date)), 2);
}

void monthtext(const ViewContext& context, std::ostream& out) {
    for (const PortInHand& port : context.ports) {
        portheading(context, port, out);
        out << "\n"
            << formatdate(EnglishLocale(), context.first, "mmmm yyyy") << "\n"
            << timeline(context, port, context.dateonshow) << "\n"
            << datumline(port) << "\n";
        eachmonthday(context, port, [&](const MonthDay& day) {
            out << daynumber(day.date);
            for (const auto& [date, clock, height] : day.waters) {
                out << "   " << clock << padleft(height, 7) << (date == day.date ? "" : " on " + daynumber(date));
            }
            if (day.waters.empty()) {
                out << "   "
                    << (day.prediction.defined ? "No high or low water on this day" : nopredictionline(day.prediction));
            }
            out << "\n";
        });
    }
    conclusion(context, heightscaution, out);
}

}  // namespace

constinit const View monthview{
    .option = "--month",
    .help = "the high and low waters of the whole month of the date, as the month table has them",
    .needsarea = true,
    .needsport = true,
    .wholemonth = true,
    .columns = monthcolumns,
    .rows = monthrows,
    .text = monthtext,
};

}  // namespace tarvane
