// The planner beside the main window, by mouse and keys.
#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QWheelEvent>
#include <algorithm>
#include <filesystem>

#include "platform/qt/stepcontrol.h"
#include "windows/plannerfixture.h"

namespace tarvane::tests {
namespace {

using namespace std::chrono_literals;

TEST_F(FrmPlanner, PortsAreFollowedBothWays) {
    EXPECT_EQ(planner->windowTitle(), "Alder Quay - Planner");
    planner->cmbPort->setCurrentIndex(2);
    emit planner->cmbPort->activated(2);
    EXPECT_EQ(main->portbox->text(), "Port    : Cedar Head");
    EXPECT_EQ(stored().portnumber, 3);
    EXPECT_EQ(planner->windowTitle(), "Cedar Head - Planner");
    main->menuentry("mnuPrevPort")->trigger();
    EXPECT_EQ(planner->windowTitle(), "Birch Sound - Planner");
    EXPECT_EQ(planner->cmbPort->currentIndex(), 1);
    QLineEdit* name = planner->cmbPort->lineEdit();
    const auto enter = [&](const char* text) {
        name->setFocus();
        if (*text) type(*name, text);
        planner->cmbPort->completer()->popup()->hide();
        QTest::keyClick(name, Qt::Key_Return);
    };
    enter("ceder hed");
    EXPECT_EQ(planner->cmbPort->currentIndex(), 2) << "a near miss";
    scripted.windows.expect("frmfinder");
    enter("xyzzy");
    EXPECT_EQ(name->text(), "Cedar Head") << "none was found elsewhere either";
    planner->onfind = nullptr;
    enter("xyzzy");
    EXPECT_EQ(shown(*planner->lblSaid), "No port of this sea area is called so");
    EXPECT_EQ(name->text(), "Cedar Head");
    planner->onport(4);
    enter("");
    EXPECT_EQ(session.settings.currentport, 4) << "of two of that name the one in hand stays";
    enter("birch");
    EXPECT_EQ(session.settings.currentport, 2);
    EXPECT_EQ(shown(*planner->lblSaid), "");
    name->setFocus();
    type(*name, "half a na");
    planner->cmbPort->completer()->popup()->hide();
    planner->picture->setFocus();
    EXPECT_EQ(name->text(), "Birch Sound") << "a text left half typed is no port";
    std::filesystem::remove(area());
    main->showview();
    EXPECT_EQ(shown(*planner->lblNow), "The sea area's file can't be found");
    planner->picture->grab();
    key(Qt::Key_Right);
    QTest::mouseClick(planner->cmdNextDay, Qt::LeftButton);
    doubleclick(view().from);
    QTest::keyClick(planner, Qt::Key_T, Qt::ControlModifier);
}

TEST_F(FrmPlanner, WhatIsTypedIsAnsweredAtOnce) {
    planner->pages->setCurrentWidget(planner->windows);
    type(field(PlanField::bottom), "-1");
    type(field(PlanField::draught), "1,9");
    const std::string answered = answer();
    const std::size_t rows = planner->windows->table().rows.size();
    EXPECT_EQ(rows, view().access.windows.size());
    EXPECT_NE(answered.find(" to "), std::string::npos) << answered;
    type(field(PlanField::draught), "2.9");
    EXPECT_NE(answer(), answered);
    const std::string deeper = answer();
    const auto table = tabbedtext(planner->windows->table(), "");
    type(field(PlanField::draught), "x");
    EXPECT_EQ(answer(), "\u26A0 Draught: write metres from 0 to 50, not \u201Cx\u201D");
    EXPECT_TRUE(field(PlanField::draught).font().underline());
    EXPECT_EQ(tabbedtext(planner->windows->table(), ""), table);
    QApplication::processEvents();
    EXPECT_EQ(readplansettings(plansettingspath(session.folders)).draught, 2.9);
    type(field(PlanField::draught), "2.9");
    EXPECT_EQ(answer(), deeper);
    planner->fraQuestion->setChecked(false);
    EXPECT_EQ(answer() + std::to_string(planner->windows->table().rows.size()), "0");
    planner->fraQuestion->setChecked(true);
    planner->weekdays[5]->click();
    EXPECT_NE(answer().find("Sat 13 Apr"), std::string::npos) << answer();
    EXPECT_LE(view().access.windows.size(), 3U);
    const std::string path = plansettingspath(session.folders);
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    planner->weekdays[5]->click();
    QApplication::processEvents();
    EXPECT_EQ(shown(*planner->lblSaid).find("The planner's settings could not be kept: "), 0U);
}

TEST_F(FrmPlanner, NoTwoLettersOfOneMenuOrOfTheWindowAreTheSame) {
    const auto expectdifferent = [](const QStringList& texts) {
        std::vector<std::string> letters;
        for (const QString& each : texts)
            letters.push_back(QKeySequence::mnemonic(each).toString().toStdString());
        std::sort(letters.begin(), letters.end());
        const auto twice = std::adjacent_find(letters.begin(), letters.end());
        EXPECT_TRUE(twice == letters.end()) << *twice << " in " << texts.join("|").toStdString();
    };
    QStringList captions{planner->fraQuestion->title(), planner->chkTwilight->text()};
    for (const QLabel* each : planner->findChildren<QLabel*>())
        if (each->buddy()) captions << each->text();
    for (const QMenu* menu : planner->menuBar()->findChildren<QMenu*>()) {
        QStringList entries;
        for (const QAction* each : menu->actions())
            if (!each->isSeparator()) entries << each->text();
        expectdifferent(entries);
    }
    for (const QAction* each : planner->menuBar()->actions())
        captions << each->text();
    EXPECT_GT(captions.size(), 15);
    expectdifferent(captions);
}

TEST_F(FrmPlanner, TheFirstClickIntoAFieldSelectsWhatStandsThere) {
    QLineEdit& draught = field(PlanField::draught);
    planner->picture->setFocus();
    QTest::mouseClick(&draught, Qt::LeftButton);
    QTest::keyClicks(&draught, "1.9");
    EXPECT_EQ(draught.text(), "1.9");
    QTest::mouseClick(&draught, Qt::LeftButton, {}, {3, draught.height() / 2});
    EXPECT_FALSE(draught.hasSelectedText()) << "the second puts the caret";
    type(field(PlanField::clearance), "0.5");
    type(field(PlanField::bottom), "2");
    EXPECT_NE(shown(*planner->lblNeeded).find("if it dries 2.0 m, write -2.0"), std::string::npos);
    type(field(PlanField::bottom), "-2");
    const std::string needed = "Bottom dries 2.0 m. Height of tide needed: 4.4 m.";
    EXPECT_EQ(shown(*planner->lblNeeded), needed);
    type(field(PlanField::draught), "x");
    EXPECT_EQ(shown(*planner->lblNeeded), "Shown as it was before: " + needed);
}

TEST_F(FrmPlanner, TheQuestionIsAskedByMouseAlone) {
    type(field(PlanField::draught), "1.9");
    type(field(PlanField::clearance), "0.5");
    type(field(PlanField::bottom), "0.1");
    const auto press = [&](PlanField which, bool up) {
        const StepArrows& arrows = *planner->steps[static_cast<std::size_t>(which)];
        QTest::mouseClick(up ? arrows.up : arrows.down, Qt::LeftButton);
    };
    press(PlanField::bottom, false);
    press(PlanField::bottom, false);
    EXPECT_EQ(field(PlanField::bottom).text(), "-0.1");
    EXPECT_EQ(shown(*planner->lblNeeded), "Bottom dries 0.1 m. Height of tide needed: 2.5 m.");
    press(PlanField::bridge, true);
    EXPECT_EQ(answer(), "\u26A0 Mast: write how high it stands above the water, in metres");
    press(PlanField::airdraught, true);
    press(PlanField::bridgelevel, true);
    EXPECT_EQ(view().read.passage.ceiling(), 10);
    field(PlanField::draught).setFocus();
    QTest::keyClick(&field(PlanField::draught), Qt::Key_Up);
    EXPECT_EQ(view().read.passage.draught, 2);
    QApplication::processEvents();
    EXPECT_EQ(readplansettings(plansettingspath(session.folders)).bridges.size(), 1U);
    planner->cmbSpan->setCurrentText("10 days");
    emit planner->cmbSpan->activated(planner->cmbSpan->currentIndex());
    EXPECT_EQ(view().plan->ends() - view().plan->begins(), 240h);
}

TEST_F(FrmPlanner, LettersLeadToWhatTheyName) {
    planner->resize(683, 340);
    QApplication::processEvents();
    QTest::keyClick(planner, Qt::Key_W, Qt::AltModifier);
    EXPECT_EQ(infocus(*planner), "txtDraught");
    EXPECT_FALSE(field(PlanField::draught).visibleRegion().isEmpty()) << "it is scrolled to";
    EXPECT_TRUE(view().settings.asked);
    planner->fraQuestion->setChecked(false);
    QTest::keyClick(planner, Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(view().settings.asked) << "and asked again";
    QTest::keyClick(planner, Qt::Key_Y, Qt::AltModifier);
    QTest::qWait(150);
    EXPECT_TRUE(planner->weekdays[0]->hasFocus() && !planner->weekdays[0]->isChecked());
    planner->picture->setFocus();
    for (QComboBox* box : {planner->cmbSpan, planner->cmbClock, planner->cmbDaylight, planner->cmbPort}) {
        const int row = box->currentIndex();
        const QPointF place = box->rect().center();
        QWheelEvent event(place, box->mapToGlobal(place), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &event);
        EXPECT_EQ(box->currentIndex(), row) << box->objectName().toStdString() << ": nobody has clicked it";
    }
    planner->area->verticalScrollBar()->setValue(0);
    field(PlanField::draught).setFocus();
    type(field(PlanField::draught), "1.7");
    for (const QWidget* each :
         {static_cast<QWidget*>(planner->lblAnswer), static_cast<QWidget*>(&field(PlanField::draught))})
        EXPECT_EQ(each->visibleRegion().boundingRect().height(), each->height()) << "asked and answered in view";
    planner->DTPicker->setFocus();
    type(*planner->DTPicker, "31/2/2026");
    QTest::keyClick(planner->DTPicker, Qt::Key_Return);
    EXPECT_FALSE(planner->lblSaid->visibleRegion().isEmpty()) << "why is told in view";
    EXPECT_TRUE(planner->lblCursor->isHidden()) << "in its place";
    QLineEdit* name = planner->cmbPort->lineEdit();
    for (const auto& [text, port, told] : {std::tuple("ceda", "Cedar Head", ""),
                                           {"r", "Cedar Head", "Several ports"},
                                           {"xyz", "Cedar Head", "No port"}}) {
        name->setFocus();
        type(*name, text);
        planner->cmbPort->completer()->popup()->hide();
        planner->picture->setFocus();
        EXPECT_EQ(name->text(), port) << text;
        EXPECT_TRUE(shown(*planner->lblSaid).starts_with(told)) << shown(*planner->lblSaid);
    }
}

TEST_F(FrmPlanner, AYearIsSavedWhateverDaysAreShown) {
    const auto saved = [&](const char* entry, const char* proposed) {
        const std::string path = folder / "saved";
        scripted.filedialogs.expectsave(path);
        planner->entry(entry)->trigger();
        EXPECT_EQ(scripted.filedialogs.requests.back().filename, proposed);
        return wholetext(path);
    };
    type(field(PlanField::bottom), "-1");
    const std::string first = saved("mnuSaveTides", "Alder Quay tides 2024-04-09.csv");
    EXPECT_EQ(std::count(first.begin(), first.end(), '\n') - 1, std::ptrdiff_t(view().plan->waters().size()));
    const std::string waters = saved("mnuYearTides", "Alder Quay tides 2024.csv");
    const auto lines = std::count(waters.begin(), waters.end(), '\n');
    EXPECT_NEAR(double(lines), 366 * 24 / 6.21, 20);
    EXPECT_NE(waters.find("2024-01-01T"), std::string::npos);
    EXPECT_NE(waters.find("2024-12-31T"), std::string::npos);
    EXPECT_NE(waters.find(first.substr(first.find('\n') + 1, 60)), std::string::npos) << "the same waters";
    const std::string windows = saved("mnuYearCalendarAccess", "Alder Quay access 2024.ics");
    EXPECT_NE(windows.find("DTSTART:202401"), std::string::npos);
    EXPECT_NE(windows.find("DTSTART:202412"), std::string::npos);
    EXPECT_EQ(view().settings.days, 7);
}

TEST_F(FrmPlanner, ASmallScreenHasAllOfItAndTwoFingersZoom) {
    planner->resize(683, 340);
    QApplication::processEvents();
    EXPECT_LE(planner->width(), 683);
    EXPECT_LE(planner->height(), 340);
    auto* const area = planner->findChild<QScrollArea*>("area");
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << "nothing lies beside what is seen";
    area->ensureWidgetVisible(planner->lblFoot);
    EXPECT_FALSE(planner->lblFoot->visibleRegion().isEmpty());
    EXPECT_GT(planner->picture->height(), 100);
    planner->resize(1400, 800);
    QApplication::processEvents();
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
    EXPECT_GT(planner->pages->mapTo(planner, QPoint()).x(), planner->fraQuestion->geometry().right())
        << "side by side again";
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    const auto whole = view().to - view().from;
    const QPoint middle(planner->picture->width() / 2, 60);
    for (int apart = 20; apart <= 200; apart += 20) {
        auto fingers = QTest::touchEvent(planner->picture, screen.get());
        const QPoint one = middle - QPoint(apart, 0), other = middle + QPoint(apart, 0);
        if (apart == 20)
            fingers.press(0, one).press(1, other);
        else
            fingers.move(0, one).move(1, other);
    }
    EXPECT_LT(view().to - view().from, whole / 3);
    QTest::touchEvent(planner->picture, screen.get()).release(0, middle).release(1, middle);
}

TEST_F(FrmPlanner, KeysWalkTheCursor) {
    planner->picture->setFocus();
    const Moment now = Moment(makedate(2024, 4, 9)) + 14h + 32min;
    const auto cursor = [&] { return view().cursor.value_or(Moment{}); };
    key(Qt::Key_Right);
    EXPECT_EQ(cursor(), now) << "it begins where now is";
    key(Qt::Key_Right);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(cursor(), now + 11min);
    EXPECT_EQ(shown(*planner->lblCursor).find("Tue 9 Apr 15:43 UT+1: "), 0U) << shown(*planner->lblCursor);
    key(Qt::Key_Right, Qt::ControlModifier);
    const auto& waters = view().plan->waters();
    const auto next = std::find_if(waters.begin(), waters.end(), [&](const auto& each) { return each.moment > now; });
    EXPECT_EQ(cursor(), next->moment);
    for (int i = 0; i < 60; ++i)
        key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(cursor(), waters.front().moment);
    planner->picture->grab();
    const auto whole = view().to - view().from;
    key(Qt::Key_Plus);
    key(Qt::Key_Plus);
    EXPECT_NEAR(double((view().to - view().from).count()), double(whole.count()) / 1.25 / 1.25, 2)
        << "before a repaint";
    for (int i = 0; i < 40; ++i)
        key(Qt::Key_Plus);
    EXPECT_EQ(view().to - view().from, 3h);
    key(Qt::Key_Home);
    EXPECT_EQ(cursor(), now);
    EXPECT_TRUE(view().from <= now && now <= view().to) << "the part shown follows";
    QTest::mouseClick(planner->cmdNextWeek, Qt::LeftButton);
    QTest::keyClick(planner, Qt::Key_PageDown);
    EXPECT_EQ(view().first, makedate(2024, 4, 17));
    key(Qt::Key_Home);
    EXPECT_EQ(view().first, makedate(2024, 4, 9)) << "days without now give way";
    EXPECT_EQ(cursor(), now);
    planner->tides->setFocus();
    planner->tides->selectRow(0);
    QTest::keyClick(planner->tides, Qt::Key_PageDown);
    EXPECT_EQ(view().first, makedate(2024, 4, 9)) << "a table pages itself";
    EXPECT_GT(planner->tides->currentIndex().row(), 3);
    QTest::keyClick(planner, Qt::Key_Escape);
    EXPECT_EQ(infocus(*planner), "picture");
}

TEST_F(FrmPlanner, TheMouseZoomsDragsAndChoosesDays) {
    const Date day = makedate(2024, 4, 11);
    const Moment noon = view().plan->clock().startof(day) + 12h;
    doubleclick(noon);
    EXPECT_EQ(view().from, noon - 12h);
    EXPECT_EQ(view().to, noon + 12h);
    EXPECT_EQ(session.onshow.tidedate, day);
    const QPoint from = placeof(noon), back(from.x() - int(plotwidth() / 4), from.y());
    mouse(QEvent::MouseButtonPress, from);
    mouse(QEvent::MouseMove, back);
    mouse(QEvent::MouseButtonRelease, back, Qt::NoButton);
    EXPECT_NEAR(double((view().from - (noon - 6h)).count()), 0, 120) << "dragged by a quarter";
    mouse(QEvent::MouseMove, placeof(noon), Qt::NoButton);
    EXPECT_NEAR(double((view().cursor.value_or(Moment{}) - noon).count()), 0, 120) << "let go it only points";
    for (int i = 0; i < 3; ++i)
        mouse(i == 0 ? QEvent::MouseButtonPress : QEvent::MouseMove, {i * 90000, 50});
    EXPECT_EQ(view().from, view().plan->begins());
    mouse(QEvent::MouseButtonRelease, {0, 0}, Qt::NoButton);
    showday(view(), day);
    planner->picture->redraw();
    doubleclick(noon);
    EXPECT_EQ(view().to, view().plan->ends()) << "again shows all days";
    turnwheel(120);
    turnwheel(120);
    EXPECT_NEAR(double((view().to - view().from).count()), 7 * 86400 / 1.25 / 1.25, 2);
    turnwheel(-120, Qt::ShiftModifier);
    turnwheel(-12000);
    EXPECT_EQ(view().to - view().from, 7 * 24h);
    const QPoint fourth = placeof(view().from + 84h);
    QTest::mouseClick(planner->cmdNextWeek, Qt::LeftButton);
    mouse(QEvent::MouseButtonDblClick, fourth);
    EXPECT_EQ(session.onshow.tidedate, makedate(2024, 4, 19)) << "ahead of the next painting";
    emit planner->cmbSpan->activated(0);
    EXPECT_EQ(view().to - view().from, 24h);
    planner->DTPicker->setFocus();
    type(*planner->DTPicker, "31/3/2024");
    QTest::keyClick(planner->DTPicker, Qt::Key_Return);
    EXPECT_EQ(view().to - view().from, 23h) << "the clocks go forward";
    doubleclick(view().from + 12h);
    EXPECT_EQ(session.onshow.tidedate, makedate(2024, 3, 31)) << "a day alone is shown by the main window too";
}

TEST_F(FrmPlanner, RowsLeadToTheirMomentsHoweverSorted) {
    for (auto* const table : {planner->tides, planner->windows, planner->sunandmoon}) {
        planner->pages->setCurrentWidget(table);
        type(field(PlanField::bottom), "-1");
        ASSERT_GT(table->model()->rowCount(), 3);
        for (int column = 0; column < table->model()->columnCount(); ++column)
            for (const auto order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
                table->sortByColumn(column, order);
                const auto& rows = table->table().rows;
                const int row = static_cast<int>(rows.size()) - 2;
                const PlanTable::Row& chosen = rows[static_cast<std::size_t>(row)];
                EXPECT_EQ(table->model()->index(row, 0).data().toString().toStdString(), chosen.cells[0]);
                QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                                  table->visualRect(table->model()->index(0, 0)).center());
                EXPECT_EQ(view().cursor, rows[0].moment);
                table->setCurrentIndex(table->model()->index(row, 0));
                QTest::keyClick(table, Qt::Key_Return);
                EXPECT_EQ(view().cursor, chosen.moment);
                const auto key = [&](const PlanTable::Row& of) { return of.keys[static_cast<std::size_t>(column)]; };
                EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end(), [&](const auto& one, const auto& other) {
                    return order == Qt::AscendingOrder ? key(one) < key(other) : key(one) > key(other);
                }));
            }
    }
}

