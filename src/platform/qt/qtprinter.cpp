#include "platform/qt/qtprinter.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>
#include <cmath>

namespace tarvane {

namespace {

constexpr double twipstoinch = 1440;
constexpr double twipstopoint = 20;
constexpr double tabstop = 720;
constexpr double firstlinewidth = 8;
constexpr double dotsize = 40;

QFont pagefont() {
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("Helvetica"),
                      QStringLiteral("sans-serif")});
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(int(9 * twipstopoint));
    return font;
}

QStringList textlines(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.split(QLatin1Char('\n'));
}

double nexttab(double fromleft) {
    return tabstop * (std::floor(fromleft / tabstop) + 1);
}

bool finite(std::initializer_list<double> values) {
    return std::all_of(values.begin(), values.end(), [](double value) { return std::abs(value) < 1e6; });
}

}  // namespace

std::optional<PageRange> QtPrinter::choose(int pages) {
    QPrinter wanted;
    if (!chosen.empty()) wanted.setPrinterName(QString::fromStdString(chosen));
    QPrintDialog dialog(&wanted, QApplication::activeWindow());
    dialog.setOptions(pages > 0 ? QAbstractPrintDialog::PrintPageRange : QAbstractPrintDialog::PrintDialogOptions());
    if (pages > 0) dialog.setMinMax(1, pages);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    chosen = wanted.printerName().toStdString();
    if (wanted.printRange() != QPrinter::PageRange) return PageRange{1, std::max(pages, 1)};
    return PageRange{std::clamp(wanted.fromPage(), 1, pages), std::clamp(wanted.toPage(), 1, pages)};
}

PrintOutcome QtPrinter::begin(const std::string& title) {
    painter.reset();
    target = available() ? printertarget(title, chosen) : pdftarget(pdffolder, title);
    place.clear();
    PrintOutcome ready = target->ready();
    painter = std::make_unique<QPainter>();
    if (ready && !painter->begin(&target->device())) ready = {"The printer can't be opened"};
    if (!ready) {
        painter.reset();
        return ready;
    }
    const int resolution = target->device().logicalDpiX();
    const double unit = resolution / twipstoinch;
    pagesize = QSizeF(target->device().pageLayout().paintRectPixels(resolution).size()) / unit;
    painter->scale(unit, unit);
    font = pagefont();
    linewidth = firstlinewidth;
    origin = current = QPointF(0, 0);
    return {};
}

void QtPrinter::setorigin(double left, double top) {
    origin = QPointF(left, top);
}

void QtPrinter::setfontsize(double points) {
    font.setPixelSize(std::clamp(int(std::lround(points * twipstopoint)), 20, 4000));
}

void QtPrinter::setbold(bool on) {
    font.setBold(on);
}

double QtPrinter::textwidth(const std::string& text) const {
    const QFontMetricsF metrics(font);
    double widest = 0;
    for (const QString& textline : textlines(QString::fromStdString(text))) {
        double end = 0;
        bool first = true;
        for (const QString& piece : textline.split(QLatin1Char('\t'))) {
            if (!first) end = nexttab(end);
            first = false;
            end += metrics.horizontalAdvance(piece);
        }
        widest = std::max(widest, end);
    }
    return widest;
}

double QtPrinter::textheight() const {
    return QFontMetricsF(font).lineSpacing();
}

double QtPrinter::putpiece(const QString& piece, double x) {
    const QFontMetricsF metrics(font);
    if (painter && finite({x, current.y()})) {
        painter->setFont(font);
        painter->drawText(QPointF(x, current.y() + metrics.ascent()) - origin, piece);
    }
    return x + metrics.horizontalAdvance(piece);
}

void QtPrinter::put(const QString& text) {
    const double start = current.x();
    bool firstline = true;
    for (const QString& textline : textlines(text)) {
        if (!firstline) current = QPointF(start, current.y() + textheight());
        firstline = false;
        bool firstpiece = true;
        for (const QString& piece : textline.split(QLatin1Char('\t'))) {
            if (!firstpiece) current.setX(origin.x() + nexttab(current.x() - origin.x()));
            firstpiece = false;
            current.setX(putpiece(piece, current.x()));
        }
    }
}

void QtPrinter::print(const std::string& text) {
    put(QString::fromStdString(text));
    current = QPointF(origin.x(), current.y() + textheight());
}

void QtPrinter::printon(const std::string& text) {
    put(QString::fromStdString(text));
}

void QtPrinter::line(double x1, double y1, double x2, double y2) {
    if (!painter || !finite({x1, y1, x2, y2})) return;
    painter->setPen(QPen(Qt::black, linewidth, Qt::SolidLine, Qt::RoundCap));
    painter->drawLine(QPointF(x1, y1) - origin, QPointF(x2, y2) - origin);
}

void QtPrinter::point(double x, double y) {
    if (!painter || !finite({x, y})) return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(Qt::black);
    painter->drawEllipse(QPointF(x, y) - origin, dotsize / 2, dotsize / 2);
    painter->setPen(Qt::black);
}

void QtPrinter::image(double x, double y, double width, double height, const PagePicture& picture) {
    if (!painter || !finite({x, y, width, height})) return;
    const QImage pixels(reinterpret_cast<const uchar*>(picture.pixels), picture.width, picture.height,
                        QImage::Format_ARGB32);
    painter->drawImage(QRectF(QPointF(x, y) - origin, QSizeF(width, height)), pixels);
}

void QtPrinter::newpage() {
    if (!painter) return;
    target->device().newPage();
    current = origin;
}

PrintOutcome QtPrinter::enddocument() {
    if (!painter) return {"Nothing was begun"};
    const bool ended = painter->end();
    painter.reset();
    if (!ended) return {"The pages could not be finished"};
    PrintOutcome handedover = target->finish();
    if (handedover) place = target->destination();
    return handedover;
}

}  // namespace tarvane
