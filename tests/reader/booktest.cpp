#include "manual/book.h"

#include <QPdfBookmarkModel>
#include <QPdfDocument>
#include <QPdfSelection>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "fakes/temporaryfolder.h"

namespace tarvane::manual::tests {
namespace {

std::vector<Chapter> somechapters() {
    QString first = "# One chapter\n\n", second = "# Another, with \u2018quotes\u2019\n\n";
    for (int i = 0; i < 68; ++i)
        first += QString("## Section %1 of one\n\nText of the section.\n\n").arg(i);
    for (int i = 0; i < 50; ++i)
        second += QString("## Section %1 of another\n\nText of the section.\n\n").arg(i);
    return {readchapter(first, "01-a.md"), readchapter(second, "02-b.md")};
}

QString textof(QPdfDocument& document, int page) {
    return document.getAllText(page).text().simplified();
}

/// The pages, from 0, that the links of the two pages of contents lead to, in their order.
std::vector<int> linkedpages(const std::string& book) {
    QPDF document;
    document.processMemoryFile("book", book.data(), book.size());
    std::vector<int> pages;
    for (const std::size_t contents : {1u, 2u}) {
        QPDFObjectHandle page = document.getAllPages().at(contents);
        for (QPDFObjectHandle link : page.getKey("/Annots").aitems()) {
            QPDFObjectHandle to = link.getKey("/Dest").getArrayItem(0);
            pages.push_back(document.findPage(to));
        }
    }
    return pages;
}

/// The number of the page that the contents promise an entry on; 0 for one that isn't listed.
int promised(const QString& contents, const QString& title) {
    const QString behind = contents.mid(contents.indexOf(title) + title.size()).trimmed();
    return contents.contains(title) ? behind.section(' ', 0, 0).toInt() : 0;
}

TEST(Book, OutlineAndContentsLeadToTheirPages) {
    const fakes::TemporaryFolder folder;
    const std::string book = makebook(somechapters(), {});
    EXPECT_EQ(book, makebook(somechapters(), {})) << "the same contents make the same bytes";
    putfile(folder / "book.pdf", book);
    QPdfDocument document;
    ASSERT_EQ(document.load(QString::fromStdString(folder / "book.pdf")), QPdfDocument::Error::None);
    EXPECT_EQ(document.metaData(QPdfDocument::MetaDataField::Title), "Tarvane Tides Manual");
    QPdfBookmarkModel bookmarks;
    bookmarks.setDocument(&document);
    ASSERT_EQ(bookmarks.rowCount(), 3);
    // Without the pages' own numbers at their feet.
    const QString contents = textof(document, 1).chopped(1) + " " + textof(document, 2).chopped(1);
    std::vector<int> pages;
    int lastpage = 0;
    const auto check = [&](const QModelIndex& entry) {
        const QString title = entry.data(int(QPdfBookmarkModel::Role::Title)).toString();
        const int page = entry.data(int(QPdfBookmarkModel::Role::Page)).toInt();
        EXPECT_TRUE(textof(document, page).contains(title)) << title.toStdString() << " on page " << page + 1;
        EXPECT_GE(page, lastpage);
        lastpage = page;
        if (title == "Contents") return;
        EXPECT_EQ(promised(contents, title), page + 1) << title.toStdString();
        EXPECT_TRUE(textof(document, page).endsWith(QString::number(page + 1)) ||
                    textof(document, page).contains(" " + QString::number(page + 1) + " "))
            << "the page's number " << page + 1;
        const int start = static_cast<int>(document.getAllText(page).text().indexOf(title));
        const QPdfSelection heading = document.getSelectionAtIndex(page, start, static_cast<int>(title.size()));
        const double place = entry.data(int(QPdfBookmarkModel::Role::Location)).toPointF().y();
        EXPECT_NEAR(place, heading.boundingRectangle().top(), 20) << title.toStdString();
        pages.push_back(page);
    };
    for (int row = 0; row < bookmarks.rowCount(); ++row) {
        const QModelIndex chapter = bookmarks.index(row, 0);
        check(chapter);
        for (int section = 0; section < bookmarks.rowCount(chapter); ++section)
            check(bookmarks.index(section, 0, chapter));
    }
    EXPECT_EQ(pages.size(), 120u);
    EXPECT_EQ(linkedpages(book), pages);
    EXPECT_EQ(pages[69], pages[68]) << "the second chapter begins below the first's end";
    EXPECT_EQ(lastpage, document.pageCount() - 1);
}

}  // namespace
}  // namespace tarvane::manual::tests
