#include "shell/frmconditions.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "platform/qt/modaldialog.h"
#include "platform/qt/named.h"
#include "platform/qt/twips.h"
#include "shell/conditions.h"
#include "text/programcaption.h"

namespace tarvane {

namespace {

constexpr int formwidth = twips(11700);
constexpr int formheight = twips(10200);
constexpr int buttonwidth = twips(1500);
constexpr int buttonheight = twips(480);
constexpr int gap = twips(360);

QAction* entry(QMenu* menu, const QString& text, const char* name) {
    QAction* const action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    return action;
}

}  // namespace

frmConditions::frmConditions(const Services& given, const ProgramFolders& where) : services(given), folders(where) {
    setObjectName("frmConditions");
    setWindowTitle(QString::fromStdString(programcaption()));
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
    buildlayout();
    for (const std::string& line : conditionslines())
        List1->addItem(QString::fromStdString(line));

    connect(ConditionsOK, &QPushButton::clicked, this, &frmConditions::accept);
    connect(cmdDecline, &QPushButton::clicked, this, &frmConditions::reject);
    connect(mnuRestoreDefaults, &QAction::triggered, this, &frmConditions::mnuRestoreDefaults_Click);
    connect(mnuHTMLHelp, &QAction::triggered, this, [this] {
        if (onhelp) onhelp();
    });
    setMinimumSize(formwidth / 2, formheight / 2);
    resize(formwidth, formheight);
    fitscreen(*this);
    centreon(*this, nullptr);
    ConditionsOK->setFocus();
}

void frmConditions::buildlayout() {
    menus = new QMenuBar(this);
    QMenu* const mnuMain = menus->addMenu("&Menu");
    mnuMain->setObjectName("mnuMain");
    mnuRestoreDefaults = entry(mnuMain, "&Restore Defaults", "mnuRestoreDefaults");
    QMenu* const mnuHelp = menus->addMenu("&Help");
    mnuHelp->setObjectName("mnuHelp");
    mnuHTMLHelp = entry(mnuHelp, "&Help", "mnuHTMLHelp");

    heading = new QLabel("Tarvane Tides", this);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 2);
    large.setBold(true);
    heading->setFont(large);
    heading->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    lead = new QLabel("Conditions of use", this);
    lead->setAlignment(Qt::AlignHCenter | Qt::AlignTop);

    List1 = named<QListWidget>("List1", this);
    List1->setSelectionMode(QAbstractItemView::NoSelection);
    List1->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    List1->setAccessibleName(lead->text());
    ConditionsOK = named<QPushButton>("ConditionsOK", "&Accept", this);
    ConditionsOK->setDefault(true);
    cmdDecline = named<QPushButton>("cmdDecline", "&Decline", this);
}

void frmConditions::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    mnuHTMLHelp->setEnabled(static_cast<bool>(onhelp));
}

void frmConditions::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    const int menuheight = menus->sizeHint().height();
    menus->setGeometry(0, 0, width(), menuheight);

    const int buttontop = static_cast<int>(height() / 1.25);
    const int listbottom = buttontop - gap / 2;
    const int listheight = 2 * listbottom - height();
    const int listwidth = width() - 2 * gap;
    List1->setGeometry((width() - listwidth) / 2, (height() - listheight) / 2, listwidth, listheight);

    const int headroom = List1->y() - menuheight;
    heading->setGeometry(0, menuheight, width(), headroom * 3 / 5);
    lead->setGeometry(0, menuheight + headroom * 3 / 5, width(), headroom * 2 / 5);

    ConditionsOK->setGeometry(width() / 2 - gap / 2 - buttonwidth, buttontop, buttonwidth, buttonheight);
    cmdDecline->setGeometry(width() / 2 + gap / 2, buttontop, buttonwidth, buttonheight);
}

void frmConditions::accept() {
    if (onaccepted) onaccepted();
    QDialog::accept();
}

void frmConditions::reject() {
    if (ondeclined) ondeclined();
    QDialog::reject();
}

void frmConditions::mnuRestoreDefaults_Click() {
    restoredefaults(services.folders, services.messages, folders);
}

}  // namespace tarvane
