// The finder by mouse and keys, and a port chosen in it, which the main window and the planner go over to.
#include "atlas/frmfinder.h"

#include <QApplication>
#include <QKeyEvent>

#include "atlas/frmaboutport.h"
#include "fakes/mainfixture.h"
#include "mainview/frmtarvane.h"
#include "mainview/plannersteps.h"
#include "ports/frmconfig.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

HarmonicRecord portat(const std::string& name, float latitude, float longitude, float level) {
    HarmonicRecord port = fixtureport(name, level);
    port.PortLat = latitude;
    port.PortLong = longitude;
    return port;
}

/// Counts what a box is asked about keys.
struct Overrides : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::ShortcutOverride;
        return false;
    }
};

/// "Far South.hc" beside the fixture's area: Port Alder, Wattle Cove, told of in its table, and Banksia.
struct FrmFinder : testing::Test, MainFixture {
    FrmFinder() : far(session.folders.programfolder + "/Far South.hc") {
        writeport(far, 1, portat("Port Alder", -33.5F, 151, 3));
        writeport(far, 2, portat("Wattle Cove", -34, 151.25F, 7));
        writeport(far, 3, portat("Banksia", -35, 150, 2));
        putfile(session.folders.programfolder + "/far-south-about.csv",
                "number,name,country,timezone,datum,record_from,record_to,licence,source,time_error_median_min,"
                "time_error_p90_min,height_error_median_m,height_error_p90_m,mean_range_m\n"
                "2,Wattle Cove,Australia,Australia/Sydney,LAT,,,CC BY 4.0,x,5,15,0.05,0.1,1.2\n");
        main = std::make_unique<frmtarvane>(session, scripted.services());
        main->Form_Load();
        main->Timer1->stop();
        main->Timer2->stop();
        present(*main);
    }

    /// Opens it from the main window; `act` is what the user does there.
    void find(const std::function<void(frmfinder&)>& act) {
        scripted.windows.expect("frmfinder", [act](ModalWindow& modal) {
            auto& form = dynamic_cast<frmfinder&>(modal);
            form.setModal(true);
            form.show();
            form.activateWindow();
            QApplication::processEvents();
            present(form);
            act(form);
            form.hide();
        });
        main->menuentry("mnuFinder")->trigger();
    }
    static void choose(frmfinder& form, const char* text) {
        QTest::keyClicks(form.txtFind, text);
        QTest::keyClick(form.txtFind, Qt::Key_Return);
    }
    static std::vector<std::string> names(const frmfinder& form) {
        std::vector<std::string> found;
        for (int row = 0; row < form.ports->model()->rowCount(); ++row)
            found.push_back(form.ports->celltext(row, FinderTable::name).toStdString());
        return found;
    }
    using Names = std::vector<std::string>;
    static std::string name(const frmfinder& form) {
        return form.ports->celltext(form.ports->currentIndex().row(), FinderTable::name).toStdString();
    }
    static frmplanner* findplanner() {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (auto* found = dynamic_cast<frmplanner*>(each)) return found;
        return nullptr;
    }
    std::string recents() {
        std::string text;
        for (const KeptPort& each : readfinderkeeps(finderkeepspath(session.folders)).recents)
            text += each.area + "/" + each.name + " ";
        return text;
    }

    std::string far;
    std::unique_ptr<frmtarvane> main;
};

