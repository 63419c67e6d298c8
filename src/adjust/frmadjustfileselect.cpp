#include "adjust/frmadjustfileselect.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "platform/qt/choicelist.h"
#include "platform/qt/named.h"
#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"
#include "text/singlebyte.h"

namespace tarvane {
FrmAdjustfileselect::FrmAdjustfileselect(MainContext& maincontext, AdjustWorkspace& adjustworkspace, QWidget* parent)
    : ModalDialog("FrmAdjustfileselect", "Select Port", parent), context(maincontext), workspace(adjustworkspace) {
    buildlayout();
    for (const std::string& name : datafiles(context.session.folders, ".hc"))
        File1->addItem(QString::fromStdString(name));
    connect(File1, &QListWidget::currentRowChanged, this, &FrmAdjustfileselect::File1_Click);
    connect(List1, &QListWidget::currentRowChanged, this, &FrmAdjustfileselect::List1_Click);
    connect(cmdPort1, &QPushButton::clicked, this, [this] { load(loadport1, "Port 1"); });
    connect(cmdPort2, &QPushButton::clicked, this, [this] { load(loadport2, "Port 2"); });
    connect(cmdLoad, &QPushButton::clicked, this, [this] { load(loadintermediate, "the intermediate location"); });
    connect(cmdCancel, &QPushButton::clicked, this, &FrmAdjustfileselect::reject);
    settle(cmdPort1, File1);
}

void FrmAdjustfileselect::buildlayout() {
    File1 = named<ChoiceList>("File1");
    List1 = named<ChoiceList>("List1");
    List1->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    setrowsinview(*List1, 16);
    lblselectedport = namedvalue("lblselectedport");
    cmdPort1 = named<QPushButton>("cmdPort1", "Load as Port &1");
    cmdPort2 = named<QPushButton>("cmdPort2", "Load as Port &2");
    cmdLoad = named<QPushButton>("cmdLoad", "Load as &Intermediate Location");
    cmdCancel = named<QPushButton>("cmdCancel", "Close ");
    answer = named<QLabel>("answer");
    answer->setTextFormat(Qt::PlainText);
    answer->setWordWrap(true);
    auto* files = captionof("&Area Files", File1);
    auto* locations = captionof("&Locations", List1);
    auto* side = new QVBoxLayout;
    side->addWidget(new QLabel("Selected Location"));
    side->addWidget(lblselectedport);
    side->addSpacing(8);
    for (QPushButton* button : {cmdPort1, cmdPort2, cmdLoad})
        side->addWidget(button);
    side->addWidget(answer);
    side->addStretch(1);
    side->addWidget(cmdCancel);
    auto* grid = new QGridLayout(this);
    grid->addWidget(files, 0, 0);
    grid->addWidget(locations, 0, 1);
    grid->addWidget(File1, 1, 0);
    grid->addWidget(List1, 1, 1);
    grid->addLayout(side, 0, 2, 2, 1);
    grid->setColumnStretch(1, 1);
    lblselectedport->setMinimumWidth(fontMetrics().averageCharWidth() * 34);
}

void FrmAdjustfileselect::File1_Click() {
    if (!File1->currentItem()) return;
    adjustareaname = trim(File1->currentItem()->text().toStdString());
    adjustareapath = datafile(context.session.folders, adjustareaname);
    List1->clear();
    lblselectedport->clear();
    for (const HarmonicRecord& port : readports(adjustareapath))
        List1->addItem(QString::fromStdString(rtrim(port.PortName)));
    answer->setText(List1->count() ? "" : QString::fromStdString(adjustareaname + " holds no ports."));
}

void FrmAdjustfileselect::List1_Click() {
    if (List1->currentRow() < 0) return;
    const HarmonicRecord record = readport(adjustareapath, static_cast<std::int16_t>(List1->currentRow() + 1));
    lblselectedport->setText(QString::fromStdString(trimmedname(record)));
}

void FrmAdjustfileselect::load(void (*into)(AdjustWorkspace&, const HarmonicRecord&), const char* column) {
    const int number = List1->currentRow() + 1;
    if (number < 1 || number > portcount(adjustareapath))
        return context.services.messages.show("Select a location", "Tarvane", MessageIcon::exclamation);
    const HarmonicRecord record = readport(adjustareapath, static_cast<std::int16_t>(number));
    into(workspace, record);
    workspace.answer = trimmedname(record) + " is loaded as " + column + ": press Calculate to see its curve.";
    answer->setText(QString::fromStdString(workspace.answer));
    if (onloaded) onloaded();
}

}  // namespace tarvane
