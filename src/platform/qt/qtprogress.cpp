#include "platform/qt/qtprogress.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressDialog>

namespace tarvane {
namespace {

/// How often what has come in and is to be painted gets its turn, milliseconds.
constexpr qint64 turn = 30;

}  // namespace

bool QtProgress::run(const std::string& text, int steps, const std::function<bool(int)>& step) {
    QProgressDialog dialog(QString(), "Cancel", 0, steps, QApplication::activeWindow());
    auto* label = new QLabel(QString::fromStdString(text));
    label->setTextFormat(Qt::PlainText);
    dialog.setLabel(label);
    dialog.setWindowTitle("Tarvane");
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setMinimumDuration(0);
    dialog.setAutoClose(false);
    dialog.setAutoReset(false);
    dialog.setValue(0);
    QApplication::processEvents();
    QElapsedTimer since;
    since.start();
    for (int i = 0; i < steps && !dialog.wasCanceled(); ++i) {
        if (!step(i)) return false;
        if (since.elapsed() < turn) continue;
        dialog.setValue(i + 1);
        QApplication::processEvents();
        since.restart();
    }
    return !dialog.wasCanceled();
}

}  // namespace tarvane
