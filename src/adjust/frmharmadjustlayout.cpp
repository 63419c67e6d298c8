// The controls of the workshop's window and where they stand.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>

#include "adjust/frmharmadjust.h"
#include "output/curvepicture.h"
#include "platform/qt/filteredbox.h"
#include "platform/qt/named.h"

namespace tarvane {
namespace {

/// The told names of a picture's column; parts in the order of `constituents`.
struct ColumnNames {
    const char *picture, *name, *height, *owner;
    std::array<const char*, constituents.size()> parts;
};

constexpr std::array<ColumnNames, curveplaces> columnnames{{
    {"Picture1",
     "lblportname1",
     "lblheight1",
     "portbox",
     {"lblP1M2", "lblP1S2", "lblP1K1", "lblP1O1", "lblP1f4", "lblP1f6", "lblP1Z0"}},
    {"Picture2",
     "lblintermediate",
     "lblheight2",
     "lblintermediateport",
     {"lblP2M2", "lblP2S2", "lblP2K1", "lblP2O1", "lblP2f4", "lblP2f6", "lblP2Z0"}},
    {"Picture3",
     "lblPortName3",
     "lblheight3",
     "Portbox3",
     {"lblP3M2", "lblP3S2", "lblP3K1", "lblP3O1", "lblP3f4", "lblP3f6", "lblp3Z0"}},
}};

/// A row of the table: its key, the head of its constants, and which these are; -1 for none.
struct TableRow {
    const char *key, *head;
    int first, second;
};

constexpr std::array<TableRow, constituents.size()> tablerows{{
    {"M2 (Blue)", "M2g, M2Hm", 1, 2},
    {"S2 (Red)", "S2g, S2Hm", 3, 4},
    {"K1 (Dotted Black)", "K1g, K1Hm", 5, 6},
    {"O1 ( Yellow)", "O1g, O1Hm", 7, 8},
    {"1/4 Diurnal(Green)", "f4, F4", 9, 10},
    {"1/6Diurnal(Magenta)", "f6,    F6", 11, 12},
    {"Z0 (Dotted Red)", "Z0", -1, 0},
}};

/// Grid rows, and the first grid column of a picture's three.
enum GridRow { namerow, picturerow, turningrow, headrow, firstrow };
constexpr int firstcolumn = 3, columnwidth = 3;

int columnof(CurvePlace place) {
    return firstcolumn + columnwidth * static_cast<int>(place);
}

/// A comma is the point of who types one; all else may be typed.
char32_t pointkey(char32_t key) {
    return key == ',' ? '.' : key;
}

QLabel* heading(const QString& text, Qt::Alignment alignment = Qt::AlignLeft) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(alignment | Qt::AlignBottom);
    label->setWordWrap(true);
    return label;
}

QLabel* number(const char* name) {
    QLabel* label = namedvalue(name);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 9);
    return label;
}

void setbold(QLabel* label) {
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
}

}  // namespace

void frmHarmAdjust::buildlayout() {
    auto* surface = new QWidget;
    auto* grid = new QGridLayout(surface);
    grid->setVerticalSpacing(3);
    grid->setHorizontalSpacing(8);
    grid->addLayout(buildside(), namerow, 0, headrow, firstcolumn);
    for (const CurvePlace place : {port1curve, intermediatecurve, port2curve})
        buildcolumn(*grid, place);
    buildrows(*grid);
    grid->setRowStretch(picturerow, 1);
    setCentralWidget(surface);
    answer = named<QLabel>("answer");
    answer->setTextFormat(Qt::PlainText);
    answer->setWordWrap(true);
    statusBar()->addWidget(answer, 1);
}

