#include "platform/qt/qtclipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace tarvane {

void QtClipboard::clear() {
    QGuiApplication::clipboard()->clear();
}

void QtClipboard::settext(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

std::string QtClipboard::text() const {
    return QGuiApplication::clipboard()->text().toStdString();
}

}  // namespace tarvane
