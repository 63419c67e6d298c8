#include "session/documents.h"

#include "dates/dateformats.h"
#include "files/filenames.h"
#include "files/wholefiles.h"
#include "text/singlebyte.h"

namespace tarvane {

void answer(MainContext& context, const std::string& text) {
    context.session.view.answer = text;
}

void tellfailure(MainContext& context, const std::string& failed, const std::string& reason) {
    answer(context, "");
    context.services.messages.show(failed + "\r" + reason, messagetitle, MessageIcon::exclamation);
}

bool refuse(MainContext& context, const std::string& why) {
    context.services.messages.show(why, messagetitle, MessageIcon::exclamation);
    return false;
}

void tellmissing(MainContext& context, const std::string& first) {
    answer(context, "");
    context.services.messages.show(first + "\rbefore choosing this option", messagetitle, MessageIcon::information);
}

std::optional<std::string> choosetextfile(MainContext& context, const std::string& title, const std::string& proposed) {
    FileRequest request;
    request.title = title;
    request.folder = context.session.folders.textoutputfolder;
    if (!proposed.empty()) request.filename = safefilename(proposed);
    request.filter = "Tables (*.txt)|*.txt";
    request.askoverwrite = true;
    auto path = context.services.filedialogs.save(request);
    if (path && path->empty()) path.reset();
    return path;
}

bool writedocument(MainContext& context, const std::string& path, const std::string& bytes) {
    const WriteOutcome written = replacefile(path, bytes);
    if (written)
        answer(context, "Saved: " + path);
    else
        tellfailure(context, "The file could not be written:", path + ": " + written.reason());
    return written;
}

void printdocument(MainContext& context, const Printout& printout, const std::function<void(Printer&)>& layout) {
    Printer& printer = context.services.printer;
    const auto date = [&](const char* ofday, const char* ofmonth) {
        return formatdate(context.services.locale, printout.date, printout.ofmonth ? ofmonth : ofday);
    };
    const std::string place = trim(printout.place);
    PrintOutcome printed = printer.begin(place + " " + printout.kind + " " + date("yyyy-mm-dd", "yyyy-mm"));
    if (printed) {
        layout(printer);
        printer.setfontsize(bodysize);
        printed = printer.enddocument();
    }
    if (!printed)
        tellfailure(context, "The page could not be printed:", printed.whynot);
    else if (printer.destination().empty())
        answer(context, "Printed: " + printout.kind + " of " + place + ", " + date("d mmmm yyyy", "mmmm yyyy"));
    else
        answer(context, "Printed: " + printer.destination());
}

ClosingFacts closingfacts(const Session& session) {
    return {session.settings.currentsummer, session.onshow.tidemonth};
}

}  // namespace tarvane
