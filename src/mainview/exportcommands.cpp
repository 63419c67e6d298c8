#include "mainview/exportcommands.h"

#include "files/filenames.h"
#include "files/wholefiles.h"
#include "output/dayconstants.h"
#include "output/juliandate.h"
#include "output/yeartides.h"
#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"
#include "session/documents.h"
#include "session/refresh.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

/// Why the curve is blank behind the picture.
constexpr const char* blankedbyrun =
    "The run through the years blanked the curve in memory; choosing a day or a port fills it";

/// Where the file was written; empty, the user having been told why, when it couldn't be.
std::string writeexport(MainContext& context, const std::string& name, const std::string& bytes) {
    const WritableFile file = datafiletowrite(context.session.folders, name);
    if (!file.prepared) {
        tellfailure(context, "The file could not be written:", file.path + ": " + file.prepared.reason());
        return {};
    }
    return writedocument(context, file.path, bytes) ? file.path : "";
}

void exportconstants(MainContext& context, bool withid) {
    std::string written;
    for (int year = firstconstantsyear; year <= lastconstantsyear; ++year) {
        const std::string name = numbertext(year) + "Factors.csv";
        const std::string path = writeexport(context, name, dayconstantsfile(dayconstants(year), withid));
        if (path.empty()) return;
        written += (written.empty() ? "Saved: " : ", ") + path;
    }
    answer(context, written);
}

/// Why there is no port to run through the years, a sentence; empty when there is one.
std::string absence(const Settings& settings) {
    if (!canopen(settings.hcfile)) return noareafile;
    if (settings.currentport < 1 || settings.currentport > portcount(settings.hcfile)) return nosuchport;
    return "";
}

/// What the routine that runs a day leaves behind it.
void blankcurve(Prediction& prediction) {
    // kept: 148 rows are overwritten by those of a working array that is never filled
    for (std::size_t row = 1; row <= 148; ++row)
        prediction.curvesamples[row] = {static_cast<double>(row - 1) / 6, 0};
    prediction.defined = false;
    prediction.whynot = blankedbyrun;
}

}  // namespace

void exportanglesandfactors(MainContext& context) {
    exportconstants(context, true);
}

void exportorbitalconstants(MainContext& context) {
    exportconstants(context, false);
}

void exportyears(MainContext& context) {
    constexpr const char* failed = "The year's high waters could not be calculated:";
    Session& session = context.session;
    if (const std::string why = absence(session.settings); !why.empty()) return tellfailure(context, failed, why);
    const int year = static_cast<int>(session.onshow.tideyear);
    const std::string name = trim(session.port.portname);
    YearTides run = startyeartides(readport(session.settings.hcfile, session.settings.currentport), year);
    const std::string text = "High waters of " + name + ", " + numbertext(year) + " and " + numbertext(year + 1);
    if (!context.services.progress.run(text, daysofrun(run), [&](int) { return addday(run); })) {
        const JulianMoment day = juliantodate(run.julian);
        const Date date = makedate(day.year, day.month, day.day);
        if (*run.whynot)
            return tellfailure(context, failed,
                               formatdate(context.services.locale, date, "d mmmm yyyy") + ": " + run.whynot);
        return answer(context, "Cancelled: no file was written");
    }
    // kept: the number of the last day that was run stays the date's
    session.onshow.tidedayofyear = run.tidedayofyear;
    blankcurve(session.prediction);
    const std::string path = writeexport(context, safefilename(name + "-HWTimes.csv"), yeartidesfile(run.rows));
    if (path.empty()) return;
    context.services.messages.show("Year " + numbertext(year) + "  HW times written to " + path, messagetitle,
                                   MessageIcon::information);
}

}  // namespace tarvane
