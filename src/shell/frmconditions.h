// The start form: the conditions of use, to be accepted or declined. Must not decide what follows; its owner does.
#pragma once

#include <QDialog>
#include <functional>

#include "shell/startup.h"

class QAction;
class QLabel;
class QListWidget;
class QMenuBar;
class QPushButton;

namespace tarvane {

class frmConditions : public QDialog {
  public:
    frmConditions(const Services& services, const ProgramFolders& folders);

    /// Called while the form still shows, so that a window of the program is always up; the form hides itself
    /// afterwards and must not be deleted in them.
    std::function<void()> onaccepted;
    std::function<void()> ondeclined;  ///< also for Escape and a closed window
    std::function<void()> onhelp;      ///< without it the help entry is grey

    void accept() override;
    void reject() override;

    QListWidget* List1 = nullptr;
    QPushButton* ConditionsOK = nullptr;
    QPushButton* cmdDecline = nullptr;
    QAction* mnuRestoreDefaults = nullptr;
    QAction* mnuHTMLHelp = nullptr;

  protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void buildlayout();
    void mnuRestoreDefaults_Click();

    Services services;
    ProgramFolders folders;
    QMenuBar* menus = nullptr;
    QLabel* heading = nullptr;
    QLabel* lead = nullptr;
};

}  // namespace tarvane
