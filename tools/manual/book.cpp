#include "manual/book.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <cmath>
#include <numbers>

#include "manual/chapterpages.h"
#include "manual/outline.h"
#include "manual/style.h"
#include "text/programcaption.h"

namespace tarvane::manual {
namespace {

const char* const booktitle = "Tarvane Tides Manual";
constexpr double contentsrow = 5.8, chaptergap = 3.4, contentshead = 18;  // mm
constexpr int contentscolumns = 2;
constexpr double contentsspace = 10;  // mm between the columns
constexpr double chapterspace = 14;   // mm above a chapter that begins below another's end
constexpr double lateststart = 0.72 * textheight;
constexpr double contentswidth = (textwidth - contentsspace) / contentscolumns;

/// A line of the contents. Pages count from 0.
struct Entry {
    QString title;
    bool chapter = true;
    int page = 0;
    double top = 0;       ///< mm from the page's top edge
    int column = 0;       ///< of all the columns of the contents, from 0
    double listedat = 0;  ///< mm from the top of its page's text

    int listedon() const { return column / contentscolumns; }
    double left() const { return leftmargin + column % contentscolumns * (contentswidth + contentsspace); }
};

std::vector<Entry> contentsof(const std::vector<std::unique_ptr<ChapterPages>>& chapters) {
    std::vector<Entry> entries;
    int first = 0;
    for (const auto& chapter : chapters) {
        if (chapter->start() > 0) --first;
        entries.push_back({chapter->title(), true, first, topmargin + chapter->start()});
        for (const Heading& section : chapter->sections())
            entries.push_back({section.title, false, first + section.page, topmargin + section.top / dots(1)});
        first += chapter->count();
    }
    return entries;
}

/// Millimetres that a chapter takes in the contents with its sections.
double listedheight(const std::vector<Entry>& entries, std::size_t chapter) {
    std::size_t end = chapter + 1;
    while (end < entries.size() && !entries[end].chapter)
        ++end;
    return static_cast<double>(end - chapter) * contentsrow;
}

/// Finds each entry its place in columns of a height, a chapter in one of them where it can be; how many columns they
/// take.
int fillcolumns(std::vector<Entry>& entries, double height) {
    int column = 0;
    double at = contentshead;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        Entry& entry = entries[i];
        const double top = column < contentscolumns ? contentshead : 0;
        if (entry.chapter && at > top) at += chaptergap;
        const double whole = entry.chapter ? listedheight(entries, i) : contentsrow;
        const double least = whole > height ? 2 * contentsrow : whole;
        if (at > top && at + least > top + height) at = ++column < contentscolumns ? contentshead : 0;
        entry.column = column;
        entry.listedat = at;
        at += contentsrow;
    }
    return column + 1;
}

/// Finds each entry its place in columns as even as can be; how many pages they take.
int placeentries(std::vector<Entry>& entries) {
    constexpr double highest = textheight - contentshead;
    const int pages = (fillcolumns(entries, highest) + contentscolumns - 1) / contentscolumns;
    for (double height = 10 * contentsrow; height < highest; height += contentsrow)
        if (fillcolumns(entries, height) <= pages * contentscolumns) return pages;
    fillcolumns(entries, highest);
    return pages;
}

class Book {
  public:
    Book(const std::vector<Chapter>& sources, const FigureFolders& folders);
    std::string bytes();

  private:
    void painttitle();
    void painttide(double top, double height);
    void paintcontents(int page);
    void paintentry(const Entry& entry);
    void paintchapter(const ChapterPages& chapter);
    void paintfoot();
    void text(double x, double y, const QFont& font, QRgb colour, const QString& words,
              Qt::Alignment side = Qt::AlignLeft);
    double widthof(const QFont& font, const QString& words) const;
    void turn();

