#include "platform/qt/qtdrawings.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QImage>
#include <QLocale>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>
#include <QSvgGenerator>
#include <cmath>

#include "platform/qt/paintercanvas.h"

namespace tarvane {
namespace {

constexpr double unitstoinch = 96;
constexpr int pdfdots = 1200;
constexpr double papermargin = 30;  // points; most printers can't reach nearer than half of it
constexpr double copyscale = 2;
constexpr double previewshare = 0.85;  // of the screen

QFont paperfont() {
    QFont font = QApplication::font();
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QImage imageof(const Drawing& drawing, double scale) {
    QImage image(static_cast<int>(std::ceil(drawing.width * scale)),
                 static_cast<int>(std::ceil(drawing.height * scale)), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PainterCanvas canvas(painter, paperfont(), scale);
    drawing.paint(canvas);
    return image;
}

QPageLayout layoutof(const Booklet& booklet, Paper paper) {
    return {QPageSize(paper == Paper::letter ? QPageSize::Letter : QPageSize::A4),
            booklet.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
            {papermargin, papermargin, papermargin, papermargin},
            QPageLayout::Point};
}

/// Paints the pages from `first` to `last`, from 0, on paper.
void paintpages(const Booklet& booklet, QPagedPaintDevice& device, int first, int last) {
    QPainter painter(&device);
    const double scale = device.logicalDpiX() / unitstoinch;
    const QRect inside = device.pageLayout().paintRectPixels(device.logicalDpiX());
    for (int page = first; page <= last; ++page) {
        if (page > first) device.newPage();
        PainterCanvas canvas(painter, paperfont(), scale);
        booklet.paint(page, canvas, {0, 0, inside.width() / scale, inside.height() / scale});
    }
}

}  // namespace

Paper QtDrawings::usualpaper() const {
    return QLocale().measurementSystem() == QLocale::ImperialUSSystem ? Paper::letter : Paper::a4;
}

std::string QtDrawings::png(const Drawing& drawing, double scale) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    imageof(drawing, scale).save(&bytes, "PNG");
    return bytes.data().toStdString();
}

std::string QtDrawings::svg(const Drawing& drawing) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&bytes);
    generator.setTitle(QString::fromStdString(drawing.title));
    generator.setResolution(static_cast<int>(unitstoinch));
    generator.setSize(QSizeF(drawing.width, drawing.height).toSize());
    generator.setViewBox(QRectF(0, 0, drawing.width, drawing.height));
    {
        QPainter painter(&generator);
        PainterCanvas canvas(painter, paperfont());
        drawing.paint(canvas);
    }
    return bytes.data().toStdString();
}

std::string QtDrawings::pdf(const Booklet& booklet, Paper paper) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&bytes);
        writer.setCreator(QStringLiteral("Tarvane Tides"));
        writer.setTitle(QString::fromStdString(booklet.title));
        writer.setResolution(pdfdots);
        writer.setPageLayout(layoutof(booklet, paper));
        paintpages(booklet, writer, 0, booklet.pages - 1);
    }
    return bytes.data().toStdString();
}

void QtDrawings::copy(const Drawing& drawing) {
    QApplication::clipboard()->setImage(imageof(drawing, copyscale));
}

PrintOutcome QtDrawings::preview(const Booklet& booklet, Paper paper) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setCreator(QStringLiteral("Tarvane Tides"));
    printer.setDocName(QString::fromStdString(booklet.title));
    printer.setPageLayout(layoutof(booklet, paper));
    QPrintPreviewDialog dialog(&printer, QApplication::activeWindow());
    dialog.setObjectName("preview");
    dialog.resize(dialog.screen()->availableSize() * previewshare);
    dialog.setWindowTitle(QString::fromStdString(booklet.title));
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, [&booklet](QPrinter* device) {
        const bool part = device->printRange() == QPrinter::PageRange;
        const int last = part ? std::min(device->toPage(), booklet.pages) : booklet.pages;
        const int first = part ? std::min(std::max(device->fromPage(), 1), last) : 1;
        paintpages(booklet, *device, first - 1, last - 1);
    });
    dialog.exec();
    if (printer.printerState() == QPrinter::Error) return {"The printer reports an error"};
    return {};
}

}  // namespace tarvane
