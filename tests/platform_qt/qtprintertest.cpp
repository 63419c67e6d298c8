#include "platform/qt/qtprinter.h"

#include <gtest/gtest.h>

#include <QFile>

#include "fakes/temporaryfolder.h"

namespace tarvane {
namespace {

struct qtprinter : testing::Test {
    fakes::TemporaryFolder folder;
};

QByteArray contents(const std::string& path) {
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return file.readAll();
}

TEST_F(qtprinter, pdfstandsinandneveroverwrites) {
    QtPrinter printer;
    printer.setpdfonly(true);
    printer.setpdffolder(folder / "made/here");
    const auto printpages = [&](const std::string& title, int pages) {
        EXPECT_TRUE(printer.begin(title));
        for (int page = 1; page <= pages; ++page) {
            if (page > 1) printer.newpage();
            printer.print("Page");
            printer.line(0, 0, 1000, 1000);
        }
        EXPECT_TRUE(printer.enddocument());
        return printer.destination();
    };
    EXPECT_EQ(printpages("Tide curve", 1), folder / "made/here/Tide curve.pdf");
    const QByteArray first = contents(folder / "made/here/Tide curve.pdf");
    EXPECT_TRUE(first.startsWith("%PDF"));
    EXPECT_EQ(printpages("Tide curve", 3), folder / "made/here/Tide curve 2.pdf");
    EXPECT_EQ(contents(folder / "made/here/Tide curve.pdf"), first);
    EXPECT_EQ(contents(folder / "made/here/Tide curve 2.pdf").count("/Type /Page\n"), 3);
    EXPECT_EQ(printpages("a/b: \"c\"?", 1), folder / "made/here/a_b_ _c__.pdf");
    EXPECT_EQ(printpages("", 1), folder / "made/here/Tarvane.pdf");
}

TEST_F(qtprinter, aplacethatcannotbewrittenisrefused) {
    QtPrinter printer(folder / "no such folder/page.pdf");
    EXPECT_FALSE(printer.begin("Title"));
    printer.print("nothing happens");
    printer.newpage();
    EXPECT_FALSE(printer.enddocument());
    EXPECT_EQ(printer.destination(), "");
}

TEST_F(qtprinter, thepageisintwips) {
    QtPrinter printer(folder / "page.pdf");
    ASSERT_TRUE(printer.begin("Title"));
    EXPECT_GT(printer.width(), 7.5 * 1440);
    EXPECT_LT(printer.width(), 8.5 * 1440);
    EXPECT_GT(printer.height(), 10 * 1440);
    EXPECT_LT(printer.height(), 11.7 * 1440);
    EXPECT_GT(printer.textheight(), 9 * 20);
    EXPECT_LT(printer.textheight(), 9 * 20 * 1.5);
    const double plain = printer.textwidth("Heights to Chart Datum");
    printer.setbold(true);
    EXPECT_GT(printer.textwidth("Heights to Chart Datum"), plain);
    printer.setbold(false);
    printer.setfontsize(18);
    EXPECT_NEAR(printer.textwidth("Heights to Chart Datum"), 2 * plain, plain / 50);
    EXPECT_TRUE(printer.enddocument());
}

TEST_F(qtprinter, thepositionfollowsthetext) {
    QtPrinter printer(folder / "page.pdf");
    ASSERT_TRUE(printer.begin("Title"));
    const double height = printer.textheight();
    printer.printon("abc");
    EXPECT_DOUBLE_EQ(printer.currentx(), printer.textwidth("abc"));
    printer.printon("\t");
    EXPECT_DOUBLE_EQ(printer.currentx(), 720);
    printer.printon("\t\tx");
    EXPECT_DOUBLE_EQ(printer.currentx(), 3 * 720 + printer.textwidth("x"));
    EXPECT_EQ(printer.currenty(), 0);
    printer.print("");
    EXPECT_EQ(printer.currentx(), 0);
    EXPECT_DOUBLE_EQ(printer.currenty(), height);

    printer.setcurrentx(1000);
    printer.printon("one\r\ntwo\rthree\n");
    EXPECT_DOUBLE_EQ(printer.currentx(), 1000);
    EXPECT_DOUBLE_EQ(printer.currenty(), 4 * height);

    printer.setorigin(-500, -700);
    printer.print("margin");
    EXPECT_EQ(printer.currentx(), -500);
    printer.newpage();
    EXPECT_EQ(printer.currenty(), -700);
    EXPECT_TRUE(printer.enddocument());
}

}  // namespace
}  // namespace tarvane
