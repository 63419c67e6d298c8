#include "planner/frmplanner.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QCompleter>
#include <QMenu>
#include <QSignalBlocker>
#include <QToolTip>
#include <algorithm>

#include "dates/dateformats.h"
#include "dates/typeddate.h"
#include "paint/frmlightpalette.h"
#include "planner/plantexts.h"
#include "platform/qt/appearance.h"
#include "platform/qt/modaldialog.h"
#include "platform/qt/nightlight.h"
#include "platform/qt/screentext.h"
#include "portdata/aboutwords.h"
#include "portdata/portsearch.h"
#include "world/frmtrusticon.h"

namespace tarvane {
namespace {

constexpr int ticks = 5000;

}  // namespace

frmplanner::frmplanner(MainContext& maincontext) : context(maincontext), view(openplanview(maincontext)) {
    setObjectName("frmplanner");
    setProperty(ownlight, true);
    setWindowTitle("Planner");
    QFont own = font();
    own.setPointSizeF(std::max(own.pointSizeF(), desktoplook().fontpoints));
    setFont(own);
    buildlayout();
    buildmenus();
    lblKept->tell(tellplansettings(plansettingspath(context.session.folders)));
    fillports();
    fillfields();
    showall();
    connectcontrols();
    connectquestion();
    shownight(view.settings.night);
    resize(picture->sizeHint().width() * 7 / 6, picture->sizeHint().height() * 3);
    fitscreen(*this);
    centreon(*this, nullptr);
    picture->setFocus();
    // What was typed is on the screen first, and then kept.
    keeplater = new QTimer(this);
    keeplater->setSingleShot(true);
    connect(keeplater, &QTimer::timeout, this, [this] { keep(); });
    minute = new QTimer(this);
    minute->setInterval(ticks);
    connect(minute, &QTimer::timeout, this, [this] {
        if (followmidnight(context, view)) return showplan();
        shownow();
    });
    minute->start();
}

void frmplanner::connectcontrols() {
    const auto onstep = [this](QToolButton* button, int days) {
        connect(button, &QToolButton::clicked, this, [this, days] { stepdays(days); });
    };
    onstep(cmdPreviousWeek, -7);
    onstep(cmdPreviousDay, -1);
    onstep(cmdNextDay, 1);
    onstep(cmdNextWeek, 7);
    connect(cmdToday, &QToolButton::clicked, this, [this] { gotodate(todayof(context, view)); });
    for (const auto& [button, name] : {std::pair(cmdAbout, "mnuAboutPort"), {cmdFind, "mnuFind"}, {cmdMap, "mnuMap"}})
        connect(button, &QToolButton::clicked, entry(name), &QAction::trigger);
    connect(DTPicker, &QLineEdit::editingFinished, this, [this] { typedate(); });
    DTPicker->onstep = [this](int days) { stepdays(days); };
    DTPicker->onpicked = [this](DateBox::Date date) { gotodate(date); };
    connect(cmbSpan, &QComboBox::activated, this, [this](int row) {
        showdays(context, view, view.first, row + 1);
        showplan();
        keeplater->start();
    });
    connect(cmbClock, &QComboBox::activated, this, [this](int row) {
        showclock(context, view, static_cast<ClockChoice>(row));
        showplan();
        keeplater->start();
    });
    connect(cmbPort, &QComboBox::activated, this, [this](int row) {
        if (onport && row >= 0) onport(static_cast<std::int16_t>(row + 1));
        follow();
    });
    connect(cmbPort->lineEdit(), &QLineEdit::returnPressed, this, [this] { chooseport(cmbPort->currentText()); });
    connect(cmbPort->lineEdit(), &QLineEdit::editingFinished, this, [this] { leaveport(); });
    for (QComboBox* box : {cmbPort, cmbSpan, cmbClock, cmbDaylight})
        box->installEventFilter(this);
    // A letter or Tab may lead to what lies beyond the part in view.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (!now || !area->widget()->isAncestorOf(now)) return;
        if (now != picture || picture->visibleRegion().isEmpty()) area->ensureWidgetVisible(now);
    });
    connect(pages, &QTabWidget::currentChanged, this, [this] { showpage(); });
    for (PlanTableBox* table : {tides, windows, sunandmoon}) {
        table->onmoment = [this](Moment at) { leap(at); };
        table->oncopy = [this] { entry("mnuCopyTable")->trigger(); };
    }
    picture->oncursor = [this] { showcursor(); };
    picture->onnow = [this] { gotodate(todayof(context, view)); };
    picture->onday = [this](Date date) {
        const Date shown = view.plan->clock().at(view.from).date;
        const bool part = view.from > view.plan->begins() || view.to < view.plan->ends();
        const bool alone = part && shown == date && view.to - view.from <= std::chrono::hours(25);
        if (alone)
            showwhole(view);
        else
            showday(view, date);
        picture->redraw();
        if (!alone && onday) onday(date);
    };
}

