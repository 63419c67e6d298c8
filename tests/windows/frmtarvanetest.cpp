#include "mainview/frmtarvane.h"

#include <QApplication>
#include <QMenuBar>
#include <QScrollBar>

#include "atlas/frmaboutport.h"
#include "fakes/mainfixture.h"
#include "platform/qt/twips.h"
#include "ports/frmchartdepth.h"
#include "ports/frmoutoptions.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct FrmTarvane : testing::Test, MainFixture {
    FrmTarvane() : window(session, scripted.services()) {
        window.Form_Load();
        timersran = window.Timer1->isActive() && window.Timer2->isActive();
        window.Timer1->stop();
        window.Timer2->stop();
        present(window);
        QApplication::processEvents();
    }

    QCheckBox& box(const char* name) { return control<QCheckBox>(window, name); }
    void choose(const char* entry) { window.menuentry(entry)->trigger(); }

    /// Pixels near to a colour, as the widget is on the screen.
    static int pixels(QWidget& widget, QColor colour, QRect part = {0, 0, -1, -1}) {
        const QImage image = widget.grab(part).toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor seen = image.pixelColor(x, y);
                const int off = std::abs(seen.red() - colour.red()) + std::abs(seen.green() - colour.green()) +
                                std::abs(seen.blue() - colour.blue());
                count += off < 250 ? 1 : 0;
            }
        return count;
    }

    void movemouse(double hours) {
        const QPoint place(static_cast<int>(hours / 24 * window.Picture1->width()), 40);
        // A move to where the mouse already is, left there by another test, would not be told.
        QTest::mouseMove(window.Picture1, QPoint(1, 1));
        QTest::mouseMove(window.Picture1, place);
        QApplication::processEvents();
    }

    bool timersran = false;
    frmtarvane window;
};

TEST_F(FrmTarvane, AClickOnTheStatusLineTellsAboutThePort) {
    for (const bool byclick : {true, false}) {
        scripted.windows.expect("frmaboutport", [](ModalWindow& opened) {
            EXPECT_EQ(static_cast<frmaboutport&>(opened).sheet().name, "Alder Quay");
        });
        if (byclick)
            QTest::mouseClick(window.statusbar->statusline, Qt::LeftButton);
        else
            QTest::keyClick(&window, Qt::Key_I, Qt::ControlModifier);
    }
    EXPECT_TRUE(window.statusbar->statusline->toolTip().endsWith("Click here for what is known of this port (Ctrl+I)"));
    session.settings.currentport = 9;
    choose("mnuAboutPort");
    EXPECT_EQ(session.view.answer, "There is no port in hand: select one");
}

TEST_F(FrmTarvane, ComesUpWhole) {
    EXPECT_EQ(window.portbox->text(), "Port    : Alder Quay");
    EXPECT_EQ(window.tidedatebox->text(), "Date   : 9 April 2024 (Tuesday)");
    EXPECT_TRUE(window.daystide1->text().contains("04:40   5.5\n"));
    EXPECT_TRUE(window.windowTitle().startsWith("Tarvane Tides   (v9.5.0)     [Time Now 14:32 : Height = "));
    EXPECT_EQ(window.disclaimer->text().count('\n'), 1);
    expectroomfortexts(window);
    EXPECT_EQ(window.Picture1->height(), twips(3415));
    EXPECT_EQ(window.Picture1->width(), twips(static_cast<int>(115.0 / 190 * 9720)));
    EXPECT_GT(pixels(*window.Picture1, Qt::black), 1000);
    EXPECT_GT(pixels(*window.pctSpringsStatus, Qt::black), 0);
}

TEST_F(FrmTarvane, TheTimersKeepItAlive) {
    EXPECT_TRUE(timersran);
    EXPECT_EQ(window.Timer1->interval(), 300);
    EXPECT_EQ(window.Timer2->interval(), 60000);
    const auto fire = [](QTimer* timer) { QMetaObject::invokeMethod(timer, "timeout"); };
    scripted.clock.reading.minute = 33;
    fire(window.Timer2);
    EXPECT_TRUE(window.windowTitle().contains("[Time Now 14:33 : ")) << window.windowTitle().toStdString();
    session.timenow = 3;
    fire(window.Timer1);
    EXPECT_NE(window.timeval->text(), "03:00");
    fire(window.Timer1);
    EXPECT_EQ(window.timeval->text(), "03:00") << "the second tick draws the marker once more";
}

