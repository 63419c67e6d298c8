#include "ports/frmchartdepth.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/named.h"
#include "platform/qt/twips.h"

namespace tarvane {
frmChartdepth::frmChartdepth(MainContext& maincontext, QWidget* parent)
    : ModalDialog("frmChartdepth", "User Depth and Notes", parent),
      context(maincontext),
      notes(loadusernotes(maincontext)) {
    buildlayout();
    for (const std::string& row : notes.rows)
        List1->addItem(QString::fromStdString(row));
    setrowsinview(*List1, 22);
    List1->setCurrentRow(context.session.settings.currentport - 1);
    shownotes();
    connectcontrols();
    settle(cdok, depth);
}

void frmChartdepth::buildlayout() {
    List1 = named<QListWidget>("List1");
    List1->setMinimumWidth(fontMetrics().averageCharWidth() * 40 + twips(600));
    List1->setAccessibleName("Ports");
    auto* whole = new QHBoxLayout(this);
    whole->addWidget(List1);
    whole->addLayout(buildside(), 1);
}

QLayout* frmChartdepth::buildside() {
    const int character = fontMetrics().averageCharWidth();
    portlabel = namedvalue("portlabel");
    portlabel->setMinimumWidth(character * 35);
    portnolabel = namedvalue("portnolabel");
    depth = named<FilteredBox>("depth", depthkey, context.services.messages);
    depth->setMaximumWidth(character * 16);
    usernotes = named<QPlainTextEdit>("usernotes");
    usernotes->setMinimumSize(character * 44, usernotes->fontMetrics().lineSpacing() * 9);
    usernotes->setTabChangesFocus(true);
    noteslimit = named<QLabel>("noteslimit");
    matchline = named<QLabel>("matchline");
    matchline->setWordWrap(true);
    matchnames = named<QPushButton>("matchnames", "&Match by Name");
    cdok = named<QPushButton>("cdok", "&Enter");
    cdclose = named<QPushButton>("cdclose", "E&xit");
    auto* depthcaption = new QLabel("User &depth (Metres)?", this);
    depthcaption->setBuddy(depth);
    auto* notescaption = new QLabel("User  &Notes", this);
    notescaption->setBuddy(usernotes);

    auto* port = new QHBoxLayout;
    port->addWidget(portnolabel);
    port->addSpacing(twips(120));
    port->addWidget(portlabel, 1);
    auto* depthrow = new QHBoxLayout;
    depthrow->addWidget(depthcaption);
    depthrow->addWidget(depth);
    depthrow->addStretch(1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(matchnames);
    buttons->addStretch(1);
    buttons->addWidget(cdok);
    buttons->addWidget(cdclose);
    auto* side = new QVBoxLayout;
    side->addLayout(port);
    side->addLayout(depthrow);
    side->addSpacing(twips(120));
    side->addWidget(notescaption);
    side->addWidget(usernotes, 1);
    side->addWidget(noteslimit);
    side->addWidget(matchline);
    side->addLayout(buttons);
    return side;
}

void frmChartdepth::connectcontrols() {
    connect(List1, &QListWidget::itemSelectionChanged, this, &frmChartdepth::List1_Click);
    connect(List1, &QListWidget::itemDoubleClicked, this, &frmChartdepth::List1_DblClick);
    connect(depth, &QLineEdit::textEdited, this, &frmChartdepth::showstate);
    connect(usernotes->document(), &QTextDocument::contentsChange, this, [this](int position, int, int added) {
        typedat = position;
        typedcount = added;
    });
    connect(usernotes, &QPlainTextEdit::textChanged, this, &frmChartdepth::usernotes_Change);
    connect(cdok, &QPushButton::clicked, this, &frmChartdepth::cdok_Click);
    connect(matchnames, &QPushButton::clicked, this, &frmChartdepth::matchnames_Click);
    connect(cdclose, &QPushButton::clicked, this, &frmChartdepth::reject);
}

void frmChartdepth::shownotes() {
    const QSignalBlocker quiet(usernotes);
    portlabel->setText(QString::fromStdString(notes.portlabel));
    portnolabel->setText(QString::fromStdString(notes.portnolabel));
    depth->setText(QString::fromStdString(notes.depth));
    usernotes->setPlainText(QString::fromStdString(notes.usernotes));
    // The box has its own forms of some blanks, and these are no change.
    notes.usernotes = usernotes->toPlainText().toStdString();
    matchline->setText(QString::fromStdString(notes.matchline));
    matchline->setVisible(!notes.matchline.empty());
    matchnames->setEnabled(!notes.matchline.empty());
    showstate();
}

void frmChartdepth::showstate() {
    const std::string state = notestate(notes, depth->text().toStdString(), usernotes->toPlainText().toStdString());
    noteslimit->setText(QString::fromStdString(state));
}

/// True if what is shown may go: it is entered, unchanged or given up.
bool frmChartdepth::offertoenter() {
    if (!notechanged(notes, depth->text().toStdString(), usernotes->toPlainText().toStdString())) return true;
    const Answer answer = context.services.messages.askorcancel(enterquestion(notes), "Tarvane");
    if (answer == Answer::no || (answer == Answer::yes && cdok_Click())) return true;
    const bool depthchanged = depth->text().toStdString() != notes.depth;
    (depthchanged ? static_cast<QWidget*>(depth) : usernotes)->setFocus();
    return false;
}

void frmChartdepth::List1_Click() {
    const auto selected = List1->selectedItems();
    if (selected.isEmpty()) return;
    const int index = List1->row(selected.first());
    if (offertoenter()) {
        pickusernotes(context.session.settings, notes, index);
        shownotes();
    } else {
        const QSignalBlocker quiet(List1);
        List1->setCurrentRow(QString::fromStdString(notes.portnolabel).toInt() - 1);
    }
}

void frmChartdepth::List1_DblClick() {
    if (!offertoenter()) return;
    pickandnameport(context.session, notes, List1->currentRow());
    shownotes();
    depth->setFocus();
}

void frmChartdepth::usernotes_Change() {
    // Only what came in can be too much: what stood in the note before stays, also behind the place of typing.
    QTextCursor incoming(usernotes->document());
    incoming.setPosition(typedat);
    incoming.setPosition(std::min(typedat + typedcount, usernotes->document()->characterCount() - 1),
                         QTextCursor::KeepAnchor);
    const std::string typed = incoming.selectedText().replace(QChar::ParagraphSeparator, QChar('\n')).toStdString();
    const std::size_t whole = notelength(usernotes->toPlainText().toStdString());
    const std::string admitted = admittednote(typed, whole - notelength(typed));
    if (admitted != typed) {
        const QSignalBlocker quiet(usernotes);
        incoming.joinPreviousEditBlock();
        incoming.insertText(QString::fromStdString(admitted));
        incoming.endEditBlock();
        context.services.messages.beep();
    }
    showstate();
}

bool frmChartdepth::cdok_Click() {
    const bool entered =
        enterusernotes(context, notes, depth->text().toStdString(), usernotes->toPlainText().toStdString());
    if (entered) shownotes();
    return entered;
}

void frmChartdepth::matchnames_Click() {
    if (!offertoenter()) return;
    matchnotes(context, notes);
    shownotes();
}

void frmChartdepth::reject() {
    if (!offertoenter()) return;
    closeusernotes(context);
    ModalDialog::reject();
}

}  // namespace tarvane
