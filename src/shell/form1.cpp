#include "shell/form1.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

#include "dates/dateformats.h"
#include "platform/qt/twips.h"

namespace tarvane {

namespace {

struct InfoRow {
    int lctype;
    const char* caption;
};

constexpr std::array<InfoRow, 13> inforows{{{1, "Language id"},
                                            {2, "Localised name of language"},
                                            {4097, "English name of language"},
                                            {34, "Long date format ordering"},
                                            {33, "Short date format ordering"},
                                            {32, "Long date format"},
                                            {31, "Short date format"},
                                            {36, "Century format specifier"},
                                            {29, "Date separator"},
                                            {4105, "Type of calendar"},
                                            {4107, "Additional calendar types"},
                                            {4108, "First day of week specifier"},
                                            {4109, "First week of year specifier"}}};

const char* orderingtext(const std::string& number) {
    if (number == "0") return "0   Month - Day - Year";
    if (number == "1") return "1   Day - Month - Year";
    if (number == "2") return "2   Year - Month - Day";
    return "";
}

}  // namespace

Form1::Form1(const Locale& system, QWidget* parent) : QDialog(parent), locale(system) {
    setObjectName(QStringLiteral("Form1"));
    setWindowTitle(QStringLiteral("Form1"));
    buildlayout();
    connect(Command1, &QPushButton::clicked, this, &Form1::Command1_Click);
    Command1_Click();
}

void Form1::buildlayout() {
    auto* const layout = new QFormLayout(this);
    for (std::size_t i = 0; i < inforows.size(); ++i) {
        texts[i] = new QLineEdit(this);
        texts[i]->setObjectName(QStringLiteral("Text%1").arg(i));
        texts[i]->setReadOnly(true);
        texts[i]->setMinimumWidth(twips(4200));
        layout->addRow(QString::fromUtf8(inforows[i].caption), texts[i]);
    }
    Command1 = new QPushButton(QStringLiteral("Get Info"), this);
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setDefault(true);
    layout->addRow(Command1);
}

void Form1::Command1_Click() {
    const int lcid = locale.systemid();
    for (std::size_t i = 0; i < inforows.size(); ++i) {
        const int lctype = inforows[i].lctype;
        const std::string text = LocaleInfoText(locale, lcid, lctype);
        const bool ordering = lctype == 33 || lctype == 34;
        texts[i]->setText(QString::fromStdString(ordering ? orderingtext(text) : text));
        texts[i]->setCursorPosition(0);
    }
}

}  // namespace tarvane
