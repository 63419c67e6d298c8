#include "adjust/frmheightenter.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "platform/qt/choicelist.h"
#include "platform/qt/named.h"
#include "portdata/datafolder.h"

namespace tarvane {
namespace {

struct ListOfNumbers {
    QListWidget* frmHeightEnter::*list;
    const char *name, *spoken;
    int count, step;
    const char* pattern;  ///< of an entry
};

constexpr ListOfNumbers lists[] = {
    {&frmHeightEnter::lstHours, "lstHours", "Hours", 24, 1, "%02d"},
    {&frmHeightEnter::lstMins, "lstMins", "Minutes", 12, 5, "%d"},
    {&frmHeightEnter::lstMetres, "lstMetres", "Metres", 21, 1, "%d"},
    {&frmHeightEnter::lstCms, "lstCms", "Tenths of a metre", 10, 1, "%d"},
    {&frmHeightEnter::lstMMs, "lstMMs", "Hundredths of a metre", 10, 1, "%d"},
};

}  // namespace

frmHeightEnter::frmHeightEnter(MainContext& maincontext, AdjustWorkspace& adjustworkspace, QWidget* parent)
    : ModalDialog("frmHeightEnter", "Enter Observed Heights", parent),
      context(maincontext),
      workspace(adjustworkspace) {
    buildlayout();
    listfiles();
    connectcontrols();
    settle(cmdAdd, lstHours);
}

void frmHeightEnter::buildlayout() {
    auto* columns = new QHBoxLayout;
    columns->addLayout(buildlists());
    columns->addLayout(buildentries(), 1);
    columns->addLayout(buildfiles());
    answer = named<QLabel>("answer");
    answer->setTextFormat(Qt::PlainText);
    answer->setWordWrap(true);
    answer->setMinimumHeight(fontMetrics().lineSpacing() * 2);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(columns, 1);
    whole->addWidget(answer);
}

QLayout* frmHeightEnter::buildlists() {
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel("Time"), 0, 0, 1, 2);
    grid->addWidget(new QLabel("Height (metres)"), 0, 2, 1, 3);
    grid->addWidget(new QLabel("Hours"), 1, 0);
    grid->addWidget(new QLabel("Minutes"), 1, 1);
    grid->addWidget(new QLabel("Metres    (X . XX)"), 1, 2, 1, 3);
    int column = 0;
    for (const ListOfNumbers& told : lists) {
        QListWidget* const list = this->*told.list = named<ChoiceList>(told.name);
        list->setAccessibleName(told.spoken);
        for (int i = 0; i < told.count; ++i)
            list->addItem(QString::asprintf(told.pattern, i * told.step));
        list->setFixedWidth(fontMetrics().horizontalAdvance("Minutes") + 26);
        setrowsinview(*list, 12);
        grid->addWidget(list, 2, column++);
    }
    lblTime = namedvalue("lblTime");
    lblHeight = namedvalue("lblHeight");
    for (QLabel* label : {lblTime, lblHeight})
        label->setMinimumHeight(label->sizeHint().height() + fontMetrics().lineSpacing());
    grid->addWidget(lblTime, 3, 0, 1, 2);
    grid->addWidget(lblHeight, 3, 2, 1, 3);
    return grid;
}

QLayout* frmHeightEnter::buildentries() {
    List1 = named<ChoiceList>("List1");
    List1->setAccessibleName("Readings");
    List1->setMinimumWidth(fontMetrics().averageCharWidth() * 20);
    cmdAdd = named<QPushButton>("cmdAdd", "&Add");
    cmdChange = named<QPushButton>("cmdChange", "C&hange");
    cmdChange->setToolTip("Puts the time and height in place of the highlighted entry; Delete takes it out");
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdAdd);
    buttons->addWidget(cmdChange);
    auto* column = new QVBoxLayout;
    auto* caption = captionof("Double click an entry to edit", List1);
    column->addWidget(caption);
    column->addWidget(List1, 1);
    column->addLayout(buttons);
    return column;
}

QLayout* frmHeightEnter::buildfiles() {
    File1 = named<ChoiceList>("File1");
    File1->setAccessibleName("Height files");
    txtFileName = named<QLineEdit>("txtFileName");
    cmdOpen = named<QPushButton>("cmdOpen", "&Open");
    Command2 = named<QPushButton>("Command2", "&Finished");
    Command2->setToolTip("Saves the list and shows it over the intermediate curve");
    cmdCancel = named<QPushButton>("cmdCancel", "Cancel");
    cmdCancel->setToolTip("Closes, and no height file is displayed then; close the window by its frame to keep it");
    auto* caption = captionof("Select existing height file", File1);
    auto* typed = captionof("OR Enter new file &name", txtFileName);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdOpen, Command2, cmdCancel})
        buttons->addWidget(button);
    auto* column = new QVBoxLayout;
    column->addWidget(caption);
    column->addWidget(File1, 1);
    column->addWidget(typed);
    column->addWidget(txtFileName);
    column->addLayout(buttons);
    return column;
}

