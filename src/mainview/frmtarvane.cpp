#include "mainview/frmtarvane.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>

#include "mainview/plannersteps.h"
#include "mainview/stepping.h"
#include "platform/qt/modaldialog.h"
#include "platform/qt/screentext.h"
#include "platform/qt/twips.h"
#include "session/loading.h"
#include "session/statusline.h"
#include "session/tidecurve.h"
#include "session/title.h"

namespace tarvane {
namespace {

bool pages(const QKeyEvent& key) {
    return key.modifiers() == Qt::NoModifier && (key.key() == Qt::Key_PageDown || key.key() == Qt::Key_PageUp);
}

}  // namespace

frmtarvane::frmtarvane(Session& owner, const Services& services, QWidget* parent)
    : QMainWindow(parent),
      Picture1(new PictureBox),
      pctSpringsStatus(new PictureBox),
      session(owner),
      surface(new PictureBox(this)),
      context{owner, services, {*Picture1, *pctSpringsStatus, *surface, {}}} {
    setObjectName("frmtarvane");
    buildlayout();
    buildmenus();
    connectcontrols();
    const QSize told(twips(9720), twips(7400));
    setMinimumSize(told);
    resize(told);
    fitscreen(*this);
    centreon(*this, nullptr);
}

void frmtarvane::Form_Load() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    layoutcontrols();
    loadmainwindow(context);
    loaded = true;
    showview();
    QApplication::restoreOverrideCursor();
    Timer1->start();
    Timer2->start();
}

void frmtarvane::showview() {
    refreshstatus(context);
    copyview();
    shownow();
    followrecent();
    if (planner && planner->isVisible()) planner->follow();
    if (map && map->isVisible()) map->follow();
}

void frmtarvane::shownow() {
    const PresentTexts texts = presenttidetexts(context, present);
    statusbar->shownow(texts.brief, texts.whole);
}

void frmtarvane::copyview() {
    const MainView& view = session.view;
    setWindowTitle(screentext(view.caption));
    const std::pair<QLabel*, const std::string*> labels[] = {
        {portbox, &view.portbox},       {tidedatebox, &view.tidedatebox}, {timeval, &view.timeval},
        {hiteval, &view.hiteval},       {lblrate, &view.lblrate},         {lblmousestatus, &view.lblmousestatus},
        {lblSprings, &view.lblSprings}, {lblNeap, &view.lblNeap},         {disclaimer, &view.disclaimer}};
    for (const auto& [label, text] : labels)
        label->setText(screentext(*text));
    if (laidoutmode != session.layersmode || laidoutlines != tablelines()) layoutcontrols();
    if (shownday != session.daytable.daystide1) showdaytable();
    daystide2->setVisible(!daystide2->text().isEmpty() && !view.monthvisible);
    layers.show(session);
    showmenus();
    Nextday->setVisible(view.stepbuttonsvisible);
    Previousday->setVisible(view.stepbuttonsvisible);
    showmonthlist();
    statusbar->show(view);
}

void frmtarvane::showmonthlist() {
    // Filled only when it changed, so that it stays where the user has scrolled it.
    if (const auto& rows = session.month.monthspredictions; rows != listedmonth) {
        listedmonth = rows;
        monthspredictions->clear();
        for (const std::string& row : rows)
            monthspredictions->addItem(screentext(row));
        monthspredictions->scrollToTop();
    }
    monthspredictions->setVisible(session.view.monthvisible);
    if (session.view.monthvisible) monthspredictions->raise();
}

void frmtarvane::connectcontrols() {
    connect(Nextday, &QPushButton::clicked, this, &frmtarvane::Nextday_Click);
    connect(Previousday, &QPushButton::clicked, this, &frmtarvane::Previousday_Click);
    // Not the buttons' own shortcuts: these wait for the button to be seen pressed before they step.
    connect(new QShortcut(Qt::Key_PageDown, this), &QShortcut::activated, this, &frmtarvane::Nextday_Click);
    connect(new QShortcut(Qt::Key_PageUp, this), &QShortcut::activated, this, &frmtarvane::Previousday_Click);
    Picture1->onmousemove = [this](double x, double) { Picture1_MouseMove(x); };
    Picture1->onmousedown = [this](double, double) { Picture1_MouseDown(); };
    for (PictureBox* box : {Picture1, pctSpringsStatus, surface})
        box->onresized = [this] { picture_resized(); };
    Timer1 = new QTimer(this);
    Timer1->setInterval(300);
    connect(Timer1, &QTimer::timeout, this, &frmtarvane::Timer1_Timer);
    Timer2 = new QTimer(this);
    Timer2->setInterval(60000);
    connect(Timer2, &QTimer::timeout, this, &frmtarvane::Timer2_Timer);
    recentlater = new QTimer(this);
    recentlater->setSingleShot(true);
    recentlater->setInterval(3000);
    connect(recentlater, &QTimer::timeout, this, &frmtarvane::keeprecent);
    hitelabel->installEventFilter(this);
    hiteval->installEventFilter(this);
    layers.Label1->installEventFilter(this);
    monthspredictions->installEventFilter(this);
}

void frmtarvane::picture_resized() {
    resized = true;
    if (!layingout) redrawresized();
}

void frmtarvane::redrawresized() {
    if (!loaded || !resized) return;
    resized = false;
    drawtidecurve(session, context.surfaces);
    drawmarkerline(session, *Picture1);
    showview();
}

void frmtarvane::Nextday_Click() {
    nextday(context);
    showview();
}

void frmtarvane::Previousday_Click() {
    previousday(context);
    showview();
}

void frmtarvane::Picture1_MouseMove(double x) {
    picturemousemove(session, *Picture1, x);
    // A mouse move changes what the status bar tells in the constituents view alone.
    if (session.layersmode == 1) refreshstatus(context);
    copyview();
}

void frmtarvane::Picture1_MouseDown() {
    picturemousedown(session);
    showview();
}

void frmtarvane::Timer1_Timer() {
    if (timer1tick(firstdrawing, session, context.surfaces)) showview();
}

void frmtarvane::Timer2_Timer() {
    rewritetitle(session, context.services.clock);
    showview();
}

void frmtarvane::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    layoutcontrols();
}

void frmtarvane::Form_Activate() {
    if (loaded) Timer2_Timer();
}

bool frmtarvane::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) Form_Activate();
    return QMainWindow::event(event);
}

bool frmtarvane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == monthspredictions) {
        // The list's own paging comes before the stepping of days.
        if (event->type() == QEvent::ShortcutOverride && pages(static_cast<QKeyEvent&>(*event))) event->accept();
        return QMainWindow::eventFilter(watched, event);
    }
    const bool onlabel = watched == layers.Label1;
    if (event->type() == (onlabel ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress)) {
        (onlabel ? showspecial : showsteps)(session);
        showview();
    }
    return QMainWindow::eventFilter(watched, event);
}

}  // namespace tarvane