QLayout* frmHarmAdjust::buildside() {
    tidedatebox = named<QLabel>("tidedatebox");
    tidedatebox->setWordWrap(true);
    setbold(tidedatebox);
    Previousday = named<QPushButton>("Previousday", "Day <<");
    Previousday->setToolTip("The day before (Page Up)");
    Nextday = named<QPushButton>("Nextday", "Day >>");
    Nextday->setToolTip("The day after (Page Down)");
    cmdCalc = named<QPushButton>("cmdCalc", "Calculate");
    cmdCalc->setToolTip("Draws the curves of the constants as they stand (F5, or Enter in a box)");
    timeval = named<QLabel>("timeval");
    timeval->setTextFormat(Qt::PlainText);
    setbold(timeval);
    timeval->setToolTip("Alt+Left and Alt+Right step it by ten minutes");
    heightsname = named<QLabel>("heightsname");
    heightsname->setTextFormat(Qt::PlainText);
    heightsname->setWordWrap(true);
    cmdFit = named<QPushButton>("cmdFit", "Fit to Observed Heights");
    cmdUndo = named<QPushButton>("cmdUndo", "Undo");
    cmdUndo->setToolTip("Brings the boxes back that a fit, a load or a weighting has filled");
    found = named<QLabel>("found");
    found->setTextFormat(Qt::PlainText);
    found->setTextInteractionFlags(Qt::TextSelectableByMouse);
    found->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    found->setMinimumHeight(fontMetrics().lineSpacing() * 9);
    found->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    found->setWordWrap(true);

    auto* days = new QHBoxLayout;
    for (QPushButton* button : {Previousday, Nextday, cmdCalc})
        days->addWidget(button);
    auto* time = new QHBoxLayout;
    time->setSpacing(8);
    time->addWidget(new QLabel("Time"));
    time->addWidget(timeval, 1);
    auto* fit = new QHBoxLayout;
    fit->addWidget(cmdFit, 1);
    fit->addWidget(cmdUndo);
    auto* side = new QVBoxLayout;
    side->setSpacing(6);
    side->addWidget(tidedatebox);
    side->addLayout(days);
    side->addLayout(time);
    side->addWidget(heightsname);
    side->addLayout(fit);
    side->addWidget(found, 1);
    return side;
}

void frmHarmAdjust::buildcolumn(QGridLayout& grid, CurvePlace place) {
    const ColumnNames& names = columnnames[place];
    Column& column = columns[place];
    const int left = columnof(place);
    column.name = namedlabel(names.name, nullptr);
    setbold(column.name);
    column.picture = named<PictureBox>(names.picture);
    column.picture->setMinimumSize(240, 190);
    column.picture->setCursor(Qt::CrossCursor);
    column.turning = named<QLabel>("turning");
    column.turning->setTextFormat(Qt::PlainText);
    column.turning->setMinimumHeight(fontMetrics().lineSpacing());
    column.turning->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    column.turning->setToolTip("High and low waters of this curve");
    column.owner = namedlabel(names.owner, nullptr);
    column.owner->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    column.owner->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    column.height = number(names.height);
    setbold(column.height);
    if (place == intermediatecurve) {
        column.name->setText("Intermediate Location");
        column.owner->setText("Intermediate Port");
        column.picture->setAccessibleName("Tide curve of the intermediate location");
    } else {
        column.picture->setAccessibleName(place == port1curve ? "Tide curve of Port 1" : "Tide curve of Port 2");
    }
    grid.addWidget(column.name, namerow, left, 1, columnwidth);
    grid.addWidget(column.picture, picturerow, left, 1, columnwidth);
    grid.addWidget(column.turning, turningrow, left, 1, columnwidth);
    QLabel* contribution = heading("Constituents contribution to height", Qt::AlignRight);
    contribution->setMinimumWidth(fontMetrics().horizontalAdvance("Constituents "));
    grid.addWidget(contribution, headrow, left);
    grid.addWidget(column.owner, headrow, left + 1, 1, 2);
    for (std::size_t i = 0; i < constituents.size(); ++i) {
        const int row = firstrow + static_cast<int>(i);
        column.parts[i] = number(names.parts[i]);
        grid.addWidget(column.parts[i], row, left);
        const TableRow& told = tablerows[i];
        if (told.first >= 0) grid.addWidget(constantfield(place, static_cast<std::size_t>(told.first)), row, left + 1);
        grid.addWidget(constantfield(place, static_cast<std::size_t>(told.second)), row, left + 2);
    }
    grid.addWidget(column.height, firstrow + static_cast<int>(constituents.size()), left);
    // The boxes take twice the room of a label; every picture is as wide as the others.
    for (int i = 0; i < columnwidth; ++i)
        grid.setColumnStretch(left + i, 1);
}

QWidget* frmHarmAdjust::constantfield(CurvePlace place, std::size_t row) {
    if (place == intermediatecurve) return buildbox(row);
    auto& labels = place == port1curve ? labels1 : labels2;
    return labels[row] = number(place == port1curve ? constantrows[row].port1 : constantrows[row].port2);
}

