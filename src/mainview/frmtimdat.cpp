#include "mainview/frmtimdat.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "dates/typeddate.h"
#include "platform/qt/named.h"

namespace tarvane {
namespace {

/// All months show at once.
constexpr int rowsinview = 12;
constexpr int columngap = 6;
constexpr int buttonroom = 12;
constexpr int longesttyped = 30;

/// The two runs of Text3 that stand over the first two lists, with the blanks up to the next list.
const char* const dayheading = "Day         ";
const char* const monthheading = "Month               ";

const char* const pickerhelp =
    "Selected a date by selecting the down arrow.\n"
    "then clicking on a date.\n"
    "The date can be typed as well.";

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

void showcurrent(QListWidget* list) {
    if (list->currentItem()) list->scrollToItem(list->currentItem(), QAbstractItemView::PositionAtCenter);
}

void refill(QListWidget* list, const std::vector<std::string>& rows, int selectedrow) {
    const QSignalBlocker quiet(list);
    list->clear();
    for (const std::string& row : rows)
        list->addItem(text(row));
    if (selectedrow < 0 || selectedrow >= list->count()) return;
    list->setCurrentRow(selectedrow);
    showcurrent(list);
}

QFrame* framedset(QGridLayout*& grid) {
    auto* frame = new QFrame;
    frame->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    grid = new QGridLayout(frame);
    return frame;
}

QVBoxLayout* buttoncolumn(std::initializer_list<QPushButton*> buttons) {
    auto* column = new QVBoxLayout;
    for (QPushButton* button : buttons)
        column->addWidget(button);
    column->addStretch();
    return column;
}

/// Width that a list needs for its widest row, its frame and its scroll bar.
int listwidth(const QListWidget* list) {
    return list->sizeHintForColumn(0) + 2 * list->frameWidth() + list->verticalScrollBar()->sizeHint().width() + 2;
}

}  // namespace

Frmtimdat::Frmtimdat(MainContext& maincontext, QWidget* parent)
    : ModalDialog("Frmtimdat", "Date Entry", parent), context(maincontext), entry(opendateentry(maincontext)) {
    buildlayout();
    filllists();
    setcolumns();
    showpicker();
    connectcontrols();
    settle(cmdOK, DTPicker);
}

void Frmtimdat::buildlayout() {
    auto* sets = new QVBoxLayout(this);
    sets->addWidget(buildpickerset());
    sets->addWidget(buildlistset());
    sets->setSizeConstraint(QLayout::SetFixedSize);
    const auto buttons = {cmdOK, cmdReset, datecancel, date1ok, Command1};
    int width = 0;
    for (const QPushButton* button : buttons)
        width = std::max(width, button->sizeHint().width());
    for (QPushButton* button : buttons)
        button->setFixedWidth(width + buttonroom);
}

QFrame* Frmtimdat::buildpickerset() {
    Label1 = named<QLabel>("Label1", pickerhelp);
    DTPicker = named<DateBox>("DTPicker", makedate(firsttypedyear, 1, 1), makedate(lasttypedyear, 12, 31));
    DTPicker->setMaxLength(longesttyped);
    DTPicker->setFixedWidth(fontMetrics().averageCharWidth() * 20);
    txtDayName = named<QLabel>("txtDayName");
    refusal = named<QLabel>("refusal");
    refusal->setTextFormat(Qt::PlainText);
    // Its sentences come and go without moving anything.
    refusal->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    refusal->setFixedHeight(refusal->fontMetrics().lineSpacing());
    QPalette warning = refusal->palette();
    warning.setColor(QPalette::WindowText, Qt::darkRed);
    refusal->setPalette(warning);
    cmdOK = named<QPushButton>("cmdOK", "&O.K.");
    cmdReset = named<QPushButton>("cmdReset", "&Reset to Today");
    datecancel = named<QPushButton>("datecancel", "&Cancel");

    QGridLayout* grid = nullptr;
    QFrame* frame = framedset(grid);
    auto* date = new QHBoxLayout;
    date->setSpacing(0);
    date->addWidget(DTPicker);
    date->addWidget(DTPicker->arrow);
    date->addSpacing(columngap);
    date->addWidget(txtDayName, 1);
    grid->addWidget(Label1, 0, 0);
    grid->addLayout(date, 1, 0);
    grid->addWidget(refusal, 2, 0, 1, 2);
    grid->addLayout(buttoncolumn({cmdOK, cmdReset, datecancel}), 0, 1, 2, 1);
    grid->setColumnStretch(0, 1);
    return frame;
}

QFrame* Frmtimdat::buildlistset() {
    Text3 = named<QLabel>("Text3", dayheading + QString(monthheading) + "Year");
    Text3->setTextFormat(Qt::PlainText);
    daylist = named<QListWidget>("daylist");
    monthlist = named<QListWidget>("monthlist");
    yearlist = named<QListWidget>("yearlist");
    daylist->setAccessibleName("Day");
    monthlist->setAccessibleName("Month");
    yearlist->setAccessibleName("Year");
    selectedday = namedvalue("selectedday");
    selectedmonth = namedvalue("selectedmonth");
    selectedyear = namedvalue("selectedyear");
    PredictedDay = named<QLabel>("PredictedDay");
    date1ok = named<QPushButton>("date1ok", " O.&K.");
    Command1 = named<QPushButton>("Command1", "C&ancel");

    QGridLayout* grid = nullptr;
    QFrame* frame = framedset(grid);
    grid->setHorizontalSpacing(columngap);
    grid->addWidget(Text3, 0, 0, 1, 3);
    int column = 0;
    for (const auto& [list, chosen] :
         {std::pair{daylist, selectedday}, std::pair{monthlist, selectedmonth}, std::pair{yearlist, selectedyear}}) {
        list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        grid->addWidget(list, 1, column);
        grid->addWidget(chosen, 2, column++);
    }
    grid->addWidget(PredictedDay, 2, 3);
    grid->addLayout(buttoncolumn({date1ok, Command1}), 1, 4);
    grid->setColumnStretch(3, 1);
    return frame;
}

/// Puts the lists under the words of Text3, whose blanks are widened where a list needs more room than they leave.
void Frmtimdat::setcolumns() {
    Text3->ensurePolished();
    const auto runwidth = [this](const char* run) { return Text3->fontMetrics().horizontalAdvance(run); };
    const int lacking = std::max(listwidth(daylist) + columngap - runwidth(dayheading),
                                 listwidth(monthlist) + columngap - runwidth(monthheading));
    QFont wide = Text3->font();
    wide.setWordSpacing(std::max(0, lacking));
    Text3->setFont(wide);
    daylist->setFixedWidth(runwidth(dayheading) - columngap);
    monthlist->setFixedWidth(runwidth(monthheading) - columngap);
    yearlist->setFixedWidth(listwidth(yearlist));
    const auto lists = {daylist, monthlist, yearlist};
    for (QListWidget* list : lists)
        list->setFixedHeight(rowsinview * list->sizeHintForRow(0) + 2 * list->frameWidth());
}

void Frmtimdat::connectcontrols() {
    connect(DTPicker, &QLineEdit::textEdited, this, &Frmtimdat::DTPicker_Change);
    connect(DTPicker, &QLineEdit::editingFinished, this, &Frmtimdat::DTPicker_Leave);
    DTPicker->onstep = [this](int days) {
        if (!stepdate(context, entry, days)) return context.services.messages.beep();
        showpicker();
        DTPicker->selectAll();
    };
    DTPicker->onpicked = [this](Date date) {
        pickdate(context, entry, date);
        showpicker();
    };
    connect(cmdOK, &QPushButton::clicked, this, &Frmtimdat::cmdOK_Click);
    connect(cmdReset, &QPushButton::clicked, this, &Frmtimdat::cmdReset_Click);
    connect(date1ok, &QPushButton::clicked, this, &Frmtimdat::date1ok_Click);
    connect(datecancel, &QPushButton::clicked, this, &Frmtimdat::reject);
    connect(Command1, &QPushButton::clicked, this, &Frmtimdat::reject);
    // Not the current row, which a list without a selection sets as soon as it gets the focus.
    connect(yearlist, &QListWidget::itemSelectionChanged, this, &Frmtimdat::yearlist_Click);
    connect(monthlist, &QListWidget::itemSelectionChanged, this, &Frmtimdat::monthlist_Click);
    connect(daylist, &QListWidget::itemSelectionChanged, this, &Frmtimdat::daylist_Click);
    // Enter confirms the set that the user is in; a button in focus takes it for itself.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
        if (now == DTPicker) cmdOK->setDefault(true);
        if (now == daylist || now == monthlist || now == yearlist) date1ok->setDefault(true);
    });
}

