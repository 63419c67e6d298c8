#include "reader/frmhelpkey.h"

#include <QAction>
#include <QRegularExpression>
#include <QTimer>
#include <algorithm>

#include "fakes/services.h"
#include "reader/testbook.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct Help : testing::Test {
    Help() {
        puttestbook(folder);
        QApplication::instance()->installEventFilter(&help);
    }

    std::string page() const { return help.reader() ? shown(*help.reader()->lblPage) : "no manual"; }

    fakes::TemporaryFolder folder;
    ScriptedServices scripted;
    HelpKey help{scripted.services(), {folder.path(), ""}};
};

TEST_F(Help, TheKeyOpensTheChapterOfTheWindowInHand) {
    QWidget window;
    window.setObjectName("frmtarvane");
    auto* const box = new QLineEdit(&window);
    present(window);
    QTest::keyClick(box, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(page(), "no manual");
    QTest::keyClick(box, Qt::Key_F1);
    EXPECT_EQ(page(), "Page 4 of 5");
    QDialog asked(&window);
    present(asked);
    help.reader()->gotochapter("First");
    QTest::keyClick(&asked, Qt::Key_F1);
    EXPECT_EQ(page(), "Page 4 of 5") << "a box without a chapter stands for its window";
    QWidget unknown;
    present(unknown);
    QTest::keyClick(&unknown, Qt::Key_F1);
    EXPECT_EQ(page(), "Page 1 of 5");
    help.reader()->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !help.reader(); }));
    help.open("frmconfig");
    EXPECT_EQ(page(), "Page 5 of 5");
}

TEST_F(Help, TheManualIsUsedBesideModalWindows) {
    const auto reached = [&] {
        help.reader()->activateWindow();
        QCoreApplication::processEvents();
        help.reader()->pages->gotopage(0);
        QTest::keyClick(help.reader()->windowHandle(), Qt::Key_End, Qt::ControlModifier);
        return page() == "Page 5 of 5";
    };
    const auto runmodal = [](QWidget* parent, const char* name, const std::function<void(QDialog&)>& act) {
        QDialog dialog(parent);
        dialog.setObjectName(name);
        QTimer::singleShot(0, &dialog, [&] {
            act(dialog);
            dialog.reject();
        });
        dialog.exec();
    };
    QWidget window;
    present(window);
    help.open("frmtarvane");
    ASSERT_TRUE(reached());
    runmodal(&window, "frmconfig", [&](QDialog& dialog) {
        EXPECT_TRUE(reached()) << "open before the modal window";
        runmodal(&dialog, "frmasks", [&](QDialog&) { EXPECT_TRUE(reached()) << "a modal window over a modal one"; });
        EXPECT_TRUE(reached()) << "the upper modal window is closed";
        help.reader()->close();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !help.reader(); }));
        QTest::keyClick(&dialog, Qt::Key_F1);
        EXPECT_TRUE(reached()) << "opened from the modal window";
    });
    EXPECT_TRUE(reached()) << "no modal window is left";
    ASSERT_TRUE(help.reader()->isVisible());
    runmodal(help.reader(), "print", [&](QDialog&) { EXPECT_FALSE(reached()) << "its own dialogs block it"; });
}

TEST_F(Help, TheProgramEndsWithItsMainWindowThoughTheManualIsOpen) {
    QMainWindow window;
    present(window);
    help.open("frmtarvane");
    QTimer::singleShot(0, &window, [&] { window.close(); });
    QTimer::singleShot(2000, &window, [] { QApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
}

/// Names of the program's windows, as its sources give them.
std::vector<std::string> windownames() {
    static const QRegularExpression given("ModalDialog\\(\\s*\"(\\w+)\"|^    setObjectName\\(\"([fF]rm\\w+)\"\\)",
                                          QRegularExpression::MultilineOption);
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::recursive_directory_iterator(TARVANE_SOURCE)) {
        if (file.path().extension() != ".cpp") continue;
        const QString source = QString::fromStdString(filetext(file.path()));
        for (auto found = given.globalMatch(source); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            names.push_back((match.captured(1) + match.captured(2)).toStdString());
        }
    }
    std::erase(names, "frmPDFReader");
    return names;
}

TEST_F(Help, EveryWindowHasItsChapterInTheManualThatIsBuilt) {
    frmPDFReader reader(scripted.services(), {TARVANE_BIN, ""});
    reader.openmanual(manualfile);
    const std::vector<std::string> chapters = reader.chapters();
    for (const WindowChapter& told : windowchapters())
        EXPECT_NE(std::find(chapters.begin(), chapters.end(), told.chapter), chapters.end()) << told.chapter;
    const std::vector<std::string> names = windownames();
    EXPECT_GE(names.size(), 18u);
    for (const std::string& name : names)
        EXPECT_TRUE(chapterof(name)) << name << " has no chapter";
}

TEST_F(Help, TheManualThatIsBuiltHasAllItsChaptersAndPictures) {
    frmPDFReader reader(scripted.services(), {TARVANE_BIN, ""});
    reader.openmanual(manualfile);
    const std::vector<std::string> windows = windownames();
    std::vector<std::string> titles{"Contents"};
    int pictures = 0;
    for (const manual::Chapter& chapter : manual::readchapters(TARVANE_CHAPTERS)) {
        titles.push_back(chapter.title.toStdString());
        for (const manual::FigureSource& figure : chapter.figures) {
            const std::string window = figure.name.section('-', 0, 0).toStdString();
            if (std::find(windows.begin(), windows.end(), window) == windows.end()) continue;
            const std::string path = TARVANE_PICTURES "/" + figure.name.toStdString() + ".png";
            EXPECT_TRUE(std::filesystem::exists(path)) << chapter.title.toStdString() << ": " << path;
            ++pictures;
        }
    }
    EXPECT_EQ(reader.chapters(), titles);
    EXPECT_GE(pictures, 10);
}

}  // namespace
}  // namespace tarvane::tests
