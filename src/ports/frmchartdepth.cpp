#include "ports/frmchartdepth.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/named.h"
#include "platform/qt/numberbox.h"
#include "platform/qt/twips.h"

namespace tarvane {
namespace {

constexpr int rowsinview = 22;

}  // namespace

frmChartdepth::frmChartdepth(MainContext& mainview, QWidget* parent)
    : ModalDialog(parent),
      List1(named<QListWidget>("List1")),
      portlabel(namedvalue("portlabel")),
      portnolabel(namedvalue("portnolabel")),
      depth(named<NumberBox>("depth")),
      usernotes(named<QPlainTextEdit>("usernotes")),
      noteslimit(named<QLabel>("noteslimit")),
      cdok(named<QPushButton>("cdok", "&Enter")),
      cdclose(named<QPushButton>("cdclose", "E&xit")),
      context(mainview),
      notes(loadusernotes(mainview)) {
    setObjectName("frmChartdepth");
    setWindowTitle("User Depth and Notes");
    buildlayout();
    for (const std::string& row : notes.rows)
        List1->addItem(QString::fromStdString(row));
    const int rowheight = std::max(List1->sizeHintForRow(0), fontMetrics().lineSpacing());
    List1->setMinimumHeight(rowsinview * rowheight + 2 * List1->frameWidth());
    shownotes();
    adjustSize();
    List1->setCurrentRow(context.session.settings.currentport - 1);
    connectcontrols();
    centreon(*this, parent ? parent->window() : nullptr);
}

void frmChartdepth::buildlayout() {
    const int character = fontMetrics().averageCharWidth();
    List1->setMinimumWidth(character * 40 + twips(600));
    List1->setAccessibleName("Ports");
    portlabel->setMinimumWidth(character * 35);
    usernotes->setMinimumSize(character * 44, usernotes->fontMetrics().lineSpacing() * 9);
    usernotes->setTabChangesFocus(true);
    depth->setMaximumWidth(character * 16);

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
    side->addLayout(buttons);
    auto* whole = new QHBoxLayout(this);
    whole->addWidget(List1);
    whole->addLayout(side, 1);

    QWidget* order[] = {List1, depth, usernotes, cdok, cdclose};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
    cdok->setDefault(true);
    depth->setFocus();
}

void frmChartdepth::connectcontrols() {
    connect(List1, &QListWidget::itemSelectionChanged, this, &frmChartdepth::List1_Click);
    connect(List1, &QListWidget::itemDoubleClicked, this, &frmChartdepth::List1_DblClick);
    connect(depth, &QLineEdit::textEdited, this, &frmChartdepth::depth_Change);
    connect(usernotes->document(), &QTextDocument::contentsChange, this, [this](int position, int, int added) {
        typedat = position;
        typedcount = added;
    });
    connect(usernotes, &QPlainTextEdit::textChanged, this, &frmChartdepth::usernotes_Change);
    connect(cdok, &QPushButton::clicked, this, &frmChartdepth::cdok_Click);
    connect(cdclose, &QPushButton::clicked, this, &frmChartdepth::reject);
}

void frmChartdepth::shownotes() {
    const QSignalBlocker quiet(usernotes);
    portlabel->setText(QString::fromStdString(notes.portlabel));
    portnolabel->setText(QString::fromStdString(notes.portnolabel));
    depth->setText(QString::fromStdString(notes.depth));
    usernotes->setPlainText(QString::fromStdString(notes.usernotes));
    shownnote = usernotes->toPlainText();
    showstate();
}

void frmChartdepth::showEvent(QShowEvent* event) {
    ModalDialog::showEvent(event);
    List1->scrollToItem(List1->currentItem(), QAbstractItemView::PositionAtCenter);
}

bool frmChartdepth::changed() const {
    return depth->text().toStdString() != notes.depth || usernotes->toPlainText() != shownnote;
}

void frmChartdepth::showstate() {
    const std::size_t length = notelength(usernotes->toPlainText().toStdString());
    noteslimit->setText(QString("%1 of %2 characters").arg(length).arg(longestnote) +
                        (changed() ? ", not entered yet" : ""));
}

bool frmChartdepth::offertoenter() {
    if (!changed()) return true;
    const std::string question = "The depth or the note of " + notes.portlabel + " was changed. Enter it?";
    return !context.services.messages.ask(question, "Tarvane") || cdok_Click();
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

void frmChartdepth::depth_Change() {
    const QString typed = depth->text();
    QString kept;
    qsizetype cursor = 0;
    for (qsizetype i = 0; i < typed.size(); ++i) {
        if (!depthcharacter(typed[i].unicode())) continue;
        kept += typed[i];
        if (i < depth->cursorPosition()) cursor = kept.size();
    }
    if (kept != typed) {
        depth->setText(kept);
        depth->setCursorPosition(static_cast<int>(cursor));
        context.services.messages.beep();
    }
    showstate();
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

void frmChartdepth::reject() {
    if (!offertoenter()) return;
    closeusernotes(context);
    ModalDialog::reject();
}

}  // namespace tarvane
