// The views that `tides` can show, as a table: each has its option, its columns, a routine for its rows and one for its
// text. A new view is a new row here. Must not parse arguments or decide what a fault is.
#pragma once

#include <cstdint>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "dates/calendar.h"
#include "engine/orbital.h"
#include "engine/prediction.h"
#include "portdata/configuration.h"
#include "sunmoon/suntimes.h"
#include "tides/rows.h"

namespace tarvane {

struct PortInHand {
    std::int16_t number = 0;  ///< its record, from 1
    std::string name;
    HarmonicRecord record;
};

/// All that a view works on. Settings change while it works: each prediction sets its own port.
struct ViewContext {
    Settings settings;
    std::vector<PortInHand> ports;  ///< those asked for, or all of the area's for the list
    std::string areaname;
    Date dateonshow{};  ///< the date asked for
    Date first{};       ///< it, or the first of its month
    int days = 1;
};

struct View {
    const char* option;               ///< empty for the high and low waters
    const char* help;                 ///< what it shows
    std::span<const Column> columns;  ///< of its CSV and JSON
    bool needsarea;                   ///< it reads a sea area file
    bool needsport;                   ///< it is about the ports asked for
    bool wholemonth;                  ///< its days are those of the month, however many are asked for
    bool (*computable)(Date);         ///< false for a day without a result; null when every day has one
    void (*rows)(ViewContext&, RowWriter&);
    void (*text)(ViewContext&, std::ostream&);
};

/// Every view; the first is the one shown when none is asked for.
std::span<const View> views();

/// A column of eight events of the sun, of a sample's parts, of a day's angles and factors.
struct SunColumn {
    const char* heading;
    double SunHours::*value;
};
std::span<const SunColumn> suncolumns();

struct LayerColumn {
    const char* heading;
    std::array<TimedValue, 201> Prediction::*layer;
};
std::span<const LayerColumn> layercolumns();

struct GroupColumns {
    const char* angleheading;
    std::int16_t AnglesAndFactors::*angle;
    const char* factorheading;
    double AnglesAndFactors::*factor;
};
std::span<const GroupColumns> groupcolumns();

inline constexpr int lastdayrow = 145;  ///< the sample of 24:00

/// Predicts a day of a port under the context's summer choice, turning points included.
void predictport(ViewContext& context, const PortInHand& port, Date date, Prediction& prediction);

/// The sun of a day at a port under the context's summer choice.
SunHours sunofport(const ViewContext& context, const PortInHand& port, Date date);

/// False for a day without a prediction: it stands on the constants of the day before and of the day.
bool haspredictions(Date date);

/// True if the turning point of that index (from 1) is a high water, told by the sample before it.
bool ishighwater(const Prediction& prediction, int turningpoint);

/// yyyy-mm-dd.
std::string isodate(Date date);

/// Calls `act` for every day in turn.
template <typename Act>
void eachday(const ViewContext& context, Act act) {
    for (int day = 0; day < context.days; ++day)
        act(context.first + std::chrono::days(day));
}

}  // namespace tarvane
