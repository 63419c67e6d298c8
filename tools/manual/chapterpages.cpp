#include "manual/chapterpages.h"

#include <QAbstractTextDocumentLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextList>
#include <QTextTable>
#include <algorithm>
#include <cmath>

#include "manual/pagebreaks.h"
#include "manual/style.h"

namespace tarvane::manual {
namespace {

/// A window at 96 dpi is printed at this size, so that the main window fills most of the column; larger ones are made
/// to fit, those that the column has no room for into the width of the headings.
constexpr double mmperpixel = 0.9 * columnwidth / 648;
constexpr double widefigure = columnwidth;
constexpr double highestfigure = 0.6 * textheight;  // mm
constexpr double fewlines = 18;                     // mm
constexpr double emptyspace = 25;                   // mm that may stay empty above a figure
constexpr double lineheight = 123;                  // per cent

QTextCharFormat charformat(const QFont& font, QRgb colour) {
    QTextCharFormat format;
    format.setFont(font, QTextCharFormat::FontPropertiesSpecifiedOnly);
    format.setForeground(QColor(colour));
    return format;
}

/// Gives a block's letters a format, keeping what the author made bold, italic or code.
void restyle(const QTextBlock& block, const QTextCharFormat& format) {
    // A changed fragment can merge with its neighbour: they are listed before any is touched.
    std::vector<QTextFragment> fragments;
    for (auto it = block.begin(); it != block.end(); ++it)
        fragments.push_back(it.fragment());
    std::vector<std::pair<int, int>> ranges;
    std::vector<QTextCharFormat> given;
    for (const QTextFragment& fragment : fragments) {
        const QTextCharFormat was = fragment.charFormat();
        QTextCharFormat now = format;
        if (was.fontFixedPitch()) now.merge(charformat(fontof(codefamily, bodysize * 0.9), ink));
        if (was.fontWeight() > QFont::Normal) now.setFontWeight(QFont::Bold);
        if (was.fontItalic()) now.setFontItalic(true);
        ranges.emplace_back(fragment.position(), fragment.position() + fragment.length());
        given.push_back(now);
    }
    QTextCursor cursor(block);
    cursor.setBlockCharFormat(format);
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        cursor.setPosition(ranges[i].first);
        cursor.setPosition(ranges[i].second, QTextCursor::KeepAnchor);
        cursor.setCharFormat(given[i]);
    }
}

void setblock(const QTextBlock& block, double left, double above, double below, double height = lineheight) {
    QTextBlockFormat format;
    // Margins at the side are taken as they stand, those above and below brought to the device's density.
    format.setLeftMargin(dots(left));
    format.setTopMargin(pixels(above));
    format.setBottomMargin(pixels(below));
    format.setLineHeight(height, QTextBlockFormat::ProportionalHeight);
    QTextCursor(block).mergeBlockFormat(format);
}

void styleheading(const QTextBlock& block) {
    const bool section = block.blockFormat().headingLevel() <= 2;
    setblock(block, section ? 0 : inset, section ? 6 : 4.5, section ? 1.8 : 1.4, 110);
    const QTextCharFormat format = charformat(fontof(headfamily, section ? 14 : 11.5, true), section ? deepblue : ink);
    restyle(block, format);
}

bool iscode(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    return format.hasProperty(QTextFormat::BlockCodeFence) || format.hasProperty(QTextFormat::BlockCodeLanguage) ||
           format.nonBreakableLines();
}

void styleparagraph(const QTextBlock& block, bool cell) {
    const QTextBlockFormat was = block.blockFormat();
    const QTextCharFormat format = charformat(fontof(textfamily, cell ? bodysize - 0.5 : bodysize), ink);
    if (cell) {
        setblock(block, 0, 0, 0, 112);
    } else if (iscode(block)) {
        const bool lastline = !block.next().isValid() || !iscode(block.next());
        setblock(block, inset + 2, 0, lastline ? 3.5 : 0, 115);
        return restyle(block, charformat(fontof(codefamily, bodysize * 0.9), ink));
    } else if (block.textList()) {
        const bool lastitem = !block.next().isValid() || !block.next().textList();
        setblock(block, inset - 3, 0, lastitem ? 2.6 : 1.1);
    } else {
        setblock(block, inset + 6.0 * was.intProperty(QTextFormat::BlockQuoteLevel), 0, 2.6);
    }
    restyle(block, format);
}

/// A hairline below every row, and the first one's words in the style of headings.
void stylecell(QTextTableCell cell, bool head) {
    QTextTableCellFormat format = cell.format().toTableCellFormat();
    format.setBottomBorder(0.7);
    format.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBottomBorderBrush(QColor(hairline));
    cell.setFormat(format);
    if (!head) return;
    for (auto it = cell.begin(); it != cell.end(); ++it)
        if (it.currentBlock().isValid())
            restyle(it.currentBlock(), charformat(fontof(headfamily, bodysize - 1.5, true), ink));
}

void styletable(QTextTable& table) {
    QTextTableFormat format = table.format();
    format.setLeftMargin(pixels(inset));
    format.setTopMargin(pixels(1));
    // What stands below keeps its distance itself: a margin here that goes over to the next page takes the head along.
    format.setBottomMargin(0);
    format.setCellPadding(pixels(1.05));
    format.setCellSpacing(0);
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setHeaderRowCount(1);
    format.clearProperty(QTextFormat::FrameWidth);
    table.setFormat(format);
    for (int row = 0; row < table.rows(); ++row)
        for (int column = 0; column < table.columns(); ++column)
            stylecell(table.cellAt(row, column), row == 0);
}

bool iswide(const Figure& figure) {
    return figure.size.width() * mmperpixel > widefigure;
}

QSizeF printedsize(const Figure& figure) {
    const QSizeF size = figure.size * mmperpixel;
    const double width = iswide(figure) ? textwidth : columnwidth;
    const double fit = std::min({1.0, width / size.width(), highestfigure / size.height()});
    return {dots(size.width() * fit), dots(size.height() * fit)};
}

/// Puts the figure where its mark is, and its caption below it.
void putfigure(const QTextBlock& block, int index, const FigureSource& source, const Figure& figure) {
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), FigureLetter::format(index, printedsize(figure)));
    const double left = iswide(figure) ? 0 : inset;
    setblock(block, left, 2, 0, 100);
    cursor.insertBlock();
    QFont font = fontof(headfamily, bodysize - 1.5);
    cursor.insertText(source.caption, charformat(font, grey));
    setblock(cursor.block(), left, 1.2, 5, 115);
}

