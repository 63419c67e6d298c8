#include "manual/pagebreaks.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>
#include <cmath>

#include "manual/figures.h"
#include "manual/style.h"

namespace tarvane::manual {
namespace {

/// No figure is made smaller than this part of its size to fill a page.
constexpr double smallestpart = 0.75;
constexpr double figuremargins =
    9;  // mm: above it, below it, and what its caption's lines take more than their letters
constexpr int shrunkproperty = QTextFormat::UserProperty + 3;
constexpr int pushedproperty = QTextFormat::UserProperty + 4;

/// A table that takes more than this part of a page may be parted between rows.
constexpr double longtable = 0.4;
constexpr double dotsperpixel = dots(1) / pixels(1);

struct Lines {
    double top = 0, bottom = 0;       ///< of the block's text
    int firstpage = 0, lastpage = 0;  ///< of its first and last line
    int count = 0, onfirst = 0, onlast = 0;
};

Lines linesof(const QTextBlock& block) {
    const QTextDocument& document = *block.document();
    const double pageheight = document.pageSize().height();
    const double top = document.documentLayout()->blockBoundingRect(block).top();
    const QTextLayout& layout = *block.layout();
    Lines lines;
    lines.count = layout.lineCount();
    if (lines.count == 0) {
        lines.top = lines.bottom = top;
        lines.firstpage = lines.lastpage = static_cast<int>(top / pageheight);
        return lines;
    }
    const auto pageof = [&](int i) { return static_cast<int>((top + layout.lineAt(i).y() + 1) / pageheight); };
    lines.top = top + layout.lineAt(0).y();
    const QTextLine last = layout.lineAt(lines.count - 1);
    lines.bottom = top + last.y() + last.height();
    lines.firstpage = pageof(0);
    lines.lastpage = pageof(lines.count - 1);
    for (int i = 0; i < lines.count; ++i) {
        lines.onfirst += pageof(i) == lines.firstpage;
        lines.onlast += pageof(i) == lines.lastpage;
    }
    return lines;
}

bool breaksbefore(const QTextBlock& block) {
    return block.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore;
}

void breakbefore(const QTextBlock& block) {
    QTextBlockFormat format;
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(block).mergeBlockFormat(format);
}

bool isheading(const QTextBlock& block) {
    return block.blockFormat().headingLevel() > 0;
}

bool isfigure(const QTextBlock& block) {
    return block.begin() != block.end() && block.begin().fragment().charFormat().objectType() == FigureLetter::type;
}

/// The first of the headings that stand directly above one another, the last of them being this one.
QTextBlock firstheading(QTextBlock heading) {
    while (heading.previous().isValid() && isheading(heading.previous()))
        heading = heading.previous();
    return heading;
}

bool iscode(const QTextBlock& block) {
    return block.isValid() && block.blockFormat().nonBreakableLines();
}

/// True for a paragraph whose words lead on to what comes next.
bool leadson(const QTextBlock& block) {
    return block.isValid() && !isheading(block) && block.text().endsWith(':') && !QTextCursor(block).currentTable();
}

/// What has to go along when a block goes over: the headings above it, and the words that lead on to it.
QTextBlock withheadings(const QTextBlock& block) {
    const QTextBlock above = block.previous();
    if (leadson(above)) return withheadings(above);
    return above.isValid() && isheading(above) ? firstheading(above) : block;
}

/// Makes a figure that with its caption goes over to the next page fit in what it leaves behind, if that takes little.
bool shrink(const QTextBlock& figure) {
    const QTextBlock caption = figure.next(), above = figure.previous();
    const bool shrunk = figure.blockFormat().boolProperty(shrunkproperty);
    if (shrunk || !above.isValid() || isheading(above) || breaksbefore(figure)) return false;
    const Lines captionlines = linesof(caption), before = linesof(above);
    if (captionlines.lastpage == before.lastpage) return false;
    const double pageheight = figure.document()->pageSize().height();
    const QTextFormat format = figure.begin().fragment().charFormat();
    const QSizeF size = FigureLetter::figuresize(format);
    const double captionheight = caption.layout()->boundingRect().height();
    const double room = (before.lastpage + 1) * pageheight - before.bottom - captionheight - dots(figuremargins);
    const double part = room / size.height();
    if (part < smallestpart || part >= 1) return false;
    QTextCharFormat smaller = format.toCharFormat();
    smaller.merge(FigureLetter::format(FigureLetter::indexof(format), size * part));
    QTextCursor cursor(figure);
    cursor.setPosition(figure.position() + 1, QTextCursor::KeepAnchor);
    cursor.setCharFormat(smaller);
    QTextBlockFormat mark;
    mark.setProperty(shrunkproperty, true);
    cursor.mergeBlockFormat(mark);
    return true;
}

QTextBlock firstof(const QTextTable& table, int row) {
    return table.cellAt(row, 0).firstCursorPosition().block();
}

/// Takes a whole table to the next page, with what heads it. False if it was taken there before.
bool pushtable(QTextTable& table) {
    const QTextBlock first = firstof(table, 0), top = withheadings(first);
    if (table.format().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore || breaksbefore(top)) return false;
    if (top != first) {
        breakbefore(top);
        return true;
    }
    QTextTableFormat format = table.format();
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    table.setFormat(format);
    return true;
}

/// The page on which a table ends with its last row's hairline.
int endpage(QTextTable& table) {
    const QTextDocument& document = *table.document();
    const QRectF place = document.documentLayout()->frameBoundingRect(&table);
    return static_cast<int>((place.bottom() - 1) / document.pageSize().height());
}

/// A short table is not parted; a long one begins with two rows at least below its head.
bool mendtable(QTextTable& table) {
    const double pageheight = table.document()->pageSize().height();
    const Lines first = linesof(firstof(table, 0)), last = linesof(table.lastCursorPosition().block());
    const bool isshort = last.bottom - first.top < longtable * pageheight;
    const Lines kept = isshort ? last : linesof(firstof(table, std::min(2, table.rows() - 1)));
    const int end = isshort ? endpage(table) : kept.lastpage;
    return first.firstpage != end && pushtable(table);
}

/// A row that would be parted goes over whole: room above its cells pushes it there.
bool mendrow(const QTextBlock& block, QTextTable& table) {
    if (block == firstof(table, 0) && mendtable(table)) return true;
    const Lines lines = linesof(block);
    const int row = table.cellAt(block.position()).row();
    const int end = row == table.rows() - 1 ? endpage(table) : lines.lastpage;
    if (lines.firstpage == end) return false;
    const double pageheight = table.document()->pageSize().height();
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(row, column);
        QTextTableCellFormat format = cell.format().toTableCellFormat();
        if (format.hasProperty(pushedproperty)) return false;
        format.setProperty(pushedproperty, true);
        format.setTopPadding(((lines.firstpage + 1) * pageheight - lines.top) / dotsperpixel + format.topPadding());
        cell.setFormat(format);
    }
    return true;
}

bool goover(const QTextBlock& block) {
    const QTextBlock first = withheadings(block);
    if (breaksbefore(first)) return false;
    breakbefore(first);
    return true;
}

/// A listing is not parted, unless it is a long one.
bool mendcode(const QTextBlock& block) {
    if (iscode(block.previous())) return false;
    QTextBlock last = block;
    while (iscode(last.next()))
        last = last.next();
    const Lines first = linesof(block), end = linesof(last);
    const bool isshort = end.bottom - first.top < longtable * block.document()->pageSize().height();
    return isshort && first.firstpage != end.lastpage && goover(block);
}

/// Mends the first thing that is wrong with this block; false when there is nothing.
bool mend(const QTextBlock& block) {
    const QTextBlock next = block.next();
    if (!next.isValid()) return false;
    const Lines lines = linesof(block), below = linesof(next);
    if (QTextTable* const table = QTextCursor(block).currentTable()) return mendrow(block, *table);
    if (isfigure(block)) {
        if (shrink(block)) return true;
        return lines.lastpage != below.lastpage && goover(block);
    }
    if (iscode(block)) return mendcode(block);
    if (isheading(block)) {
        const QTextBlock first = firstheading(block);
        if (lines.lastpage == below.firstpage || breaksbefore(first)) return false;
        breakbefore(first);
        return true;
    }
    const bool parted = lines.firstpage != lines.lastpage;
    const bool alone = lines.onfirst == 1 || (lines.onlast == 1 && lines.count <= 4);
    const bool leftalone = leadson(block) && lines.lastpage != below.firstpage;
    return ((parted && alone) || leftalone) && goover(block);
}

QTextBlock figureblock(const QTextDocument& document, int figure) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (isfigure(block) && FigureLetter::indexof(block.begin().fragment().charFormat()) == figure) return block;
    return {};
}

}  // namespace

void settlepages(QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid();) {
        const int number = block.blockNumber();
        if (!mend(block)) {
            block = block.next();
            continue;
        }
        // The toolkit's own laying out of a part loses lines at page breaks: all of it is laid out once more.
        document.markContentsDirty(0, document.characterCount());
        block = document.findBlockByNumber(std::max(0, number - 3));
    }
}

double spacebefore(const QTextDocument& document, int figure) {
    const QTextBlock block = figureblock(document, figure);
    if (!block.isValid()) return 0;
    const QTextBlock first = withheadings(block), before = first.previous();
    if (!before.isValid()) return 0;
    const Lines above = linesof(before);
    if (above.lastpage == linesof(first).firstpage) return 0;
    return (above.lastpage + 1) * document.pageSize().height() - above.bottom;
}

}  // namespace tarvane::manual
