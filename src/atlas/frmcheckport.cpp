#include "atlas/frmcheckport.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QVBoxLayout>
#include <array>
#include <numeric>
#include <utility>

#include "dates/isomoments.h"
#include "paint/frmlightpalette.h"
#include "platform/qt/named.h"
#include "platform/qt/nightlight.h"
#include "platform/qt/screentext.h"
#include "portdata/recordfiles.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr int typedcolumns = frmcheckport::predictedcolumn;
constexpr int keepdelay = 500;  // milliseconds
constexpr int rowsseen = 10;
constexpr std::size_t mostlines = 400;  // compared with every key

constexpr std::array typedfields{&TableWater::date, &TableWater::time, &TableWater::height, &TableWater::kind};
static_assert(typedfields.size() == typedcolumns);

const char* const headings[] = {"Date", "Time", "Height, m", "High or low", "Prediction", "Minutes", "Metres", "Note"};
constexpr std::array widths{12, 8, 10, 12, 20, 9, 9, 34};      // characters
constexpr std::array leastwidths{11, 7, 9, 11, 17, 8, 7, 12};  // in a narrow window

const char* const intro =
    "Type waters of an official table, of any days: each stands beside the predicted water that it means. High or low "
    "is worked out where you leave it empty. Minutes and Metres are the prediction's less the table's: +4 says that "
    "the prediction is 4 minutes late, -0.10 that it is 0.10 m low.";

/// Tells what stands in an editor with every key, before it is left.
class TellingDelegate : public QStyledItemDelegate {
  public:
    TellingDelegate(QObject* parent, std::function<void(int row, int column, const QString&)> ontyped)
        : QStyledItemDelegate(parent), ontyped_(std::move(ontyped)) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
        auto* box = new QLineEdit(parent);
        box->setFrame(false);
        box->setMaxLength(200);
        const int row = index.row(), column = index.column();
        connect(box, &QLineEdit::textEdited, box,
                [this, row, column](const QString& text) { ontyped_(row, column, text); });
        return box;
    }

  private:
    std::function<void(int row, int column, const QString&)> ontyped_;
};

std::string signedtext(double value, int decimals) {
    const std::string text = fixed(value, decimals);
    return (text.find_first_of("123456789") != std::string::npos && value > 0 ? "+" : "") + text;
}

bool isempty(const TableWater& water) {
    return water == TableWater{};
}

/// True where no clock shows the port's zone time, which is in whole hours: its tables are in its own.
bool clocksapart(const AboutOf& of, const Services& services) {
    const auto offset = services.zones.offsetat(of.known.iana(), services.clock.moment());
    return offset && offset->ahead % std::chrono::hours(1) != std::chrono::seconds(0);
}

}  // namespace

CheckTable::CheckTable() {
    setObjectName("table");
    setAccessibleName("Waters of the official table");
    setColumnCount(columns);
    for (int column = 0; column < columns; ++column)
        setHorizontalHeaderItem(column, new QTableWidgetItem(headings[column]));
    setwidths(widths);
    setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setWordWrap(false);
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                    QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
}

void CheckTable::setwidths(const std::array<int, columns>& characters) {
    for (int column = 0; column < columns; ++column)
        setColumnWidth(column, fontMetrics().averageCharWidth() * characters[static_cast<std::size_t>(column)]);
}

int CheckTable::widthof(const std::array<int, columns>& characters) const {
    return fontMetrics().averageCharWidth() * std::accumulate(characters.begin(), characters.end(), 0);
}

QSize CheckTable::sizeHint() const {
    const int beside =
        2 * frameWidth() + verticalScrollBar()->sizeHint().width() + verticalHeader()->sizeHint().width();
    return {beside + widthof(widths), QTableWidget::sizeHint().height()};
}

void CheckTable::resizeEvent(QResizeEvent* event) {
    QTableWidget::resizeEvent(event);
    const bool narrow = viewport()->width() < widthof(widths);
    if (narrow != std::exchange(narrowed, narrow)) setwidths(narrow ? leastwidths : widths);
}

QModelIndex CheckTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action != MoveNext && action != MovePrevious) return QTableWidget::moveCursor(action, modifiers);
    const int step = action == MoveNext ? 1 : -1;
    const int here = std::max(currentRow(), 0) * typedcolumns + std::clamp(currentColumn(), 0, typedcolumns - 1);
    const int next = std::clamp(here + step, 0, rowCount() * typedcolumns - 1);
    return model()->index(next / typedcolumns, next % typedcolumns);
}

void CheckTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste) && onpaste) return onpaste();
    if (event->matches(QKeySequence::Delete) && currentItem() && currentColumn() < typedcolumns)
        return currentItem()->setText("");
    // Beyond what can be typed Tab leaves the table.
    const bool last = currentRow() + 1 == rowCount() && currentColumn() >= typedcolumns - 1;
    const bool first = currentRow() <= 0 && currentColumn() <= 0;
    if ((event->key() == Qt::Key_Tab && last) || (event->key() == Qt::Key_Backtab && first)) {
        event->ignore();
        focusNextPrevChild(event->key() == Qt::Key_Tab);
        return;
    }
    QTableWidget::keyPressEvent(event);
}

frmcheckport::frmcheckport(MainContext& maincontext, const std::string& hcfile, int number, QWidget* parent)
    : ModalDialog("frmcheckport", "Check This Port", parent),
      context(maincontext),
      of(aboutof(maincontext.session.folders, hcfile, number)) {
    setProperty(ownlight, true);
    setPalette(paletteof(coloursof(lightingof(nightison()))));
    if (of.check.waters.empty() && clocksapart(of, context.services)) of.check.clock = TableClock::port;
    setWindowTitle("Check This Port - " + screentext(trimmedname(of.port)));
    buildlayout();
    keeplater = new QTimer(this);
    keeplater->setSingleShot(true);
    keeplater->setInterval(keepdelay);
    filltable();
    connectcontrols();
    settle(nullptr, table);
    table->setCurrentCell(table->rowCount() - 1, datecolumn);
}

frmcheckport::~frmcheckport() {
    // An editor that goes with the window would tell of it once more.
    table->disconnect(this);
    if (keeplater->isActive()) keep();
}

void frmcheckport::buildlayout() {
    auto* words = named<QLabel>("lblIntro", intro);
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    cmbClock = named<QComboBox>("cmbClock");
    for (const TableClock each : {TableClock::zone, TableClock::port, TableClock::ut}) {
        QString name = screentext(clockof(each, of.port, of.known.iana(), context.services.zones).description());
        name[0] = name[0].toUpper();
        cmbClock->addItem(name);
    }
    cmbClock->setCurrentIndex(static_cast<int>(of.check.clock));
    // The style gives the list a menu's colours when it comes up first.
    cmbClock->ensurePolished();
    cmbClock->view()->window()->setPalette(palette());
    cmbClock->view()->setPalette(palette());
    table = new CheckTable;
    setrowsinview(*table, rowsseen);
    lblResult = named<QLabel>("lblResult");
    lblHint = named<QLabel>("lblHint");
    for (QLabel* label : {lblResult, lblHint}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    QFont bold = font();
    bold.setBold(true);
    lblResult->setFont(bold);
    lblResult->setMinimumHeight(fontMetrics().lineSpacing() * 2);

    auto* clock = new QHBoxLayout;
    clock->addWidget(captionof("The table's &times are in", cmbClock));
    clock->addWidget(cmbClock);
    clock->addStretch(1);
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(words);
    whole->addWidget(lblKept = new KeptNote);
    lblKept->tell(tellownports(context.session.folders));
    whole->addLayout(clock);
    whole->addWidget(table, 1);
    whole->addWidget(lblResult);
    whole->addWidget(lblHint);
    whole->addLayout(buildfoot());
}

QLayout* frmcheckport::buildfoot() {
    lblSaid = named<QLabel>("lblSaid");
    lblSaid->setTextFormat(Qt::PlainText);
    lblSaid->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    cmdPaste = named<QPushButton>("cmdPaste", "&Paste");
    cmdPaste->setToolTip("Adds lines copied from elsewhere, such as 2026-07-14 06:12 5.4 HW");
    cmdDelete = named<QPushButton>("cmdDelete", "&Delete Line");
    cmdCopy = named<QPushButton>("cmdCopy", "&Copy");
    cmdClose = named<QPushButton>("cmdClose", "Close");
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdPaste, cmdDelete, cmdCopy}) {
        buttons->addWidget(button);
        button->setAutoDefault(false);
    }
    cmdClose->setAutoDefault(false);
    buttons->addWidget(lblSaid, 1);
    buttons->addWidget(cmdClose);
    return buttons;
}

