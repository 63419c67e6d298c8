// The window in which the intermediate location's own place is typed, and its constants are weighed by distance.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "adjust/weighting.h"
#include "platform/qt/modaldialog.h"

namespace tarvane {

class frmWeighting : public ModalDialog {
  public:
    frmWeighting(MainContext& context, AdjustWorkspace& workspace, QWidget* parent);

    QLineEdit *txtname = nullptr, *txtlat = nullptr, *txtlong = nullptr, *txtzone = nullptr;
    QLabel* understood = nullptr;
    QPushButton *cmdWeigh = nullptr, *cmdPlace = nullptr, *cmdClose = nullptr;

  private:
    void buildlayout();
    void showunderstood();
    PlaceUnderstood typed() const;
    void cmdWeigh_Click();
    void cmdPlace_Click();

    MainContext& context;
    AdjustWorkspace& workspace;
};

}  // namespace tarvane
