#include <algorithm>
#include <cmath>

#include "output/curvepicture.h"
#include "output/daytable.h"
#include "output/pagetext.h"
#include "output/printouts.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

/// Thickness of lines, twips: the curve stands out from the hair-thin grid.
constexpr double curvewidth = 36;
constexpr double framewidth = 8;
constexpr double gridwidth = 3;

/// The box of the curve, from (0, 0) to (width, height), and what it maps.
struct CurveBox {
    double width, height;
    CurveLimits limits;

    double x(double hours) const { return hours / 24 * width; }
    double y(double metres) const {
        return (limits.curvetop - metres) / (limits.curvetop - limits.curvebottom) * height;
    }
    bool holds(double px, double py) const { return px >= 0 && px <= width && py >= 0 && py <= height; }
};

void drawcurve(Printer& printer, const CurveBox& box, const CurveSeries& series, int samplecount) {
    const auto last = static_cast<std::size_t>(std::max(samplecount - 2, 0));
    printer.setlinewidth(curvewidth);
    for (std::size_t i = 2; i < last; ++i)
        printer.line(box.x(series.curve1[i].time), box.y(series.curve1[i].height), box.x(series.curve1[i + 1].time),
                     box.y(series.curve1[i + 1].height));
    if (!series.dotted) return;
    for (std::size_t i = 2; i <= last; ++i) {
        const double x = box.x(series.curve2[i].time), y = box.y(series.curve2[i].height);
        if (box.holds(x, y)) printer.point(x, y);
    }
}

void drawframe(Printer& printer, const CurveBox& box) {
    printer.setlinewidth(framewidth);
    printer.line(0, 0, box.width, 0);
    printer.line(0, box.height, box.width, box.height);
    printer.line(0, 0, 0, box.height);
    printer.line(box.width, 0, box.width, box.height);
}

void drawhours(Printer& printer, const CurveBox& box) {
    printer.setlinewidth(gridwidth);
    for (int hour = 3; hour <= 21; hour += 3)
        printer.line(box.x(hour), 0, box.x(hour), box.height);
    printer.setcurrenty(box.height + printer.textheight() / 4);
    for (int hour = 3; hour <= 21; hour += 3) {
        const std::string label = timetext(hour);
        printer.setcurrentx(box.x(hour) - printer.textwidth(label) / 2);
        printer.printon(label);
    }
}

/// Lines at whole metres and their labels left of the box, as many as have room.
void drawmetres(Printer& printer, const CurveBox& box) {
    const double first = std::ceil(box.limits.curvebottom), last = box.limits.curvetop;
    const double lineheight = printer.textheight();
    const double gap = printer.textwidth("0") / 2;
    printer.setlinewidth(gridwidth);
    if (last - first <= mostgridlines) {
        const double metre = box.height / (last - box.limits.curvebottom);
        const double step = std::max(1.0, std::ceil(lineheight / metre));
        for (double y = first; y <= last; ++y) {
            printer.line(0, box.y(y), box.width, box.y(y));
            if (std::fmod(y, step) != 0) continue;
            const std::string label = numbertext(y);
            printer.setcurrentx(-gap - printer.textwidth(label));
            printer.setcurrenty(box.y(y) - lineheight / 2);
            printer.printon(label);
        }
    }
    printer.setbold(true);
    printer.setcurrentx(0);
    printer.setcurrenty(-1.25 * lineheight);
    printer.printon("Metres");
    printer.setbold(false);
}

/// In the middle of a box without a curve: why there is none.
void printwhynot(Printer& printer, const CurveBox& box, const std::string& whynot) {
    const std::string text = nopredictiontext(whynot);
    printer.setbold(true);
    printer.setcurrentx((box.width - printer.textwidth(text)) / 2);
    printer.setcurrenty((box.height - printer.textheight()) / 2);
    printer.printon(text);
    printer.setbold(false);
    printer.setcurrenty(box.height);
}

/// The one note line under the curve's captions.
void printcurvenote(Printer& printer, const Settings& settings) {
    if (settings.currentoutput != 2.0F && settings.currentoutput != 3.0F) {
        printat(printer, 0, "Heights shown in Metres to Chart Datum");
        return;
    }
    std::string depths = "User charted depth = " + enteredmetres(settings.userdepth);
    if (settings.currentoutput == 3.0F)
        depths += "   Draught = " + enteredmetres(settings.currentdraught) +
                  "   Under keel = " + enteredmetres(settings.currentukc);
    printer.setcurrentx(0);
    printer.printon("Heights shown in Metres and include:");
    printat(printer, printer.currentx() + printer.textwidth("  "), depths + " (Metres)");
}