TEST_F(FrmTarvane, MenuTreeAndItsHiddenParts) {
    QStringList menus;
    for (const QAction* action : window.menuBar()->actions())
        if (action->isVisible()) menus << action->text();
    EXPECT_EQ(menus, (QStringList{" &File", "&Date", "  &Select Port ", "&Calculate  ", "Clip&board", "C&onfigure",
                                  " &Advanced", "Help"}));
    for (const char* name :
         {"mnuSpecial", "mnuAdjustLoad", "mnuCopyDiamonds", "mnuImportCharts", "mnucopyconstants", "mnumaintenance"})
        EXPECT_FALSE(window.menuentry(name)->isVisible()) << name;
    QTest::mouseDClick(window.layers.Label1, Qt::LeftButton);
    EXPECT_TRUE(window.menuentry("mnuSpecial")->isVisible());
    const auto& constants = control<QLabel>(window, "lblm2Harm");
    EXPECT_EQ(constants.text(), "");
    QTest::mouseClick(window.Nextday, Qt::LeftButton);
    EXPECT_EQ(constants.text(), " (g 120 : Hm 1.50)") << "written by the next prediction";
}

TEST_F(FrmTarvane, KeysAndButtonsStepDaysAndPorts) {
    QTest::keyClick(&window, Qt::Key_PageDown);
    EXPECT_EQ(window.tidedatebox->text(), "Date   : 10 April 2024 (Wednesday)");
    QTest::mouseClick(window.Nextday, Qt::LeftButton);
    EXPECT_EQ(session.onshow.tidedayofyear, 102);
    QTest::mouseClick(window.Previousday, Qt::LeftButton);
    QTest::keyClick(&window, Qt::Key_PageUp);
    EXPECT_EQ(session.onshow.tidedayofyear, 100);
    choose("mnuNextPort");
    EXPECT_TRUE(window.portbox->text().startsWith("Port    : Birch Sound"));
    choose("mnuPrevPort");
    EXPECT_TRUE(window.portbox->text().startsWith("Port    : Alder Quay"));
}

TEST_F(FrmTarvane, TheReadoutFollowsTheMouseUntilAClick) {
    movemouse(4.7);
    EXPECT_EQ(window.timeval->text(), "04:40");
    EXPECT_TRUE(window.lblrate->text().startsWith("(Falling @ ")) << window.lblrate->text().toStdString();
    EXPECT_GT(pixels(*window.Picture1, Qt::red), window.Picture1->height() / 2);
    QTest::mouseClick(window.Picture1, Qt::RightButton, {}, QPoint(100, 40));
    EXPECT_EQ(window.lblmousestatus->text(), "(Click mouse to unfreeze)");
    movemouse(12);
    EXPECT_EQ(window.timeval->text().left(1), "0");
    QTest::mouseClick(window.Picture1, Qt::LeftButton, {}, QPoint(100, 40));
    movemouse(17);
    EXPECT_EQ(window.hiteval->text(), "5.5");
}

TEST_F(FrmTarvane, EachConstituentHasItsOwnRow) {
    using Row = std::array<const char*, 6>;
    const Row rows[] = {{"chkM2", "lblm2Harm", "lblHtM2", "M2", "0.20", " (g 120 : Hm 1.50)"},
                        {"chkS2", "lblS2Harm", "lblHtS2", "S2", "0.30", " (g 170 : Hm 0.50)"},
                        {"chkK1", "lblK1Harm", "lblHtK1", "K1(...)", "0.40", " (g 060 : Hm 0.07)"},
                        {"chkO1", "lblO1Harm", "lblHtO1", "O1", "0.50", " (g 320 : Hm 0.06)"},
                        {"chkf4", "lblf4Harm", "lblHtf4", "f4", "0.60", " (f4 000 : F4 0.02)"},
                        {"chkf6", "lblf6Harm", "lblHtf6", "f6", "0.70", " (f6 000 : F6 0.00)"},
                        {"chkZ0", "lblZ0harm", "lblHtZ0", "Z0(...)", "3", " (Z0 3.00)"}};
    session.showconstants = true;
    session.layervalues = {{"0.20", "0.30", "0.40", "0.50", "0.60", "0.70", "3"}, "5.70"};
    choose("mnuLayersShow");
    for (std::size_t place = 0; place < std::size(rows); ++place) {
        const auto& [tick, constant, value, caption, told, constants] = rows[place];
        EXPECT_EQ(box(tick).text(), caption);
        EXPECT_EQ(shown(control<QLabel>(window, value)), told);
        EXPECT_EQ(shown(control<QLabel>(window, constant)), constants);
        EXPECT_EQ(control<QLabel>(window, value).y(), box(tick).y()) << tick;
        box(tick).click();
        EXPECT_TRUE(session.layers[place]) << tick;
    }
    EXPECT_EQ(shown(*window.layers.lblSumHt), "5.70");
}

