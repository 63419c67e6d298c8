#include "platform/qt/qtprinter.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "fakes/temporaryfolder.h"

namespace tarvane {
namespace {

struct qtprinter : testing::Test {
    qtprinter() {
        printer.setpdfonly(true);
        printer.setpdffolder(made);
    }

    std::string printpages(const std::string& title, int pages) {
        EXPECT_EQ(printer.begin(title).whynot, "");
        for (int page = 1; page <= pages; ++page) {
            if (page > 1) printer.newpage();
            printer.print("Page");
            printer.line(0, 0, 1000, 1000);
        }
        return printer.enddocument().whynot;
    }

    fakes::TemporaryFolder folder;
    const std::string made = folder / "made/here";
    QtPrinter printer;
};

TEST_F(qtprinter, APdfStandsInAndNeverOverwrites) {
    EXPECT_EQ(printpages("Tide curve", 1), "");
    EXPECT_EQ(printer.destination(), made + "/Tide curve.pdf");
    const std::string first = filetext(made + "/Tide curve.pdf");
    EXPECT_TRUE(first.starts_with("%PDF"));
    EXPECT_EQ(printpages("Tide curve", 3), "");
    EXPECT_EQ(printer.destination(), made + "/Tide curve 2.pdf");
    EXPECT_EQ(filetext(made + "/Tide curve.pdf"), first);
    EXPECT_NE(filetext(made + "/Tide curve 2.pdf").find("/Count 3"), std::string::npos);
    printpages("Quay: a/b curve", 1);
    EXPECT_EQ(printer.destination(), made + "/Quay_ a_b curve.pdf");
}

TEST_F(qtprinter, PicturesArePrinted) {
    EXPECT_FALSE(printer.available());
    const std::vector<std::uint32_t> pixels(40 * 30, 0xFF2040A0);
    EXPECT_EQ(printer.begin("Picture").whynot, "");
    printer.image(100, 100, 4000, 3000, {40, 30, pixels.data()});
    EXPECT_EQ(printer.enddocument().whynot, "");
    const std::string pdf = filetext(printer.destination());
    EXPECT_NE(pdf.find("/Subtype /Image\n/Width 40\n/Height 30"), std::string::npos);
}

TEST_F(qtprinter, AFullDiskLeavesNothingAndIsTold) {
    printpages("Title", 1);
    const std::string whole = filetext(made + "/Title.pdf");
    for (const std::size_t bytes : {std::size_t{0}, std::size_t{100}, whole.size() - 1}) {
        const std::string whynot = onadiskof(bytes, [&] { return printpages("Title", 1); });
        EXPECT_EQ(whynot, made + "/Title 2.pdf: File too large");
        EXPECT_EQ(printer.destination(), "");
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(made), {}), 1);
    }
    EXPECT_EQ(printpages("Title", 1), "");
}

TEST_F(qtprinter, AFolderThatCannotBeUsedIsNamedWithItsReason) {
    const std::string file = folder / "file", closed = folder / "closed";
    putfile(file, "x");
    std::filesystem::create_directory(closed);
    std::filesystem::permissions(closed, std::filesystem::perms::owner_read);
    std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
    const uid_t user = geteuid();
    // who may do anything is made somebody else, for whom the folder is closed
    ASSERT_TRUE(user != 0 || seteuid(65534) == 0);
    for (const auto& [place, reason] :
         {std::pair{file, "Not a directory"}, {file + "/below", "Not a directory"}, {closed, "Permission denied"}}) {
        printer.setpdffolder(place);
        EXPECT_EQ(printer.begin("Title").whynot, place + ": " + reason);
        printer.print("nothing happens");
        printer.newpage();
        EXPECT_FALSE(printer.enddocument());
        EXPECT_EQ(printer.destination(), "");
    }
    ASSERT_EQ(seteuid(user), 0);
}

TEST_F(qtprinter, ThePageIsInTwips) {
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

TEST_F(qtprinter, ThePositionFollowsTheText) {
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
