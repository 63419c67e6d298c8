// A diagnostic form: what this system tells of its language and dates. Nothing else in the program opens it.
#pragma once

#include <QDialog>
#include <array>

#include "platform/locale.h"

class QLineEdit;
class QPushButton;

namespace tarvane {

class Form1 : public QDialog {
  public:
    explicit Form1(const Locale& locale, QWidget* parent = nullptr);

    QPushButton* Command1 = nullptr;
    std::array<QLineEdit*, 13> texts{};  ///< Text0 to Text12

  private:
    void buildlayout();
    void Command1_Click();

    const Locale& locale;
};

}  // namespace tarvane
