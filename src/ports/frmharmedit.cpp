#include "ports/frmharmedit.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTimer>

#include "platform/qt/listrows.h"
#include "platform/qt/named.h"
#include "platform/qt/screentext.h"
#include "portdata/datafolder.h"

namespace tarvane {
namespace {

bool enters(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool moves(const QKeyEvent& key) {
    return key.key() == Qt::Key_Up || key.key() == Qt::Key_Down || key.key() == Qt::Key_Home ||
           key.key() == Qt::Key_End || key.key() == Qt::Key_PageUp || key.key() == Qt::Key_PageDown;
}

/// True for a focus that goes to another control, not to a menu or another program.
bool movesaway(const QEvent& event) {
    if (event.type() != QEvent::FocusOut) return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

}  // namespace

frmharmedit::frmharmedit(MainContext& maincontext, QWidget* parent)
    : ModalDialog("frmharmedit", "Harmonic Constants", parent),
      context(maincontext),
      edit(openeditor(maincontext.session)) {
    buildlayout();
    for (const std::string& name : datafiles(context.session.folders, ".hc"))
        fileList->addItem(QString::fromStdString(name));
    connectcontrols();
    showedit();
    settle(chartok, fileList);
}

void frmharmedit::connectcontrols() {
    connect(fileList, &QListWidget::itemSelectionChanged, this, &frmharmedit::fileList_Click);
    connect(portlist, &QListWidget::itemSelectionChanged, this, &frmharmedit::portlist_Click);
    // A click on the entry that is highlighted already reads it anew.
    for (QListWidget* list : {fileList, portlist})
        onclickagain(*list, [this, list] { clicked(*list); });
    for (FilteredBox* each : boxes)
        if (!filledfrom(each->objectName().toStdString()).empty()) each->installEventFilter(this);
    connect(chartok, &QPushButton::clicked, this, [this] { run(acceptchanges); });
    connect(cmdAdd, &QPushButton::clicked, this, [this] { run(addnewport); });
    connect(cmdInsert, &QPushButton::clicked, this, [this] { run(insertnewport); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { run(deletehighlighted); });
    connect(cmdClear, &QPushButton::clicked, this, &frmharmedit::cmdClear_Click);
    connect(Command2, &QPushButton::clicked, this, &frmharmedit::reject);
}

void frmharmedit::taketexts() {
    // A letter with Alt presses a button from within a box, which is left all the same.
    leavebox(focusWidget());
    for (std::size_t i = 0; i < boxes.size(); ++i)
        edit.texts[i] = boxes[i]->text().toStdString();
}

void frmharmedit::showedit() {
    if (edit.portlist != listed) {
        const QSignalBlocker quiet(portlist);
        listed = edit.portlist;
        portlist->clear();
        for (const std::string& name : listed)
            portlist->addItem(QString::fromStdString(name));
    }
    showhighlights();
    if (edit.listindex < 0 && edit.rowinview >= 0) {
        const QSignalBlocker quiet(portlist);
        portlist->setCurrentRow(std::min(edit.rowinview, portlist->count() - 1), QItemSelectionModel::NoUpdate);
        portlist->scrollToItem(portlist->currentItem());
        edit.rowinview = -1;
    }
    for (std::size_t i = 0; i < boxes.size(); ++i)
        showtext(*boxes[i], QString::fromStdString(edit.texts[i]));
    lblstatus->setText(QString::fromStdString(edit.status));
}

void frmharmedit::showhighlights() {
    const auto chosen = fileList->findItems(QString::fromStdString(edit.editfilename), Qt::MatchExactly);
    highlight(*fileList, chosen.isEmpty() ? -1 : fileList->row(chosen.first()));
    highlight(*portlist, edit.listindex);
}

/// A row that was clicked is not taken. A moving key highlights it once more behind that, which is taken back too.
void frmharmedit::stay() {
    settling = true;
    QTimer::singleShot(0, this, [this] {
        settling = false;
        showhighlights();
    });
}

void frmharmedit::leavebox(const QObject* left) {
    if (!left) return;
    const std::string name = left->objectName().toStdString();
    for (const std::size_t place : filledfrom(name))
        boxes[place]->setText(box(name.c_str())->text());
}

/// True if what stands in the boxes may go: it is accepted, unchanged or given up.
bool frmharmedit::offertoaccept() {
    taketexts();
    if (acceptorleave(context, edit)) return true;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        if (edit.texts[i] != edit.stored[i]) {
            boxes[i]->setFocus();
            break;
        }
    return false;
}

void frmharmedit::run(Command command) {
    taketexts();
    command(context, edit);
    showedit();
}

void frmharmedit::fileList_Click() {
    const int row = highlighted(*fileList);
    if (row < 0 || settling) return;
    taketexts();
    // Without a highlighted port what was typed belongs to none, and stays in the boxes.
    const bool asks = edit.listindex >= 0;
    if ((asks && !offertoaccept()) || !pickarea(context, edit, fileList->item(row)->text().toStdString())) stay();
    showedit();
}

void frmharmedit::portlist_Click() {
    const int row = highlighted(*portlist);
    if (row < 0 || settling) return;
    if (!offertoaccept() || !pickport(context, edit, row)) stay();
    showedit();
}

void frmharmedit::clicked(const QListWidget& list) {
    if (&list == fileList)
        fileList_Click();
    else
        portlist_Click();
}

void frmharmedit::cmdClear_Click() {
    for (std::string& text : edit.texts)
        text.clear();
    showedit();
}

void frmharmedit::reject() {
    if (!offertoaccept()) return showedit();
    closeeditor(context, edit);
    ModalDialog::reject();
}

/// What the list's own keys don't do.
bool frmharmedit::listkey(QListWidget& list, const QEvent& event) {
    const bool pressed = event.type() == QEvent::KeyPress;
    if (!pressed && event.type() != QEvent::KeyRelease) return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    // A moving key that finds the row current already doesn't highlight it.
    const bool stayed = !pressed && moves(key) && highlighted(list) < 0 && list.currentRow() == rowpressed;
    rowpressed = pressed && moves(key) && highlighted(list) < 0 ? list.currentRow() : -1;
    // Enter picks the row, as a click does: it must not write the port that stands there.
    if (!stayed && !(pressed && enters(key))) return false;
    if (list.currentRow() >= 0) highlight(list, list.currentRow());
    clicked(list);
    return true;
}

bool frmharmedit::eventFilter(QObject* watched, QEvent* event) {
    if (movesaway(*event)) leavebox(watched);
    auto* const list = qobject_cast<QListWidget*>(watched);
    if (list && listkey(*list, *event)) return true;
    return ModalDialog::eventFilter(watched, event);
}

void frmharmedit::keyPressEvent(QKeyEvent* event) {
    // Enter in a box accepts; on a button that is to be pressed by Space it does nothing.
    if (enters(*event) && qobject_cast<QPushButton*>(focusWidget())) return event->ignore();
    ModalDialog::keyPressEvent(event);
}

}  // namespace tarvane
