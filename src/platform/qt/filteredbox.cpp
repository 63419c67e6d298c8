#include "platform/qt/filteredbox.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <memory>

namespace tarvane {
namespace {

/// True for a key that puts characters into a text box; the others move, delete or belong to the window.
bool types(const QKeyEvent& key) {
    const bool shortcut = (key.modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier;
    return !shortcut && !key.text().isEmpty() && key.text().at(0).category() != QChar::Other_Control;
}

bool deletes(const QKeyEvent& key) {
    return key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Delete;
}

}  // namespace

FilteredBox::FilteredBox(KeyRule keyrule, Messages& bell) : rule(keyrule), messages(bell) {}

QString FilteredBox::filtered(const QString& typed) {
    QString kept;
    bool dropped = false;
    for (const char32_t character : typed.toStdU32String()) {
        const char32_t taken = rule(character);
        if (taken)
            kept += QString::fromUcs4(&taken, 1);
        else
            dropped = true;
    }
    if (dropped) messages.beep();
    return kept;
}

void FilteredBox::pressed() {
    if (onkey) onkey();
}

void FilteredBox::take(const QString& typed) {
    // An empty insertion would wipe out what is selected.
    if (const QString kept = filtered(typed); !kept.isEmpty()) insert(kept);
    pressed();
}

void FilteredBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste)) return take(QGuiApplication::clipboard()->text());
    if (types(*event)) return take(event->text());
    const bool changing = deletes(*event);
    QLineEdit::keyPressEvent(event);
    if (changing) pressed();
}

void FilteredBox::inputMethodEvent(QInputMethodEvent* event) {
    if (event->commitString().isEmpty()) return QLineEdit::inputMethodEvent(event);
    QInputMethodEvent kept(event->preeditString(), event->attributes());
    kept.setCommitString(filtered(event->commitString()), event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&kept);
    pressed();
}

void FilteredBox::mouseReleaseEvent(QMouseEvent* event) {
    QClipboard* const clipboard = QGuiApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection())
        return QLineEdit::mouseReleaseEvent(event);
    deselect();
    take(clipboard->text(QClipboard::Selection));
}

void FilteredBox::dropEvent(QDropEvent* event) {
    if (event->source() == this) return QLineEdit::dropEvent(event);
    QMimeData kept;
    kept.setText(filtered(event->mimeData()->text()));
    QDropEvent drop(event->position(), event->possibleActions(), &kept, event->buttons(), event->modifiers());
    QLineEdit::dropEvent(&drop);
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(drop.isAccepted());
    pressed();
}

void FilteredBox::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    for (QAction* entry : menu->actions())
        if (disconnect(entry, nullptr, this, SLOT(paste())))
            connect(entry, &QAction::triggered, this, [this] { take(QGuiApplication::clipboard()->text()); });
    menu->exec(event->globalPos());
}

}  // namespace tarvane
