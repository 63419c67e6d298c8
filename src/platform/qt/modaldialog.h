// The base of every modal window: its name, what every constructor ends with, and its place and size on the screen.
// Must not hold what a window does.
#pragma once

#include <QDialog>

#include "platform/windows.h"

class QAbstractItemView;
class QPushButton;

namespace tarvane {

class ModalDialog : public QDialog, public ModalWindow {
  public:
    std::string windowname() const override { return objectName().toStdString(); }
    void runmodal() override { exec(); }

  protected:
    ModalDialog(const char* name, const char* title, QWidget* parent);

    /// What a window's constructor ends with, its controls being laid out and filled: the button that Enter presses,
    /// null for none, and the control in focus; then its size and its place over its parent. Tab goes in the order of
    /// the layouts.
    void settle(QPushButton* enter, QWidget* focus);

    /// The control in focus and every list's current entry come up in view.
    void showEvent(QShowEvent* event) override;
};

/// Makes a filled list so high that this many rows are in view, where the screen has the room.
void setrowsinview(QAbstractItemView& list, int rows);

/// Puts a window, which has its size already, in the middle of another, or of the screen when there is none; never so
/// that a part of it lies off the screen which would fit on it.
void centreon(QWidget& window, const QWidget* over);

/// Makes a window, which has its size and its smallest size already, no larger than the screen that it opens on: lists
/// and texts show fewer rows, controls move together, and what is too large even then scrolls. A window that fits stays
/// as it is.
void fitscreen(QWidget& window);

/// The same for a room of this size, logical pixels without the window's frame.
void fitroom(QWidget& window, QSize room);

}  // namespace tarvane
