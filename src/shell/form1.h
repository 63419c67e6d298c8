// A diagnostic form: what this system tells of its language and dates. Nothing else in the program opens it.
#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <array>

#include "platform/locale.h"
#include "platform/qt/modaldialog.h"

namespace tarvane {

class Form1 : public ModalDialog {
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
