#include "reader/frmpdfreader.h"

#include <QAction>
#include <QScrollBar>
#include <QSpinBox>
#include <QToolBar>
#include <QTreeView>

#include "fakes/services.h"
#include "reader/testbook.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct Reader : testing::Test {
    Reader() { puttestbook(folder); }

    void open() {
        present(form);
        form.openmanual(manualfile);
    }

    void press(const char* name) { form.key(name)->trigger(); }

    /// Pixels of the page that are of this colour.
    int coloured(QColor colour) {
        const QImage shot = form.pages->grab().toImage();
        int count = 0;
        for (int y = 0; y < shot.height(); ++y)
            for (int x = 0; x < shot.width(); ++x)
                count += shot.pixelColor(x, y) == colour;
        return count;
    }

    fakes::TemporaryFolder folder;
    ScriptedServices scripted;
    frmPDFReader form{scripted.services(), {folder.path(), "/home/anna/TextOutput"}};
};

TEST_F(Reader, AManualThatCannotBeOpenedIsToldAndLeavesTheFormOpenAndEmpty) {
    const std::string path = folder / "PDF/" + manualfile;
    open();
    EXPECT_EQ(shown(*form.lblPage), "Page 1 of 5");
    putfile(path, "no PDF");
    scripted.messages.expectshow("PDF NOT FOUND STATUS = 4");
    form.openmanual(manualfile);
    std::filesystem::remove(path);
    scripted.messages.expectshow("PDF NOT FOUND STATUS = 3");
    form.openmanual(manualfile);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(shown(*form.lblPage), "Page 0 of 0");
    for (const char* name : {"FIRST", "BACK", "NEXT", "LAST", "ZOOMIN", "ZOOMOUT"})
        EXPECT_FALSE(form.key(name)->isEnabled()) << name;
    EXPECT_FALSE(form.mnuPrint->isEnabled() || form.contents->isVisible());
    form.findbox->setText("harbour");
    EXPECT_EQ(shown(*form.foundlabel), "Not found");
    form.pages->grab();
}

TEST_F(Reader, TheKeysGoThroughEveryPageAtEverySize) {
    open();
    using Size = void (*)(frmPDFReader&);
    const Size sizes[] = {[](frmPDFReader&) {}, [](frmPDFReader& reader) { reader.fitpage->trigger(); },
                          [](frmPDFReader& reader) {
                              for (int i = 0; i < 20; ++i)
                                  reader.key("ZOOMOUT")->trigger();
                          },
                          [](frmPDFReader& reader) {
                              for (int i = 0; i < 20; ++i)
                                  reader.key("ZOOMIN")->trigger();
                          }};
    for (const Size size : sizes) {
        size(form);
        press("FIRST");
        EXPECT_FALSE(form.key("FIRST")->isEnabled() || form.key("BACK")->isEnabled());
        for (int page = 1; page <= 5; ++page) {
            EXPECT_EQ(shown(*form.lblPage), "Page " + std::to_string(page) + " of 5") << form.pages->zoom();
            EXPECT_EQ(form.pagebox->value(), page);
            EXPECT_EQ(form.key("NEXT")->isEnabled(), page < 5);
            press("NEXT");
        }
        EXPECT_FALSE(form.key("LAST")->isEnabled());
        press("BACK");
        EXPECT_EQ(shown(*form.lblPage), "Page 4 of 5");
        press("LAST");
        EXPECT_EQ(shown(*form.lblPage), "Page 5 of 5");
        form.pagebox->setValue(3);
        EXPECT_EQ(shown(*form.lblPage), "Page 3 of 5");
    }
}

TEST_F(Reader, ZoomingKeepsThePageAndLeavesTheFit) {
    open();
    const double fitted = form.pages->zoom();
    form.pagebox->setValue(4);
    press("ZOOMIN");
    EXPECT_NEAR(form.pages->zoom(), fitted * 1.25, 1e-9);
    EXPECT_FALSE(form.fitwidth->isChecked());
    EXPECT_EQ(shown(*form.lblPage), "Page 4 of 5");
    press("ZOOMOUT");
    EXPECT_NEAR(form.pages->zoom(), fitted, 1e-9);
    for (int i = 0; i < 30; ++i)
        press("ZOOMIN");
    EXPECT_EQ(form.pages->zoom(), 4);
    form.fitwidth->trigger();
    EXPECT_NEAR(form.pages->zoom(), fitted, 1e-9);
    EXPECT_EQ(form.pages->horizontalScrollBar()->maximum(), 0);
    form.resize(form.width() + 200, form.height());
    EXPECT_GT(form.pages->zoom(), fitted);
    EXPECT_EQ(shown(*form.lblPage), "Page 4 of 5");
}

