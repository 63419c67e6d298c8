#include "adjust/workspace.h"

#include <algorithm>
#include <cmath>

#include "dates/dateformats.h"
#include "dates/isomoments.h"
#include "output/curvepicture.h"
#include "portdata/recordfiles.h"
#include "session/tidecurve.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

constexpr double curvefloor = -2;
constexpr std::size_t leastdrawn = 10;
constexpr const char* toofewtext = "Not enough data to draw in a curve";

/// The texts that a curve is made of.
const ConstantTexts& shownin(const AdjustWorkspace& workspace, CurvePlace place) {
    if (place == port1curve) return workspace.port1;
    return place == port2curve ? workspace.port2 : workspace.boxes;
}

bool hasport(const AdjustWorkspace& workspace, CurvePlace place) {
    if (place == port1curve) return !workspace.name1.empty();
    return place == intermediatecurve || !workspace.name2.empty();
}

CurveLimits limitsof(const Prediction& curve) {
    double greatest = curve.curvesamples[1].height;
    for (std::size_t i = 1; i < static_cast<std::size_t>(curve.samplecount); ++i)
        greatest = std::max(greatest, curve.curvesamples[i].height);
    // kept: the bottom is -2 whatever the curve does, so that the three pictures compare
    return {std::max(std::trunc(greatest) + 1, curvefloor + 1), curvefloor};
}

void showdate(AdjustWorkspace& workspace, const MainContext& context) {
    const Locale& locale = context.services.locale;
    const Date date = context.session.onshow.tidedate;
    workspace.tidedatebox = "Date   : " + DateCaption(locale, context.session.conventions, date) + " (" +
                            formatdate(locale, date, "dddd") + ")";
}

/// Reads the chosen file anew; what is wrong with it goes to `answer`.
void rereadheights(AdjustWorkspace& workspace) {
    workspace.readings.clear();
    workspace.toofewreadings = false;
    if (workspace.heightfile.empty()) return;
    const ObservedHeights heights = readheights(workspace.heightfile);
    workspace.toofewreadings = heights.fault.empty() && heights.readings.size() < leastdrawn;
    if (!heights.fault.empty() || workspace.toofewreadings)
        workspace.answer = workspace.toofewreadings ? toofewtext : heights.fault + ": " + workspace.heightfile;
    else
        workspace.readings = heights.readings;
}

void DrawObservedHeights(const std::vector<HeightRecord>& readings, DrawSurface& picture) {
    // kept: joined in the order of entry, never sorted
    for (std::size_t i = 0; i + 1 < readings.size(); ++i)
        picture.line(readings[i].obstime, readings[i].obsheight, readings[i + 1].obstime, readings[i + 1].obsheight,
                     green);
}

/// The pictures are too narrow for a sentence in one line.
std::string intwolines(std::string sentence) {
    if (const std::size_t space = sentence.find(' ', sentence.size() / 2); space != std::string::npos)
        sentence[space] = '\n';
    return sentence;
}

double hoursof(const std::string& time) {
    const std::size_t colon = time.find(':');
    if (colon == std::string::npos) return 0;
    return val(time.substr(0, colon)) + val(time.substr(colon + 1)) / 60;
}

std::string known(double value, double error, const char* pattern, const char* unit) {
    return format(value, pattern) + unit + " (+/- " + format(error, pattern) + ")";
}

FitFigures figuresof(const HeightFit& fit, const std::vector<Reading>& readings, Date day) {
    const auto [first, last] = std::minmax_element(readings.begin(), readings.end(),
                                                   [](const Reading& a, const Reading& b) { return a.time < b.time; });
    FitFigures figures;
    figures.leftout = static_cast<int>(fit.rejected.size());
    figures.readings = static_cast<int>(readings.size()) - figures.leftout;
    figures.before = fit.before.rms;
    figures.after = fit.after.rms;
    figures.greatest = fit.after.greatest;
    figures.hours = last->time - first->time;
    figures.day = isodate(day);
    return figures;
}

std::string missestext(const FitMisses& misses) {
    return format(misses.rms, "0.00") + " m RMS, greatest miss " + format(misses.greatest, "0.00") + " m at " +
           timetext(misses.time);
}

}  // namespace