void frmHeightEnter::connectcontrols() {
    // A click on the row that is current already is one too: what stands below may be finer, or typed.
    const auto onclick = [this](const QListWidget* list, void (frmHeightEnter::*click)()) {
        connect(list, &QListWidget::currentRowChanged, this, click);
        connect(list, &QListWidget::itemClicked, this, click);
    };
    for (const QListWidget* list : {lstHours, lstMins})
        onclick(list, &frmHeightEnter::time_Click);
    for (const QListWidget* list : {lstMetres, lstCms, lstMMs})
        onclick(list, &frmHeightEnter::height_Click);
    onclick(File1, &frmHeightEnter::File1_Click);
    connect(List1, &QListWidget::itemActivated, this, &frmHeightEnter::List1_DblClick);
    connect(cmdOpen, &QPushButton::clicked, this, &frmHeightEnter::cmdOpen_Click);
    connect(cmdAdd, &QPushButton::clicked, this, &frmHeightEnter::cmdAdd_Click);
    connect(cmdChange, &QPushButton::clicked, this, &frmHeightEnter::cmdChange_Click);
    connect(Command2, &QPushButton::clicked, this, &frmHeightEnter::Command2_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmHeightEnter::cmdCancel_Click);
    List1->installEventFilter(this);
    txtFileName->installEventFilter(this);
}

HeightClicks frmHeightEnter::clicks() const {
    return {lstHours->currentRow(), lstMins->currentRow(), lstMetres->currentRow(), lstCms->currentRow(),
            lstMMs->currentRow()};
}

void frmHeightEnter::tell(const std::string& message) {
    context.services.messages.show(message, "Tarvane");
}

void frmHeightEnter::listfiles() {
    const QString current = File1->currentItem() ? File1->currentItem()->text() : QString();
    File1->clear();
    for (const std::string& name : datafiles(context.session.folders, ".ht")) {
        File1->addItem(QString::fromStdString(name));
        if (File1->item(File1->count() - 1)->text() == current) File1->setCurrentRow(File1->count() - 1);
    }
}

void frmHeightEnter::showrows(int current) {
    List1->clear();
    for (const std::string& row : entries.rows)
        List1->addItem(QString::fromStdString(row));
    List1->setCurrentRow(std::min(current, List1->count() - 1));
}

void frmHeightEnter::time_Click() {
    lblTime->setText(QString::fromStdString(clickedtime(clicks())));
}

void frmHeightEnter::height_Click() {
    lblHeight->setText(QString::fromStdString(clickedheight(clicks())));
}

void frmHeightEnter::File1_Click() {
    if (!File1->currentItem()) return;
    txtFileName->setText(QString::fromStdString(namebeforepoint(File1->currentItem()->text().toStdString())));
}

void frmHeightEnter::cmdOpen_Click() {
    const HeightsFiled filed = openentries(context.session.folders, txtFileName->text().toStdString(), entries);
    if (!filed.message.empty()) return tell(filed.message);
    showrows(-1);
    answer->setText(QString::fromStdString(filed.answer));
}

void frmHeightEnter::cmdAdd_Click() {
    const std::string message = addentry(entries, lblTime->text().toStdString(), lblHeight->text().toStdString());
    if (!message.empty()) return tell(message);
    showrows(static_cast<int>(entries.rows.size()) - 1);
}

void frmHeightEnter::cmdChange_Click() {
    const int row = List1->currentRow();
    const std::string message =
        changeentry(entries, row, lblTime->text().toStdString(), lblHeight->text().toStdString());
    if (!message.empty()) return tell(message);
    showrows(row);
}

void frmHeightEnter::List1_DblClick() {
    if (!List1->currentItem()) return;
    const HeightEntry entry = entryof(List1->currentItem()->text().toStdString());
    lstHours->setCurrentRow(entry.clicks.hours);
    lstMins->setCurrentRow(entry.clicks.minutes);
    lstMetres->setCurrentRow(entry.clicks.metres);
    lstCms->setCurrentRow(entry.clicks.tenths);
    lstMMs->setCurrentRow(entry.clicks.hundredths);
    // The entry itself may be finer than the lists.
    lblTime->setText(QString::fromStdString(entry.time));
    lblHeight->setText(QString::fromStdString(entry.height));
    answer->setText("Edit the time and height, then press Change.");
}

void frmHeightEnter::deleteentry() {
    const int row = List1->currentRow();
    if (row < 0) return;
    entries.rows.erase(entries.rows.begin() + row);
    showrows(row);
}

bool frmHeightEnter::Command2_Click() {
    const HeightsFiled filed = saveentries(context.session.folders, txtFileName->text().toStdString(), entries);
    if (!filed.message.empty()) {
        tell(filed.message);
        return false;
    }
    chooseheights(workspace, filed.path);
    answer->setText(QString::fromStdString(filed.answer + (workspace.answer.empty() ? "" : ". " + workspace.answer)));
    listfiles();
    return true;
}

/// True if the list may go: it is saved, unchanged or given up.
bool frmHeightEnter::offertosave() {
    if (entries.rows == entries.saved) return true;
    const Answer wanted = context.services.messages.askorcancel("The readings are not saved. Save them?", "Tarvane");
    return wanted == Answer::no || (wanted == Answer::yes && Command2_Click());
}

void frmHeightEnter::cmdCancel_Click() {
    if (!offertosave()) return;
    // kept: the file that was displayed, or just saved, is displayed no longer
    chooseheights(workspace, "");
    ModalDialog::reject();
}

void frmHeightEnter::reject() {
    if (offertosave()) ModalDialog::reject();
}

/// Enter in the name's box must not add a reading once more: it opens while nothing is listed that would be joined.
void frmHeightEnter::enterinname() {
    if (entries.rows.empty()) return cmdOpen_Click();
    context.services.messages.beep();
}

bool frmHeightEnter::eventFilter(QObject* watched, QEvent* event) {
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent&>(*event).key() : 0;
    if (watched == List1 && key == Qt::Key_Delete) {
        deleteentry();
        return true;
    }
    if (watched == txtFileName && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        enterinname();
        return true;
    }
    return ModalDialog::eventFilter(watched, event);
}

}  // namespace tarvane
