#include "mainview/monthcommand.h"

#include "dates/summertime.h"
#include "engine/height.h"
#include "session/documents.h"
#include "session/refresh.h"
#include "session/tidecurve.h"

namespace tarvane {
namespace {

/// The clock time now in the port's zone; the marker of the day on show stands there from now on.
void takezonedtime(MainContext& context) {
    Session& session = context.session;
    const double now = clockhours(context.services.clock);
    int zoneday = 0;
    zonetime(now, static_cast<int>(session.onshow.tidedayofyear), session.port.zonehours, session.timenow, zoneday);
}

}  // namespace

void calculatemonth(MainContext& context) {
    Session& session = context.session;
    context.surfaces.picture.setbackcolour(white);
    session.view.monthvisible = false;
    session.layersmode = 0;
    buildmonthtable(session.month, session.settings, session.port, session.onshow, context.services.locale);
    takezonedtime(context);
    const std::int16_t shift = predictdayonshow(session);
    drawtidecurve(session, context.surfaces);
    refreshsun(session, shift);
    drawsunlines(session, context.surfaces.picture);
    session.view.monthvisible = true;
    // kept: without the shift the line has the "are" that it lacks after a date or port step
    const std::string line = shift == 0 ? uncorrectedline : correctionline(shift, session.onshow.tidedate);
    session.view.disclaimer = correctionfirst(line);
}

bool havemonthtable(MainContext& context) {
    const auto& rows = context.session.month.monthspredictions;
    // kept: a list that stands is taken as it is, also when steps of the date have led into another month
    if (rows.size() < 10) calculatemonth(context);
    // kept: a list of exactly 10 rows is neither calculated nor taken
    if (rows.size() > 10) return true;
    tellmissing(context, "Calculate a months tides");
    return false;
}

}  // namespace tarvane
