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
    EXPECT_NEAR(printer.width(), 8 * 1440, 0.5 * 1440);
    EXPECT_NEAR(printer.height(), 10.85 * 1440, 0.85 * 1440);
    EXPECT_NEAR(printer.textheight(), 9 * 20 * 1.25, 9 * 20 * 0.25);
    const double plain = printer.textwidth("Heights to Chart Datum");
    printer.setbold(true);
    EXPECT_GT(printer.textwidth("Heights to Chart Datum"), plain);
    printer.setbold(false);
    printer.setfontsize(18);
    EXPECT_NEAR(printer.textwidth("Heights to Chart Datum"), 2 * plain, plain / 50);
}

TEST_F(qtprinter, thepositionfollowsthetext) {
    QtPrinter printer(folder / "page.pdf");
    ASSERT_TRUE(printer.begin("Title"));
    const double height = printer.textheight();
    const auto expectat = [&](double x, double y) {
        EXPECT_DOUBLE_EQ(printer.currentx(), x);
        EXPECT_DOUBLE_EQ(printer.currenty(), y);
    };
    printer.printon("abc");
    expectat(printer.textwidth("abc"), 0);
    printer.printon("\t\t\tx");
    expectat(3 * 720 + printer.textwidth("x"), 0);
    printer.print("");
    expectat(0, height);
    printer.setcurrentx(1000);
    printer.printon("one\r\ntwo\rthree\n");
    expectat(1000, 4 * height);
    printer.setorigin(-500, -700);
    printer.print("margin");
    printer.newpage();
    expectat(-500, -700);
}

}  // namespace
}  // namespace tarvane
