#include "adjust/frmselectheightfile.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/qt/choicelist.h"
#include "platform/qt/named.h"
#include "portdata/datafolder.h"
#include "text/singlebyte.h"

namespace tarvane {

frmSelectHeightFile::frmSelectHeightFile(MainContext& maincontext, AdjustWorkspace& adjustworkspace, QWidget* parent)
    : ModalDialog("frmSelectHeightFile", "Select Height File", parent),
      context(maincontext),
      workspace(adjustworkspace) {
    buildlayout();
    for (const std::string& name : datafiles(context.session.folders, ".ht"))
        File1->addItem(QString::fromStdString(name));
    connect(File1, &QListWidget::currentRowChanged, this, &frmSelectHeightFile::File1_Click);
    connect(File1, &QListWidget::itemActivated, this, &frmSelectHeightFile::cmdOK_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmSelectHeightFile::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmSelectHeightFile::cmdCancel_Click);
    settle(cmdOK, File1);
}

void frmSelectHeightFile::buildlayout() {
    File1 = named<ChoiceList>("File1");
    setrowsinview(*File1, 10);
    lblselectedfile = namedvalue("lblselectedfile");
    cmdOK = named<QPushButton>("cmdOK", "OK");
    cmdCancel = named<QPushButton>("cmdCancel", "Cancel");
    cmdCancel->setToolTip("Closes, and no height file is displayed then");
    auto* caption = captionof("Select a height file name and press OK", File1);
    auto* selected = new QHBoxLayout;
    selected->addWidget(new QLabel("Selected File"));
    selected->addWidget(lblselectedfile, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(caption);
    whole->addWidget(File1, 1);
    whole->addLayout(selected);
    whole->addLayout(buttons);
}

void frmSelectHeightFile::File1_Click() {
    if (!File1->currentItem()) return;
    lblselectedfile->setText(QString::fromStdString(namebeforepoint(File1->currentItem()->text().toStdString())));
}

void frmSelectHeightFile::cmdOK_Click() {
    const std::string name = trim(lblselectedfile->text().toStdString());
    if (name.empty()) return context.services.messages.show("Select a file", "Tarvane");
    chooseheights(workspace, datafile(context.session.folders, name + ".ht"));
    accept();
}

void frmSelectHeightFile::cmdCancel_Click() {
    chooseheights(workspace, "");
    reject();
}

}  // namespace tarvane