/// The chapter's own heading where it begins on its first page.
void puttitle(QTextDocument& document, const QString& title, double start) {
    QTextCursor cursor(&document);
    cursor.insertBlock();
    cursor.movePosition(QTextCursor::Start);
    QTextBlockFormat plain;
    plain.setHeadingLevel(1);
    plain.setBottomMargin(pixels(7));
    cursor.setBlockFormat(plain);
    cursor.insertText(title, charformat(fontof(headfamily, 22, true), deepblue));
    if (start <= 0) return;
    // The first block of a text can't keep off its page's top: another one above it lets it.
    plain.setTopMargin(pixels(start));
    cursor.movePosition(QTextCursor::Start);
    cursor.insertBlock(plain);
    cursor.movePosition(QTextCursor::Start);
    cursor.setBlockFormat(QTextBlockFormat());
    cursor.setBlockCharFormat(charformat(fontof(headfamily, 1), ink));
}

/// True if the chapter's heading had to go over to another page.
bool titlegoesover(const QTextDocument& document) {
    const QTextBlock first = document.begin();
    const QTextBlock title = first.text().isEmpty() ? first.next() : first;
    return title.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore;
}

}  // namespace

ChapterPages::ChapterPages(const Chapter& chapter, const FigureFolders& folders, QPagedPaintDevice& device,
                           double start)
    : chaptertitle(chapter.title), startsat(start) {
    for (const FigureSource& source : chapter.figures)
        letters.figures.push_back(loadfigure(source, folders));
    settle(chapter, device, textheight);
    if (titlegoesover(*document)) {
        startsat = 0;
        settle(chapter, device, textheight);
    }
    const int pages = count();
    if (pages == 1 || end() > fewlines) return;
    // A few lines alone on the last page find room if all the others take a little more.
    settle(chapter, device, textheight + fewlines / 3);
    if (count() == pages) settle(chapter, device, textheight);
}

/// Lays the chapter out; text below a figure that leaves space on the page before goes up into that.
void ChapterPages::settle(Chapter chapter, QPagedPaintDevice& device, double height) {
    layout(chapter, device, height);
    for (std::size_t i = 0; i < chapter.figures.size(); ++i)
        while (spacebefore(*document, static_cast<int>(i)) > dots(emptyspace) && movefigure(chapter, i))
            layout(chapter, device, height);
}

double ChapterPages::end() const {
    const double end = document->documentLayout()->blockBoundingRect(document->lastBlock()).bottom();
    return (end - (count() - 1) * document->pageSize().height()) / dots(1);
}

void ChapterPages::layout(const Chapter& chapter, QPagedPaintDevice& device, double height) {
    document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    document->setDefaultFont(fontof(textfamily, bodysize));
    document->setMarkdown(chapter.markdown, QTextDocument::MarkdownDialectGitHub);
    document->setDocumentMargin(0);
    document->setIndentWidth(pixels(7));
    std::vector<QTextTable*> tables;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        QTextTable* const table = QTextCursor(block).currentTable();
        if (table && (tables.empty() || tables.back() != table)) tables.push_back(table);
        const int figure = figureof(block.text());
        if (figure >= 0) {
            const auto index = static_cast<std::size_t>(figure);
            putfigure(block, figure, chapter.figures.at(index), letters.figures.at(index));
            block = block.next();
        } else if (block.blockFormat().headingLevel() > 0) {
            styleheading(block);
        } else {
            styleparagraph(block, table != nullptr);
        }
    }
    for (QTextTable* table : tables)
        styletable(*table);
    puttitle(*document, chapter.title, startsat);
    document->documentLayout()->setPaintDevice(&device);
    document->documentLayout()->registerHandler(FigureLetter::type, &letters);
    document->setPageSize({dots(textwidth), dots(height)});
    settlepages(*document);
}

int ChapterPages::count() const {
    return document->pageCount();
}

std::vector<Heading> ChapterPages::sections() const {
    std::vector<Heading> sections;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() != 2) continue;
        // Asked for its place, the block is laid out.
        const double blocktop = document->documentLayout()->blockBoundingRect(block).top();
        // What begins a page can stand a fraction of a dot above it.
        const double top = blocktop + block.layout()->lineAt(0).y() + 1;
        const int page = static_cast<int>(top / document->pageSize().height());
        sections.push_back({block.text(), page, top - page * document->pageSize().height()});
    }
    return sections;
}

void ChapterPages::paint(QPainter& painter, int page) const {
    const QSizeF size = document->pageSize();
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, QColor(ink));
    // What begins on the next page must not show as a hairline at this one's foot.
    context.clip = QRectF(0, page * size.height(), size.width(), size.height() - dots(0.1));
    painter.save();
    painter.translate(0, -page * size.height());
    painter.setClipRect(context.clip);
    document->documentLayout()->draw(&painter, context);
    painter.restore();
}

}  // namespace tarvane::manual