TEST_F(FrmTarvane, ConstituentsComeAndGo) {
    EXPECT_FALSE(box("chkM2").isVisible());
    choose("mnuLayersShow");
    EXPECT_TRUE(window.menuentry("mnuLayersShow")->isChecked());
    EXPECT_TRUE(box("chkM2").isVisible());
    expectroomfortexts(window);
    EXPECT_EQ(pixels(*window.Picture1, Qt::blue), 0);
    QTest::mouseClick(&box("chkM2"), Qt::LeftButton, {}, QPoint(8, box("chkM2").height() / 2));
    EXPECT_GT(pixels(*window.Picture1, Qt::blue), 50);
    movemouse(9);
    QTest::mouseClick(&box("chkS2"), Qt::LeftButton, {}, QPoint(8, box("chkS2").height() / 2));
    EXPECT_EQ(window.timeval->text(), "09:00") << "a tick leaves the readout as it is";
    EXPECT_EQ(window.layers.lblSumHt->text(), window.hiteval->text());
    EXPECT_FALSE(window.layers.lblSumHt->text().isEmpty());
    choose("mnumonth");
    EXPECT_FALSE(box("chkM2").isVisible());
    EXPECT_FALSE(window.menuentry("mnuLayersShow")->isChecked());
    EXPECT_TRUE(window.monthspredictions->isVisible());
    EXPECT_EQ(window.monthspredictions->item(0)->text(), " Months");
    window.monthspredictions->scrollToBottom();
    QTest::mouseClick(window.hitelabel, Qt::LeftButton);
    EXPECT_GT(window.monthspredictions->verticalScrollBar()->value(), 0);
    choose("mnuNextPort");
    EXPECT_FALSE(window.monthspredictions->isVisible());
    choose("mnumonth");
    EXPECT_EQ(window.monthspredictions->verticalScrollBar()->value(), 0);
}

TEST_F(FrmTarvane, EveryWaterIsSeenInBothViews) {
    const auto rowsshown = [&] {
        QStringList rows;
        for (const QLabel* part : {window.daystide1, window.daystide2}) {
            if (!part->isVisible()) continue;
            rows << part->text().split('\n');
            const int height = static_cast<int>(part->text().count('\n') + 1) * part->fontMetrics().lineSpacing();
            EXPECT_LE(height, part->height() - 2 * part->margin()) << part->text().toStdString();
        }
        return rows;
    };
    for (int waters = 0; waters <= 15; ++waters) {
        Prediction& prediction = session.prediction;
        prediction.turningcount = waters;
        for (int i = 1; i <= waters; ++i)
            prediction.turningpoints[static_cast<std::size_t>(i)] = {i + 0.5, i + 0.1};
        buildpredictiontext(session.daytable, prediction, waters, "Alder Quay", session.onshow);
        for (const int mode : {0, 1, 0}) {
            session.layersmode = mode;
            for (const QSize size : {window.minimumSize(), QSize(900, 600)}) {
                window.resize(size);
                window.showview();
                EXPECT_EQ(rowsshown().size(), 3 + waters) << mode;
                EXPECT_EQ(rowsshown().filter("15:30").size(), waters == 15 ? 1 : 0);
            }
        }
    }
}