void Frmtimdat::showpicker() {
    DTPicker->setText(text(entry.typed));
    showread();
}

/// What the picker's text is read as.
void Frmtimdat::showread() {
    DTPicker->setcalendar(entry.pickeddate);
    txtDayName->setText(text(entry.txtDayName));
    refusal->setText(text(entry.refusal));
}

void Frmtimdat::filllists() {
    const DateLists& lists = entry.lists;
    refill(yearlist, lists.yearlist, lists.selected.year - lists.firstyear);
    refill(monthlist, lists.monthlist, lists.selected.month - 1);
    filldays();
}

void Frmtimdat::filldays() {
    refill(daylist, entry.lists.daylist, entry.lists.selected.day - 1);
    showselected();
}

void Frmtimdat::showselected() {
    const DateNumbers& selected = entry.lists.selected;
    selectedday->setText(QString::number(selected.day));
    selectedmonth->setText(text(entry.lists.monthlist[static_cast<std::size_t>(selected.month - 1)]));
    selectedyear->setText(QString::number(selected.year));
    PredictedDay->setText(text(predictedday(entry.lists, context.services.locale)));
}

void Frmtimdat::DTPicker_Change() {
    typedate(context, entry, DTPicker->text().toStdString());
    showread();
}

/// What was typed is shown as it was read.
void Frmtimdat::DTPicker_Leave() {
    if (!entry.refusal.empty()) return;
    pickdate(context, entry, entry.pickeddate);
    showpicker();
}

void Frmtimdat::cmdOK_Click() {
    if (confirmpicker(context, entry)) return accept();
    DTPicker->setFocus();
    DTPicker->selectAll();
}

void Frmtimdat::cmdReset_Click() {
    resetpicker(context, entry);
    showpicker();
}

void Frmtimdat::yearlist_Click() {
    chooseyear(entry.lists, yearlist->currentRow());
    filldays();
}

void Frmtimdat::monthlist_Click() {
    choosemonth(entry.lists, monthlist->currentRow());
    filldays();
}

void Frmtimdat::daylist_Click() {
    chooseday(entry.lists, daylist->currentRow());
    showselected();
}

void Frmtimdat::date1ok_Click() {
    confirmlists(context, entry);
    accept();
}

}  // namespace tarvane
