#include "ports/frmhccopy.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "platform/qt/named.h"
#include "platform/qt/twips.h"
#include "portdata/datafolder.h"

namespace tarvane {
namespace {

constexpr int destinationrows = 5;

const char* const destinationhelp =
    "Click on a filename to which ports will be added or type a new file name (omit the .HC extension)";

/// Puts names into a list that shows others; its place and its highlighted row stay where only some were added.
void fill(QListWidget& list, const std::vector<std::string>& names) {
    const auto shows = [&](std::size_t row) {
        const QListWidgetItem* item = list.item(static_cast<int>(row));
        return item && item->text().toStdString() == names[row];
    };
    std::size_t same = 0;
    while (same < names.size() && shows(same))
        ++same;
    if (static_cast<int>(same) < list.count()) {
        list.clear();
        same = 0;
    }
    for (std::size_t row = same; row < names.size(); ++row)
        list.addItem(QString::fromStdString(names[row]));
}

}  // namespace

frmHCcopy::frmHCcopy(MainContext& maincontext, QWidget* parent)
    : ModalDialog("frmHCcopy",
                  "Tarvane"
                  " Ports Copy Utility",
                  parent),
      context(maincontext) {
    startgathering(context);
    buildlayout();
    for (const std::string& name : datafiles(context.session.folders, ".hc"))
        for (QListWidget* list : {fillist, fileDestName})
            list->addItem(QString::fromStdString(name));
    connectcontrols();
    showcopy();
    settle(cmdcopy, fillist);
}

void frmHCcopy::buildlayout() {
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(buildlists(), 1);
    whole->addSpacing(twips(120));
    whole->addLayout(builddestination());
}

QLayout* frmHCcopy::buildlists() {
    fillist = named<QListWidget>("fillist");
    List1 = named<QListWidget>("List1");
    List2 = named<QListWidget>("List2");
    lblgathered = named<QLabel>("lblgathered");
    auto* grid = new QGridLayout;
    int column = 0;
    for (const auto& [list, caption] :
         {std::pair{fillist, "&Area to copy from"}, std::pair{List1, "&Click on an entry to copy to destination file"},
          std::pair{List2, "&Ports of the destination file"}}) {
        list->setMinimumWidth(twips(column == 0 ? 2000 : 3300));
        setrowsinview(*list, 12);
        list->installEventFilter(this);
        grid->addWidget(captionof(caption, list), 0, column);
        grid->addWidget(list, 1, column++);
    }
    List1->viewport()->installEventFilter(this);
    grid->addWidget(lblgathered, 2, 2);
    for (const int stretched : {1, 2})
        grid->setColumnStretch(stretched, 1);
    grid->setRowStretch(1, 1);
    return grid;
}

QLayout* frmHCcopy::builddestination() {
    fileDestName = named<QListWidget>("fileDestName");
    fileDestName->setFixedHeight(destinationrows * fontMetrics().lineSpacing() + 2 * fileDestName->frameWidth() +
                                 twips(90));
    fileDestName->setMinimumWidth(twips(3300));
    fileDestName->setAccessibleName("Area to which ports will be added");
    fileDestName->installEventFilter(this);
    txtname = named<QLineEdit>("txtname");
    cmdcopy = named<QPushButton>("cmdcopy", "&Save");
    cmdcancel = named<QPushButton>("cmdcancel", "Cancel");
    auto* name = new QHBoxLayout;
    name->addWidget(captionof("Save as file &name", txtname));
    name->addWidget(txtname, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(new QLabel("To Edit entries use Maintenance -> Correct menu"), 1);
    buttons->addWidget(cmdcopy);
    buttons->addWidget(cmdcancel);
    auto* side = new QVBoxLayout;
    side->addLayout(name);
    side->addStretch(1);
    side->addLayout(buttons);
    auto* row = new QHBoxLayout;
    row->addWidget(fileDestName);
    row->addSpacing(twips(120));
    row->addLayout(side, 1);
    auto* destination = new QVBoxLayout;
    destination->addWidget(captionof(destinationhelp, fileDestName));
    destination->addLayout(row);
    return destination;
}

void frmHCcopy::connectcontrols() {
    connect(fillist, &QListWidget::itemSelectionChanged, this, &frmHCcopy::fillist_Click);
    connect(fileDestName, &QListWidget::itemSelectionChanged, this, &frmHCcopy::fileDestName_Click);
    // A click on the file that is highlighted already reads it anew.
    connect(fillist, &QListWidget::itemClicked, this, &frmHCcopy::fillist_Click);
    connect(fileDestName, &QListWidget::itemClicked, this, &frmHCcopy::fileDestName_Click);
    // Not when the highlight moves: the arrow keys look through the ports without picking any.
    connect(List1, &QListWidget::itemClicked, this, &frmHCcopy::List1_Click);
    connect(List2, &QListWidget::itemDoubleClicked, this, [this] { copy.notedindex = List2->currentRow(); });
    connect(cmdcopy, &QPushButton::clicked, this, &frmHCcopy::cmdcopy_Click);
    connect(cmdcancel, &QPushButton::clicked, this, &frmHCcopy::reject);
}

void frmHCcopy::showcopy() {
    fill(*List1, copy.ports);
    fill(*List2, copy.listed);
    List2->scrollToBottom();
    lblgathered->setText(QString::fromStdString(gatheredtext(copy)));
}

void frmHCcopy::fillist_Click() {
    const auto chosen = fillist->selectedItems();
    if (chosen.isEmpty()) return;
    picksource(context, copy, chosen.first()->text().toStdString());
    List1->clear();
    showcopy();
}

void frmHCcopy::List1_Click() {
    const auto chosen = List1->selectedItems();
    gather(context, copy, chosen.isEmpty() ? -1 : List1->row(chosen.first()));
    showcopy();
}

void frmHCcopy::fileDestName_Click() {
    const auto chosen = fileDestName->selectedItems();
    if (chosen.isEmpty()) return;
    pickdestination(context, copy, chosen.first()->text().toStdString());
    txtname->setText(QString::fromStdString(copy.name));
    showcopy();
}

void frmHCcopy::cmdcopy_Click() {
    copy.name = txtname->text().toStdString();
    if (saveports(context, copy)) accept();
}

/// Enter and Space on a list are a click on the row that the keys have come to.
bool frmHCcopy::enterpressed(QListWidget& list) {
    const QSignalBlocker quiet(&list);
    const int row = list.currentRow();
    if (row >= 0) list.setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    if (&list == fillist) fillist_Click();
    if (&list == List1) List1_Click();
    if (&list == fileDestName) fileDestName_Click();
    return true;
}

bool frmHCcopy::eventFilter(QObject* watched, QEvent* event) {
    if (auto* list = qobject_cast<QListWidget*>(watched); list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) return enterpressed(*list);
    }
    if (watched == List1->viewport() && event->type() == QEvent::MouseButtonRelease) {
        // Beside the entries; a click on one is told by the list.
        const bool left = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        if (left && List1->selectedItems().isEmpty()) List1_Click();
    }
    return ModalDialog::eventFilter(watched, event);
}

}  // namespace tarvane