void frmcheckport::connectcontrols() {
    table->setItemDelegate(
        new TellingDelegate(this, [this](int row, int column, const QString& text) { type(row, column, text); }));
    // What Escape takes back was told already.
    connect(table->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            [this](QWidget*, QAbstractItemDelegate::EndEditHint hint) {
                const QTableWidgetItem* item = table->currentItem();
                if (hint == QAbstractItemDelegate::RevertModelCache && item && item->column() < typedcolumns)
                    type(item->row(), item->column(), item->text());
            });
    connect(table, &QTableWidget::cellChanged, this, [this](int row, int column) {
        if (filling || column >= typedcolumns) return;
        type(row, column, table->item(row, column)->text());
        tidyline(row);
    });
    table->onpaste = [this] { paste(); };
    connect(cmbClock, &QComboBox::activated, this, [this](int row) {
        of.check.clock = static_cast<TableClock>(row);
        showresult();
        keepsoon();
    });
    connect(keeplater, &QTimer::timeout, this, [this] { keep(); });
    connect(cmdPaste, &QPushButton::clicked, this, [this] { paste(); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { deleteline(); });
    connect(cmdCopy, &QPushButton::clicked, this, [this] {
        context.services.clipboard.settext(copytext());
        lblSaid->setText("Copied");
    });
    connect(cmdClose, &QPushButton::clicked, this, [this] { reject(); });
}

/// Every line, and an empty one that waits for the next.
void frmcheckport::filltable() {
    filling = true;
    table->setRowCount(static_cast<int>(of.check.waters.size()) + 1);
    for (int row = 0; row < table->rowCount(); ++row)
        fillline(row, row + 1 < table->rowCount() ? of.check.waters[static_cast<std::size_t>(row)] : TableWater{});
    filling = false;
    showresult();
}

void frmcheckport::fillline(int row, const TableWater& water) {
    for (int column = 0; column < columns; ++column) {
        auto* item = table->item(row, column);
        if (!item) table->setItem(row, column, item = new QTableWidgetItem);
        if (column < typedcolumns)
            item->setText(screentext(water.*typedfields[static_cast<std::size_t>(column)]));
        else
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    }
}

/// What the user types in a cell, with every key.
void frmcheckport::type(int row, int column, const QString& text) {
    std::vector<TableWater>& waters = of.check.waters;
    const auto place = static_cast<std::size_t>(row);
    if (place >= waters.size()) {
        if (text.isEmpty()) return;
        waters.resize(place + 1);
        filling = true;
        table->setRowCount(row + 2);
        fillline(row + 1, {});
        filling = false;
    }
    std::string& field = waters[place].*typedfields[static_cast<std::size_t>(column)];
    if (field == text.toStdString()) return;
    if (column == datecolumn && dateleft.row != row) dateleft = {row, field};
    field = text.toStdString();
    showresult();
    keepsoon();
}

DateReading frmcheckport::dates() const {
    return {context.session.conventions, context.services.locale, context.services.clock.now().today};
}

/// A cell was left: its date is written so that it can be meant for one day alone, and a line without one gets that of
/// the line before. Lines behind that had the same text in its place, and no date by it, get the date too.
void frmcheckport::tidyline(int row) {
    std::vector<TableWater>& waters = of.check.waters;
    const auto place = static_cast<std::size_t>(row);
    if (place >= waters.size()) return;
    TableWater& water = waters[place];
    const std::string before = water.date + water.time, unread = dateleft.row == row ? dateleft.text : "";
    dateleft = {};
    water.date = tidydate(water.date, dates());
    water.time = tidytime(water.time);
    if (water.date.empty() && !isempty(water) && row > 0) water.date = waters[place - 1].date;
    const auto put = [this](std::size_t at) {
        table->item(static_cast<int>(at), datecolumn)->setText(screentext(of.check.waters[at].date));
    };
    filling = true;
    put(place);
    table->item(row, timecolumn)->setText(screentext(water.time));
    if (!unread.empty() && !datefault(unread).empty() && datefault(water.date).empty())
        for (std::size_t behind = place + 1; behind < waters.size() && waters[behind].date == unread; ++behind) {
            waters[behind].date = water.date;
            put(behind);
        }
    filling = false;
    if (water.date + water.time == before) return;
    showresult();
    keepsoon();
}

void frmcheckport::showresult() {
    const Zones& zones = context.services.zones;
    const CheckResult result = checkwaters(of.port, of.known.iana(), of.check, zones);
    const PortClock clock = clockof(of.check.clock, of.port, of.known.iana(), zones);
    filling = true;
    for (int row = 0; row < table->rowCount(); ++row) {
        const auto place = static_cast<std::size_t>(row);
        showline(row, place < result.waters.size() ? result.waters[place] : CheckedWater{.fault = emptyline}, clock);
    }
    filling = false;
    lblResult->setText(
        screentext(result.compared > 0 ? checkwords(result) + "." : "None of the table's waters is compared yet."));
    lblHint->setText(screentext(result.hint));
    lblHint->setVisible(!result.hint.empty());
    say(notkept);
}

void frmcheckport::say(const QString& text) {
    lblSaid->setText(text);
    lblSaid->setToolTip(text);
}

void frmcheckport::showline(int row, const CheckedWater& water, const PortClock& clock) {
    const auto put = [&](int column, const std::string& text) { table->item(row, column)->setText(screentext(text)); };
    const bool compared = water.fault.empty();
    const ClockTime time = clock.at(water.predicted), given = clock.at(water.given);
    std::string predicted = std::string(water.high ? "HW " : "LW ") + clocktext(time) + ", " + fixed(water.height, 2);
    if (time.date != given.date) predicted += " (" + isodate(time.date) + ")";
    put(predictedcolumn, compared ? predicted : "");
    put(minutescolumn, compared ? signedtext(water.minutes, 0) : "");
    put(metrescolumn, compared ? signedtext(water.metres, 2) : "");
    put(notecolumn, water.fault == emptyline ? "" : water.fault);
    for (const Column column : {predictedcolumn, notecolumn})
        table->item(row, column)->setToolTip(table->item(row, column)->text());
}

void frmcheckport::paste() {
    const std::string text = trim(context.services.clipboard.text());
    std::vector<TableWater>& waters = of.check.waters;
    const std::size_t before = waters.size();
    const std::vector<TableWater> lines = pastedwaters(text, dates(), waters.empty() ? TableWater{} : waters.back(),
                                                       mostlines - std::min(mostlines, before));
    const int row = table->currentRow(), column = table->currentColumn();
    const bool part = lines.empty() || lines[0].time.empty() || lines[0].height.empty();
    const bool figures = text.find_first_of("0123456789") != std::string::npos;
    if (figures && part && lines.size() < 2 && text.find('\n') == std::string::npos && row >= 0 &&
        column < typedcolumns)
        return table->item(row, column)->setText(screentext(text));
    if (lines.empty()) return say("No waters are on the clipboard");
    if (before + lines.size() > mostlines)
        return say(QStringLiteral("These are too many: %1 lines have room here").arg(mostlines));
    waters.insert(waters.end(), lines.begin(), lines.end());
    filltable();
    table->setCurrentCell(table->rowCount() - 1, datecolumn);
    std::vector<int> leftout;
    for (int added = static_cast<int>(before); added + 1 < table->rowCount(); ++added)
        if (!table->item(added, notecolumn)->text().isEmpty()) leftout.push_back(added + 1);
    say(screentext(addedwords(lines.size(), leftout)));
    keepsoon();
}

void frmcheckport::deleteline() {
    const int row = table->currentRow();
    if (row < 0 || row + 1 >= table->rowCount()) return;
    of.check.waters.erase(of.check.waters.begin() + row);
    filltable();
    keepsoon();
}

/// So that typing on and on is kept too.
void frmcheckport::keepsoon() {
    if (!keeplater->isActive()) keeplater->start();
}

/// Failing is told and stops nothing: what was typed stays in the window.
void frmcheckport::keep() {
    keeplater->stop();
    TableCheck kept = of.check;
    std::erase_if(kept.waters, isempty);
    const ProgramFolders& folders = context.session.folders;
    const WriteOutcome written = keepcheck(folders, of.hcfile, of.port, of.number, kept);
    const QString before = notkept;
    notkept = written ? QString() : screentext("Could not be kept: " + ownportspath(folders) + ": " + written.reason());
    // What was said of something else stays.
    if (notkept != before) say(notkept);
    lblKept->tell(tellownports(folders));
}

std::string frmcheckport::copytext() const {
    std::string text = trimmedname(of.port) + ", " + cmbClock->currentText().toStdString() + "\n";
    for (int column = 0; column < columns; ++column)
        text += std::string(headings[column]) + (column + 1 < columns ? "\t" : "\n");
    for (int row = 0; row + 1 < table->rowCount(); ++row)
        for (int column = 0; column < columns; ++column)
            text += table->item(row, column)->text().toStdString() + (column + 1 < columns ? "\t" : "\n");
    return text + lblResult->text().toStdString() + "\n" +
           (lblHint->text().isEmpty() ? "" : lblHint->text().toStdString() + "\n");
}

void frmcheckport::done(int result) {
    // An open editor is left first: its line may get its date then.
    table->setFocus();
    if (keeplater->isActive() || !notkept.isEmpty()) keep();
    const bool leaves =
        notkept.isEmpty() || context.services.messages.ask(notkept.toStdString() + "\n\nClose the window all the same?",
                                                           "Check This Port", MessageIcon::exclamation);
    if (!leaves) return;
    ModalDialog::done(result);
}

}  // namespace tarvane
