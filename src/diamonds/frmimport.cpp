#include "diamonds/frmimport.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPixmap>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/choicelist.h"
#include "platform/qt/named.h"
#include "platform/qt/twips.h"

namespace tarvane {
namespace {

constexpr int rowsinview = 10, outcomerows = 5;

QString shownname(const Drive& drive) {
    const QString path = QString::fromStdString(drive.path), label = QString::fromStdString(drive.label);
    return label.isEmpty() || path.endsWith(label) ? path : path + " (" + label + ")";
}

void listtexts(QListWidget& list, const std::vector<std::string>& texts) {
    list.clear();
    for (const std::string& text : texts)
        list.addItem(QString::fromStdString(text));
}

/// Room in front of a row.
QPixmap indentof(int width) {
    QPixmap room(width, 1);
    room.fill(Qt::transparent);
    return room;
}

/// The hourglass over a window, as long as this lives.
class Hourglass {
  public:
    explicit Hourglass(QWidget& over) : window(over) { window.setCursor(Qt::WaitCursor); }
    ~Hourglass() { window.unsetCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

  private:
    QWidget& window;
};

}  // namespace

frmimport::frmimport(MainContext& maincontext, QWidget* parent)
    : ModalDialog("frmimport", "Import Charts", parent), context(maincontext), import(openimport(maincontext)) {
    buildlayout();
    showdrives();
    showfolder();
    connectcontrols();
    settle(nullptr, drvDrives);
}

void frmimport::buildlayout() {
    lstoutcomes = named<ChoiceList>("lstoutcomes");
    lstoutcomes->setSelectionMode(QAbstractItemView::NoSelection);
    setrowsinview(*lstoutcomes, outcomerows);
    auto* columns = new QHBoxLayout;
    columns->addLayout(buildplace(), 3);
    columns->addSpacing(twips(150));
    columns->addLayout(buildfiles(), 2);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(columns, 1);
    whole->addWidget(captionof("&Result", lstoutcomes));
    whole->addWidget(lstoutcomes);
}

QLayout* frmimport::buildplace() {
    drvDrives = named<QComboBox>("drvDrives");
    drvDrives->setMinimumWidth(twips(3600));
    dirDirectories = named<ChoiceList>("dirDirectories");
    setrowsinview(*dirDirectories, rowsinview);
    dirDirectories->installEventFilter(this);
    auto* column = new QVBoxLayout;
    column->addWidget(captionof("Select drive containing the charts disk (eg. A:)", drvDrives));
    column->addWidget(drvDrives);
    column->addSpacing(twips(120));
    column->addWidget(captionof("Double Click the folder containing Tidal Stream Atlas ", dirDirectories));
    column->addWidget(dirDirectories, 1);
    return column;
}

QLayout* frmimport::buildfiles() {
    filFilenames = named<ChoiceList>("filFilenames");
    filFilenames->setMinimumWidth(twips(2700));
    // All that is listed is imported.
    filFilenames->setSelectionMode(QAbstractItemView::NoSelection);
    auto* const Frame1 = named<QGroupBox>("Frame1", "Files");
    auto* framed = new QVBoxLayout(Frame1);
    framed->addWidget(captionof("Area to be imported", filFilenames));
    framed->addWidget(filFilenames, 1);
    cmdimport = named<QPushButton>("cmdimport", "&Import Files");
    Cmdfinished = named<QPushButton>("Cmdfinished", "E&xit");
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdimport, Cmdfinished}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    auto* column = new QVBoxLayout;
    column->addWidget(Frame1, 1);
    column->addLayout(buttons);
    return column;
}

void frmimport::connectcontrols() {
    connect(drvDrives, &QComboBox::currentIndexChanged, this, &frmimport::drvDrives_Change);
    connect(dirDirectories, &QListWidget::itemDoubleClicked, this,
            [this](const QListWidgetItem* item) { dirDirectories_Change(dirDirectories->row(item)); });
    connect(cmdimport, &QPushButton::clicked, this, &frmimport::cmdimport_Click);
    connect(Cmdfinished, &QPushButton::clicked, this, &frmimport::reject);
}

void frmimport::showdrives() {
    const QSignalBlocker quiet(drvDrives);
    drvDrives->clear();
    for (const Drive& drive : import.drives)
        drvDrives->addItem(shownname(drive));
    const auto chosen = std::find_if(import.drives.begin(), import.drives.end(),
                                     [this](const Drive& drive) { return drive.path == import.drive; });
    drvDrives->setCurrentIndex(chosen == import.drives.end() ? -1 : static_cast<int>(chosen - import.drives.begin()));
}

void frmimport::showfolder() {
    dirDirectories->clear();
    for (const FolderRow& row : import.folders) {
        auto* item = new QListWidgetItem(QString::fromStdString(row.name));
        // Not blanks in the text: the keyboard looks for what a row begins with.
        if (row.depth > 0) item->setData(Qt::DecorationRole, indentof(row.depth * fontMetrics().averageCharWidth()));
        QFont font = item->font();
        font.setBold(row.open);
        item->setFont(font);
        dirDirectories->addItem(item);
        if (row.path == import.folder) dirDirectories->setCurrentItem(item);
    }
    listtexts(*filFilenames, import.areas);
}

void frmimport::drvDrives_Change(int row) {
    const Hourglass hourglass(*this);
    if (row >= 0) pickdrive(context, import, import.drives[static_cast<std::size_t>(row)].path);
    showdrives();
    showfolder();
}

void frmimport::dirDirectories_Change(int row) {
    if (row < 0 || !pickfolder(context, import, import.folders[static_cast<std::size_t>(row)].path)) return;
    showfolder();
}

void frmimport::cmdimport_Click() {
    const Hourglass hourglass(*this);
    importareas(context, import);
    listtexts(*lstoutcomes, import.outcomes);
}

bool frmimport::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && drvDrives && refreshdrives(context, import)) showdrives();
    return ModalDialog::event(event);
}

bool frmimport::eventFilter(QObject* watched, QEvent* event) {
    if (watched == dirDirectories && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            dirDirectories_Change(dirDirectories->currentRow());
            return true;
        }
    }
    return ModalDialog::eventFilter(watched, event);
}

}  // namespace tarvane
