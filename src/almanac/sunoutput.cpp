#include "almanac/sunoutput.h"

#include <optional>

#include "files/wholefiles.h"
#include "output/suntimestext.h"
#include "output/textfiles.h"
#include "portdata/recordfiles.h"
#include "session/documents.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

/// The month as CSV; the dates of the table turn into day/month/year.
std::string suncsvtext(Session& session) {
    const HarmonicRecord port = readport(session.settings.hcfile, session.settings.currentport);
    // kept: the port's own position stands over the times, also over those of a typed one
    const SunHeading heading{trim(port.PortName), port.PortLat, port.PortLong, session.settings.currentsummer};
    return suntimestext(session.suntable, heading, static_cast<int>(session.onshow.tideyear),
                        static_cast<int>(session.onshow.tidemonth), ",");
}

}  // namespace

void printsun(MainContext& context) {
    const Session& session = context.session;
    if (!context.services.messages.ask("Print Sun and Lunar times?", messagetitle)) return;
    const SunTable& table = session.suntable;
    if (daysofsuntable(table) == 0) {
        tellmissing(context, "Calculate a months suntimes");
        return;
    }
    // The titles are empty over times that were calculated for the clipboard, which are the port's.
    const std::string place = table.titles[1].empty() ? session.port.portname : table.titles[1];
    printdocument(context, {"sun and moon", place, makedate(table.year, table.month, 1), true},
                  [&](Printer& printer) { printsunpage(printer, table, session.lunar, closingfacts(session)); });
}

void savesun(MainContext& context) {
    const SunTable& table = context.session.suntable;
    if (daysofsuntable(table) == 0) {
        tellmissing(context, "Calculate a months suntimes");
        return;
    }
    const auto path = choosetextfile(context, "Save Sun's Data To Text File", "");
    if (path) writedocument(context, *path, sunfile(table));
}

std::int16_t FileExists(const std::string& path) {
    return canopen(path) ? -1 : 0;
}

void savesuncsv(MainContext& context) {
    Session& session = context.session;
    Messages& messages = context.services.messages;
    FileRequest request;
    // kept: this file alone goes into the program's folder, while that keeps changes, where the user doesn't choose
    // another
    request.folder =
        session.folders.ownfolder.empty() ? session.folders.programfolder : session.folders.textoutputfolder;
    request.filter = "CSV file | *csv";
    const std::optional<std::string> chosen = context.services.filedialogs.save(request);
    if (!chosen || chosen->empty()) return;
    const std::string path = csvpath(*chosen);
    if (FileExists(path) == -1 && !messages.ask("File exist - Overwrite?", "Tarvane")) return;
    writedocument(context, path, tosinglebyte(suncsvtext(session)));
}

std::string csvpath(const std::string& chosen) {
    const std::size_t folderend = chosen.find_last_of('/');
    const std::size_t point = chosen.find('.', folderend == std::string::npos ? 0 : folderend);
    return chosen.substr(0, point) + ".csv";
}

}  // namespace tarvane