AdjustWorkspace openworkspace(MainContext& context) {
    Session& session = context.session;
    Settings& settings = session.settings;
    rereadconfig(session.folders, settings);
    takechoices(settings, settings.configrec);
    AdjustWorkspace workspace;
    workspace.timeval = "(Click mouse to freeze)";
    const int ports = portcount(settings.hcfile);
    const std::int16_t number = settings.currentport;
    if (number >= 1 && number <= ports) {
        const HarmonicRecord record = readport(settings.hcfile, number);
        session.port.zonehours = zonehoursof(record);
        loadport1(workspace, record);
    }
    if (number >= 0 && number + 1 <= ports) {
        // kept: the following record becomes the current port for its reading
        settings.currentport = static_cast<std::int16_t>(number + 1);
        loadport2(workspace, readport(settings.hcfile, settings.currentport));
        settings.currentport = number;
    }
    if (workspace.name1.empty())
        workspace.answer = "There is no current port. Load ports with File, Load Port Constants.";
    else if (workspace.name2.empty())
        workspace.answer =
            workspace.name1 + " is the last port of its area: load a Port 2 with File, Load Port Constants.";
    fillboxes(workspace, workspace.name2.empty() ? workspace.port1 : plainmeans(workspace.first, workspace.second));
    workspace.madefrom = workspace.name2.empty() ? workspace.name1 : workspace.name1 + " and " + workspace.name2;
    workspace.undo.reset();
    workspace.saved = workspace.boxes;
    updatecalc(workspace, context);
    return workspace;
}

void updatecalc(AdjustWorkspace& workspace, MainContext& context) {
    const DateOnShow& onshow = context.session.onshow;
    const int year = yearof(onshow.tidedate), day = dayofyear(onshow.tidedate);
    for (const CurvePlace place : {port1curve, port2curve, intermediatecurve})
        predictworkspace(recordof(shownin(workspace, place)), year, day, workspace.curves[place]);
    rereadheights(workspace);
    showdate(workspace, context);
    AdjustReadout(workspace);
}

void cmdcalc(AdjustWorkspace& workspace, MainContext& context) {
    Session& session = context.session;
    Settings& settings = session.settings;
    rereadconfig(session.folders, settings);
    settings.currentdraught = settings.configrec.draught;
    settings.currentukc = settings.configrec.ukc;
    settings.currentport = cint(settings.configrec.portnumber);
    updatecalc(workspace, context);
}

void stepworkspace(AdjustWorkspace& workspace, MainContext& context, int days) {
    setdateonshow(context.session.onshow, context.session.onshow.tidedate + std::chrono::days{days});
    workspace.heightfile.clear();
    updatecalc(workspace, context);
}

void stepconstant(AdjustWorkspace& workspace, std::size_t row, int value) {
    workspace.steps[row] = value;
    workspace.boxes[row] = steptext(constantrows[row], value);
}

void workspacemove(AdjustWorkspace& workspace, double x) {
    if (workspace.freezecount != 0) return;
    const Prediction& curve = workspace.curves[intermediatecurve];
    // The slot's own time: that of row 1 is the mark in front of the day.
    workspace.timeval = timetext(static_cast<double>(sampleindex(x, curve.samplecount) - 1) / 6);
    AdjustReadout(workspace);
}

void workspacepress(AdjustWorkspace& workspace) {
    workspace.freezecount = workspace.freezecount == 0 ? 1 : 0;
}

void AdjustReadout(AdjustWorkspace& workspace) {
    const double hours = hoursof(workspace.timeval);
    for (const CurvePlace place : {port1curve, intermediatecurve, port2curve}) {
        const Prediction& curve = workspace.curves[place];
        AdjustColumn& column = workspace.columns[place];
        column = {};
        if (!curve.defined || !hasport(workspace, place)) continue;
        const std::size_t slot = sampleindex(hours, curve.samplecount - 1);
        double total = val(shownin(workspace, place)[0]);
        for (std::size_t i = 0; i < constituents.size(); ++i) {
            const double part = (curve.*constituents[i].layer)[slot].height;
            if (i != meanlevelplace) total += part;
            column.parts[i] = i == meanlevelplace ? shownin(workspace, place)[0] : format(part, "0.00");
        }
        column.total = format(total, "0.00");
    }
}

