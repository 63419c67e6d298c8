#include "shots/planner.h"

#include <QApplication>

#include "planner/frmplanner.h"

namespace tarvane::shots {
namespace {

/// A boat of 1.9 m over a sill that dries 2 m.
void type(frmplanner& planner, PlanField field, const char* text) {
    QLineEdit* edit = planner.fields[static_cast<std::size_t>(field)];
    edit->setText(text);
    emit edit->textEdited(text);
}

void choose(QComboBox& box, int row) {
    box.setCurrentIndex(row);
    emit box.activated(row);
}

void putcursor(frmplanner& planner, std::chrono::minutes behind) {
    tarvane::putcursor(planner.planview(), planner.planview().plan->begins() + behind);
    planner.picture->redraw();
    planner.picture->oncursor();
}

/// The mast that passes a bridge until the tide stands at 5.4 m.
void typebridge(frmplanner& planner, const char* bridge) {
    type(planner, PlanField::bridge, bridge);
    type(planner, PlanField::airdraught, "12,2");
    type(planner, PlanField::bridgelevel, "6.1");
}

void nobridge(frmplanner& planner) {
    for (const PlanField field : {PlanField::bridge, PlanField::airdraught, PlanField::bridgelevel})
        type(planner, field, "");
}

/// Small enough for their texts to be read on paper.
void takeforpaper(frmplanner& planner, const std::function<void(QWidget&, const QString&)>& take) {
    using std::chrono::hours;
    planner.resize(940, 700);
    planner.planview().cursor.reset();
    QToolButton* saturday = planner.weekdays[5];
    saturday->setChecked(true);
    planner.pages->setCurrentWidget(planner.windows);
    take(planner, "frmplanner-saturday");
    saturday->setChecked(false);
    showday(planner.planview(), makedate(2026, 7, 18));
    putcursor(planner, hours(4 * 24) + std::chrono::minutes(21 * 60 + 30));
    take(planner, "frmplanner-day");
    typebridge(planner, "11.5");
    putcursor(planner, hours(4 * 24) + hours(14));
    take(planner, "frmplanner-dayunderbridge");
    nobridge(planner);
}

}  // namespace

void takeplanner(Stage& stage, const std::function<void(QWidget&, const QString&)>& take) {
    MainContext context = stage.context();
    frmplanner planner(context);
    planner.resize(1366, 740);
    planner.show();
    type(planner, PlanField::draught, "1.9");
    type(planner, PlanField::clearance, "0.5");
    type(planner, PlanField::bottom, "-2");
    planner.pages->setCurrentWidget(planner.windows);
    QApplication::processEvents();
    take(planner, "frmplanner");
    planner.pages->setCurrentWidget(planner.tides);
    putcursor(planner, std::chrono::hours(30));
    typebridge(planner, "11.5");
    take(planner, "frmplanner-bridge");
    typebridge(planner, "4");
    take(planner, "frmplanner-never");
    type(planner, PlanField::bridgelevel, "six");
    take(planner, "frmplanner-refusal");
    nobridge(planner);
    takeforpaper(planner, take);
    planner.planview().cursor.reset();
    choose(*planner.cmbSpan, 30);
    planner.pages->setCurrentWidget(planner.sunandmoon);
    take(planner, "frmplanner-month");
    choose(*planner.cmbSpan, 0);
    planner.entry("mnuNight")->trigger();
    take(planner, "frmplanner-night");
    planner.entry("mnuNight")->trigger();
    planner.close();
}

}  // namespace tarvane::shots