void frmplanner::fillports() {
    const QSignalBlocker quiet(cmbPort);
    if (listed != view.ports) {
        QStringList names;
        for (const std::string& name : listed = view.ports)
            names << screentext(name);
        cmbPort->clear();
        cmbPort->addItems(names);
    }
    cmbPort->setCurrentIndex(view.whynot.empty() ? view.number - 1 : -1);
    // A long name is read from its beginning.
    cmbPort->lineEdit()->home(false);
    cmbPort->setToolTip(screentext(view.portname));
    QCompleter* completer = cmbPort->completer();
    completer->setFilterMode(Qt::MatchContains);
    completer->setCompletionMode(QCompleter::PopupCompletion);
}

void frmplanner::chooseport(const QString& text) {
    // Several ports may share a name: the one in hand stays where its own was left standing.
    if (text == cmbPort->itemText(cmbPort->currentIndex())) return picture->setFocus();
    const std::vector<PortHit> hits = findports(view.ports, text.toStdString());
    if (text.trimmed().isEmpty() || hits.empty()) {
        fillports();
        const bool elsewhere = onfind && !text.trimmed().isEmpty();
        tell(elsewhere ? "" : "No port of this sea area is called so");
        if (elsewhere) onfind(text.toStdString());
        return;
    }
    tell("");
    if (onport) onport(static_cast<std::int16_t>(hits.front().place + 1));
    follow();
    picture->setFocus();
}

/// What was typed of a port's name and left by Tab or a click: the port that it names, or a word that it names none.
void frmplanner::leaveport() {
    const QString text = cmbPort->currentText(), standing = cmbPort->itemText(cmbPort->currentIndex());
    if (text == standing) return;
    cmbPort->setEditText(standing);
    const std::vector<PortHit> hits = findports(view.ports, text.toStdString());
    if (text.trimmed().isEmpty()) return;
    if (hits.size() == 1 && onport) {
        onport(static_cast<std::int16_t>(hits.front().place + 1));
        return follow();
    }
    tell(hits.empty() ? "No port of this sea area is called so"
                      : "Several ports of this sea area may be meant: press Enter for the first, or choose one");
}

void frmplanner::follow() {
    if (!followport(context, view)) return;
    fillports();
    fillfields();
    showall();
}

void frmplanner::showall() {
    showplan();
    showcursor();
}

/// The mark beside the port's name.
void frmplanner::showtrust() {
    const Trust trust = trustof(view.known);
    cmdAbout->setIcon(trusticon(trust, coloursof(shownlight), cmdAbout->iconSize().width()));
    const std::string clause = trust == Trust::own ? "" : trustclause(view.known);
    cmdAbout->setToolTip(screentext("How good this port is: " + std::string(trustword(trust)) +
                                    (clause.empty() ? "" : ", " + clause) + " (Ctrl+I)"));
}

void frmplanner::showplan() {
    setWindowTitle(screentext(view.portname.empty() ? "Planner" : view.portname + " - Planner"));
    showdate();
    showtrust();
    lblFoot->setText(screentext(planfoot(view)));
    showanswer();
    shownow();
}

void frmplanner::showpage() {
    const Locale& locale = context.services.locale;
    if (!view.plan) {
        for (PlanTableBox* table : {tides, windows, sunandmoon})
            table->showtable({});
    } else if (pages->currentWidget() == tides) {
        tides->showtable(tidestable(*view.plan, locale));
    } else if (pages->currentWidget() == windows) {
        windows->showtable(accesstable(*view.plan, view.access, view.read.passage, locale));
    } else {
        sunandmoon->showtable(suntable(*view.plan, locale));
    }
}

void frmplanner::showdate() {
    DTPicker->setText(
        QString::fromStdString(typeddate(view.first, context.session.conventions, context.services.locale)));
    DTPicker->setcalendar(view.first);
    lblDayName->setText(screentext(formatdate(context.services.locale, view.first, "ddd")));
}

void frmplanner::shownow() {
    const Moment now = context.services.clock.moment();
    const std::string iana = view.known.iana();
    // In the port's own time, whatever clock the days are told by.
    const auto told = [&] {
        const bool another = view.settings.clock != ClockChoice::port;
        const bool shown = view.plan && !another && now >= view.plan->begins() && now < view.plan->ends();
        const Plan& today =
            shown ? *view.plan : present.at(view.port, iana, ClockChoice::port, context.services.zones, now);
        return nowtext(today, now) + (another ? " (" + today.clock().at(now).name + ")" : "");
    };
    lblNow->setText(screentext(view.whynot.empty() ? told() : view.whynot));
    // By now a window may have closed.
    tellanswer();
    picture->shownow();
}