void frmHarmAdjust::buildrows(QGridLayout& grid) {
    grid.addWidget(heading("Tide Raising Constituent"), headrow, 0, 1, 2);
    for (std::size_t i = 0; i < tablerows.size(); ++i) {
        const int row = firstrow + static_cast<int>(i);
        grid.addWidget(swatch(i), row, 0);
        grid.addWidget(new QLabel(tablerows[i].key), row, 1);
        grid.addWidget(new QLabel(tablerows[i].head), row, 2);
    }
    grid.addWidget(new QLabel("Arithmitic Total of constituients"), firstrow + static_cast<int>(tablerows.size()), 0, 1,
                   firstcolumn);
}

QWidget* frmHarmAdjust::buildbox(std::size_t row) {
    const ConstantRow& constant = constantrows[row];
    boxes[row] = named<FilteredBox>(constant.textbox, pointkey, context.services.messages);
    boxes[row]->setAlignment(Qt::AlignRight);
    boxes[row]->setMinimumWidth(fontMetrics().averageCharWidth() * 10);
    const QString name = QString(constant.textbox).mid(3);
    boxes[row]->setAccessibleName("Intermediate " + name);
    northmarks[row] =
        boxes[row]->addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::LeadingPosition);
    northmarks[row]->setText("Mean on the circle");
    steps[row] = named<StepControl>(constant.updown, constant.lowest, constant.highest);
    steps[row]->serve(*boxes[row]);
    auto* field = new QWidget;
    auto* both = new QHBoxLayout(field);
    both->setContentsMargins(0, 0, 0, 0);
    both->setSpacing(0);
    both->addWidget(boxes[row], 1);
    both->addWidget(steps[row]);
    return field;
}

/// A piece of a constituent's line as the pictures draw it.
PictureBox* frmHarmAdjust::swatch(std::size_t place) {
    auto* box = new PictureBox;
    box->setFixedSize(44, fontMetrics().height());
    box->setAccessibleName("Key");
    const auto draw = [box, place] {
        box->setpersistent(true);
        box->clear();
        box->setscale(0, 0, 44, 2);
        box->setlinewidth(2);
        box->setlinestyle(dashedlayers[place]);
        if (constituents[place].points)
            for (int x = 2; x < 44; x += 5)
                box->point(x, 1, constituents[place].colour);
        else
            box->line(2, 1, 42, 1, constituents[place].colour);
        box->setpersistent(false);
    };
    box->onresized = draw;
    draw();
    return box;
}

QAction* frmHarmAdjust::addentry(QMenu* menu, const char* name, const char* caption, void (frmHarmAdjust::*command)()) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, command);
    return action;
}

void frmHarmAdjust::buildmenus() {
    QMenu* const file = menuBar()->addMenu("&File");
    file->setObjectName("mnuFile");
    addentry(file, "mnuDataLoad", "Load Port Constants", &frmHarmAdjust::mnuDataLoad_Click);
    addentry(file, "MnuFileSave", "Save Intermediate Port to file", &frmHarmAdjust::MnuFileSave_Click)
        ->setShortcut(QKeySequence::Save);
    addentry(file, "MnuFileExit", "&Exit", &frmHarmAdjust::MnuFileExit_Click);
    QMenu* const heights = menuBar()->addMenu("Data");
    heights->setObjectName("mnuData");
    addentry(heights, "mnuObsEnterData", "Enter Observed Heights", &frmHarmAdjust::mnuObsEnterData_Click);
    addentry(heights, "mnuDataHeightSelect", "Select a height file to display",
             &frmHarmAdjust::mnuDataHeightSelect_Click);
    heights->addSeparator();
    mnuFit = addentry(heights, "mnuFit", "&Fit to Observed Heights", &frmHarmAdjust::fit_Click);
    addentry(heights, "mnuUndo", "&Undo", &frmHarmAdjust::undo_Click);
    heights->addSeparator();
    addentry(heights, "mnuWeigh", "&Weight by Distance", &frmHarmAdjust::weigh_Click);
    addentry(heights, "mnuCircle", "Mean of Phases on the &Circle", &frmHarmAdjust::circle_Click);
}

}  // namespace tarvane
