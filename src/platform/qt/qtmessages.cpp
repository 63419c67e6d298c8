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

/// Opens the box. The hourglass of a running command gives way to the plain pointer while the user reads and answers.
int opened(QMessageBox& box) {
    const QCursor* running = QApplication::overrideCursor();
    if (!running) return box.exec();
    const QCursor hourglass = *running;
    QApplication::changeOverrideCursor(Qt::ArrowCursor);
    const int answer = box.exec();
    QApplication::changeOverrideCursor(hourglass);
    return answer;
}

}  // namespace

void QtMessages::show(const std::string& text, const std::string& title, MessageIcon icon) {
    QMessageBox box(QApplication::activeWindow());
    prepare(box, text, title, icon);
    box.setStandardButtons(QMessageBox::Ok);
    opened(box);
}

bool QtMessages::ask(const std::string& text, const std::string& title, MessageIcon icon) {
    QMessageBox box(QApplication::activeWindow());
    prepare(box, text, title, icon);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    return opened(box) == QMessageBox::Yes;
}

Answer QtMessages::askorcancel(const std::string& text, const std::string& title, MessageIcon icon) {
    QMessageBox box(QApplication::activeWindow());
    prepare(box, text, title, icon);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::Cancel);
    switch (opened(box)) {
        case QMessageBox::Yes:
            return Answer::yes;
        case QMessageBox::No:
            return Answer::no;
        default:
            return Answer::cancel;
    }
}

void QtMessages::beep() {
    QApplication::beep();
}

}  // namespace tarvane
