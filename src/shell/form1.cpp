#include "shell/form1.h"

#include <QFormLayout>

#include "platform/qt/named.h"
#include "platform/qt/twips.h"
#include "shell/localeinfo.h"

namespace tarvane {

Form1::Form1(const Locale& system, QWidget* parent) : ModalDialog("Form1", "Form1", parent), locale(system) {
    buildlayout();
    connect(Command1, &QPushButton::clicked, this, &Form1::Command1_Click);
    Command1_Click();
    settle(Command1, Command1);
}

void Form1::buildlayout() {
    auto* rows = new QFormLayout(this);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        texts[i] = named<QLineEdit>(qPrintable(QString("Text%1").arg(i)));
        texts[i]->setReadOnly(true);
        texts[i]->setMinimumWidth(twips(4200));
        rows->addRow(localeinforows(locale)[i].caption, texts[i]);
    }
    Command1 = named<QPushButton>("Command1", "Get Info");
    rows->addRow(Command1);
}

void Form1::Command1_Click() {
    const auto rows = localeinforows(locale);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        texts[i]->setText(QString::fromStdString(rows[i].text));
        texts[i]->setCursorPosition(0);
    }
}

}  // namespace tarvane