TEST_F(FrmFinder, KeysMoveInTheListWhileOneTypes) {
    find([](frmfinder& form) {
        EXPECT_EQ(infocus(form), "txtFind");
        EXPECT_EQ(defaultbutton(form), "cmdChoose");
        EXPECT_EQ(names(form).size(), 7U);
        EXPECT_EQ(shown(*form.lblFound), "7 ports: the nearest to Alder Quay");
        QTest::keyClicks(form.txtFind, "alder");
        EXPECT_EQ(names(form), (Names{"Alder Quay", "Alder Quay", "Port Alder"}));
        EXPECT_EQ(shown(*form.lblFound), "3 ports");
        QTest::keyClick(form.txtFind, Qt::Key_PageDown);
        EXPECT_EQ(name(form), "Port Alder");
        QTest::keyClick(form.txtFind, Qt::Key_Up);
        EXPECT_EQ(form.ports->currentIndex().row(), 1);
        QTest::keyClicks(form.txtFind, "zzz");
        EXPECT_FALSE(form.cmdChoose->isEnabled());
        QTest::keyClick(form.txtFind, Qt::Key_Return);
        EXPECT_TRUE(form.isVisible()) << "nothing to choose";
        EXPECT_EQ(infocus(form), "txtFind");
        form.txtFind->clear();
        QTest::keyClicks(form.txtFind, "cove australia");
        const auto cell = [&](FinderTable::Column column) { return form.ports->celltext(0, column).toStdString(); };
        EXPECT_EQ(cell(FinderTable::area), "Far South");
        EXPECT_EQ(cell(FinderTable::country), "Australia");
        EXPECT_EQ(cell(FinderTable::zone), "Australia/Sydney, UT+10");
        EXPECT_EQ(cell(FinderTable::distance), distancetext({50.5, -1.25}, {-34, 151.25}));
        EXPECT_EQ(form.ports->model()->index(0, FinderTable::name).data(Qt::AccessibleTextRole), "Wattle Cove, close");
        form.txtFind->setText("near 34 S 151.25 E");
        EXPECT_EQ(cell(FinderTable::name) + " " + cell(FinderTable::distance), "Wattle Cove here");
        form.txtFind->setText("birch");
        EXPECT_EQ(cell(FinderTable::zone), "Zone M, UT+2") << "by its zone letter, in summer";
        QTest::keyClick(form.txtFind, Qt::Key_Escape);
        EXPECT_FALSE(form.isVisible() || form.chosen());
    });
    EXPECT_EQ(main->portbox->text(), "Port    : Alder Quay");
}

TEST_F(FrmFinder, APortElsewhereIsChosenAsBySeaAreaAndTheList) {
    const std::string before = filetext(session.folders.cfgpath());
    main->menuentry("mnuPlanner")->trigger();
    frmplanner& planner = *findplanner();
    QLineEdit& bottom = *planner.fields[static_cast<std::size_t>(PlanField::bottom)];
    bottom.selectAll();
    QTest::keyClicks(&bottom, "-1.5");
    QApplication::processEvents();
    find([](frmfinder& form) { choose(form, "wattle"); });
    const std::string found = filetext(session.folders.cfgpath());
    EXPECT_NE(found, before);
    EXPECT_EQ(main->portbox->text(), "Port    : Wattle Cove");
    EXPECT_EQ(session.settings.hcfile, far);
    EXPECT_EQ(trimmedname(session.prediction.port.record), "Wattle Cove") << "its tides";
    const std::string depths = session.settings.depfile, tides = main->daystide1->text().toStdString();
    EXPECT_EQ(planner.windowTitle(), "Wattle Cove - Planner");
    EXPECT_EQ(planner.cmbPort->count(), 3);
    EXPECT_TRUE(planner.cmdAbout->toolTip().contains("close")) << planner.cmdAbout->toolTip().toStdString();
    EXPECT_NE(bottom.text(), "-1.5") << "each port has its own";
    EXPECT_NE(filetext(plansettingspath(session.folders)).find("\"UK.hc/Alder Quay#1\": -1.5"), std::string::npos);
    EXPECT_EQ(recents(), "Far South.hc/Wattle Cove ");

    putfile(session.folders.cfgpath(), before);
    find([](frmfinder& form) { choose(form, "alder quay"); });
    EXPECT_EQ(bottom.text(), "-1.5");
    EXPECT_EQ(recents(), "UK.hc/Alder Quay Far South.hc/Wattle Cove ");
    putfile(session.folders.cfgpath(), before);
    scripted.filedialogs.expectopen(far);
    scripted.windows.expect("frmconfig", [](ModalWindow& modal) {
        auto& form = dynamic_cast<frmconfig&>(modal);
        form.optSortGeog->click();
        form.cmdSort->click();
        form.portlist2->setCurrentRow(1);
        form.optSortbyName->click();
        form.portconfigok->click();
    });
    main->menuentry("mnuArea")->trigger();
    EXPECT_EQ(main->portbox->text(), "Port    : Wattle Cove");
    EXPECT_EQ(filetext(session.folders.cfgpath()), found) << "to the byte";
    EXPECT_EQ(session.settings.depfile, depths);
    EXPECT_EQ(main->daystide1->text().toStdString(), tides);
    EXPECT_EQ(planner.windowTitle(), "Wattle Cove - Planner");
}