void DrawAdjustCurve(const AdjustWorkspace& workspace, CurvePlace place, DrawSurface& picture) {
    const Prediction& curve = workspace.curves[place];
    const CurveLimits limits = limitsof(curve);
    startpicture(picture, limits);
    if (curve.defined && hasport(workspace, place)) {
        LayerChoice all;
        all.fill(true);
        picture.setlinewidth(2);
        drawseries(picture, curve.curvesamples, curve.samplecount - 1, black);
        picture.setlinewidth(1);
        drawlayers(picture, curve, all, dashedlayers);
        if (place == intermediatecurve) DrawObservedHeights(workspace.readings, picture);
    }
    drawgrid(picture, limits, " Metres");
    if (!curve.defined) drawnote(picture, limits, "No prediction\n" + intwolines(curve.whynot));
    picture.setpersistent(false);
}

std::string TurningText(const Prediction& curve) {
    std::string text;
    for (int i = 1; curve.defined && i <= curve.turningcount; ++i) {
        const TimedValue& point = curve.turningpoints[static_cast<std::size_t>(i)];
        text += (i > 1 ? "   " : "") + timetext(point.time) + " " + format(point.height, "#,#0.0;;;");
    }
    return text;
}

void fillboxes(AdjustWorkspace& workspace, const ConstantTexts& texts) {
    workspace.undo = workspace.boxes;
    workspace.boxes = texts;
    for (std::size_t i = 0; i < constantrows.size(); ++i)
        workspace.steps[i] = stepof(constantrows[i], val(texts[i]));
}

void undoboxes(AdjustWorkspace& workspace) {
    if (!workspace.undo) return;
    fillboxes(workspace, ConstantTexts(*workspace.undo));
    workspace.undo.reset();
}

void loadport1(AdjustWorkspace& workspace, const HarmonicRecord& record) {
    workspace.first = record;
    workspace.name1 = trimmedname(record);
    workspace.port1 = textsof(record);
}

void loadport2(AdjustWorkspace& workspace, const HarmonicRecord& record) {
    workspace.second = record;
    workspace.name2 = trimmedname(record);
    workspace.port2 = textsof(record);
}

void loadintermediate(AdjustWorkspace& workspace, const HarmonicRecord& record) {
    // kept: the step controls stay where they are until the next step
    workspace.undo = workspace.boxes;
    workspace.boxes = textsof(record);
    workspace.madefrom = trimmedname(record);
}

void chooseheights(AdjustWorkspace& workspace, const std::string& path) {
    workspace.heightfile = path;
    workspace.answer.clear();
    rereadheights(workspace);
}

HeightFit fitworkspace(AdjustWorkspace& workspace, MainContext& context) {
    const DateOnShow& onshow = context.session.onshow;
    std::vector<Reading> readings;
    for (const HeightRecord& each : workspace.readings)
        readings.push_back({each.obstime, each.obsheight});
    const HarmonicConstants start = seasonalconstants(recordof(workspace.boxes), 0);
    const HeightFit fit = fitheights(start, yearof(onshow.tidedate), dayofyear(onshow.tidedate), readings);
    if (!fit.refusal.empty()) return fit;
    const HarmonicConstants& found = fit.constants;
    const double values[] = {found.Z0,  found.M2g,  found.M2Hm, found.S2g, found.S2Hm, found.K1g, found.K1Hm,
                             found.O1g, found.O1Hm, found.SF4,  found.LF4, found.SF6,  found.LF6};
    ConstantTexts texts;
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = format(values[i], constantrows[i].phase ? "0.0#" : "0.000#");
    fillboxes(workspace, texts);
    workspace.fitted = {figuresof(fit, readings, onshow.tidedate), texts};
    updatecalc(workspace, context);
    return fit;
}

std::string fittext(const HeightFit& fit, const std::vector<HeightRecord>& readings) {
    if (!fit.refusal.empty()) return "Nothing was fitted: " + fit.refusal + ".";
    std::string text = "Before: " + missestext(fit.before) + "\nAfter: " + missestext(fit.after) + "\n\nMean level " +
                       known(fit.change.level, fit.uncertainty.level, "0.00", " m") + "\nAll amplitudes times " +
                       known(fit.change.factor, fit.uncertainty.factor, "0.000", "") + "\nTide later by " +
                       known(fit.change.shift * 60, fit.uncertainty.shift * 60, "0.0", " minutes");
    if (fit.rejected.empty()) return text;
    text += "\n\nLeft out as wild:";
    for (const std::size_t place : fit.rejected)
        text += " " + timetext(readings[place].obstime) + " " + numbertext(readings[place].obsheight) + " m,";
    text.back() = '.';
    return text;
}

}  // namespace tarvane
