// The window that saves the intermediate location's constants as a port of an area file.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "adjust/workspace.h"
#include "platform/qt/modaldialog.h"

namespace tarvane {

class frmAdjustSave : public ModalDialog {
  public:
    frmAdjustSave(MainContext& context, AdjustWorkspace& workspace, QWidget* parent);

    QListWidget *File1 = nullptr, *List1 = nullptr;
    QLineEdit *txtAreaName = nullptr, *Text1 = nullptr;
    QRadioButton *Option1 = nullptr, *Option2 = nullptr;
    QPushButton *cmdSave = nullptr, *cmdExit = nullptr;

  private:
    void buildlayout();
    QLayout* buildside();
    void File1_Click();
    void List1_Click();
    void cmdSave_Click();

    MainContext& context;
    AdjustWorkspace& workspace;
};

}  // namespace tarvane
