#include "almanac/frmsunrise.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "almanac/frmriseresults.h"
#include "almanac/sunview.h"
#include "platform/qt/named.h"
#include "platform/qt/twips.h"

namespace tarvane {

Frmsunrise::Frmsunrise(MainContext& maincontext, QWidget* parent)
    : ModalDialog("Frmsunrise", "Sunrise and Sunset", parent), context(maincontext) {
    buildlayout();
    const SunInput input = portsuninput(context.session);
    port->setText(QString::fromStdString(input.port));
    latitude->setText(QString::fromStdString(input.latitude));
    longitude->setText(QString::fromStdString(input.longitude));
    for (FilteredBox* box : {latitude, longitude})
        box->onkey = [this] { port->setText(userentry); };
    connect(ok, &QPushButton::clicked, this, &Frmsunrise::ok_Click);
    connect(cancel, &QPushButton::clicked, this, &Frmsunrise::reject);
    settle(ok, latitude);
}

void Frmsunrise::buildlayout() {
    port = namedvalue("port");
    port->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    latlabel = named<QLabel>("latlabel", "&Latitude");
    longlabel = named<QLabel>("longlabel", "L&ongitude");
    latitude = named<FilteredBox>("latitude", latitudekey, context.services.messages);
    longitude = named<FilteredBox>("longitude", longitudekey, context.services.messages);
    latlabel->setBuddy(latitude);
    longlabel->setBuddy(longitude);
    ok = named<QPushButton>("ok", "&Calculate");
    cancel = named<QPushButton>("cancel", "Cancel");

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
