// The planner's controls and where they lie.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QSplitter>
#include <QVBoxLayout>

#include "dates/typeddate.h"
#include "planner/frmplanner.h"
#include "platform/qt/clickselect.h"
#include "platform/qt/foldingbox.h"
#include "platform/qt/named.h"
#include "platform/qt/screentext.h"
#include "platform/qt/steadybox.h"
#include "platform/qt/stepcontrol.h"

namespace tarvane {
namespace {

QToolButton* stepbutton(const char* name, const QString& face, const char* words) {
    auto* button = named<QToolButton>(name);
    button->setText(face);
    button->setToolTip(words);
    button->setAccessibleName(words);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QComboBox* choicebox(const char* name, const QStringList& rows, const char* words) {
    auto* box = named<QComboBox>(name);
    box->addItems(rows);
    box->setAccessibleName(words);
    // The wheel is the window's until the box is clicked.
    box->setFocusPolicy(Qt::StrongFocus);
    return box;
}

QLabel* textlabel(const char* name, bool wraps) {
    auto* label = named<QLabel>(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(wraps);
    if (!wraps) label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// For so many lines, also while there are fewer.
void keeproom(QLabel& label, int lines) {
    label.setText(QString("\n").repeated(lines - 1));
    label.setMinimumHeight(label.heightForWidth(QWIDGETSIZE_MAX));
    label.clear();
}

QHBoxLayout* bare(QHBoxLayout* row) {
    row->setContentsMargins(0, 0, 0, 0);
    return row;
}

/// "1 day", "6 days", "1 week", "31 days": one for each span that a plan can have.
QStringList spannames() {
    QStringList names;
    for (int days = 1; days <= mostplandays; ++days) {
        const bool weeks = days % 7 == 0;
        const int count = weeks ? days / 7 : days;
        names << QString("%1 %2%3").arg(count).arg(QLatin1String(weeks ? "week" : "day"),
                                                   QLatin1String(count == 1 ? "" : "s"));
    }
    return names;
}

struct FieldPlace {
    const char* name;
    const char* caption;
    const char* hint;
    const char* example;
};

constexpr std::array<FieldPlace, planfields> fieldplaces{
    {{"txtDraught", "D&raught, m", "How deep the boat goes, metres", ""},
     {"txtClearance", "C&learance, m", "Water to be kept under the keel, metres", ""},
     {"txtBottom", "&Bottom, m",
      "Charted depth in metres below chart datum; negative if it dries: -2 for a sill that dries 2 m",
      "negative if it dries"},
     {"txtBridge", "Bri&dge, m", "Height of a bridge above its level, metres; empty for none", "none"},
     {"txtMast", "&Mast, m", "How high the mast stands above the water, metres", ""},
     {"txtBridgeLevel", "Br&idge level, m",
      "How many metres above chart datum the level lies that the bridge's height is given for, such as mean high water "
      "springs",
      "above chart datum"},
     {"txtLeast", "&At least, minutes", "Shorter windows are left out", "any"}}};

}  // namespace

void frmplanner::buildlayout() {
    picture = new PlanPictureBox(view, context.services);
    picture->setMinimumHeight(picture->sizeHint().height());
    lblNow = textlabel("lblNow", true);
    lblNeeded = textlabel("lblNeeded", true);
    lblAnswer = textlabel("lblAnswer", true);
    lblCursor = textlabel("lblCursor", false);
    lblFoot = textlabel("lblFoot", false);
    lblSaid = textlabel("lblSaid", true);
    lblSaid->setVisible(false);
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * 1.15);
    larger.setBold(true);
    lblAnswer->setFont(larger);
    lblNow->setFont(larger);

    auto* lower = new FoldingBox(buildquestion(), buildpages(), 0, 1);
    auto* split = named<QSplitter>("split", Qt::Vertical);
    split->addWidget(picture);
    split->addWidget(lower);
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 1);
    split->setChildrenCollapsible(false);

    auto* whole = new QWidget;
    auto* rows = new QVBoxLayout(whole);
    rows->addWidget(new FoldingBox(buildports(), builddays(), 1, 0));
    rows->addWidget(lblKept = new KeptNote);
    const int leastwidth = fontMetrics().averageCharWidth() * 30;
    rows->addWidget(new SteadyBox({lblNow}, leastwidth));
    rows->addWidget(split, 1);
    rows->addWidget(new SteadyBox({lblFoot}, leastwidth));
    // Where the screen has less room than all of it needs, the lower part is scrolled to. What is said of a moment or a
    // command stays in view.
    area = named<QScrollArea>("area");
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(whole);
    auto* window = new QWidget;
    auto* parts = new QVBoxLayout(window);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(0);
    parts->addWidget(area, 1);
    auto* foot = new QVBoxLayout;
    foot->setContentsMargins(rows->contentsMargins().left(), 0, rows->contentsMargins().right(),
                             fontMetrics().height() / 4);
    foot->setSpacing(0);
    foot->addWidget(lblSaid);
    foot->addWidget(lblCursor);
    parts->addLayout(foot);
    setCentralWidget(window);
}

QWidget* frmplanner::buildports() {
    cmbPort = choicebox("cmbPort", {}, "Port");
    cmbPort->setEditable(true);
    cmbPort->setInsertPolicy(QComboBox::NoInsert);
    cmbPort->setMinimumContentsLength(17);
    selectonclick(cmbPort->lineEdit());
    cmdAbout = stepbutton("cmdAbout", "", "About this port");
    cmdFind = stepbutton("cmdFind", "Find", "Find a port in all areas (Ctrl+F)");
    cmdMap = stepbutton("cmdMap", "Map", "Choose a port on the map (Ctrl+M)");
    auto* whole = new QWidget;
    auto* row = bare(new QHBoxLayout(whole));
    row->addWidget(captionof("&Port", cmbPort));
    row->addWidget(cmbPort, 1);
    for (QToolButton* button : {cmdAbout, cmdFind, cmdMap}) {
        button->setAutoRaise(button == cmdAbout);
        row->addWidget(button);
    }
    return whole;
}

QWidget* frmplanner::builddays() {
    cmdPreviousWeek = stepbutton("cmdPreviousWeek", "\u00AB", "Previous week");
    cmdPreviousDay = stepbutton("cmdPreviousDay", "\u2039", "Previous day");
    cmdNextDay = stepbutton("cmdNextDay", "\u203A", "Next day");
    cmdNextWeek = stepbutton("cmdNextWeek", "\u00BB", "Next week");
    cmdToday = stepbutton("cmdToday", "Today", "Today");
    cmdToday->setAutoRaise(false);
    DTPicker = named<DateBox>("DTPicker", makedate(firsttypedyear, 1, 1), makedate(lasttypedyear, 12, 31));
    DTPicker->setMaxLength(30);
    selectonclick(DTPicker);
    DTPicker->setAccessibleName("First day");
    DTPicker->setFixedWidth(fontMetrics().averageCharWidth() * 16);
    lblDayName = textlabel("lblDayName", false);
    lblDayName->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    cmbSpan = choicebox("cmbSpan", spannames(), "Span");
    cmbSpan->setMaxVisibleItems(mostplandays);
    cmbClock = choicebox("cmbClock", {"Port's clock", "Universal time", "Zone time", "This computer's clock"}, "Clock");

    auto* whole = new QWidget;
    auto* row = bare(new QHBoxLayout(whole));
    auto* date = new QHBoxLayout;
    date->setSpacing(0);
    for (QWidget* each : {static_cast<QWidget*>(cmdPreviousWeek), static_cast<QWidget*>(cmdPreviousDay),
                          static_cast<QWidget*>(DTPicker), static_cast<QWidget*>(DTPicker->arrow),
                          static_cast<QWidget*>(cmdNextDay), static_cast<QWidget*>(cmdNextWeek)})
        date->addWidget(each);
    row->addWidget(lblDayName);
    row->addLayout(date);
    row->addWidget(cmdToday);
    row->addWidget(captionof("&Span", cmbSpan));
    row->addWidget(cmbSpan);
    row->addWidget(captionof("Cl&ock", cmbClock));
    row->addWidget(cmbClock);
    row->addStretch(0);
    return whole;
}

QWidget* frmplanner::buildquestion() {
    fraQuestion = named<QGroupBox>("fraQuestion", "&When can I go?");
    fraQuestion->setCheckable(true);
    fraQuestion->installEventFilter(this);
    auto* grid = new QGridLayout;
    for (std::size_t i = 0; i < planfields; ++i) {
        const FieldPlace& place = fieldplaces[i];
        fields[i] = named<QLineEdit>(place.name);
        fields[i]->setToolTip(place.hint);
        fields[i]->setAccessibleDescription(place.hint);
        fields[i]->setPlaceholderText(place.example);
        fields[i]->setMaxLength(20);
        selectonclick(fields[i]);
        fields[i]->setMinimumWidth(fontMetrics().averageCharWidth() * 7);
        // The room is for the tables, where no hint needs it.
        if (i % 3 < 2) fields[i]->setMaximumWidth(fontMetrics().averageCharWidth() * 8);
        const int row = static_cast<int>(i / 3), column = static_cast<int>(i % 3) * 2;
        grid->addWidget(captionof(place.caption, fields[i]), row, column, Qt::AlignRight | Qt::AlignVCenter);
        grid->addLayout(withsteps(static_cast<PlanField>(i)), row, column + 1);
    }
    auto* wishes = buildwishes();
    grid->addLayout(wishes, 2, 2, 1, 4);
    auto* rows = new QVBoxLayout(fraQuestion);
    rows->addLayout(grid);
    auto* days = new QHBoxLayout;
    days->setSpacing(2);
    lblOnly = captionof("Onl&y on", nullptr);
    lblOnly->setToolTip("None pressed: every day is as good");
    lblOnly->installEventFilter(this);
    days->addWidget(lblOnly);
    for (std::size_t i = 0; i < weekdays.size(); ++i) {
        const int sundayfirst = static_cast<int>((i + 1) % 7);
        const QString name = QString::fromStdString(context.services.locale.dayname(sundayfirst));
        weekdays[i] = named<QToolButton>("weekday");
        weekdays[i]->setText(QString::fromStdString(context.services.locale.dayabbreviation(sundayfirst)));
        weekdays[i]->setAccessibleName(name);
        weekdays[i]->setToolTip(name);
        weekdays[i]->setCheckable(true);
        weekdays[i]->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        days->addWidget(weekdays[i]);
    }
    lblOnly->setBuddy(weekdays[0]);
    rows->addLayout(days);
    lblAnswer->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    // What stands above stays where it is, however long they become.
    lblNeeded->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    keeproom(*lblNeeded, 2);
    keeproom(*lblAnswer, 4);
    rows->addWidget(new SteadyBox({lblNeeded, lblAnswer}, fontMetrics().averageCharWidth() * 30), 1);
    return fraQuestion;
}

QLayout* frmplanner::withsteps(PlanField which) {
    QLineEdit* const field = fields[static_cast<std::size_t>(which)];
    StepArrows*& arrows = steps[static_cast<std::size_t>(which)];
    arrows = named<StepArrows>("steps");
    arrows->serve(*field);
    arrows->onstep = [this, field, which](int by) {
        const QString text = screentext(stepped(field->text().toStdString(), which, by));
        if (text == field->text()) return;
        field->setText(text);
        ask();
    };
    auto* both = bare(new QHBoxLayout);
    both->setSpacing(0);
    both->addWidget(field);
    both->addWidget(arrows);
    return both;
}

QLayout* frmplanner::buildwishes() {
    cmbDaylight = choicebox("cmbDaylight", {"By day or night", "Partly in daylight", "Wholly in daylight"}, "Daylight");
    chkTwilight = named<QCheckBox>("chkTwilight", "and &twilight");
    chkTwilight->setToolTip("Civil twilight counts as daylight: the sun is less than 6 degrees down");
    auto* row = new QHBoxLayout;
    row->addWidget(cmbDaylight);
    row->addWidget(chkTwilight);
    row->addStretch(1);
    return row;
}

QWidget* frmplanner::buildpages() {
    tides = new PlanTableBox("tides", "Tides");
    windows = new PlanTableBox("windows", "Access");
    sunandmoon = new PlanTableBox("sunandmoon", "Sun and Moon");
    pages = named<QTabWidget>("pages");
    pages->setMinimumSize(fontMetrics().averageCharWidth() * 48, fontMetrics().height() * 10);
    pages->addTab(tides, "Tides");
    pages->addTab(windows, "Access");
    pages->addTab(sunandmoon, "Sun and Moon");
    return pages;
}

}  // namespace tarvane
