// The controls of the editor of harmonic constants and their places.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/qt/named.h"
#include "platform/qt/twips.h"
#include "ports/frmharmedit.h"

namespace tarvane {
namespace {

constexpr int filerows = 5;
constexpr int numberdigits = 9;
constexpr int namecharacters = 22;

struct ConstantRow {
    const char *caption, *phase, *magnitude;
};

constexpr ConstantRow constantrows[] = {
    {"M2", "txtm2g", "txtm2hm"}, {"S2", "txts2g", "txts2hm"}, {"K1", "txtk1g", "txtk1hm"},
    {"O1", "txto1g", "txto1hm"}, {"f4", "txtsf4", "txtlf4"},  {"f6", "txtsf6", "txtlf6"},
};

constexpr const char* months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

}  // namespace

void frmharmedit::buildlayout() {
    buildboxes();
    lblstatus = named<QLabel>("lblstatus");
    lblstatus->setTextFormat(Qt::PlainText);
    lblstatus->setWordWrap(true);
    lblstatus->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblstatus->setMinimumHeight(2 * lblstatus->fontMetrics().lineSpacing());

    auto* port = new QVBoxLayout;
    port->addLayout(buildport());
    port->addSpacing(twips(150));
    port->addLayout(buildconstants());
    port->addStretch(1);
    auto* columns = new QHBoxLayout;
    columns->addLayout(buildlists(), 1);
    columns->addSpacing(twips(150));
    columns->addLayout(port);
    columns->addSpacing(twips(150));
    columns->addLayout(buildmonths());
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(columns, 1);
    whole->addSpacing(twips(90));
    whole->addLayout(buildbuttons());
    whole->addWidget(lblstatus);
}

void frmharmedit::buildboxes() {
    for (const PortBox& each : portboxes()) {
        auto* made = named<FilteredBox>(each.name, boxkey(each.kind), context.services.messages);
        made->setAccessibleName(QString(each.caption).remove('&'));
        if (each.kind == BoxKind::number) made->setToolTip(made->accessibleName());
        if (each.kind != BoxKind::text)
            made->setFixedWidth(numberdigits * fontMetrics().horizontalAdvance('0') + twips(240));
        boxes.push_back(made);
    }
    box("txtportno")->setFixedWidth(box("txtz0")->width());
    box("txtportname")->setMinimumWidth(namecharacters * fontMetrics().averageCharWidth());
    for (const char* position : {"txtportlat", "txtportlong"})
        box(position)->setFixedWidth(fontMetrics().horizontalAdvance("000.00.00W") + twips(300));
}

QLayout* frmharmedit::buildlists() {
    fileList = named<QListWidget>("fileList");
    portlist = named<QListWidget>("portlist");
    for (QListWidget* list : {fileList, portlist}) {
        list->setMinimumWidth(namecharacters * fontMetrics().averageCharWidth() + twips(300));
        list->installEventFilter(this);
    }
    setrowsinview(*portlist, 12);
    fileList->setFixedHeight(filerows * fontMetrics().lineSpacing() + 2 * fileList->frameWidth() + twips(90));
    auto* lists = new QVBoxLayout;
    lists->addWidget(captionof("Choose the area to &edit", fileList));
    lists->addWidget(fileList);
    lists->addWidget(captionof("P&orts", portlist));
    lists->addWidget(portlist, 1);
    return lists;
}

QLayout* frmharmedit::buildport() {
    auto* grid = new QGridLayout;
    int row = 0;
    for (const char* name : {"txtportno", "txtportname", "txtportlat", "txtportlong", "txtTimeZone", "txtz0"}) {
        FilteredBox* const each = box(name);
        grid->addWidget(captionof(portboxes()[boxplace(name)].caption, each), row, 0);
        grid->addWidget(each, row++, 1);
    }
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout* frmharmedit::buildconstants() {
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel("Phase (degrees)"), 0, 1);
    grid->addWidget(new QLabel("Amplitude"), 0, 2);
    int row = 1;
    for (const ConstantRow& each : constantrows) {
        grid->addWidget(captionof(each.caption, box(each.phase)), row, 0);
        grid->addWidget(box(each.phase), row, 1);
        grid->addWidget(box(each.magnitude), row++, 2);
    }
    grid->setColumnStretch(3, 1);
    return grid;
}

QLayout* frmharmedit::buildmonths() {
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel("MHm2 Monthly Values"), 0, 1);
    grid->addWidget(new QLabel("Delta Z0"), 0, 2);
    for (std::size_t i = 0; i < portboxes().size(); ++i) {
        const PortBox& each = portboxes()[i];
        if (!each.months) continue;
        const int row = static_cast<int>(each.month) + 1;
        const bool amplitude = each.months == &HarmonicRecord::MHm2;
        if (amplitude) grid->addWidget(captionof(months[each.month], boxes[i]), row, 0);
        grid->addWidget(boxes[i], row, amplitude ? 1 : 2);
    }
    grid->setRowStretch(static_cast<int>(std::size(months)) + 1, 1);
    return grid;
}

QLayout* frmharmedit::buildbuttons() {
    chartok = named<QPushButton>("chartok", "&Accept Changes");
    cmdAdd = named<QPushButton>("cmdAdd", "Add &Port");
    cmdInsert = named<QPushButton>("cmdInsert", "&Insert Port");
    cmdDelete = named<QPushButton>("cmdDelete", "&Delete Port");
    cmdClear = named<QPushButton>("cmdClear", "&Clear Data");
    Command2 = named<QPushButton>("Command2", "E&xit");
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {chartok, cmdAdd, cmdInsert, cmdDelete, cmdClear, Command2}) {
        if (button == Command2) buttons->addStretch(1);
        buttons->addWidget(button);
        // Enter accepts or leaves; what else changes the file wants a click, Space or its letter.
        button->setAutoDefault(button == chartok || button == Command2);
    }
    return buttons;
}

}  // namespace tarvane
