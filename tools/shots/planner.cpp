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
    putcursor(planner.planview(), planner.planview().plan->begins() + std::chrono::hours(30));
    planner.picture->redraw();
    type(planner, PlanField::bridge, "4");
    type(planner, PlanField::airdraught, "12,5");
    type(planner, PlanField::bridgelevel, "6");
    take(planner, "frmplanner-bridge");
    type(planner, PlanField::bridgelevel, "six");
    take(planner, "frmplanner-refusal");
    type(planner, PlanField::bridge, "");
    emit planner.cmbSpan->activated(5);
    planner.pages->setCurrentWidget(planner.sunandmoon);
    take(planner, "frmplanner-month");
    emit planner.cmbSpan->activated(0);
    planner.entry("mnuNight")->trigger();
    take(planner, "frmplanner-night");
    planner.entry("mnuNight")->trigger();
    planner.close();
}

}  // namespace tarvane::shots
