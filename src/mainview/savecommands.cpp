#include "mainview/savecommands.h"

#include "mainview/monthcommand.h"
#include "output/textfiles.h"
#include "session/documents.h"

namespace tarvane {

void savemonth(MainContext& context) {
    const Session& session = context.session;
    if (!havemonthtable(context)) return;
    // kept: the name is that of the month on show, also for a table that stands from before
    const std::string proposed = monthfilename(session.port.portname, session.onshow);
    const auto path = choosetextfile(context, "Save Months Tides To Text File", proposed);
    if (!path) return;
    writedocument(context, *path,
                  monthfile(session.month, tableseparator(*path), session.settings.currentsummer, session.onshow));
}

void saveday(MainContext& context) {
    const Session& session = context.session;
    const auto path = choosetextfile(context, "Save hourly details", "");
    if (!path) return;
    const MainView& view = session.view;
    writedocument(context, *path,
                  session.curve.whynot.empty()
                      ? dayfile(session.curve, view.portbox, view.tidedatebox)
                      : undefineddayfile(session.curve.whynot, view.portbox, view.tidedatebox));
}

}  // namespace tarvane