/// Half a line, or what the page leaves for two such gaps around the captions, so that a day of many tides still fits.
double captiongap(Printer& printer, const std::string& daytable) {
    const double lineheight = printer.textheight();
    const auto tablelines = 1 + std::count(daytable.begin(), daytable.end(), '\r');
    const double needed = (3 + static_cast<double>(tablelines)) * lineheight + closingheight(printer);
    const double room = printer.scaleheight() * 14 / 15 - printer.currenty();
    return std::clamp((room - needed) / 2, 0.0, lineheight / 2);
}

constexpr std::size_t tablecolumns = 4;
constexpr std::size_t rowsofcolumn = 36;
constexpr std::size_t rowsofhour = 6;

/// One column of the 10-minute table, from its head's top; leaves the position under it.
void printtencolumn(Printer& printer, const DayPage& page, std::size_t column, double left, double top) {
    printer.setcurrenty(top);
    printer.setbold(true);
    printat(printer, left, column == 1 ? "Time Height" : "Time  Height");
    printer.setbold(false);
    const std::size_t first = rowsofcolumn * (column - 1) + 1;
    for (std::size_t row = 0; row < rowsofcolumn; ++row) {
        const TimedValue& sample = page.curve.curvesamplescopy[first + row];
        printat(printer, left, ltrim(timetext(sample.time)) + "    " + heighttext(sample.height));
        if (row % rowsofhour == rowsofhour - 1) printer.print("");
    }
}

std::string tenminutenote(const Settings& settings) {
    const bool datum = settings.currentoutput == 1.0F;
    if (!datum && settings.userdepth != 0)
        return "Heights shown in Metres and include : User entered depth = " + enteredmetres(settings.userdepth) +
               " (Metres)";
    return std::string("Heights shown in Metres to Chart Datum") + (datum ? "" : ".");
}

}  // namespace

void printcurvepage(Printer& printer, const DayPage& page) {
    const double scalewidth = printer.scalewidth(), scaleheight = printer.scaleheight();
    printer.setorigin(-scalewidth / 20, -scaleheight / 15);
    printer.setfontsize(bodysize);
    printer.setbold(false);
    const auto& samples = page.curve.curvesamplescopy;
    const CurveSeries series = curveseries(samples, page.samplecount, page.settings);
    const CurveBox box{0.9 * scalewidth, scaleheight / 2, curvelimits(series, samples, page.samplecount)};
    drawframe(printer, box);
    if (page.whynot.empty()) {
        drawmetres(printer, box);
        drawhours(printer, box);
        if (series.drawn) drawcurve(printer, box, series, page.samplecount);
    } else {
        printwhynot(printer, box, page.whynot);
    }
    printer.print("");
    const double gap = captiongap(printer, page.daystide1);
    printer.setcurrenty(printer.currenty() + gap);
    printer.setbold(true);
    printat(printer, 0, page.portbox);
    printat(printer, 0, page.tidedatebox);
    printer.setbold(false);
    printcurvenote(printer, page.settings);
    printer.setcurrenty(printer.currenty() + gap);
    printat(printer, 0, page.daystide1);
    printclosinglines(printer, 0, page.closing, true);
}

void printtenminutepage(Printer& printer, const DayPage& page) {
    const double width = printer.width();
    const double m = width / 7;
    printer.setfontsize(bodysize);
    printer.setbold(true);
    printer.print("");
    printat(printer, m, page.portbox);
    printat(printer, m, page.tidedatebox);
    if (!page.whynot.empty()) {
        printer.setcurrenty(m / 1.5);
        printat(printer, m, nopredictiontext(page.whynot));
        printer.print("");
        printclosinglines(printer, m, page.closing, true);
        return;
    }
    double underfirst = 0;
    for (std::size_t column = 1; column <= tablecolumns; ++column) {
        // kept: the first column stands a little lower than the others, and what follows stands under it
        const double top = column == 1 ? m / 1.5 : m / 2;
        printtencolumn(printer, page, column, m + static_cast<double>(column - 1) * width / 5, top);
        if (column == 1) underfirst = printer.currenty();
    }
    printer.setcurrenty(underfirst);
    printer.setfontsize(closingsize);
    printat(printer, m, tenminutenote(page.settings));
    printclosinglines(printer, m, page.closing, true);
}

}  // namespace tarvane
