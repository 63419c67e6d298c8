// "Date Entry": a date picker and three lists, each set with its own way of confirming. Only controls and copying.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "mainview/dateentry.h"
#include "platform/qt/datebox.h"
#include "platform/qt/modaldialog.h"

namespace tarvane {

class Frmtimdat : public ModalDialog {
  public:
    explicit Frmtimdat(MainContext& context, QWidget* parent = nullptr);

    /// Hides it first: the picker hears that it loses the focus, and what it then works with must still be there.
    ~Frmtimdat() override { hide(); }

    QLabel* Label1 = nullptr;
    DateBox* DTPicker = nullptr;
    QLabel* txtDayName = nullptr;
    QLabel* refusal = nullptr;  ///< why the typed text is no date
    QPushButton *cmdOK = nullptr, *cmdReset = nullptr, *datecancel = nullptr;

    QLabel* Text3 = nullptr;
    QListWidget *daylist = nullptr, *monthlist = nullptr, *yearlist = nullptr;
    QLabel *selectedday = nullptr, *selectedmonth = nullptr, *selectedyear = nullptr, *PredictedDay = nullptr;
    QPushButton *date1ok = nullptr, *Command1 = nullptr;

  private:
    void buildlayout();
    QFrame* buildpickerset();
    QFrame* buildlistset();
    void setcolumns();
    void connectcontrols();

    void showpicker();
    void showread();
    void filllists();
    void filldays();
    void showselected();

    void DTPicker_Change();
    void DTPicker_Leave();
    void cmdOK_Click();
    void cmdReset_Click();
    void yearlist_Click();
    void monthlist_Click();
    void daylist_Click();
    void date1ok_Click();

    MainContext& context;
    DateEntry entry;
};

}  // namespace tarvane
