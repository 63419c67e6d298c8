// The window in which the heights read on one day are entered, edited and kept in a file.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "adjust/heightentry.h"
#include "adjust/workspace.h"
#include "platform/qt/modaldialog.h"

namespace tarvane {

class frmHeightEnter : public ModalDialog {
  public:
    frmHeightEnter(MainContext& context, AdjustWorkspace& workspace, QWidget* parent);

    QListWidget *lstHours = nullptr, *lstMins = nullptr, *lstMetres = nullptr, *lstCms = nullptr, *lstMMs = nullptr;
    QListWidget *File1 = nullptr, *List1 = nullptr;
    QLineEdit* txtFileName = nullptr;
    QLabel *lblTime = nullptr, *lblHeight = nullptr, *answer = nullptr;
    QPushButton *cmdOpen = nullptr, *cmdAdd = nullptr, *cmdChange = nullptr, *Command2 = nullptr, *cmdCancel = nullptr;

  protected:
    void reject() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildlayout();
    QLayout* buildlists();
    QLayout* buildfiles();
    QLayout* buildentries();
    void connectcontrols();
    HeightClicks clicks() const;
    void time_Click();
    void height_Click();
    void File1_Click();
    void cmdOpen_Click();
    void cmdAdd_Click();
    void cmdChange_Click();
    void List1_DblClick();
    bool Command2_Click();
    void cmdCancel_Click();
    void deleteentry();
    void enterinname();
    void listfiles();
    void showrows(int current);
    void tell(const std::string& message);
    bool offertosave();

    MainContext& context;
    AdjustWorkspace& workspace;
    HeightEntries entries;
};

}  // namespace tarvane