TEST_F(FrmFinder, AnAreaThatHasChangedMeanwhileIsReadAnew) {
    const std::string behind = " isn't where it was: " + far + " has changed or is gone";
    find([&](frmfinder& form) {
        QTest::keyClicks(form.txtFind, "wattle");
        writeport(far, 2, portat("Wattle Quay", -34, 151.25F, 7));
        writeport(far, 4, portat("Wattle Cove", -34, 151.25F, 7));
        QTest::keyClick(form.txtFind, Qt::Key_Return);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(shown(*form.lblFound), "Wattle Cove" + behind);
        EXPECT_EQ(names(form), (Names{"Wattle Quay", "Wattle Cove"}));
        scripted.windows.expect("frmaboutport", [](ModalWindow& modal) {
            EXPECT_EQ(dynamic_cast<frmaboutport&>(modal).lblName->text(), "Wattle Quay");
        });
        form.cmdAbout->click();
        form.txtFind->setText("birch");
        writeport(far, 5, portat("Wattle End", -34, 151.25F, 7));
        QTest::keyClick(form.txtFind, Qt::Key_Return);
        EXPECT_FALSE(form.isVisible()) << "it is where it was, whatever became of the others";
    });
    EXPECT_EQ(main->portbox->text(), "Port    : Birch Sound");
    find([&](frmfinder& form) {
        QTest::keyClicks(form.txtFind, "banksia");
        std::filesystem::remove(far);
        form.cmdChoose->click();
        EXPECT_EQ(shown(*form.lblFound), "Banksia" + behind);
        EXPECT_TRUE(names(form).empty());
        form.txtFind->clear();
        EXPECT_EQ(shown(*form.lblFound), "4 ports: the nearest to Birch Sound");
        choose(form, "cedar");
    });
    EXPECT_EQ(main->portbox->text(), "Port    : Cedar Head");
    const std::string outside = folder / "Elsewhere.hc";
    writeport(outside, 1, fixtureport("Outer Rock", 4));
    MainContext onstage = main->commandcontext();
    tarvane::chooseport(onstage, outside, 1);
    find([](frmfinder& form) {
        EXPECT_EQ(names(form).size(), 5U) << "the area in hand is there wherever it lies";
        choose(form, "outer");
    });
    EXPECT_EQ(session.settings.hcfile, outside);
}

TEST_F(FrmFinder, AnotherWindowMayReadTheAreasAnew) {
    World world = readworld(session.folders);
    frmfinder form(context, world, Lighting::day);
    std::size_t about = 0, onmap = 0;
    std::string stale = "?";
    form.onabout = [&](std::size_t place) {
        about = place;
        std::filesystem::remove(far);
        rereadworld(session.folders, world);
        // The list still has the rows of before, the last of them of a port that there isn't any more.
        stale = form.ports->celltext(0, FinderTable::name).toStdString();
        form.grab();
    };
    form.onmap = [&](std::size_t place) { onmap = place; };
    form.type("cedar");
    present(form);
    form.cmdAbout->click();
    EXPECT_EQ(about, 5U);
    EXPECT_EQ(stale, "");
    EXPECT_EQ(names(form), Names{"Cedar Head"});
    form.type("wattle");
    EXPECT_TRUE(names(form).empty());
    form.type("cedar");
    form.cmdMap->click();
    EXPECT_EQ(world.ports.at(onmap).name, "Cedar Head");
    EXPECT_FALSE(form.isVisible()) << "the map is to be used";
}

