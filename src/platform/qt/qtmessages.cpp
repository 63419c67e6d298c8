#include "platform/qt/qtmessages.h"

#include <QApplication>
#include <QMessageBox>

namespace tarvane {

namespace {

QMessageBox::Icon boxicon(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::information:
            return QMessageBox::Information;
        case MessageIcon::question:
            return QMessageBox::Question;
        case MessageIcon::exclamation:
            return QMessageBox::Warning;
        case MessageIcon::none:
            break;
    }
    return QMessageBox::NoIcon;
}

void prepare(QMessageBox& box, const std::string& text, const std::string& title, MessageIcon icon) {
    QString lines = QString::fromStdString(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    box.setTextFormat(Qt::PlainText);
    box.setText(lines);
    box.setWindowTitle(QString::fromStdString(title));
    box.setIcon(boxicon(icon));
}

}  // namespace

void QtMessages::show(const std::string& text, const std::string& title, MessageIcon icon) {
    QMessageBox box(QApplication::activeWindow());
    prepare(box, text, title, icon);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

bool QtMessages::ask(const std::string& text, const std::string& title, MessageIcon icon) {
    QMessageBox box(QApplication::activeWindow());
    prepare(box, text, title, icon);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void QtMessages::beep() {
    QApplication::beep();
}

}  // namespace tarvane