TEST_F(FrmTarvane, TheStatusBarTellsTidesAnswersAndNotes) {
    EXPECT_EQ(window.statusbar->statusline->text(),
              "Tides of Alder Quay (1), Tuesday 9 April 2024, UT, heights above chart datum");
    EXPECT_EQ(window.statusbar->statusnotes->text(), "");
    QTest::mouseClick(window.Nextday, Qt::LeftButton);
    EXPECT_EQ(window.statusbar->statusnotes->text(),
              "NOTE: copies are dated 9/4/2024; the sun's lines are of 9/4/2024");
    session.view.answer = "Copied";
    session.port.portname = std::string(35, 'W');
    window.showview();
    EXPECT_EQ(window.statusbar->statusnotes->text(), "Copied. NOTE: 3 differences")
        << "the answer comes before the notes";
    EXPECT_TRUE(window.statusbar->statusnotes->toolTip().endsWith("the sun's lines are of 9/4/2024"));
    choose("mnuLayersShow");
    EXPECT_FALSE(window.statusbar->statusnotes->text().contains("Copied"));
}

TEST_F(FrmTarvane, PageKeysBelongToTheMonthListWhileItHasTheFocus) {
    choose("mnumonth");
    window.monthspredictions->setFocus();
    window.monthspredictions->setCurrentRow(0);
    QTest::keyClick(window.monthspredictions, Qt::Key_PageDown);
    EXPECT_GT(window.monthspredictions->currentRow(), 5);
    EXPECT_EQ(session.onshow.tidedayofyear, 100);
    window.Nextday->setFocus();
    QTest::keyClick(window.Nextday, Qt::Key_PageDown);
    EXPECT_EQ(session.onshow.tidedayofyear, 101);
}

TEST_F(FrmTarvane, AStretchedWindowIsDrawnAnew) {
    movemouse(4.7);
    QTest::mouseClick(window.Picture1, Qt::LeftButton, {}, QPoint(100, 40));
    const QString rate = window.lblrate->text();
    for (const QSize size : {QSize(window.width(), 700), QSize(1200, 800)}) {
        window.resize(size);
        QApplication::processEvents();
        EXPECT_EQ(window.Picture1->width(), twips(static_cast<int>(115.0 / 190 * size.width() * 15)));
        EXPECT_GT(window.Picture1->height(), twips(3415));
        EXPECT_GT(pixels(*window.Picture1, Qt::black), 2000);
        const QPoint under = window.Picture1->mapTo(&window, QPoint(0, window.Picture1->height() + 2));
        EXPECT_GT(pixels(window, Qt::black, {under, QSize(window.Picture1->width(), 10)}), 50) << "the hour labels";
        EXPECT_EQ(window.lblrate->text(), rate);
        EXPECT_GT(pixels(*window.Picture1, Qt::red), window.Picture1->height() / 2);
        expectroomfortexts(window);
    }
    window.resize(100, 100);
    EXPECT_EQ(window.size(), window.minimumSize());
}

TEST_F(FrmTarvane, DialogsOpenThroughTheOneDoor) {
    scripted.windows.expect("frmoutoptions", [this](ModalWindow& modal) {
        auto& options = dynamic_cast<frmoutoptions&>(modal);
        options.Check1->click();
        options.draughttext->setText("1.8");
        options.optionsok->click();
        EXPECT_EQ(stored().draught, 1.8F);
    });
    choose("mnuoutputoptions");
    EXPECT_TRUE(window.menuentry("mnumaintenance")->isVisible());
    EXPECT_TRUE(window.menuentry("mnucopyconstants")->isVisible());
    movemouse(10);
    EXPECT_TRUE(window.lblrate->text().contains(" : Draft=1.8M")) << window.lblrate->text().toStdString();
    for (const auto& [entry, name] : {std::pair{"mnutidedate", "Frmtimdat"},
                                      {"mnuPortList", "frmconfig"},
                                      {"mnuchartdepth", "frmChartdepth"},
                                      {"Mnushowconfig", "frmshowconf"},
                                      {"mnumaintainfile", "frmharmedit"},
                                      {"mnucopyconstants", "frmHCcopy"},
                                      {"mnusunrise", "Frmsunrise"}}) {
        scripted.windows.expect(name, [](ModalWindow&) {});
        choose(entry);
    }
    scripted.filedialogs.expectopen(std::nullopt, "Select Sea Area");
    choose("mnuArea");
}

}  // namespace
}  // namespace tarvane::tests
