#include "session/documents.h"

#include "files/wholefiles.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {

std::optional<std::string> choosetextfile(MainContext& context, const std::string& title, const std::string& proposed) {
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

bool writedocument(MainContext& context, const std::string& path, const std::string& bytes) {
    const WriteOutcome written = replacefile(path, bytes);
    if (!written)
        context.services.messages.show("The file could not be written:\r" + path, messagetitle,
                                       MessageIcon::exclamation);
    return written;
}

void printdocument(MainContext& context, const std::string& name, const std::function<void(Printer&)>& layout) {
    Printer& printer = context.services.printer;
    Messages& messages = context.services.messages;
    if (!printer.begin(trim(context.session.port.portname) + " " + name)) {
        messages.show("There is nothing to print to", messagetitle, MessageIcon::exclamation);
        return;
    }
    layout(printer);
    printer.setfontsize(bodysize);
    if (!printer.enddocument())
        messages.show("The page could not be printed", messagetitle, MessageIcon::exclamation);
    else if (!printer.destination().empty())
        messages.show("Printed to the file\r" + printer.destination(), messagetitle, MessageIcon::information);
}

void tellmissing(MainContext& context, const std::string& first) {
    context.services.messages.show(first + "\rbefore choosing this option", messagetitle, MessageIcon::information);
}

ClosingFacts closingfacts(const Session& session) {
    return {session.settings.currentsummer, session.onshow.tidemonth};
}

std::string monthtext(const DateOnShow& onshow) {
    return format(onshow.tideyear, "0000") + "-" + format(onshow.tidemonth, "00");
}

}  // namespace tarvane
