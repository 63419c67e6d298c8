#include "tides/views.h"

#include <array>
#include <cmath>

#include "dates/summertime.h"
#include "text/numbers.h"
#include "text/timetext.h"
#include "tides/monthview.h"
#include "tides/textforms.h"

namespace tarvane {

namespace {

constexpr std::array<SunColumn, 8> sunevents{{
    {"astrodawn", &SunHours::astrodawn},
    {"nautdawn", &SunHours::nautdawn},
    {"civildawn", &SunHours::civildawn},
    {"sunrise", &SunHours::sunrise},
    {"sunset", &SunHours::sunset},
    {"civildusk", &SunHours::civildusk},
    {"nautdusk", &SunHours::nautdusk},
    {"astrodusk", &SunHours::astrodusk},
}};

constexpr std::array<LayerColumn, 7> layers{{
    {"M2", &Prediction::m2layer},
    {"S2", &Prediction::s2layer},
    {"K1", &Prediction::k1layer},
    {"O1", &Prediction::o1layer},
    {"F4", &Prediction::f4layer},
    {"F6", &Prediction::f6layer},
    {"Z0", &Prediction::sumlayer},
}};

constexpr std::array<GroupColumns, 4> groups{{
    {"ma", &AnglesAndFactors::ma, "mf", &AnglesAndFactors::mf},
    {"sa", &AnglesAndFactors::sa, "sf", &AnglesAndFactors::sf},
    {"ka", &AnglesAndFactors::ka, "kf", &AnglesAndFactors::kf},
    {"oa", &AnglesAndFactors::oa, "of", &AnglesAndFactors::of},
}};

constexpr std::array<Column, 6> tidecolumns{
    {{"port", true}, {"name", false}, {"date", false}, {"time", false}, {"height", true}, {"kind", false}}};
constexpr std::array<Column, 8> monthcolumns{{{"port", true},
                                              {"name", false},
                                              {"year", true},
                                              {"month", true},
                                              {"day", true},
                                              {"weekday", false},
                                              {"time", false},
                                              {"height", true}}};
constexpr std::array<Column, 12> samplecolumns{{{"port", true},
                                                {"date", false},
                                                {"row", true},
                                                {"hours", true},
                                                {"height", true},
                                                {"m2", true},
                                                {"s2", true},
                                                {"k1", true},
                                                {"o1", true},
                                                {"f4", true},
                                                {"f6", true},
                                                {"z0", true}}};
constexpr std::array<Column, 10> suntablecolumns{{{"port", true},
                                                  {"date", false},
                                                  {"astrodawn", true},
                                                  {"nautdawn", true},
                                                  {"civildawn", true},
                                                  {"sunrise", true},
                                                  {"sunset", true},
                                                  {"civildusk", true},
                                                  {"nautdusk", true},
                                                  {"astrodusk", true}}};
constexpr std::array<Column, 9> orbitalcolumns{{{"date", false},
                                                {"ma", true},
                                                {"mf", true},
                                                {"sa", true},
                                                {"sf", true},
                                                {"ka", true},
                                                {"kf", true},
                                                {"oa", true},
                                                {"of", true}}};
constexpr std::array<Column, 5> listcolumns{
    {{"port", true}, {"name", false}, {"latitude", true}, {"longitude", true}, {"zone", false}}};

constexpr int heightdecimals = 4;
constexpr int sampledecimals = 9;
constexpr int factordecimals = 12;

bool hasconstants(Date date) {
    return orbitalconstants(yearof(date), dayofyear(date)).has_value();
}

void tiderows(ViewContext& context, RowWriter& writer) {
    Prediction prediction;
    for (const PortInHand& port : context.ports) {
        eachday(context, [&](Date date) {
            predictport(context, port, date, prediction);
            for (int i = 1; i <= prediction.turningcount; ++i) {
                const TimedValue& point = prediction.turningpoints[static_cast<std::size_t>(i)];
                writer.row({numbertext(port.number), port.name, isodate(date), timetext(point.time),
                            fixed(point.height, heightdecimals), ishighwater(prediction, i) ? "high" : "low"});
            }
        });
    }
}

void samplerows(ViewContext& context, RowWriter& writer) {
    Prediction prediction;
    for (const PortInHand& port : context.ports) {
        eachday(context, [&](Date date) {
            predictport(context, port, date, prediction);
            for (int row = 1; row <= lastdayrow; ++row) {
                const auto index = static_cast<std::size_t>(row);
                const TimedValue& sample = prediction.curvesamples[index];
                std::vector<std::string> cells{numbertext(port.number), isodate(date), numbertext(row),
                                               fixed(sample.time, sampledecimals),
                                               fixed(sample.height, sampledecimals)};
                for (const LayerColumn& column : layers) {
                    cells.push_back(fixed((prediction.*column.layer)[index].height, sampledecimals));
                }
                writer.row(cells);
            }
        });
    }
}

void sunrows(ViewContext& context, RowWriter& writer) {
    for (const PortInHand& port : context.ports) {
        eachday(context, [&](Date date) {
            const SunHours sun = sunofport(context, port, date);
            std::vector<std::string> cells{numbertext(port.number), isodate(date)};
            for (const SunColumn& column : sunevents)
                cells.push_back(fixed(sun.*column.value, sampledecimals));
            writer.row(cells);
        });
    }
}

void orbitalrows(ViewContext& context, RowWriter& writer) {
    eachday(context, [&](Date date) {
        const auto constants = orbitalconstants(yearof(date), dayofyear(date));
        if (!constants) return;
        std::vector<std::string> cells{isodate(date)};
        for (const GroupColumns& group : groups) {
            cells.push_back(numbertext((*constants).*group.angle));
            cells.push_back(fixed((*constants).*group.factor, factordecimals));
        }
        writer.row(cells);
    });
}

void listrows(ViewContext& context, RowWriter& writer) {
    for (const PortInHand& port : context.ports) {
        writer.row({numbertext(port.number), port.name, shortest(port.record.PortLat), shortest(port.record.PortLong),
                    port.record.TimeZoneLetter});
    }
}

constexpr std::array<View, 6> allviews{{
    {"", "the high and low waters of each day", tidecolumns, true, true, false, haspredictions, tiderows, tidestext},
    {"--samples", "the day's curve every ten minutes, with each constituent's part", samplecolumns, true, true, false,
     haspredictions, samplerows, samplestext},
    {"--month", "the high and low waters of the whole month of the date, as the month table has them", monthcolumns,
     true, true, true, haspredictions, monthrows, monthtext},
    {"--sun", "dawns, sunrise, sunset and dusks", suntablecolumns, true, true, false, nullptr, sunrows, suntext},
    {"--orbital", "the day's angles and factors, the same for every port", orbitalcolumns, false, false, false,
     hasconstants, orbitalrows, orbitaltext},
    {"--list", "the ports of the sea area", listcolumns, true, false, false, nullptr, listrows, listtext},
}};

}  // namespace

std::span<const View> views() {
    return allviews;
}
std::span<const SunColumn> suncolumns() {
    return sunevents;
}
std::span<const LayerColumn> layercolumns() {
    return layers;
}
std::span<const GroupColumns> groupcolumns() {
    return groups;
}

void predictport(ViewContext& context, const PortInHand& port, Date date, Prediction& prediction) {
    TideDay day;
    day.tideyear = yearof(date);
    day.tidemonth = monthof(date);
    day.dayofyear = static_cast<std::int16_t>(dayofyear(date));
    day.summer = summershift(date, context.settings.summerflag2);
    context.settings.currentport = port.number;
    predictday(context.settings, day, prediction);
    context.settings.userdepth = prediction.port.userdepth;
    findturningpoints(prediction);
}

SunHours sunofport(const ViewContext& context, const PortInHand& port, Date date) {
    return SunTimes(port.record.PortLat, port.record.PortLong, dayof(date), monthof(date), yearof(date),
                    summershift(date, context.settings.summerflag2), zonehoursof(port.record));
}

bool ishighwater(const Prediction& prediction, int turningpoint) {
    const TimedValue& point = prediction.turningpoints[static_cast<std::size_t>(turningpoint)];
    const auto row = static_cast<std::size_t>(std::lround(point.time * 6) + 1);
    return point.height > prediction.curvesamples[row - 1].height;
}

bool haspredictions(Date date) {
    return orbitalconstants(yearof(date), dayofyear(date) - 1).has_value() && hasconstants(date);
}

std::string isodate(Date date) {
    return format(yearof(date), "0000") + "-" + format(monthof(date), "00") + "-" + format(dayof(date), "00");
}

}  // namespace tarvane
