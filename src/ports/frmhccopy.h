// The ports copy utility: picks ports out of area files and puts them into another. Controls and copying only; files
// are read and written by the copying's plain routines.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "platform/qt/modaldialog.h"
#include "ports/portscopy.h"
#include "session/session.h"

namespace tarvane {

class frmHCcopy : public ModalDialog {
  public:
    explicit frmHCcopy(MainContext& context, QWidget* parent = nullptr);

    QListWidget *fillist = nullptr, *List1 = nullptr, *List2 = nullptr, *fileDestName = nullptr;
    QLineEdit* txtname = nullptr;
    QPushButton *cmdcopy = nullptr, *cmdcancel = nullptr;
    QLabel* lblgathered = nullptr;  ///< how many ports wait to be saved

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildlayout();
    QLayout* buildlists();
    QLayout* builddestination();
    void connectcontrols();
    void showcopy();
    bool enterpressed(QListWidget& list);

    void fillist_Click();
    void List1_Click();
    void fileDestName_Click();
    void cmdcopy_Click();

    MainContext& context;
    PortsCopy copy;
};

}  // namespace tarvane
