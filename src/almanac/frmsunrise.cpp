#include "almanac/frmsunrise.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "almanac/frmriseresults.h"
#include "almanac/sunview.h"
#include "platform/qt/named.h"
#include "platform/qt/twips.h"

namespace tarvane {
namespace {

using KeyRule = char (*)(char);

/// What one character of a box becomes; nothing for one that the box doesn't take.
QString filtered(QChar character, KeyRule rule) {
    const char kept = rule(character.toLatin1());
    return kept ? QString(QLatin1Char(kept)) : QString();
}

}  // namespace

Frmsunrise::Frmsunrise(MainContext& maincontext, QWidget* parent) : ModalDialog(parent), context(maincontext) {
    setObjectName("Frmsunrise");
    setWindowTitle("Sunrise and Sunset");
    buildlayout();
    const SunInput input = portsuninput(context.session);
    port->setText(QString::fromStdString(input.port));
    latitude->setText(QString::fromStdString(input.latitude));
    longitude->setText(QString::fromStdString(input.longitude));
    for (QLineEdit* box : {latitude, longitude}) {
        box->installEventFilter(this);
        connect(box, &QLineEdit::textEdited, this, [this, box] { position_Change(*box); });
    }
    connect(ok, &QPushButton::clicked, this, &Frmsunrise::ok_Click);
    connect(cancel, &QPushButton::clicked, this, &Frmsunrise::reject);
    adjustSize();
    centreon(*this, parent ? parent->window() : nullptr);
}

void Frmsunrise::buildlayout() {
    port = namedvalue("port");
    port->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    latlabel = named<QLabel>("latlabel", "&Latitude");
    longlabel = named<QLabel>("longlabel", "L&ongitude");
    latitude = named<QLineEdit>("latitude");
    longitude = named<QLineEdit>("longitude");
    latlabel->setBuddy(latitude);
    longlabel->setBuddy(longitude);
    ok = named<QPushButton>("ok", "&Calculate");
    cancel = named<QPushButton>("cancel", "Cancel");
    ok->setDefault(true);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(twips(180));
    grid->setVerticalSpacing(twips(120));
    grid->addWidget(new QLabel("Port"), 0, 0);
    grid->addWidget(port, 0, 1, 1, 2);
    grid->addWidget(latlabel, 1, 0);
    grid->addWidget(latitude, 1, 1);
    grid->addWidget(new QLabel("degrees.minutes and N or S, as 50.45N"), 1, 2);
    grid->addWidget(longlabel, 2, 0);
    grid->addWidget(longitude, 2, 1);
    grid->addWidget(new QLabel("degrees.minutes and E or W, as 1.30W"), 2, 2);
    for (QLineEdit* box : {latitude, longitude})
        box->setFixedWidth(fontMetrics().averageCharWidth() * 16);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(twips(240), twips(240), twips(240), twips(180));
    whole->setSpacing(twips(240));
    whole->addLayout(grid);
    whole->addLayout(buttons);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    setTabOrder(latitude, longitude);
    setTabOrder(longitude, ok);
    setTabOrder(ok, cancel);
    latitude->setFocus();
}

bool Frmsunrise::eventFilter(QObject* watched, QEvent* event) {
    auto* box = qobject_cast<QLineEdit*>(watched);
    if (!box || event->type() != QEvent::KeyPress) return ModalDialog::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    // Enter, Escape and Tab belong to the window, keys held with Ctrl or Alt to the box.
    for (const int passed : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab})
        if (key->key() == passed) return false;
    const bool shortcut = key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (shortcut || key->text().isEmpty()) return false;
    return positionkey(*box, key->text());
}

/// True if the box is not to see the key.
bool Frmsunrise::positionkey(QLineEdit& box, const QString& typed) {
    port->setText(userentry);
    const QString kept = typed.size() == 1 ? filtered(typed[0], &box == latitude ? latitudekey : longitudekey) : "";
    if (kept == typed) return false;
    if (!kept.isEmpty()) box.insert(kept);
    return true;
}

/// What was pasted or dropped into the box passes the same filter.
void Frmsunrise::position_Change(QLineEdit& box) {
    port->setText(userentry);
    QString kept;
    for (const QChar character : box.text())
        kept += character == QLatin1Char(' ') ? QString(character)
                                              : filtered(character, &box == latitude ? latitudekey : longitudekey);
    if (kept != box.text()) box.setText(kept);
}

void Frmsunrise::ok_Click() {
    const SunInput input{port->text().toStdString(), latitude->text().toStdString(), longitude->text().toStdString()};
    const SunOutcome outcome = calculatesun(context, input);
    if (outcome != SunOutcome::calculated) {
        QLineEdit* refused = outcome == SunOutcome::badlongitude ? longitude : latitude;
        refused->setFocus();
        refused->selectAll();
        return;
    }
    accept();
    Frmriseresults results(context, parentWidget());
    context.services.windows.showmodal(results);
}

}  // namespace tarvane
