#include "reader/frmhelpkey.h"

#include <QApplication>
#include <QKeyEvent>

#include "reader/windowchapters.h"

namespace tarvane {

HelpKey::~HelpKey() {
    delete shown;
}

void HelpKey::open(const std::string& windowname) {
    const bool fresh = !shown;
    if (fresh) {
        shown = new frmPDFReader(given, where);
        shown->setAttribute(Qt::WA_DeleteOnClose);
    }
    if (shown->isMinimized()) shown->showNormal();
    shown->show();
    shown->raise();
    shown->activateWindow();
    if (fresh) shown->openmanual(manualfile);
    // The user can have closed it while he was told that there is no manual.
    if (!shown) return;
    // That message stood before another window, which is in front behind it.
    if (fresh) shown->raise();
    if (fresh) shown->activateWindow();
    shown->gotochapter(chapterof(windowname).value_or(""));
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    const auto* const press = static_cast<QKeyEvent*>(event);
    if (press->key() != Qt::Key_F1 || press->modifiers() != Qt::NoModifier) return false;
    // An open menu or list holds the mouse: nothing could be done with the manual.
    if (QApplication::activePopupWidget()) return false;
    // A message box or a file dialog stands for the window that it belongs to.
    const QWidget* window = static_cast<QWidget*>(watched)->window();
    while (window->parentWidget() && !chapterof(window->objectName().toStdString()))
        window = window->parentWidget()->window();
    open(window->objectName().toStdString());
    return true;
}

}  // namespace tarvane
