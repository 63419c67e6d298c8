#include "tides/textforms.h"

#include <algorithm>

#include "dates/summertime.h"
#include "engine/springs.h"
#include "portdata/coordinates.h"
#include "sunmoon/sunmonth.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "text/timetext.h"
#include "tides/englishlocale.h"
#include "tides/monthview.h"

namespace tarvane {

namespace {

constexpr const char* undefinedday =
    "No prediction for this day: the arithmetic of its orbital constants divides by zero.";
constexpr const char* caution =
    "Heights in Metres, all data are derived and should therefore be considered as approximate";

std::string padright(const std::string& text, std::size_t width) {
    return text + std::string(width - std::min(width, charactercount(text)), ' ');
}

std::string padleft(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, charactercount(text)), ' ') + text;
}

void portheading(const ViewContext& context, const PortInHand& port, std::ostream& out) {
    if (&port != &context.ports.front()) out << "\n";
    out << plaintext(port.name) << ", port " << numbertext(port.number) << " of " << plaintext(context.areaname)
        << "\nPosition " << LatitudeEditText(port.record.PortLat) << "  " << LongitudeEditText(port.record.PortLong)
        << ", zone time " << universaltext(-zonehoursof(port.record)) << "\n";
}

std::string timeline(const ViewContext& context, const PortInHand& port, Date date) {
    const std::int16_t shift = summershift(date, context.settings.summerflag2);
    return correctionline(shift, date) + " (" + universaltext(-zonehoursof(port.record) - shift) + ")";
}

std::string datumline(const Settings& settings) {
    if (settings.currentoutput == 1) return "Heights are above chart datum";
    if (settings.userdepth == 0) return "Heights are above chart datum, no charted depth being set for this port";
    return "Heights include the charted depth of " + format(settings.userdepth, "0.00") + " m set for this port";
}

void daytext(ViewContext& context, const PortInHand& port, Date date, Prediction& prediction, std::ostream& out) {
    predictport(context, port, date, prediction);
    out << "\n" << longdate(date) << "\n" << timeline(context, port, date) << "\n";
    if (prediction.defined) {
        out << datumline(context.settings) << "\n";
        for (int i = 1; i <= prediction.turningcount; ++i) {
            const TimedValue& point = prediction.turningpoints[static_cast<std::size_t>(i)];
            const bool atdaysend = point.time >= 24;
            out << "  " << timetext(point.time) << padleft(format(point.height, "0.00"), 8) << "  "
                << (ishighwater(prediction, i) ? "high" : "low") << (atdaysend ? ", midnight at the day's end" : "")
                << "\n";
        }
        if (prediction.turningcount == 0) out << "  No high or low water on this day\n";
        out << "Range " << format(prediction.dayrange, "0.00") << " m\n";
        const auto lag = findspringslag(prediction);
        const std::string status = lag ? springstext(*lag) : "";
        out << (status.empty() ? "Springs or neaps: this day's curve does not tell" : status) << "\n";
    } else {
        out << undefinedday << "\n";
    }
    const SunHours sun = sunofport(context, port, date);
    out << "Sunrise " << eventtext(sun.sunrise) << "  Sunset " << eventtext(sun.sunset) << "\n";
}

}  // namespace

void tidestext(ViewContext& context, std::ostream& out) {
    Prediction prediction;
    for (const PortInHand& port : context.ports) {
        portheading(context, port, out);
        eachday(context, [&](Date date) { daytext(context, port, date, prediction, out); });
    }
    out << "\n" << caution << "\n";
}

void monthtext(ViewContext& context, std::ostream& out) {
    for (const PortInHand& port : context.ports) {
        portheading(context, port, out);
        const MonthTable table = monthofport(context, port);
        out << "\n"
            << formatdate(EnglishLocale(), context.first, "mmmm yyyy") << "\n"
            << timeline(context, port, context.dateonshow) << "\n"
            << datumline(context.settings) << "\n";
        eachday(context, [&](Date date) {
            const auto& cells = table.monthcells[static_cast<std::size_t>(dayof(date))];
            const int count = turningcountof(table, dayof(date));
            out << formatdate(EnglishLocale(), date, "ddd ") << padleft(numbertext(dayof(date)), 2);
            for (int i = 1; i <= count; ++i) {
                const auto point = static_cast<std::size_t>(i);
                out << "   " << cells[1][point] << padleft(cells[2][point], 7);
            }
            if (!haspredictions(date)) {
                out << "   " << undefinedday;
            } else if (count == 0) {
                out << "   No high or low water on this day";
            }
            out << "\n";
        });
    }
    out << "\n" << caution << "\n";
}

