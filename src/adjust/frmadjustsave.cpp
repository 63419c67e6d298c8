#include "adjust/frmadjustsave.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "adjust/savelocation.h"
#include "platform/qt/choicelist.h"
#include "platform/qt/named.h"
#include "portdata/datafolder.h"
#include "portdata/recordfiles.h"

namespace tarvane {
frmAdjustSave::frmAdjustSave(MainContext& maincontext, AdjustWorkspace& adjustworkspace, QWidget* parent)
    : ModalDialog("frmAdjustSave", "Save Intermediate Ports Constants", parent),
      context(maincontext),
      workspace(adjustworkspace) {
    buildlayout();
    for (const std::string& name : datafiles(context.session.folders, ".hc"))
        File1->addItem(QString::fromStdString(name));
    if (workspace.place) Text1->setText(QString::fromStdString(workspace.place->name));
    // A click on the row that is current already brings its name back over a typed one.
    for (const auto& [list, click] :
         {std::pair{File1, &frmAdjustSave::File1_Click}, {List1, &frmAdjustSave::List1_Click}}) {
        connect(list, &QListWidget::currentRowChanged, this, click);
        connect(list, &QListWidget::itemClicked, this, click);
    }
    connect(cmdSave, &QPushButton::clicked, this, &frmAdjustSave::cmdSave_Click);
    connect(cmdExit, &QPushButton::clicked, this, &frmAdjustSave::reject);
    settle(cmdSave, File1);
}

void frmAdjustSave::buildlayout() {
    File1 = named<ChoiceList>("File1");
    File1->setAccessibleName("Area Files");
    List1 = named<ChoiceList>("List1");
    List1->setAccessibleName("Locations");
    List1->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    setrowsinview(*List1, 16);
    auto* whole = new QHBoxLayout(this);
    whole->addWidget(File1);
    whole->addWidget(List1, 1);
    whole->addLayout(buildside());
}

QLayout* frmAdjustSave::buildside() {
    const int character = fontMetrics().averageCharWidth();
    txtAreaName = named<QLineEdit>("txtAreaName");
    Text1 = named<QLineEdit>("Text1");
    Text1->setMaxLength(35);
    Text1->setMinimumWidth(character * 36);
    Option1 = named<QRadioButton>("Option1", "&Replace highlighted location");
    Option2 = named<QRadioButton>("Option2", "&Add location to end of file");
    Option2->setChecked(true);
    cmdSave = named<QPushButton>("cmdSave", "&Save");
    cmdExit = named<QPushButton>("cmdExit", "E&xit");
    auto* note =
        new QLabel("Note: Monthly variations in Z0 will be set to zero; Monthly values of  M2Hm will be uniform.");
    note->setWordWrap(true);
    note->setMinimumHeight(fontMetrics().lineSpacing() * 4);
    auto* area = captionof("Save &in area:", txtAreaName);
    auto* location = captionof("As &location :", Text1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdExit);
    auto* side = new QVBoxLayout;
    for (QWidget* control : std::initializer_list<QWidget*>{area, txtAreaName, location, Text1, Option1, Option2, note})
        side->addWidget(control);
    side->addStretch(1);
    side->addLayout(buttons);
    return side;
}

void frmAdjustSave::File1_Click() {
    if (!File1->currentItem()) return;
    const std::string name = File1->currentItem()->text().toStdString();
    txtAreaName->setText(QString::fromStdString(namebeforepoint(name)));
    List1->clear();
    for (const HarmonicRecord& port : readports(datafile(context.session.folders, name)))
        List1->addItem(QString::fromStdString(trimmedname(port)));
}

void frmAdjustSave::List1_Click() {
    if (List1->currentItem()) Text1->setText(List1->currentItem()->text());
}

void frmAdjustSave::cmdSave_Click() {
    const std::string listed = File1->currentItem() ? File1->currentItem()->text().toStdString() : "";
    const LocationSaved saved = savelocation(workspace, context.session,
                                             {txtAreaName->text().toStdString(), Text1->text().toStdString(),
                                              Option1->isChecked(), List1->currentRow(), listed},
                                             context.services.clock.now().today);
    if (!saved.message.empty()) return context.services.messages.show(saved.message, "Tarvane");
    workspace.answer = saved.answer;
    accept();
}

}  // namespace tarvane
