// The window that loads a port of any area into one of the workshop's three columns.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <functional>

#include "adjust/workspace.h"
#include "platform/qt/modaldialog.h"

namespace tarvane {

class FrmAdjustfileselect : public ModalDialog {
  public:
    FrmAdjustfileselect(MainContext& context, AdjustWorkspace& workspace, QWidget* parent);

    std::function<void()> onloaded;  ///< a column holds other constants now

    QListWidget *File1 = nullptr, *List1 = nullptr;
    QLabel *lblselectedport = nullptr, *answer = nullptr;
    QPushButton *cmdPort1 = nullptr, *cmdPort2 = nullptr, *cmdLoad = nullptr, *cmdCancel = nullptr;

  private:
    void buildlayout();
    void File1_Click();
    void List1_Click();
    void load(void (*into)(AdjustWorkspace&, const HarmonicRecord&), const char* column);

    MainContext& context;
    AdjustWorkspace& workspace;
    std::string adjustareaname, adjustareapath;
};

}  // namespace tarvane