TEST_F(FrmFinder, FavouritesAreMarkedByKeyButtonAndStar) {
    const auto favourites = [&] { return readfinderkeeps(finderkeepspath(session.folders)).favourites.size(); };
    find([&](frmfinder& form) {
        EXPECT_TRUE(form.cmdAbout->isVisible() && form.cmdMap->isVisible());
        QTest::keyClicks(form.txtFind, "banksia");
        QTest::keyClick(form.txtFind, Qt::Key_D, Qt::ControlModifier);
        // On some desktops the box would take that key for itself, to delete a letter: it isn't asked.
        Overrides asked;
        form.txtFind->removeEventFilter(&form);
        form.txtFind->installEventFilter(&asked);
        form.txtFind->installEventFilter(&form);
        for (const auto key : {Qt::Key_D, Qt::Key_A}) {
            QKeyEvent pressed(QEvent::ShortcutOverride, key, Qt::ControlModifier);
            QApplication::sendEvent(form.txtFind, &pressed);
            EXPECT_EQ(asked.count, key == Qt::Key_D ? 0 : 1);
        }
        EXPECT_EQ(favourites(), 1U);
        EXPECT_TRUE(form.cmdFavourite->isChecked());
        EXPECT_EQ(form.ports->celltext(0, FinderTable::star), "\u2605");
        form.txtFind->setText("cedar");
        EXPECT_FALSE(form.cmdFavourite->isChecked());
        const auto click = [&](FinderTable::Column column, auto act) {
            act(form.ports->viewport(), Qt::LeftButton, Qt::KeyboardModifiers(),
                form.ports->visualRect(form.ports->model()->index(0, column)).center(), -1);
        };
        const auto once = [](auto... rest) { QTest::mouseClick(rest...); };
        const auto twice = [](auto... rest) { QTest::mouseDClick(rest...); };
        click(FinderTable::area, once);
        EXPECT_EQ(favourites(), 1U);
        click(FinderTable::star, once);
        EXPECT_EQ(favourites(), 2U);
        form.txtFind->clear();
        EXPECT_EQ(names(form)[0] + names(form)[1], "BanksiaCedar Head");
        form.cmdFavourite->click();
        EXPECT_EQ(favourites(), 1U);
        EXPECT_EQ(names(form)[0], "Banksia") << "it stays under the pointer";
        form.txtFind->setText("port alder");
        click(FinderTable::name, once);
        EXPECT_TRUE(form.isVisible());
        click(FinderTable::name, twice);
    });
    EXPECT_EQ(main->portbox->text(), "Port    : Port Alder");
    std::filesystem::remove(finderkeepspath(session.folders));
    std::filesystem::create_directory(finderkeepspath(session.folders));
    find([&](frmfinder& form) {
        form.cmdFavourite->click();
        EXPECT_EQ(shown(*form.lblFound).find("Favourites can't be kept: "), 0U) << shown(*form.lblFound);
        EXPECT_FALSE(form.cmdFavourite->isChecked());
    });
}

TEST_F(FrmFinder, AFileThatIsntUnderstoodIsToldOnceAndKept) {
    const std::string path = finderkeepspath(session.folders);
    putfile(path, "{\"recents\": 5}");
    find([&](frmfinder& form) {
        EXPECT_TRUE(form.lblKept->isVisible());
        EXPECT_EQ(form.lblKept->toolTip().toStdString(),
                  "Finder.json wasn't understood whole. What could be read of it is used, and as it was it lies in " +
                      path + ".broken.");
        putfile(path, "{\"recents\": 6}");
        form.cmdFavourite->click();
        EXPECT_TRUE(form.lblKept->toolTip().endsWith(".broken2.")) << "it broke meanwhile";
    });
    EXPECT_EQ(filetext(path + ".broken"), "{\"recents\": 5}");
    EXPECT_EQ(readfinderkeeps(path).favourites.size(), 1U);
    find([](frmfinder& form) { EXPECT_FALSE(form.lblKept->isVisible()); });
}

TEST_F(FrmFinder, WhatStaysOnShowBecomesRecentAndWhatIsLeafedThroughDoesNot) {
    EXPECT_EQ(recents(), "") << "the port of the start wasn't chosen";
    main->menuentry("mnuNextPort")->trigger();
    main->menuentry("mnuNextPort")->trigger();
    EXPECT_EQ(recents(), "");
    find([](frmfinder&) {});
    EXPECT_EQ(recents(), "UK.hc/Cedar Head ");
    main->menuentry("mnuPrevPort")->trigger();
    main->close();
    EXPECT_EQ(recents(), "UK.hc/Birch Sound UK.hc/Cedar Head ");
}

TEST_F(FrmFinder, ThePlannerAsksForAPortThatItsAreaDoesNotHave) {
    main->menuentry("mnuPlanner")->trigger();
    frmplanner& planner = *findplanner();
    scripted.windows.expect("frmfinder", [](ModalWindow& modal) {
        auto& form = dynamic_cast<frmfinder&>(modal);
        EXPECT_EQ(form.txtFind->text(), "wattle");
        present(form);
        QTest::keyClick(form.txtFind, Qt::Key_Return);
    });
    QLineEdit* name = planner.cmbPort->lineEdit();
    name->setFocus();
    name->selectAll();
    QTest::keyClicks(name, "wattle");
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_EQ(planner.windowTitle(), "Wattle Cove - Planner");
    EXPECT_EQ(name->text(), "Wattle Cove");
    scripted.windows.expect("frmfinder");
    planner.cmdFind->click();
}

}  // namespace
}  // namespace tarvane::tests
