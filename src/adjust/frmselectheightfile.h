// The window that chooses the file of observed heights to draw over the intermediate curve.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "adjust/workspace.h"
#include "platform/qt/modaldialog.h"

namespace tarvane {

class frmSelectHeightFile : public ModalDialog {
  public:
    frmSelectHeightFile(MainContext& context, AdjustWorkspace& workspace, QWidget* parent);

    QListWidget* File1 = nullptr;
    QLabel* lblselectedfile = nullptr;
    QPushButton *cmdOK = nullptr, *cmdCancel = nullptr;

  private:
    void buildlayout();
    void File1_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    MainContext& context;
    AdjustWorkspace& workspace;
};

}  // namespace tarvane
