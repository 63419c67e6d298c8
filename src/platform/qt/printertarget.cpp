#include <QPrinter>
#include <QPrinterInfo>

#include "platform/qt/pagetarget.h"

namespace tarvane {
namespace {

class PrinterTarget : public PageTarget {
  public:
    PrinterTarget(const std::string& title, const std::string& name) {
        printer.setCreator(QStringLiteral("Tarvane Tides"));
        printer.setDocName(QString::fromStdString(title));
        if (!name.empty())
            printer.setPrinterName(QString::fromStdString(name));
        else if (QPrinterInfo::defaultPrinter().isNull()) {
            const QStringList names = QPrinterInfo::availablePrinterNames();
            if (!names.isEmpty()) printer.setPrinterName(names.first());
        }
    }

    PrintOutcome ready() override {
        if (printer.isValid()) return {};
        return {named("There is no printer")};
    }

    QPagedPaintDevice& device() override { return printer; }

    PrintOutcome finish() override {
        if (printer.printerState() != QPrinter::Error) return {};
        return {named("The printer reports an error")};
    }

  private:
    std::string named(const char* fault) const {
        const std::string name = printer.printerName().toStdString();
        return name.empty() ? fault : name + ": " + fault;
    }

    QPrinter printer{QPrinter::HighResolution};
};

}  // namespace

bool anyprinter() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

std::unique_ptr<PageTarget> printertarget(const std::string& title, const std::string& name) {
    return std::make_unique<PrinterTarget>(title, name);
}

}  // namespace tarvane
