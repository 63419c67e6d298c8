// The map beside the main window, by mouse and keys; and the picture in the list of ports.
#include "atlas/frmmap.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

#include "fakes/mainfixture.h"
#include "mainview/frmtarvane.h"
#include "ports/frmconfig.h"
#include "ports/portselection.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct FrmMap : testing::Test, MainFixture {
    FrmMap() {
        put(area(), 1, "Alder Quay", 50.5F, -1.25F);
        put(area(), 2, "Birch Sound", 50.1F, -5.5F);
        put(area(), 3, "Cedar Head", 49.65F, -1.65F);
        put(area(), 4, "Alder Quay", 48.4F, -4.5F);
        put(pacific(), 1, "Suva", -18.1F, 178.4F);
        put(pacific(), 2, "Apia", -13.8F, -171.8F);
        main = std::make_unique<frmtarvane>(session, scripted.services());
        main->Form_Load();
        main->Timer1->stop();
        main->Timer2->stop();
        present(*main);
        main->menuentry("mnuMap")->trigger();
        for (QWidget* each : QApplication::topLevelWidgets())
            if (auto* found = dynamic_cast<frmmap*>(each)) window = found;
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        map = window->map;
    }

    static void put(const std::string& file, std::int16_t number, const char* name, float latitude, float longitude) {
        HarmonicRecord port = fixtureport(name, 3);
        port.PortLat = latitude;
        port.PortLong = longitude;
        writeport(file, number, port);
    }

    std::string pacific() const { return session.folders.programfolder + "/Pacific Islands.hc"; }
    std::size_t placeof(const std::string& file, int number) const { return *worldplace(map->world(), file, number); }
    QPoint spot(const std::string& file, int number) const {
        const WorldPort& port = map->world().ports[placeof(file, number)];
        const Place place = map->view().placeof(mappoint(port.latitude, port.longitude));
        return {int(std::lround(place.x)), int(std::lround(place.y))};
    }
    std::string inhand() const { return map->inhand() ? map->world().ports[*map->inhand()].name : ""; }
    std::string pointed() const { return map->pointed() ? map->world().ports[*map->pointed()].name : ""; }
    void key(Qt::Key key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(map, key, with); }

    void mouse(QEvent::Type type, QPoint at, Qt::MouseButtons buttons) {
        QMouseEvent event(type, at, map->mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          buttons, {});
        QApplication::sendEvent(map, &event);
    }
    void drag(QPoint from, QPoint by) {
        mouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
        for (int part = 1; part <= 4; ++part)
            mouse(QEvent::MouseMove, from + by * part / 4, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, from + by, Qt::NoButton);
    }
    void turnwheel(QPoint at, int clicks) {
        QWheelEvent event(at, map->mapToGlobal(at), {}, {0, 120 * clicks}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(map, &event);
    }

    std::unique_ptr<frmtarvane> main;
    frmmap* window = nullptr;
    MapBox* map = nullptr;
};

TEST_F(FrmMap, AClickOnAMarkChoosesThePortAndTheMapStays) {
    EXPECT_EQ(window->windowTitle(), "Alder Quay - Map");
    EXPECT_EQ(shown(*window->lblPointed), "Alder Quay, UK, not known");
    mouse(QEvent::MouseMove, spot(area(), 3) + QPoint(4, 4), Qt::NoButton);
    EXPECT_EQ(pointed(), "Cedar Head");
    EXPECT_EQ(shown(*window->lblPointed), "Cedar Head, UK, not known, 53 nm S of Alder Quay");
    EXPECT_EQ(map->accessibleDescription(), "Cedar Head, UK, not known");
    EXPECT_NE(shown(*window->lblPosition), "");
    const Place before = map->view().placeof(mappoint(0, 0));
    QTest::mouseClick(map, Qt::LeftButton, {}, spot(area(), 3) + QPoint(4, 4));
    EXPECT_EQ(main->portbox->text(), "Port    : Cedar Head");
    EXPECT_EQ(stored().portnumber, 3);
    EXPECT_EQ(inhand(), "Cedar Head");
    EXPECT_EQ(window->windowTitle(), "Cedar Head - Map");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(map->view().placeof(mappoint(0, 0)).x, before.x) << "what is seen stays";
    QTest::mouseClick(map, Qt::LeftButton, {}, spot(area(), 3) + QPoint(90, 90));
    EXPECT_EQ(inhand(), "Cedar Head") << "beside all marks";
    drag(spot(area(), 2), {40, 30});
    EXPECT_EQ(inhand(), "Cedar Head") << "a drag that begins on a mark chooses nothing";
}

TEST_F(FrmMap, AMarkWhoseFileHasAnotherPortByNowChoosesNone) {
    const QPoint cedar = spot(area(), 3);
    const std::string before = main->portbox->text().toStdString();
    put(area(), 3, "Cedar Quay", 49.65F, -1.65F);
    QTest::mouseClick(map, Qt::LeftButton, {}, cedar);
    EXPECT_EQ(main->portbox->text().toStdString(), before);
    EXPECT_EQ(shown(*window->lblPointed), "Cedar Head isn't where it was: " + area() + " has changed or is gone");
    QTest::mouseClick(map, Qt::LeftButton, {}, cedar);
    EXPECT_EQ(main->portbox->text(), "Port    : Cedar Quay") << "the map shows it as it is now";
}

