#include "manual/chapterpages.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>

#include "fakes/temporaryfolder.h"
#include "manual/style.h"

namespace tarvane::manual::tests {
namespace {

struct ChapterLayout : testing::Test {
    ChapterLayout() {
        buffer.open(QIODevice::WriteOnly);
        writer.setResolution(dotsperinch);
        QImage picture(1296, 900, QImage::Format_RGB32);
        picture.fill(Qt::gray);
        picture.save(QString::fromStdString(folder / "window.png"));
    }

    ChapterPages laidout(const QString& markdown, double start = 0) {
        const QString path = QString::fromStdString(folder / "");
        return {readchapter("# Title\n" + markdown, "x.md"), {path, path}, writer, start};
    }

    fakes::TemporaryFolder folder;
    QBuffer buffer;
    QPdfWriter writer{&buffer};
};

/// The page of a block's first and last line.
std::pair<int, int> pagesof(const QTextBlock& block) {
    const double height = block.document()->pageSize().height();
    const double top = block.document()->documentLayout()->blockBoundingRect(block).top();
    const QTextLayout& layout = *block.layout();
    if (layout.lineCount() == 0) return {-1, -1};
    const auto page = [&](int line) { return static_cast<int>((top + layout.lineAt(line).y() + 1) / height); };
    return {page(0), page(layout.lineCount() - 1)};
}

/// What of the page before is left empty where a block begins a page; 0 where it doesn't.
double voidabove(const QTextBlock& block) {
    const QTextBlock before = block.previous();
    const double height = block.document()->pageSize().height();
    if (pagesof(before).second == pagesof(block).first) return 0;
    const double bottom = block.document()->documentLayout()->blockBoundingRect(before).bottom();
    return (pagesof(before).second + 1) * height - bottom;
}

/// The page on which a table's frame ends: its head stands on every page up to that one.
int endpageof(QTextTable& table) {
    const QTextDocument& document = *table.document();
    const QRectF frame = document.documentLayout()->frameBoundingRect(&table);
    return static_cast<int>((frame.bottom() - 1) / document.pageSize().height());
}

QString words(int count) {
    QString text;
    for (int i = 0; i < count; ++i)
        text += i % 7 ? "water " : "flooding ";
    return text.trimmed() + ".\n\n";
}

/// Whatever amount of text stands above, which moves everything down the page line by line.
TEST_F(ChapterLayout, NothingIsPartedThatBelongsTogether) {
    int figures = 0, headings = 0, rows = 0;
    for (int above = 0; above < 24; ++above) {
        QString text = words(100 + 40 * above) + "## A section\n\n### Below it\n\n" + words(40);
        text += "## With a figure\n\n" + QString(above % 2 ? "A line.\n\n" : "") + "![A window](shot:window)\n\n" +
                words(30) + "## With a table\n\n| a | b |\n|---|---|\n";
        for (int row = 0; row < (above % 2 ? 4 : 24); ++row)
            text += "| " + QString::number(row) + " | " + words(25).trimmed() + " |\n";
        const ChapterPages pages = laidout(text);
        for (QTextBlock block = pages.text().begin(); block.next().isValid(); block = block.next()) {
            const auto [first, last] = pagesof(block);
            ASSERT_GE(first, 0) << block.text().toStdString() << " has no lines, above " << above;
            if (block.blockFormat().headingLevel() > 0) {
                EXPECT_EQ(last, pagesof(block.next()).first) << block.text().toStdString() << ", above " << above;
                ++headings;
            } else if (block.text() == QString(QChar::ObjectReplacementCharacter)) {
                EXPECT_EQ(first, pagesof(block.next()).second) << "caption, above " << above;
                EXPECT_EQ(block.next().text(), "A window");
                EXPECT_LT(voidabove(block), 0.75 * dots(columnwidth) * 900 / 1296 + dots(14)) << "above " << above;
                ++figures;
            } else if (QTextCursor(block).currentTable()) {
                EXPECT_EQ(first, last) << "row " << block.text().toStdString() << ", above " << above;
                ++rows;
            }
        }
    }
    EXPECT_EQ(figures, 24);
    EXPECT_EQ(headings, 24 * 5);
    EXPECT_GT(rows, 24 * 24);
}

/// Wherever on the page it begins, by a millimetre and a half.
TEST_F(ChapterLayout, ShortTablesAndListingsStayWhole) {
    const QString row = "| 1 | 2 |\n", listing = "```\none\n\ntwo\nthree\nfour\n```\n\n";
    const QString text = "Tabled:\n\n| a | b |\n|---|---|\n" + row.repeated(4) + "\nListed:\n\n" + listing + "End.\n";
    int wentover = 0;
    for (double start = 60; start < 200; start += 1.5) {
        const ChapterPages pages = laidout(text, start);
        QTextTable& table = *QTextCursor(pages.text().find("1").block()).currentTable();
        const QTextBlock tabled = pages.text().find("Tabled").block(), listed = pages.text().find("Listed").block();
        EXPECT_EQ(pagesof(tabled).first, endpageof(table)) << "the head is repeated, from " << start;
        for (QTextBlock line = listed; line.text() != "End."; line = line.next())
            EXPECT_EQ(pagesof(line).first, pagesof(listed).first) << line.text().toStdString() << ", from " << start;
        wentover += pagesof(listed).first == 1;
    }
    EXPECT_GT(wentover, 10);
}

TEST_F(ChapterLayout, AFigureFitsTheColumnAndKeepsItsShape) {
    QImage wide(2000, 1000, QImage::Format_RGB32);
    wide.fill(Qt::gray);
    wide.save(QString::fromStdString(folder / "wide.png"));
    const ChapterPages pages =
        laidout("![Whole](shot:window)\n\n![Part](shot:window?crop=10,20,100,50)\n\n![Wide](shot:wide)\n");
    std::vector<QSizeF> sizes;
    for (QTextBlock block = pages.text().begin(); block.isValid(); block = block.next())
        if (block.text() == QString(QChar::ObjectReplacementCharacter))
            sizes.push_back(FigureLetter::figuresize(block.begin().fragment().charFormat()));
    ASSERT_EQ(sizes.size(), 3u);
    EXPECT_NEAR(sizes[2].width(), dots(textwidth), 1);
    EXPECT_LT(sizes[0].width(), dots(columnwidth));
    EXPECT_NEAR(sizes[0].height(), sizes[0].width() * 900 / 1296, 1);
    EXPECT_NEAR(sizes[1].width(), sizes[0].width() * 100 / 648, 1);
    EXPECT_NEAR(sizes[1].height(), sizes[1].width() / 2, 1);
    EXPECT_THROW(laidout("![Part](shot:window?crop=600,0,100,50)\n"), SourceError);
    EXPECT_THROW(laidout("![Drawing](figure:none.svg)\n"), SourceError);
}

/// What follows a figure goes up into the space that it leaves, unless it belongs below it.
TEST_F(ChapterLayout, TextFillsTheSpaceAboveAFigure) {
    struct {
        QString follows;
        bool goesup;
    } const cases[] = {{"First.\n\nSecond.\n\n", true},
                       {"- First.\n- Second.\n\n", true},
                       {"As told:\n\nFirst.\n\n", false},
                       {"| a | b |\n|---|---|\n| 1 | 2 |\n\n", false},
                       {"## First\n\nSecond.\n\n", false}};
    for (const auto& [follows, goesup] : cases) {
        const ChapterPages pages = laidout(words(430) + "![A window](shot:window)\n\n" + follows);
        const QTextBlock caption = pages.text().find("A window").block();
        EXPECT_EQ(pagesof(caption).first, 1);
        const bool up =
            pages.text().find("First").isNull() || pages.text().find("First").position() < caption.position();
        EXPECT_EQ(up && !follows.startsWith('|'), goesup) << follows.toStdString();
    }
}

TEST_F(ChapterLayout, AChapterBeginsBelowAnothersEndWhereItHasRoom) {
    const QString text = words(60) + "## Section\n\n" + words(700);
    const ChapterPages own = laidout(text), below = laidout(text, 90),
                       late = laidout("![A window](shot:window)\n", 200);
    EXPECT_EQ(own.start(), 0);
    EXPECT_EQ(below.start(), 90);
    EXPECT_EQ(late.start(), 0) << "the figure takes the title along";
    EXPECT_EQ(late.count(), 1);
    ASSERT_EQ(below.sections().at(0).page, 0);
    EXPECT_NEAR(below.sections().at(0).top - own.sections().at(0).top, dots(90), dots(3));
    EXPECT_GT(below.end() + (below.count() - own.count()) * textheight, own.end() + 80);
}

TEST_F(ChapterLayout, SectionsAreListedWhereTheyStand) {
    const ChapterPages pages =
        laidout(words(700) + "## First\n\n" + words(300) + "### Not listed\n\n" + words(300) + "## Last\n\ntext\n");
    const std::vector<Heading> sections = pages.sections();
    ASSERT_EQ(sections.size(), 2u);
    EXPECT_EQ(sections[0].title, "First");
    EXPECT_EQ(sections[1].title, "Last");
    EXPECT_GT(sections[1].page, 0);
    for (const Heading& section : sections) {
        EXPECT_GE(section.top, 0);
        EXPECT_LT(section.top, dots(textheight));
    }
    EXPECT_EQ(pages.count(), sections[1].page + 1);
}

}  // namespace
}  // namespace tarvane::manual::tests
