#include <fcntl.h>
#include <unistd.h>

#include <QBuffer>
#include <QLocale>
#include <QPageSize>
#include <QPdfWriter>
#include <cerrno>
#include <filesystem>
#include <span>
#include <system_error>

#include "files/filenames.h"
#include "files/wholefiles.h"
#include "platform/qt/pagetarget.h"

namespace tarvane {
namespace {

constexpr int dotsperinch = 1200;
constexpr double margin = 18;  // points, about what a printer can't reach

class PdfTarget : public PageTarget {
  public:
    PdfTarget(const std::string& pdffolder, const std::string& documenttitle);
    PrintOutcome ready() override;
    QPagedPaintDevice& device() override { return writer; }
    PrintOutcome finish() override;
    std::string destination() const override { return path; }

  private:
    std::string freepath() const;

    const std::string folder;
    const std::string title;
    std::string path;
    QBuffer bytes;
    QPdfWriter writer{&bytes};
};

PdfTarget::PdfTarget(const std::string& pdffolder, const std::string& documenttitle)
    : folder(pdffolder), title(documenttitle) {
    bytes.open(QIODevice::WriteOnly);
    writer.setCreator(QStringLiteral("Tarvane Tides"));
    writer.setTitle(QString::fromStdString(title));
    writer.setResolution(dotsperinch);
    const bool letter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    writer.setPageSize(QPageSize(letter ? QPageSize::Letter : QPageSize::A4));
    writer.setPageMargins({margin, margin, margin, margin}, QPageLayout::Point);
}

PrintOutcome PdfTarget::ready() {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!error && ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) != 0)
        error = {errno, std::generic_category()};
    if (error) return {folder + ": " + error.message()};
    return {};
}

PrintOutcome PdfTarget::finish() {
    path = freepath();
    const QByteArray& pages = bytes.data();
    const WriteOutcome written = replacefile(path, std::as_bytes(std::span(pages.data(), std::size_t(pages.size()))));
    if (!written) return {path + ": " + written.reason()};
    return {};
}

/// "title.pdf", "title 2.pdf" and so on: the first that doesn't stand there yet.
std::string PdfTarget::freepath() const {
    const std::string name = folder + "/" + safefilename(title);
    std::string free = name + ".pdf";
    std::error_code ignored;
    for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(free, ignored)); ++number)
        free = name + " " + std::to_string(number) + ".pdf";
    return free;
}

}  // namespace

std::unique_ptr<PageTarget> pdftarget(const std::string& folder, const std::string& title) {
    return std::make_unique<PdfTarget>(folder, title);
}

}  // namespace tarvane
