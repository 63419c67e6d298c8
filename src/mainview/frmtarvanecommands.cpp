// The menu commands of the main window: which window opens, and what is redrawn when it closes.
#include "dates/frmtimdat.h"
#include "dates/summertime.h"
#include "mainview/copycommands.h"
#include "mainview/frmtarvane.h"
#include "mainview/loading.h"
#include "mainview/monthcommand.h"
#include "mainview/portselection.h"
#include "mainview/printcommands.h"
#include "mainview/savecommands.h"
#include "mainview/sunview.h"
#include "mainview/tidecurve.h"
#include "portdata/frmchartdepth.h"
#include "portdata/frmconfig.h"
#include "portdata/frmoutoptions.h"
#include "portdata/frmshowconf.h"
#include "sunmoon/frmsunrise.h"

namespace tarvane {
namespace {

template <typename Dialog>
void openmodal(MainContext& context, QWidget* over) {
    Dialog dialog(context, over);
    context.services.windows.showmodal(dialog);
}

}  // namespace

void frmtarvane::drawcurveandshow() {
    drawtidecurve(session, context.surfaces);
    showview();
}

void frmtarvane::mnutidedate_Click() {
    openmodal<Frmtimdat>(context, this);
    refreshsun(session, summershift(session.onshow.tidedate, session.settings.summerflag2));
    drawcurveandshow();
}

void frmtarvane::mnuPortList_Click() {
    reloadforportlist(context);
    openmodal<frmconfig>(context, this);
    enabletopmenus(session);
    drawcurveandshow();
}

void frmtarvane::mnuArea_Click() {
    if (!choosesearea(context)) return;
    openmodal<frmconfig>(context, this);
    enabletopmenus(session);
    drawcurveandshow();
}

void frmtarvane::mnumonth_Click() {
    runlong(calculatemonth);
}

void frmtarvane::mnusunrise_Click() {
    preparesunview(session);
    openmodal<Frmsunrise>(context, this);
    drawcurveandshow();
}

void frmtarvane::mnuoutputoptions_Click() {
    openmodal<frmoutoptions>(context, this);
    clearmonthcells(session.month);
    showview();
}

void frmtarvane::mnuchartdepth_Click() {
    openmodal<frmChartdepth>(context, this);
    enabletopmenus(session);
    showview();
}

void frmtarvane::Mnushowconfig_Click() {
    openmodal<frmshowconf>(context, this);
    drawcurveandshow();
}

void frmtarvane::mnuExit_Click() {
    close();
}

void frmtarvane::mnusavmonth_Click() {
    run(savemonth);
}

void frmtarvane::mnusaveday_Click() {
    run(saveday);
}

void frmtarvane::mnusavesun_Click() {
    run(savesun);
}

void frmtarvane::mnumonthprint_Click() {
    runlong(printmonth);
}

void frmtarvane::mnuhrprint_Click() {
    runlong(printtenminutes);
}

void frmtarvane::mnudayprint_Click() {
    runlong(printcurve);
}

void frmtarvane::mnusunprint_Click() {
    runlong(printsun);
}

void frmtarvane::mnuCopyDaysTides_Click() {
    run(copydaystides);
}

void frmtarvane::mnuCopyMonth_Click() {
    run(copymonthstides);
}

void frmtarvane::mnuCopySunTimes_Click() {
    run(copydayssuntimes);
}

void frmtarvane::mnuCopyMonthSunTimes_Click() {
    run(copymonthssuntimes);
}

}  // namespace tarvane
