#include "mainview/savecommands.h"

#include <optional>

#include "mainview/monthcommand.h"
#include "output/textfiles.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

/// The path that the user chose; nothing when the dialog was cancelled.
std::optional<std::string> choosefile(MainContext& context, const std::string& title, const std::string& proposed) {
    FileRequest request;
    request.title = title;
    request.folder = context.session.folders.textoutputfolder;
    request.filename = proposed;
    request.filter = "Tables (*.txt)|*.txt";
    request.askoverwrite = true;
    auto path = context.services.filedialogs.save(request);
    if (path && path->empty()) path.reset();
    return path;
}

void writetext(MainContext& context, const std::string& path, const std::string& bytes) {
    if (replacefile(path, bytes)) return;
    context.services.messages.show("The file could not be written:\r" + path, "Tarvane", MessageIcon::exclamation);
}

}  // namespace

void savemonth(MainContext& context) {
    const Session& session = context.session;
    if (!havemonthtable(context)) return;
    const std::string proposed = monthfilename(session.port.portname, session.onshow);
    const auto path = choosefile(context, "Save Months Tides To Text File", proposed);
    if (!path) return;
    writetext(context, *path,
              monthfile(session.month, tableseparator(*path), session.settings.currentsummer, session.onshow));
}

void saveday(MainContext& context) {
    const Session& session = context.session;
    const auto path = choosefile(context, "Save hourly details", "");
    if (!path) return;
    const MainView& view = session.view;
    writetext(context, *path,
              session.prediction.defined
                  ? dayfile(session.curve, view.portbox, view.tidedatebox)
                  : undefineddayfile(session.daytable.daylines[4], view.portbox, view.tidedatebox));
}

void savesun(MainContext& context) {
    const SunTable& table = context.session.suntable;
    if (table.suntext[1][1].empty()) {
        context.services.messages.show("Calculate a months suntimes\rbefore choosing this option", "Tarvane",
                                       MessageIcon::information);
        return;
    }
    const auto path = choosefile(context, "Save Sun's Data To Text File", "");
    if (path) writetext(context, *path, sunfile(table));
}

}  // namespace tarvane