TEST(PlanTableBox, NoRowIsCutHoweverFarDown) {
    PlanTable table{{"Time"}, {}};
    for (int i = 0; i < 100; ++i)
        table.rows.push_back({{}, {i < 99 ? "05:44 UT" : "06:44 UT+10"}, {double(i)}, {}});
    PlanTableBox box("box", "Table");
    box.horizontalHeader()->setStretchLastSection(false);
    box.showtable(table);
    EXPECT_GT(box.columnWidth(0), QFontMetricsF(box.font()).horizontalAdvance("06:44 UT+10"));
}

TEST(PlanTableBox, CellsLookAsTheStylePaintsThem) {
    PlanTable table{{"Time", "Height", "Kind"}, {}};
    for (int i = 0; i < 5; ++i)
        table.rows.push_back({{}, {"05:4" + std::to_string(i) + " BST", "\u22120.4 m", "high water"}, {double(i)}, {}});
    PlanTableBox box("box", "Table");
    box.resize(300, 200);
    box.showtable(table);
    box.selectRow(1);
    box.setColumnWidth(1, box.columnWidth(1) / 2);
    const QImage painted = box.grab().toImage();
    box.setItemDelegate(new QStyledItemDelegate(&box));
    EXPECT_EQ(painted, box.grab().toImage());
    box.setColumnWidth(1, 2 * box.columnWidth(1));
    EXPECT_NE(painted, box.grab().toImage());
}

TEST_F(FrmPlanner, NightIsKeptAndTheMainWindowClosesIt) {
    planner->entry("mnuNight")->trigger();
    planner->entry("mnuOpenAtStart")->trigger();
    EXPECT_TRUE(view().settings.night);
    const QColor night = planner->palette().color(QPalette::Window);
    EXPECT_GT(night.red(), 2 * night.blue());
    EXPECT_EQ(planner->grab().toImage().pixelColor(2, planner->height() - 2).blue(), night.blue());
    planner->close();
    main->menuentry("mnuPlanner")->trigger();
    EXPECT_TRUE(planner->isVisible()) << "the same window again";
    main->close();
    EXPECT_FALSE(planner->isVisible());
    main.reset();
    EXPECT_FALSE(findplanner());
    Session another = session;
    frmtarvane again(another, scripted.services());
    again.Form_Load();
    again.openatstart();
    ASSERT_TRUE(findplanner());
    EXPECT_TRUE(findplanner()->isVisible() && findplanner()->entry("mnuNight")->isChecked());
}

}  // namespace
}  // namespace tarvane::tests
