// Every window on screens of several sizes: nothing of it out of reach.
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <memory>

#include "almanac/frmriseresults.h"
#include "almanac/frmsunrise.h"
#include "almanac/sunview.h"
#include "atlas/frmaboutport.h"
#include "atlas/frmcheckport.h"
#include "atlas/frmfinder.h"
#include "atlas/frmmap.h"
#include "diamonds/diamondofstreams.h"
#include "diamonds/frmimport.h"
#include "diamonds/frmstreams.h"
#include "diamonds/frmtidaldiamondscopy.h"
#include "fakes/mainfixture.h"
#include "mainview/frmtarvane.h"
#include "mainview/frmtimdat.h"
#include "ports/frmchartdepth.h"
#include "ports/frmconfig.h"
#include "ports/frmharmedit.h"
#include "ports/frmhccopy.h"
#include "ports/frmoutoptions.h"
#include "ports/frmshowconf.h"
#include "shell/form1.h"
#include "shell/frmconditions.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

struct Large : ModalDialog {
    Large() : ModalDialog("Large", "Large", nullptr) {
        (new QVBoxLayout(this))->addWidget(&button);
        button.setMinimumSize(3000, 3000);
        settle(&button, &button);
    }
    QPushButton button;
};

struct Room : LoadedMain {
    using Windows = std::vector<std::unique_ptr<QWidget>>;

    Room() {
        preparesunview(session);
        calculatesun(context, portsuninput(session));
        putdiamonds(session.folders.programfolder + "/solent.l20", {rounddiamond()});
    }

    World world = readworld(session.folders);

    template <class... Dialogs>
    void add(Windows& windows) {
        (windows.push_back(std::make_unique<Dialogs>(context)), ...);
    }

    Windows everywindow() {
        Windows windows;
        add<frmconfig, frmChartdepth, frmoutoptions, frmshowconf, frmHCcopy, frmharmedit, Frmtimdat, Frmsunrise,
            Frmriseresults, frmTidalDiamondsCopy, frmimport, frmstreams>(windows);
        windows.push_back(std::make_unique<frmaboutport>(context, area(), 1));
        windows.push_back(std::make_unique<frmcheckport>(context, area(), 1));
        auto finder = std::make_unique<frmfinder>(context, world, Lighting::day);
        finder->onabout = finder->onmap = [](std::size_t) {};
        windows.push_back(std::move(finder));
        windows.push_back(std::make_unique<frmmap>(context));
        windows.push_back(std::make_unique<Form1>(scripted.locale));
        windows.push_back(std::make_unique<frmConditions>(context.services, session.folders));
        return windows;
    }

    /// Scrolls to a control's middle as a user would and tells whether it is seen.
    static bool reachable(QWidget& control) {
        const QPoint middle = control.rect().center();
        for (QWidget* above = control.parentWidget(); above; above = above->parentWidget())
            if (auto* area = qobject_cast<QScrollArea*>(above)) {
                const QPoint place = control.mapTo(area->widget(), middle);
                area->ensureVisible(place.x(), place.y());
            }
        return control.visibleRegion().contains(middle);
    }

    static void expectreachable(QWidget& form) {
        for (auto* button : form.findChildren<QPushButton*>())
            EXPECT_TRUE(reachable(*button)) << form.objectName().toStdString() << button->text().toStdString();
    }
};

TEST_F(Room, EveryWindowFitsWhereItIsSmallAndStaysWholeWhereItIsNot) {
    // logical pixels: screens of 1920 x 1080 and 1366 x 768 at twice the usual density, and one smaller than any
    for (const QSize room : {QSize(950, 480), QSize(673, 350), QSize(400, 260)})
        for (const auto& form : everywindow()) {
            const std::string name = form->objectName().toStdString() + " in " + std::to_string(room.width());
            const QSize before = form->size();
            fitroom(*form, room);
            present(*form);
            EXPECT_EQ(form->size().boundedTo(room), form->size()) << name;
            if (before == before.boundedTo(room)) {
                EXPECT_EQ(form->size(), before) << name;
            }
            ASSERT_TRUE(form->focusWidget()) << name;
            EXPECT_FALSE(form->focusWidget()->visibleRegion().isEmpty()) << name;
            expectroomfortexts(*form);
            expectreachable(*form);
            if (room.width() <= 400 || form->objectName() == "frmTidalDiamondsCopy") continue;
            const bool about = form->objectName() == "frmaboutport" && room.width() < 700;
            const bool edit = form->objectName() == "frmharmedit" && room.width() < 700;
            for (const auto* area : form->findChildren<QScrollArea*>()) {
                EXPECT_TRUE(edit || area->horizontalScrollBar()->maximum() == 0) << name << " scrolls sideways";
                EXPECT_TRUE(edit || about || area->verticalScrollBar()->maximum() == 0)
                    << name << ": it had only to move together";
                EXPECT_EQ(area->verticalScrollBar()->value() * about, 0) << name << " opens at its top";
            }
        }
}

TEST_F(Room, ADialogStandsInTheMiddleOfItsWindowAndOnTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget over;
    over.setGeometry(60, 40, 500, 460);
    frmoutoptions inside(context, &over);
    EXPECT_NEAR(inside.pos().x() + inside.width() / 2, 310, 8);
    EXPECT_NEAR(inside.pos().y() + inside.height() / 2, 270, 24);
    over.move(screen.right() - 100, -300);
    frmoutoptions moved(context, &over);
    EXPECT_TRUE(screen.contains(QRect(moved.pos(), moved.size())));
    const Large large;
    EXPECT_EQ(large.size().boundedTo(screen.size()), large.size());
}

TEST_F(Room, AMainWindowTooLargeForItsScreenScrolls) {
    frmtarvane form(session, context.services);
    form.Form_Load();
    fitroom(form, {500, 300});
    present(form);
    EXPECT_EQ(form.size(), QSize(500, 300));
    EXPECT_TRUE(reachable(*form.Nextday));
}

}  // namespace
}  // namespace tarvane::tests
