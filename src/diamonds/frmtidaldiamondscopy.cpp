#include "diamonds/frmtidaldiamondscopy.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "diamonds/frmimport.h"
#include "platform/qt/listrows.h"
#include "platform/qt/screentext.h"

namespace tarvane {
namespace {

/// Puts texts into a list that shows others.
void fill(QListWidget& list, const std::vector<std::string>& texts) {
    bool same = list.count() == static_cast<int>(texts.size());
    for (int row = 0; same && row < list.count(); ++row)
        same = list.item(row)->text().toStdString() == texts[static_cast<std::size_t>(row)];
    if (same) return;
    const QSignalBlocker quiet(&list);
    list.clear();
    for (const std::string& text : texts)
        list.addItem(QString::fromStdString(text));
}

void take(DiamondTexts& texts, const std::vector<QLineEdit*>& boxes) {
    for (std::size_t i = 0; i < boxes.size(); ++i)
        texts[i] = boxes[i]->text().toStdString();
}

void showtexts(const DiamondTexts& texts, const std::vector<QLineEdit*>& boxes) {
    for (std::size_t i = 0; i < boxes.size(); ++i)
        showtext(*boxes[i], QString::fromStdString(texts[i]));
}

/// The end of a long path is what tells files apart.
void tellpath(QLabel& label, const std::string& path) {
    const QString text = QString::fromStdString(path);
    const bool toolong =
        label.fontMetrics().horizontalAdvance(text) + 2 * label.margin() > label.contentsRect().width();
    label.setAlignment(Qt::AlignVCenter | (toolong ? Qt::AlignRight : Qt::AlignLeft));
    label.setText(text);
    label.setToolTip(text);
}

}  // namespace

frmTidalDiamondsCopy::frmTidalDiamondsCopy(MainContext& maincontext, QWidget* parent)
    : ModalDialog("frmTidalDiamondsCopy", "Copy Tidal Diamonds", parent),
      context(maincontext),
      copy(opendiamonds(maincontext.session)) {
    buildlayout();
    connectcontrols();
    showcopy();
    settle(nullptr, fileSource);
}

void frmTidalDiamondsCopy::connectcontrols() {
    connect(fileSource, &QListWidget::itemSelectionChanged, this, &frmTidalDiamondsCopy::fileSource_Click);
    connect(fileDest, &QListWidget::itemSelectionChanged, this, &frmTidalDiamondsCopy::fileDest_Click);
    connect(List1, &QListWidget::itemSelectionChanged, this, &frmTidalDiamondsCopy::List1_Click);
    // A click on the entry that is highlighted already reads it anew.
    for (QListWidget* list : {fileSource, fileDest, List1})
        onclickagain(*list, [this, list] { clicked(*list); });
    connect(cmdCopy, &QPushButton::clicked, this, &frmTidalDiamondsCopy::cmdCopy_Click);
    connect(cmdAmend, &QPushButton::clicked, this, [this] { run(amendhighlighted); });
    connect(cmdAddtoFile, &QPushButton::clicked, this, [this] { run(addtosource); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { run(deletehighlighted); });
    connect(cmdAdd, &QPushButton::clicked, this, [this] { run(addtodestination); });
    connect(cmdImportCharts, &QPushButton::clicked, this, &frmTidalDiamondsCopy::cmdImportCharts_Click);
    connect(cmdExit, &QPushButton::clicked, this, &frmTidalDiamondsCopy::reject);
}

void frmTidalDiamondsCopy::taketexts() {
    take(copy.source.texts, sourceboxes);
    take(copy.destination.texts, destinationboxes);
    copy.txtDestFile = txtDestFile->text().toStdString();
}

void frmTidalDiamondsCopy::showcopy() {
    fill(*fileSource, copy.files);
    fill(*fileDest, copy.files);
    fill(*List1, copy.source.entries);
    fill(*List2, copy.destination.entries);
    showhighlights();
    showtexts(copy.source.texts, sourceboxes);
    showtexts(copy.destination.texts, destinationboxes);
    tellpath(*lblSourceFile, copy.source.file);
    txtDestFile->setText(QString::fromStdString(copy.txtDestFile));
    Lbldiamno->setText(QString::fromStdString(copy.Lbldiamno));
    lblstatus->setText(QString::fromStdString(copy.status));
}

void frmTidalDiamondsCopy::showhighlights() {
    const auto rowof = [this](const std::string& path) {
        const std::string name = path.substr(path.rfind('/') + 1);
        const auto found = std::find(copy.files.begin(), copy.files.end(), name);
        return found == copy.files.end() ? -1 : static_cast<int>(found - copy.files.begin());
    };
    highlight(*fileSource, rowof(copy.source.file));
    highlight(*fileDest, rowof(copy.destination.file));
    highlight(*List1, copy.source.listindex);
}

/// A row that was clicked is not taken. A moving key highlights it once more behind that, which is taken back too.
void frmTidalDiamondsCopy::stay() {
    settling = true;
    QTimer::singleShot(0, this, [this] {
        settling = false;
        showhighlights();
    });
}

void frmTidalDiamondsCopy::run(Command command) {
    taketexts();
    command(context, copy);
    showcopy();
}

void frmTidalDiamondsCopy::fileSource_Click() {
    const int row = highlighted(*fileSource);
    if (row < 0 || settling) return;
    taketexts();
    // Without a highlighted entry what was typed belongs to none, and stays in the boxes.
    const bool asks = copy.source.listindex >= 0;
    const std::string name = copy.files[static_cast<std::size_t>(row)];
    if ((asks && !amendorleave(context, copy)) || !picksourcefile(context, copy, name)) stay();
    showcopy();
}

void frmTidalDiamondsCopy::fileDest_Click() {
    const int row = highlighted(*fileDest);
    if (row < 0 || settling) return;
    taketexts();
    pickdestfile(context, copy, copy.files[static_cast<std::size_t>(row)]);
    showcopy();
}

void frmTidalDiamondsCopy::List1_Click() {
    const int row = highlighted(*List1);
    if (row < 0 || settling) return;
    taketexts();
    if (!amendorleave(context, copy) || !pickdiamond(context, copy, row)) stay();
    showcopy();
}

void frmTidalDiamondsCopy::clicked(const QListWidget& list) {
    if (&list == fileSource) fileSource_Click();
    if (&list == fileDest) fileDest_Click();
    if (&list == List1) List1_Click();
}

void frmTidalDiamondsCopy::cmdCopy_Click() {
    taketexts();
    if (addorleave(context, copy)) copyacross(copy);
    showcopy();
}

void frmTidalDiamondsCopy::cmdImportCharts_Click() {
    taketexts();
    frmimport window(context, this);
    context.services.windows.showmodal(window);
    rereaddiamonds(context.session, copy);
    showcopy();
}

void frmTidalDiamondsCopy::reject() {
    taketexts();
    if (!amendorleave(context, copy) || !addorleave(context, copy)) return showcopy();
    ModalDialog::reject();
}

void frmTidalDiamondsCopy::emptyhourof(const QObject* box) {
    taketexts();
    for (const auto& [boxes, side] :
         {std::pair{&sourceboxes, &copy.source}, std::pair{&destinationboxes, &copy.destination}})
        if (const auto found = std::find(boxes->begin(), boxes->end(), box); found != boxes->end())
            emptyhour(side->texts, static_cast<std::size_t>(found - boxes->begin()));
    showcopy();
}

/// Enter picks the row that the keys have come to, as a click does.
bool frmTidalDiamondsCopy::listkey(QListWidget& list, const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    if (list.currentRow() >= 0) highlight(list, list.currentRow());
    clicked(list);
    return true;
}

bool frmTidalDiamondsCopy::eventFilter(QObject* watched, QEvent* event) {
    const bool twice = event->type() == QEvent::MouseButtonDblClick;
    if (twice && qobject_cast<QLineEdit*>(watched) && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        emptyhourof(watched);
        return true;
    }
    auto* const list = qobject_cast<QListWidget*>(watched);
    if (list && listkey(*list, *event)) return true;
    return ModalDialog::eventFilter(watched, event);
}

}  // namespace tarvane
