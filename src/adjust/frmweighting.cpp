#include "adjust/frmweighting.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/qt/filteredbox.h"
#include "platform/qt/named.h"

namespace tarvane {
namespace {

bool digitorpoint(char32_t key) {
    return (key >= '0' && key <= '9') || key == '.';
}

char32_t upper(char32_t key) {
    return key >= 'a' && key <= 'z' ? key - 'a' + 'A' : key;
}

char32_t latitudekey(char32_t key) {
    const char32_t letter = upper(key == ',' ? '.' : key);
    return digitorpoint(letter) || letter == 'N' || letter == 'S' ? letter : 0;
}

char32_t longitudekey(char32_t key) {
    const char32_t letter = upper(key == ',' ? '.' : key);
    return digitorpoint(letter) || letter == 'E' || letter == 'W' ? letter : 0;
}

char32_t zonekey(char32_t key) {
    return (key >= '0' && key <= '9') || key == '-' || key == '+' ? key : 0;
}

}  // namespace

frmWeighting::frmWeighting(MainContext& maincontext, AdjustWorkspace& adjustworkspace, QWidget* parent)
    : ModalDialog("frmWeighting", "Weight by Distance", parent), context(maincontext), workspace(adjustworkspace) {
    buildlayout();
    const PlaceTexts texts = placetexts(workspace);
    txtname->setText(QString::fromStdString(texts.name));
    txtlat->setText(QString::fromStdString(texts.latitude));
    txtlong->setText(QString::fromStdString(texts.longitude));
    txtzone->setText(QString::fromStdString(texts.zone));
    showunderstood();
    for (QLineEdit* box : {txtname, txtlat, txtlong, txtzone})
        connect(box, &QLineEdit::textChanged, this, &frmWeighting::showunderstood);
    connect(cmdWeigh, &QPushButton::clicked, this, &frmWeighting::cmdWeigh_Click);
    connect(cmdPlace, &QPushButton::clicked, this, &frmWeighting::cmdPlace_Click);
    connect(cmdClose, &QPushButton::clicked, this, &frmWeighting::reject);
    settle(cmdWeigh, txtname);
}

void frmWeighting::buildlayout() {
    Messages& messages = context.services.messages;
    txtname = named<QLineEdit>("txtname");
    txtname->setMaxLength(35);
    txtlat = named<FilteredBox>("txtlat", latitudekey, messages);
    txtlat->setPlaceholderText("50.45.00N");
    txtlong = named<FilteredBox>("txtlong", longitudekey, messages);
    txtlong->setPlaceholderText("001.30.00W");
    txtzone = named<FilteredBox>("txtzone", zonekey, messages);
    understood = named<QLabel>("understood");
    understood->setTextFormat(Qt::PlainText);
    understood->setWordWrap(true);
    understood->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    understood->setMinimumWidth(fontMetrics().averageCharWidth() * 56);
    cmdWeigh = named<QPushButton>("cmdWeigh", "&Weight by Distance");
    cmdWeigh->setToolTip("Fills the boxes with the constants at this place");
    cmdPlace = named<QPushButton>("cmdPlace", "&Keep Place Only");
    cmdPlace->setToolTip("The boxes stay; name, position and zone go into the saved record");
    cmdClose = named<QPushButton>("cmdClose", "Cancel");
    auto* form = new QFormLayout;
    form->addRow("&Name of the place", txtname);
    form->addRow("L&atitude", txtlat);
    form->addRow("L&ongitude", txtlong);
    form->addRow("&Zone, hours (0 for UT, -1 for UT+1)", txtzone);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {cmdWeigh, cmdPlace, cmdClose})
        buttons->addWidget(button);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(form);
    whole->addWidget(understood);
    whole->addLayout(buttons);
}

PlaceUnderstood frmWeighting::typed() const {
    return understandplace(workspace, {txtname->text().toStdString(), txtlat->text().toStdString(),
                                       txtlong->text().toStdString(), txtzone->text().toStdString()});
}

void frmWeighting::showunderstood() {
    const PlaceUnderstood now = typed();
    understood->setText(QString::fromStdString(now.words));
    cmdWeigh->setEnabled(now.weighable);
    cmdPlace->setEnabled(now.good);
}

void frmWeighting::cmdWeigh_Click() {
    const PlaceUnderstood now = typed();
    weighbydistance(workspace, now.place);
    workspace.answer = "Weighed by distance: " + now.words + " Press Calculate.";
    accept();
}

void frmWeighting::cmdPlace_Click() {
    workspace.place = typed().place;
    workspace.answer = "The place goes into the saved record.";
    accept();
}

}  // namespace tarvane