    QBuffer buffer;
    QPdfWriter writer{&buffer};
    std::vector<std::unique_ptr<ChapterPages>> chapters;
    std::vector<Entry> entries;
    int contentspages = 0;
    QPainter painter;
    int page = 0;  ///< being painted, from 0
};

Book::Book(const std::vector<Chapter>& sources, const FigureFolders& folders) {
    buffer.open(QIODevice::WriteOnly);
    writer.setTitle(booktitle);
    writer.setCreator(programname);
    writer.setResolution(dotsperinch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({0, 0, 0, 0});
    double free = 0;
    for (const Chapter& source : sources) {
        chapters.push_back(std::make_unique<ChapterPages>(source, folders, writer, free));
        const double next = chapters.back()->end() + chapterspace;
        free = next < lateststart ? next : 0;
    }
    entries = contentsof(chapters);
    contentspages = placeentries(entries);
    for (Entry& entry : entries)
        entry.page += 1 + contentspages;
}

double Book::widthof(const QFont& font, const QString& words) const {
    return QFontMetricsF(font, &writer).horizontalAdvance(words) / dots(1);
}

/// A line of text with its base line at `y`; millimetres from the page's top left edge.
void Book::text(double x, double y, const QFont& font, QRgb colour, const QString& words, Qt::Alignment side) {
    painter.setFont(font);
    painter.setPen(QColor(colour));
    if (side == Qt::AlignRight) x -= widthof(font, words);
    if (side == Qt::AlignHCenter) x -= widthof(font, words) / 2;
    painter.drawText(QPointF(dots(x), dots(y)), words);
}

void Book::turn() {
    if (!writer.newPage()) throw SourceError("a page of the manual can't be made");
    ++page;
}

/// A spring tide and the neaps after it, as the sea paints them.
void Book::painttide(double top, double height) {
    constexpr double cycles = 7;
    for (int layer = 0; layer < 3; ++layer) {
        QPainterPath water;
        const double middle = top + height * (0.34 + 0.17 * layer);
        water.moveTo(0, dots(top + height));
        for (double x = 0; x <= pagewidth; x += 0.5) {
            const double along = x / pagewidth;
            const double swell = 0.62 + 0.38 * std::cos(2 * std::numbers::pi * (along - 0.18 * layer));
            const double phase = 2 * std::numbers::pi * (cycles * along - 0.31 * layer);
            water.lineTo(dots(x), dots(middle - 0.17 * height * swell * std::sin(phase)));
        }
        water.lineTo(dots(pagewidth), dots(top + height));
        water.closeSubpath();
        const QRgb colours[] = {0xFFC9DEEF, 0xFF7FAFD6, deepblue};
        painter.fillPath(water, QColor(colours[layer]));
    }
}

void Book::painttitle() {
    const QString version = QString(programversion).remove(' ').remove('(').remove(')').remove('v');
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFFF2B134));
    painter.drawEllipse(QPointF(dots(163), dots(152)), dots(11), dots(11));
    painttide(160, pageheight - 160);
    text(leftmargin, 78, fontof(headfamily, 40, true), deepblue, programname);
    text(leftmargin, 94, fontof(headfamily, 20), ink, "The manual");
    text(leftmargin, 106, fontof(headfamily, 11), grey, "Version " + version);
    text(leftmargin, 122, fontof(textfamily, 12), ink, "Tide prediction for yachtsmen and passage planners.");
    text(leftmargin, 128.5, fontof(textfamily, 12), ink, "All results are approximate, and not for navigation.");
}

void Book::paintfoot() {
    text(pagewidth - rightmargin, pageheight - 11, fontof(headfamily, 9), grey, QString::number(page + 1),
         Qt::AlignRight);
}

void Book::paintentry(const Entry& entry) {
    const QFont font = fontof(entry.chapter ? headfamily : textfamily, entry.chapter ? 9.5 : 10, entry.chapter);
    const double left = entry.left() + (entry.chapter ? 0 : 5), right = entry.left() + contentswidth;
    const double baseline = topmargin + entry.listedat + 0.75 * contentsrow;
    const QString number = QString::number(entry.page + 1);
    text(left, baseline, font, entry.chapter ? deepblue : ink, entry.title);
    text(right, baseline, font, entry.chapter ? deepblue : ink, number, Qt::AlignRight);
    painter.setPen(QPen(QColor(hairline), dots(0.25), Qt::DotLine));
    const double from = left + widthof(font, entry.title) + 2, to = right - widthof(font, number) - 2;
    if (from < to) painter.drawLine(QPointF(dots(from), dots(baseline)), QPointF(dots(to), dots(baseline)));
}

void Book::paintcontents(int contentspage) {
    if (contentspage == 0) text(leftmargin, topmargin + 8, fontof(headfamily, 22, true), deepblue, "Contents");
    for (const Entry& entry : entries)
        if (entry.listedon() == contentspage) paintentry(entry);
    paintfoot();
}

void Book::paintchapter(const ChapterPages& chapter) {
    for (int i = 0; i < chapter.count(); ++i) {
        const bool own = i > 0 || chapter.start() == 0;
        if (own) turn();
        painter.save();
        painter.translate(dots(leftmargin), dots(topmargin));
        chapter.paint(painter, i);
        painter.restore();
        if (own) paintfoot();
        if (i == 0) continue;
        text(leftmargin, 15.5, fontof(headfamily, 8.5), grey, programname);
        text(pagewidth - rightmargin, 15.5, fontof(headfamily, 8.5), grey, chapter.title(), Qt::AlignRight);
        painter.setPen(QPen(QColor(hairline), dots(0.2)));
        painter.drawLine(QPointF(dots(leftmargin), dots(18)), QPointF(dots(pagewidth - rightmargin), dots(18)));
    }
}

std::string Book::bytes() {
    if (!painter.begin(&writer)) throw SourceError("the pages of the manual can't be made");
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painttitle();
    for (int i = 0; i < contentspages; ++i) {
        turn();
        paintcontents(i);
    }
    for (const auto& chapter : chapters)
        paintchapter(*chapter);
    painter.end();
    std::vector<Bookmark> bookmarks{{"Contents", 1, {1, points(topmargin)}}};
    std::vector<Link> links;
    for (const Entry& entry : entries) {
        const Place place{entry.page, points(entry.top - 3)};
        bookmarks.push_back({entry.title.toStdString(), entry.chapter ? 1 : 2, place});
        links.push_back({1 + entry.listedon(), points(entry.left()), points(topmargin + entry.listedat),
                         points(contentswidth), points(contentsrow), place});
    }
    return withoutline(buffer.data().toStdString(), bookmarks, links);
}

}  // namespace

std::string makebook(const std::vector<Chapter>& chapters, const FigureFolders& folders) {
    return Book(chapters, folders).bytes();
}

}  // namespace tarvane::manual
