// The planner beside the main window, as its tests have it in hand.
#pragma once

#include "planner/frmplanner.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

#include "fakes/mainfixture.h"
#include "mainview/frmtarvane.h"
#include "windows/controls.h"

namespace tarvane::tests {

struct FrmPlanner : testing::Test, MainFixture {
    FrmPlanner() : main(std::make_unique<frmtarvane>(session, scripted.services())) {
        main->Form_Load();
        main->Timer1->stop();
        main->Timer2->stop();
        present(*main);
        main->menuentry("mnuPlanner")->trigger();
        planner = findplanner();
        EXPECT_TRUE(QTest::qWaitForWindowActive(planner));
    }

    static frmplanner* findplanner() {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (auto* found = dynamic_cast<frmplanner*>(each)) return found;
        return nullptr;
    }

    PlanView& view() { return planner->planview(); }
    QLineEdit& field(PlanField which) { return *planner->fields[static_cast<std::size_t>(which)]; }
    void type(QLineEdit& edit, const char* text) {
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }
    std::string answer() { return shown(*planner->lblAnswer); }
    void key(Qt::Key key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(planner->picture, key, with); }

    /// Where a moment is in the picture, halfway down, as it was painted last.
    QPoint placeof(Moment at) {
        planner->picture->grab();
        const double inner = planner->picture->width() - 8.0, left = inner - plotwidth();
        return {
            int(left + plotwidth() * double((at - view().from).count()) / double((view().to - view().from).count())),
            planner->picture->height() / 2};
    }
    double plotwidth() {
        const QFont font = planner->picture->font();
        QFont pixels = font;
        pixels.setPixelSize(QFontInfo(font).pixelSize());
        return planner->picture->width() - 16 - QFontMetricsF(pixels).horizontalAdvance("-10.5");
    }

    void mouse(QEvent::Type type, QPoint place, Qt::MouseButtons buttons = Qt::LeftButton) {
        QMouseEvent event(type, place, planner->picture->mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, {});
        QApplication::sendEvent(planner->picture, &event);
    }
    void doubleclick(Moment at) { mouse(QEvent::MouseButtonDblClick, placeof(at)); }
    void turnwheel(int degrees, Qt::KeyboardModifiers with = {}) {
        const QPoint place(planner->picture->width() / 2, 50);
        QWheelEvent event(place, planner->picture->mapToGlobal(place), {}, {0, degrees}, {}, with, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(planner->picture, &event);
    }

    std::unique_ptr<frmtarvane> main;
    frmplanner* planner = nullptr;
};

}  // namespace tarvane::tests