TEST_F(FrmMap, ThePacificIsReachedByDraggingOnAndOn) {
    map->wholeworld();
    const QPoint middle = map->rect().center();
    const auto seen = [&] { return map->rect().adjusted(40, 40, -40, -40).contains(spot(pacific(), 2)); };
    int drags = 0;
    while (longitudeof(map->view().middle) > 0 || longitudeof(map->view().middle) < -170 || drags == 0) {
        drag(middle, {-map->width() / 3, 0});
        ASSERT_LT(++drags, 12);
    }
    EXPECT_TRUE(seen());
    const std::size_t pacificarea = map->world().ports[placeof(pacific(), 1)].area;
    map->fitarea(pacificarea);
    EXPECT_TRUE(map->rect().contains(spot(pacific(), 1)) && seen()) << "both sides of the date line";
    EXPECT_GT(spot(pacific(), 2).x(), spot(pacific(), 1).x());
    QTest::mouseClick(map, Qt::LeftButton, {}, spot(pacific(), 2));
    EXPECT_EQ(main->portbox->text(), "Port    : Apia");
    EXPECT_EQ(session.settings.hcfile, pacific());
    EXPECT_EQ(inhand(), "Apia");
    main->menuentry("mnuPrevPort")->trigger();
    EXPECT_EQ(inhand(), "Suva") << "chosen elsewhere";
    map->wholeworld();
    map->zoom(40);
    EXPECT_FALSE(map->rect().contains(spot(pacific(), 2)));
    main->menuentry("mnuNextPort")->trigger();
    EXPECT_TRUE(map->rect().contains(spot(pacific(), 2))) << "it goes to what is chosen elsewhere";
}

TEST_F(FrmMap, WheelDoubleClickAndButtonsZoom) {
    const QPoint at = spot(area(), 2);
    const double before = map->view().scale;
    turnwheel(at, 2);
    EXPECT_NEAR(map->view().scale, before * 1.96, 1);
    EXPECT_LE((spot(area(), 2) - at).manhattanLength(), 2);
    turnwheel(at, -2);
    EXPECT_NEAR(map->view().scale, before, 1);
    mouse(QEvent::MouseButtonDblClick, {100, 100}, Qt::LeftButton);
    EXPECT_NEAR(map->view().scale, before * 2, 1);
    QTest::mouseClick(window->cmdAll, Qt::LeftButton);
    EXPECT_EQ(map->view().scale, std::max(map->width(), map->height()));
    QTest::mouseClick(window->cmdZoomIn, Qt::LeftButton);
    EXPECT_GT(map->view().scale, map->width());
    QTest::mouseClick(window->cmdThisPort, Qt::LeftButton);
    EXPECT_LE((spot(area(), 1) - map->rect().center()).manhattanLength(), 2);
    QTest::mouseClick(window->cmdArea, Qt::LeftButton);
    for (const int number : {1, 2, 3, 4})
        EXPECT_TRUE(map->rect().contains(spot(area(), number)));
    map->grab();
}

TEST_F(FrmMap, KeysGoFromPortToPortAndChoose) {
    map->setFocus();
    std::vector<std::string> visited;
    key(Qt::Key_Tab);
    EXPECT_EQ(pointed(), "Alder Quay") << "the one in the middle";
    key(Qt::Key_Tab);
    EXPECT_EQ(pointed(), "Cedar Head");
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(pointed(), "Alder Quay");
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    EXPECT_EQ(inhand(), "Cedar Head");
    const Place before = map->view().placeof(mappoint(50, 0));
    key(Qt::Key_Left);
    EXPECT_GT(map->view().placeof(mappoint(50, 0)).x, before.x);
    key(Qt::Key_Home);
    EXPECT_LE((spot(area(), 3) - map->rect().center()).manhattanLength(), 2);
    const double scale = map->view().scale;
    key(Qt::Key_Plus);
    EXPECT_GT(map->view().scale, scale);
    key(Qt::Key_Minus);
    EXPECT_NEAR(map->view().scale, scale, 1);
    key(Qt::Key_Escape);
    EXPECT_EQ(pointed(), "");
    EXPECT_TRUE(window->isVisible());
    key(Qt::Key_Tab);
    EXPECT_EQ(infocus(*window), "cmdZoomIn") << "no trap";
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    main->menuentry("mnuMap")->trigger();
    EXPECT_TRUE(window->isVisible());
    main->close();
    EXPECT_FALSE(window->isVisible()) << "both end together";
}

TEST_F(FrmMap, InTheListOfPortsAClickSelects) {
    window->close();
    reloadforportlist(context);
    frmconfig form(context);
    present(form);
    map = form.picture;
    EXPECT_EQ(map->ports().size(), 4U) << "of the area listed alone";
    EXPECT_EQ(inhand(), "Alder Quay");
    for (const int number : {1, 2, 3, 4})
        EXPECT_TRUE(map->rect().contains(spot(area(), number)));
    QTest::mouseClick(map, Qt::LeftButton, {}, spot(area(), 3));
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.portconfigbox->text(), "Cedar Head");
    EXPECT_EQ(inhand(), "Cedar Head");
    ASSERT_EQ(form.portlist2->selectedItems().size(), 1);
    EXPECT_EQ(form.portlist2->selectedItems().first()->text(), "Cedar Head");
    EXPECT_EQ(infocus(form), "txtSearch");
    form.portlist2->setCurrentRow(1, QItemSelectionModel::ClearAndSelect);
    EXPECT_EQ(inhand(), form.portconfigbox->text().toStdString()) << "the picture follows the list";
    expectroomfortexts(form);
    EXPECT_LE(form.width(), 1024);
    EXPECT_LE(form.height(), 740);
}

}  // namespace
}  // namespace tarvane::tests
