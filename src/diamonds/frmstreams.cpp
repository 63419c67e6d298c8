#include "diamonds/frmstreams.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "dates/typeddate.h"
#include "platform/qt/named.h"
#include "platform/qt/screentext.h"

namespace tarvane {
namespace {

constexpr int hours = static_cast<int>(streamhours);
constexpr int rowsseen = 15;
constexpr int leastpicture = 140;

QLabel* wrapped(const char* name) {
    auto* label = named<QLabel>(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

void refillbox(QComboBox* box, const std::vector<std::string>& rows, int chosen) {
    const QSignalBlocker quiet(box);
    box->clear();
    for (const std::string& row : rows)
        box->addItem(screentext(row));
    box->setCurrentIndex(chosen < box->count() ? chosen : -1);
}

}  // namespace

frmstreams::frmstreams(MainContext& maincontext, QWidget* parent)
    : ModalDialog("frmstreams", "Streams for a Day", parent), context(maincontext), view(openstreams(maincontext)) {
    buildlayout();
    filllists();
    showdate();
    showstreams();
    connectcontrols();
    settle(cancel, view.files.empty() ? static_cast<QWidget*>(cancel) : table);
}

void frmstreams::buildlayout() {
    buildtable();
    Picture1 = named<PictureBox>("Picture1");
    Picture1->setMinimumSize(leastpicture, leastpicture);
    Picture1->setMouseTracking(true);
    Picture1->setAccessibleName("Streams on a compass rose");
    lblhour = named<QLabel>("lblhour");
    lblhour->setTextFormat(Qt::PlainText);
    lblhour->setAlignment(Qt::AlignCenter);
    lblabout = wrapped("lblabout");
    lblnote = wrapped("lblnote");

    auto* middle = new QHBoxLayout;
    middle->addWidget(table, 1);
    middle->addWidget(Picture1, 1);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(buildchoices());
    whole->addLayout(builddate());
    whole->addWidget(lblabout);
    whole->addLayout(middle, 1);
    whole->addWidget(lblhour);
    whole->addWidget(lblnote);
    whole->addLayout(buildfoot());
}

QLayout* frmstreams::buildchoices() {
    cmbFile = named<QComboBox>("cmbFile");
    cmbDiamond = named<QComboBox>("cmbDiamond");
    cmbPort = named<QComboBox>("cmbPort");
    auto* row = new QHBoxLayout;
    const auto add = [&](const char* caption, QComboBox* box, int characters) {
        box->setMinimumContentsLength(characters);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        row->addWidget(captionof(caption, box));
        row->addWidget(box, characters);
    };
    add("&File", cmbFile, 10);
    add("Dia&mond", cmbDiamond, 14);
    add("&Reference Port", cmbPort, 14);
    return row;
}

QLayout* frmstreams::builddate() {
    Previousday = named<QPushButton>("Previousday", "&Previous Day");
    Nextday = named<QPushButton>("Nextday", "&Next Day");
    DTPicker = named<DateBox>("DTPicker", makedate(firsttypedyear, 1, 1), makedate(lasttypedyear, 12, 31));
    DTPicker->setMaxLength(30);
    DTPicker->setFixedWidth(fontMetrics().averageCharWidth() * 18);
    txtDayName = named<QLabel>("txtDayName");
    txtDayName->setTextFormat(Qt::PlainText);
    txtDayName->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* row = new QHBoxLayout;
    row->addWidget(captionof("&Date", DTPicker));
    auto* date = new QHBoxLayout;
    date->setSpacing(0);
    date->addWidget(DTPicker);
    date->addWidget(DTPicker->arrow);
    row->addWidget(Previousday);
    row->addLayout(date);
    row->addWidget(Nextday);
    row->addWidget(txtDayName, 1);
    return row;
}

QLayout* frmstreams::buildfoot() {
    lblanswer = named<QLabel>("lblanswer");
    lblanswer->setTextFormat(Qt::PlainText);
    lblanswer->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    cmdCopy = named<QPushButton>("cmdCopy", "&Copy");
    cmdSave = named<QPushButton>("cmdSave", "&Save as CSV");
    cancel = named<QPushButton>("cancel", "E&xit");
    auto* row = new QHBoxLayout;
    row->addWidget(lblanswer, 1);
    for (QPushButton* button : {cmdCopy, cmdSave, cancel})
        row->addWidget(button);
    return row;
}

void frmstreams::buildtable() {
    table = named<QTableWidget>("table");
    table->setAccessibleName("Streams hour by hour");
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->setMouseTracking(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    QStringList headings;
    for (const std::string& heading : streamheadings())
        headings << QString::fromStdString(heading);
    table->setColumnCount(static_cast<int>(headings.size()));
    table->setHorizontalHeaderLabels(headings);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setStretchLastSection(true);
}

QSize frmstreams::sizeHint() const {
    int columns = 0;
    for (int column = 0; column < table->columnCount(); ++column)
        columns += std::max(static_cast<const QAbstractItemView*>(table)->sizeHintForColumn(column), 0) + 1;
    // All columns beside a picture as wide as the table.
    const int bar = table->verticalScrollBar()->sizeHint().width() + 2 * table->frameWidth();
    const int half = std::max(columns + bar, fontMetrics().averageCharWidth() * 62);
    return ModalDialog::sizeHint().expandedTo({2 * half + 40, half + 200});
}

void frmstreams::connectcontrols() {
    const auto onchoice = [this](QComboBox* box, auto choose) {
        connect(box, &QComboBox::currentIndexChanged, this, [this, box, choose](int index) {
            choose(context, view, index);
            if (box == cmbFile) filldiamonds();
            showstreams();
        });
    };
    onchoice(cmbFile, choosestreamfile);
    onchoice(cmbDiamond, choosediamond);
    onchoice(cmbPort, choosestreamport);
    connect(Previousday, &QPushButton::clicked, this, [this] { stepday(-1); });
    connect(Nextday, &QPushButton::clicked, this, [this] { stepday(1); });
    connect(DTPicker, &QLineEdit::textEdited, this, &frmstreams::DTPicker_Change);
    DTPicker->onstep = [this](int days) { stepday(days); };
    DTPicker->onpicked = [this](DateBox::Date date) {
        choosestreamdate(context, view, date);
        showdate();
        showstreams();
    };
    connect(table, &QTableWidget::currentCellChanged, this, [this](int row) { showrow(row); });
    connect(table, &QTableWidget::cellEntered, this, [this](int row) { showrow(row); });
    table->viewport()->installEventFilter(this);
    Picture1->onmousemove = [this](double x, double y) { Picture1_MouseMove(x, y); };
    Picture1->onresized = [this] { drawpicture(); };
    const auto onbutton = [this](QPushButton* button, auto act) {
        connect(button, &QPushButton::clicked, this, [this, act] {
            act(context, view);
            lblanswer->setText(screentext(context.session.view.answer));
        });
    };
    onbutton(cmdCopy, copystreams);
    onbutton(cmdSave, savestreams);
    connect(cancel, &QPushButton::clicked, this, &frmstreams::reject);
}

void frmstreams::filllists() {
    refillbox(cmbFile, view.files, view.file);
    refillbox(cmbPort, view.ports, view.port);
    filldiamonds();
}

void frmstreams::filldiamonds() {
    refillbox(cmbDiamond, view.diamonds, view.diamond);
}

void frmstreams::showdate() {
    DTPicker->setText(
        QString::fromStdString(typeddate(view.date, context.session.conventions, context.services.locale)));
    showdayname();
}

void frmstreams::showdayname() {
    DTPicker->setcalendar(view.date);
    const std::string name = formatdate(context.services.locale, view.date, "dddd");
    txtDayName->setText("(" + QString::fromStdString(name) + ")");
}

void frmstreams::showstreams() {
    filltable();
    // Without streams the reason stands where they would be told.
    lblabout->setText(screentext(view.about.empty() ? view.note : view.about));
    lblnote->setText(screentext(view.about.empty() ? "" : view.note));
    lblanswer->clear();
    const bool any = !view.streams.tides.empty();
    cmdCopy->setEnabled(any);
    cmdSave->setEnabled(any);
    showrow(table->currentRow());
}

void frmstreams::filltable() {
    const QSignalBlocker quiet(table);
    const int before = table->currentRow();
    const auto rows = streamtable(context, view);
    table->clearContents();
    table->setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < table->rowCount(); ++row) {
        const auto& cells = rows[static_cast<std::size_t>(row)];
        for (int column = 0; column < table->columnCount(); ++column) {
            auto* cell = new QTableWidgetItem(screentext(cells[static_cast<std::size_t>(column)]));
            if (row % hours == static_cast<int>(highwaterplace)) {
                QFont bold = table->font();
                bold.setBold(true);
                cell->setFont(bold);
            }
            table->setItem(row, column, cell);
        }
    }
    table->resizeColumnsToContents();
    setrowsinview(*table, rowsseen);
    // The same hour of the day in hand; at first the first high water.
    const int kept = before < 0 ? static_cast<int>(highwaterplace) : std::min(before, table->rowCount() - 1);
    if (table->rowCount() > 0) table->setCurrentCell(kept, 1);
}

void frmstreams::showrow(int row) {
    strongrow = row;
    lblhour->setText(screentext(streamsentence(view, row)));
    drawpicture();
}

void frmstreams::drawpicture() {
    const auto tide = static_cast<std::size_t>(std::max(strongrow, 0) / hours);
    Picture1->setscale(0, 0, Picture1->width(), Picture1->height());
    if (tide >= view.streams.tides.size()) {
        rose = {};
        Picture1->setpersistent(true);
        Picture1->clear();
        return Picture1->setpersistent(false);
    }
    const QFontMetrics metrics = Picture1->fontMetrics();
    rose = layrose(view.streams.tides[tide],
                   {double(Picture1->width()), double(Picture1->height()), double(metrics.height()),
                    double(std::max(metrics.horizontalAdvance("0"), metrics.horizontalAdvance("W")))});
    drawrose(*Picture1, rose);
    const std::optional<int> hour =
        strongrow < 0 ? std::nullopt : std::optional(strongrow % hours - static_cast<int>(highwaterplace));
    drawstrong(*Picture1, rose, hour);
}

void frmstreams::Picture1_MouseMove(double x, double y) {
    const auto hour = hourat(rose, {x, y});
    if (!hour) return;
    const int row = std::max(strongrow, 0) / hours * hours + *hour + static_cast<int>(highwaterplace);
    if (row == table->currentRow()) return;
    table->setCurrentCell(row, 1);
}

void frmstreams::DTPicker_Change() {
    const ReadDate read = readdate(DTPicker->text().toStdString(), context.session.conventions, context.services.locale,
                                   context.services.clock.now().today);
    if (!read.date) return txtDayName->setText(screentext(read.refusal));
    choosestreamdate(context, view, *read.date);
    // The text stays as it is typed.
    showdayname();
    showstreams();
}

void frmstreams::stepday(int days) {
    choosestreamdate(context, view, view.date + std::chrono::days(days));
    showdate();
    showstreams();
}

bool frmstreams::eventFilter(QObject* watched, QEvent* event) {
    if (watched == table->viewport() && event->type() == QEvent::Leave) showrow(table->currentRow());
    return ModalDialog::eventFilter(watched, event);
}

void frmstreams::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // A date that was typed ends so; the window stays.
    if (enter && DTPicker->hasFocus()) return showdate();
    ModalDialog::keyPressEvent(event);
}

}  // namespace tarvane