void samplestext(ViewContext& context, std::ostream& out) {
    Prediction prediction;
    for (const PortInHand& port : context.ports) {
        portheading(context, port, out);
        eachday(context, [&](Date date) {
            predictport(context, port, date, prediction);
            out << "\n" << longdate(date) << "\n" << timeline(context, port, date) << "\n";
            if (!prediction.defined) {
                out << undefinedday << "\n";
                return;
            }
            out << datumline(context.settings) << "\n"
                << padleft("Row", 4) << padleft("Time", 7) << padleft("Height", 9);
            for (const LayerColumn& column : layercolumns())
                out << padleft(column.heading, 8);
            out << "\n";
            for (int row = 1; row <= lastdayrow; ++row) {
                const auto index = static_cast<std::size_t>(row);
                const TimedValue& sample = prediction.curvesamples[index];
                out << padleft(numbertext(row), 4) << padleft(timetext(sample.time), 7)
                    << padleft(format(sample.height, "0.000"), 9);
                for (const LayerColumn& column : layercolumns()) {
                    out << padleft(format((prediction.*column.layer)[index].height, "0.000"), 8);
                }
                out << "\n";
            }
        });
    }
    out << "\n" << caution << "\n";
}

void suntext(ViewContext& context, std::ostream& out) {
    for (const PortInHand& port : context.ports) {
        portheading(context, port, out);
        out << "\n" << padright("Date", 10);
        for (const SunColumn& column : suncolumns())
            out << padleft(column.heading, 11);
        out << "\n";
        eachday(context, [&](Date date) {
            const SunHours sun = sunofport(context, port, date);
            out << isodate(date);
            for (const SunColumn& column : suncolumns())
                out << padleft(eventtext(sun.*column.value), 11);
            out << (summershift(date, context.settings.summerflag2) ? "  summer time" : "") << "\n";
        });
    }
    out << "\nAll data are derived and should therefore be considered as approximate\n";
}

void orbitaltext(ViewContext& context, std::ostream& out) {
    out << padright("Date", 10);
    for (const GroupColumns& group : groupcolumns()) {
        out << padleft(group.angleheading, 6) << padleft(group.factorheading, 9);
    }
    out << "\n";
    eachday(context, [&](Date date) {
        out << isodate(date);
        const auto constants = orbitalconstants(yearof(date), dayofyear(date));
        if (!constants) {
            out << "  no constants: their arithmetic divides by zero on this day\n";
            return;
        }
        for (const GroupColumns& group : groupcolumns()) {
            out << padleft(numbertext((*constants).*group.angle), 6)
                << padleft(format((*constants).*group.factor, "0.0000"), 9);
        }
        out << "\n";
    });
}

void listtext(ViewContext& context, std::ostream& out) {
    std::size_t width = 4;
    for (const PortInHand& port : context.ports)
        width = std::max(width, charactercount(plaintext(port.name)));
    out << padleft("Port", 5) << "  " << padright("Name", width) << padleft("Latitude", 11) << padleft("Longitude", 11)
        << "  Zone\n";
    for (const PortInHand& port : context.ports) {
        out << padleft(numbertext(port.number), 5) << "  " << padright(plaintext(port.name), width)
            << padleft(LatitudeEditText(port.record.PortLat), 11)
            << padleft(LongitudeEditText(port.record.PortLong), 11) << "  " << plaintext(port.record.TimeZoneLetter)
            << " " << universaltext(-zonehoursof(port.record)) << "\n";
    }
}

std::string longdate(Date date) {
    return formatdate(EnglishLocale(), date, "dddd d mmmm yyyy");
}

std::string universaltext(int hoursahead) {
    if (hoursahead == 0) return "UT";
    return (hoursahead > 0 ? "UT+" : "UT") + numbertext(hoursahead);
}

std::string plaintext(const std::string& text) {
    std::string plain = text;
    for (char& character : plain) {
        const auto code = static_cast<unsigned char>(character);
        if (code < 0x20 || code == 0x7F) character = '?';
    }
    return plain;
}

}  // namespace tarvane