TEST_F(Reader, WordsAreFoundFromThePageReadOnAndMarked) {
    open();
    form.pagebox->setValue(4);
    QTest::keyClick(&form, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(infocus(form), "findbox");
    form.findbox->setText("harbour");
    EXPECT_EQ(shown(*form.foundlabel), "3 of 4");
    const QColor chosen(0xFF, 0xB0, 0x40), other(0xFF, 0xF0, 0x90);
    EXPECT_GT(coloured(chosen), 30);
    QTest::keyClick(form.findbox, Qt::Key_Return);
    EXPECT_EQ(shown(*form.lblPage), "Page 5 of 5");
    QTest::keyClick(form.findbox, Qt::Key_Return);
    EXPECT_EQ(shown(*form.foundlabel), "1 of 4");
    EXPECT_EQ(shown(*form.lblPage), "Page 3 of 5");
    EXPECT_GT(coloured(chosen), 30);
    EXPECT_GT(coloured(other), 30);
    QTest::keyClick(form.findbox, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(shown(*form.foundlabel), "4 of 4");
    form.findbox->setText("haddock");
    EXPECT_EQ(shown(*form.foundlabel), "Not found");
    EXPECT_EQ(coloured(chosen) + coloured(other), 0);
}

TEST_F(Reader, TheContentsLeadToChaptersAndSections) {
    open();
    EXPECT_EQ(form.chapters(), (std::vector<std::string>{"Contents", "First", "The curve and what its parts mean",
                                                         "Choosing a port and a date", "Last"}));
    form.gotochapter("Choosing a port and a date");
    EXPECT_EQ(shown(*form.lblPage), "Page 5 of 5");
    form.gotochapter("No such chapter");
    EXPECT_EQ(shown(*form.lblPage), "Page 1 of 5");
    const QModelIndex chapter = form.contents->model()->index(2, 0);
    EXPECT_EQ(chapter.data().toString(), "The curve and what its parts mean");
    emit form.contents->clicked(chapter);
    const int top = form.pages->verticalScrollBar()->value();
    EXPECT_EQ(shown(*form.lblPage), "Page 4 of 5");
    emit form.contents->clicked(form.contents->model()->index(0, 0, chapter));
    EXPECT_EQ(shown(*form.lblPage), "Page 4 of 5");
    EXPECT_GT(form.pages->verticalScrollBar()->value(), top + 50);
    const auto current = [&] { return form.contents->currentIndex().data().toString().toStdString(); };
    EXPECT_EQ(current(), "Its red line");
    press("LAST");
    EXPECT_EQ(current(), "Choosing a port and a date");
    // The last page goes up as far as the window is lower than it.
    form.resize(form.width(), 300);
    form.gotochapter("Choosing a port and a date");
    const int third = form.pages->verticalScrollBar()->value();
    form.gotochapter("Last");
    EXPECT_EQ(shown(*form.lblPage), "Page 5 of 5");
    EXPECT_EQ(current(), "Last");
    EXPECT_GT(form.pages->verticalScrollBar()->value(), third + 20);
    press("FIRST");
    EXPECT_EQ(current(), "");
}

TEST_F(Reader, PrintingAsksForPagesAndAPrinter) {
    open();
    scripted.printer.standsthere = false;
    scripted.messages.expectshow("There is no printer on this machine. The document is a PDF already:\n" +
                                 folder.path() + "/PDF/Tarvane Tides Manual.pdf");
    form.mnuPrint->trigger();
    scripted.messages.expectshow(
        "There is no printer on this machine. Printouts become PDF files in\n/home/anna/TextOutput");
    form.mnuSelectPrinter->trigger();
    scripted.printer.standsthere = true;
    form.mnuSelectPrinter->trigger();
    form.mnuPrint->trigger();
    EXPECT_EQ(scripted.printer.choices, (std::vector<int>{0, 5}));
    EXPECT_EQ(scripted.printer.documents, 0) << "cancelled";
    scripted.printer.choice = PageRange{3, 4};
    form.mnuPrint->trigger();
    EXPECT_EQ(scripted.printer.documents, 1);
    EXPECT_EQ(scripted.printer.title, "Tarvane Tides Manual");
    ASSERT_EQ(scripted.printer.printed.size(), 2u);
    for (const ScriptedPrinter::Printed& picture : scripted.printer.printed) {
        EXPECT_NEAR((picture.x2 - picture.x) / (picture.y2 - picture.y), 210.0 / 297, 0.01);
        EXPECT_NEAR(picture.y2, scripted.printer.pageheight, 1);
        EXPECT_NEAR(picture.x, scripted.printer.pagewidth - picture.x2, 1);
        EXPECT_EQ(picture.page, &picture - scripted.printer.printed.data() + 1);
    }
    scripted.printer.fail = "out of paper";
    scripted.messages.expectshow("The document could not be printed.\nout of paper");
    form.mnuPrint->trigger();
}

TEST_F(Reader, AnotherFileIsOpenedAndEscapeCloses) {
    open();
    scripted.filedialogs.expectopen({}, "Open PDF");
    form.mnuOpenPDF->trigger();
    EXPECT_EQ(scripted.filedialogs.requests.back().filter, "PDF|*.pdf");
    EXPECT_EQ(shown(*form.lblPage), "Page 1 of 5");
    putfile(folder / "other.pdf", manual::makebook({manual::readchapter("# One", "1")}, {}));
    form.findbox->setText("harbour");
    scripted.filedialogs.expectopen(folder / "other.pdf");
    form.mnuOpenPDF->trigger();
    EXPECT_EQ(shown(*form.lblPage), "Page 1 of 3");
    EXPECT_EQ(shown(*form.foundlabel), "");
    expectroomfortexts(form);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace tarvane::tests