void frmplanner::showcursor() {
    const bool told = view.plan && view.cursor;
    const QString text =
        told ? screentext(momenttext(*view.plan, *view.cursor, passageof(view), context.services.locale)) : QString();
    lblCursor->setText(text);
    picture->setAccessibleDescription(text);
}

void frmplanner::shownight(bool night) {
    view.settings.night = night;
    shownlight = lightingof(night);
    const Colours& look = coloursof(shownlight);
    setPalette(paletteof(look));
    // Its own style keeps it from the window's palette.
    DTPicker->arrow->ensurePolished();
    DTPicker->arrow->setPalette(paletteof(look));
    lightpopups(paletteof(look));
    lightdays();
    picture->setlook(look);
    showtrust();
    if (onnight) onnight(night);
}

/// Menus and lists are windows of their own, which don't take their owner's colours.
void frmplanner::lightpopups(const QPalette& palette) {
    for (QMenu* menu : findChildren<QMenu*>())
        menu->setPalette(palette);
    DTPicker->setcalendarlight(palette);
    for (QComboBox* box : findChildren<QComboBox*>()) {
        // Its style gives the list a menu's colours when it comes up first.
        box->ensurePolished();
        box->view()->window()->setPalette(palette);
        box->view()->setPalette(palette);
    }
    if (QAbstractItemView* names = cmbPort->completer()->popup()) names->setPalette(palette);
    QToolTip::setPalette(view.settings.night ? palette : ordinarytips);
}

/// A day that is asked for stands out in every light.
void frmplanner::lightdays() {
    const Colours& look = coloursof(shownlight);
    QPalette chosen = paletteof(look);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        chosen.setColor(group, QPalette::Button, QColor::fromRgb(look.curve));
        chosen.setColor(group, QPalette::ButtonText, QColor::fromRgb(look.paper));
    }
    for (QToolButton* day : weekdays) {
        QFont face = font();
        face.setBold(day->isChecked());
        day->setFont(face);
        day->setPalette(day->isChecked() ? chosen : paletteof(look));
    }
}

void frmplanner::gotodate(Date date) {
    showdays(context, view, date, view.settings.days);
    showplan();
}

void frmplanner::stepdays(int days) {
    tarvane::stepdays(context, view, days);
    showplan();
}

void frmplanner::typedate() {
    const ReadDate read = readdate(DTPicker->text().toStdString(), context.session.conventions, context.services.locale,
                                   context.services.clock.now().today);
    tell(read.refusal);
    if (read.date && *read.date != view.first) return gotodate(*read.date);
    showdate();
}

/// A row of a table leads to its moment.
void frmplanner::leap(Moment at) {
    putcursor(view, at);
    picture->redraw();
    showcursor();
}

void frmplanner::tell(const std::string& text) {
    lblSaid->setText(screentext(text));
    // In the place of the moment under the cursor, which its bubble tells as well: what is said moves nothing.
    lblCursor->setVisible(text.empty());
    lblSaid->setVisible(!text.empty());
}

/// What can't be kept is told here too, where the user looks.
void frmplanner::keep() {
    if (!keepsettings(context, view)) tell(context.session.view.answer);
}

bool frmplanner::eventFilter(QObject* watched, QEvent* event) {
    auto* const box = qobject_cast<QComboBox*>(watched);
    if (box && event->type() == QEvent::Wheel && !box->hasFocus() && !box->isAncestorOf(focusWidget())) {
        event->ignore();
        return true;
    }
    if (event->type() != QEvent::Shortcut || (watched != fraQuestion && watched != lblOnly))
        return QMainWindow::eventFilter(watched, event);
    // Their letters lead there: they neither put the question away nor press a day.
    if (watched == lblOnly) {
        weekdays[0]->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
    fraQuestion->setChecked(true);
    fields[0]->setFocus(Qt::ShortcutFocusReason);
    fields[0]->selectAll();
    return true;
}

void frmplanner::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return picture->setFocus();
    QMainWindow::keyPressEvent(event);
}

void frmplanner::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        shownow();
        if (shownlight != lightingof(view.settings.night)) shownight(view.settings.night);
    }
    QMainWindow::changeEvent(event);
}

void frmplanner::closeEvent(QCloseEvent* event) {
    keepsettings(context, view);
    QMainWindow::closeEvent(event);
}

}  // namespace tarvane
