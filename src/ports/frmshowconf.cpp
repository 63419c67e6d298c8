#include "ports/frmshowconf.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/named.h"

namespace tarvane {
namespace {

constexpr int notelines = 6;
constexpr int digitsinview = 9;

void put(QLabel* label, const std::string& value) {
    label->setText(QString::fromStdString(value));
}

}  // namespace

frmshowconf::frmshowconf(MainContext& maincontext, QWidget* parent)
    : ModalDialog("frmshowconf", "Current Configuration and User Notes", parent),
      context(maincontext),
      view(openconfiguration(maincontext.session)) {
    buildlayout();
    showconfiguration();
    connect(confportlist, &QListWidget::itemSelectionChanged, this, &frmshowconf::confportlist_Click);
    connect(Confexit, &QPushButton::clicked, this, &frmshowconf::accept);
    settle(Confexit, confportlist);
}

void frmshowconf::buildlayout() {
    confportlist = named<QListWidget>("confportlist");
    confportlist->setAccessibleName("Ports");
    auto* sides = new QHBoxLayout(this);
    sides->addWidget(confportlist);
    sides->addLayout(buildvalues(), 1);
}

QLayout* frmshowconf::buildvalues() {
    portnolabel = namedvalue("portnolabel");
    confportnamebox = namedvalue("confportnamebox");
    sealabel = namedvalue("sealabel");
    confdraughtbox = namedvalue("confdraughtbox");
    confukcbox = namedvalue("confukcbox");
    confoutputoption = namedvalue("confoutputoption");
    depth = namedvalue("depth");
    notes = named<QPlainTextEdit>("notes");
    notes->setReadOnly(true);
    notes->setAccessibleName("USER NOTES");
    notes->setTabChangesFocus(true);
    notes->setMinimumHeight(notelines * fontMetrics().lineSpacing());
    notes->setMinimumWidth(40 * fontMetrics().averageCharWidth());
    Confexit = named<QPushButton>("Confexit", "E&xit");

    auto* values = new QGridLayout;
    const auto addrow = [&](int row, const char* caption, QWidget* first, QWidget* second = nullptr) {
        values->addWidget(new QLabel(caption), row, 0);
        values->addWidget(first, row, 1);
        if (second) values->addWidget(second, row, 2);
    };
    const auto addwiderow = [&](int row, const char* caption, QWidget* value) {
        values->addWidget(new QLabel(caption), row, 0);
        values->addWidget(value, row, 1, 1, 2);
    };
    addwiderow(0, "Sea Area", sealabel);
    addwiderow(1, "Output", confoutputoption);
    addrow(2, "Draught", confdraughtbox);
    addrow(3, "UKC", confukcbox, new QLabel("(Under Keel Clearance)"));
    values->setRowMinimumHeight(4, fontMetrics().height() / 2);
    addrow(5, "Port", portnolabel, confportnamebox);
    addrow(6, "User Depth", depth);
    values->setColumnMinimumWidth(1, digitsinview * fontMetrics().horizontalAdvance('0'));
    values->setColumnStretch(2, 1);

    auto* right = new QVBoxLayout;
    right->addLayout(values);
    right->addWidget(new QLabel("USER NOTES"));
    right->addWidget(notes, 1);
    right->addWidget(Confexit, 0, Qt::AlignRight);
    return right;
}

void frmshowconf::showconfiguration() {
    put(sealabel, view.sealabel);
    put(confdraughtbox, view.confdraughtbox);
    put(confukcbox, view.confukcbox);
    put(confoutputoption, view.confoutputoption);
    for (const std::string& port : view.port.rows)
        confportlist->addItem(QString::fromStdString(port));
    const int rowwidth = confportlist->sizeHintForColumn(0) + 2 * confportlist->frameWidth() +
                         confportlist->verticalScrollBar()->sizeHint().width() + 2;
    confportlist->setFixedWidth(std::max(rowwidth, 24 * fontMetrics().averageCharWidth()));
    setrowsinview(*confportlist, 16);
    confportlist->setCurrentRow(view.selectedrow);
    showport();
}

void frmshowconf::showport() {
    put(portnolabel, view.port.portnolabel);
    put(confportnamebox, view.port.portlabel);
    put(depth, view.port.depth);
    notes->setPlainText(QString::fromStdString(view.port.usernotes));
}

void frmshowconf::confportlist_Click() {
    pickusernotes(context.session.settings, view.port, confportlist->currentRow());
    showport();
}

}  // namespace tarvane
