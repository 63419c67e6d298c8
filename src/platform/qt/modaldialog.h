// The base of every modal window: what the platform's door shows. Must not hold what a window does.
#pragma once

#include <QDialog>

#include "platform/windows.h"

namespace tarvane {

class ModalDialog : public QDialog, public ModalWindow {
  public:
    explicit ModalDialog(QWidget* parent = nullptr) : QDialog(parent) {}

    std::string windowname() const override { return objectName().toStdString(); }
    void runmodal() override { exec(); }
};

/// Puts a window, which has its size already, in the middle of another, or of the screen when there is none; never so
/// that a part of it lies off the screen which would fit on it.
void centreon(QWidget& window, const QWidget* over);

}  // namespace tarvane
