#include "tides/textforms.h"

#include <algorithm>

#include "dates/englishlocale.h"
#include "dates/summertime.h"
#include "portdata/aboutwords.h"
#include "portdata/coordinates.h"
#include "session/otherclocks.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {

std::string padright(const std::string& text, std::size_t width) {
    return text + std::string(width - std::min(width, charactercount(text)), ' ');
}

std::string padleft(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, charactercount(text)), ' ') + text;
}

void portheading(const ViewContext& context, const PortInHand& port, std::ostream& out) {
    if (!context.opens || &port != &context.ports.front()) out << "\n";
    const HarmonicRecord& record = port.port.record;
    out << plaintext(port.name) << ", port " << numbertext(port.port.number) << " of " << plaintext(context.areaname)
        << "\nPosition " << LatitudeEditText(record.PortLat) << "  " << LongitudeEditText(record.PortLong)
        << ", zone time " << universaltext(hoursahead(port, 0)) << "\n";
}

void conclusion(const ViewContext& context, const char* line, std::ostream& out) {
    if (context.concludes) out << "\n" << line << "\n";
}

std::string timeline(const ViewContext& context, const PortInHand& port, Date date) {
    const std::int16_t shift = summershift(date, context.settings.summerflag2);
    return correctionline(shift, date) + " (" + universaltext(hoursahead(port, shift)) + ")";
}

std::string dayline(const ViewContext& context, const PortInHand& port, Date date) {
    const std::chrono::hours ahead(hoursahead(port, summershift(date, context.settings.summerflag2)));
    const std::string clocks =
        context.plan.zones ? otherclocks(date, ahead, port.known.iana(), *context.plan.zones) : std::string();
    return timeline(context, port, date) + (clocks.empty() ? "" : "; " + clocks);
}

std::string datumline(const PortInHand& port) {
    if (port.port.currentoutput == 1) return "Heights are above " + chartdatum(port.known.datum());
    if (port.port.userdepth == 0)
        return "Heights are above " + chartdatum(port.known.datum()) + ", no charted depth being set for this port";
    const std::string other = depthofanother(port.port);
    return "Heights include the charted depth of " + format(port.port.userdepth, "0.00") +
           (other.empty() ? " m set for this port" : " m, which stands under the name of " + plaintext(other));
}

std::string nopredictionline(const Prediction& prediction) {
    return std::string("No prediction: ") + prediction.whynot;
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

void daystext(const ViewContext& context, std::ostream& out,
              const std::function<void(const PortInHand&, const Prediction&, Date)>& whole,
              const std::function<void(const PortInHand&, Date)>& behind) {
    Prediction prediction;
    for (const PortInHand& port : context.ports) {
        portheading(context, port, out);
        eachday(context, [&](Date day) {
            predictport(context, port, day, prediction);
            out << "\n" << longdate(day) << "\n" << dayline(context, port, day) << "\n";
            if (prediction.defined)
                whole(port, prediction, day);
            else
                out << nopredictionline(prediction) << "\n";
            if (behind) behind(port, day);
        });
    }
    conclusion(context, heightscaution, out);
}

}  // namespace tarvane
