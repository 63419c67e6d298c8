// "Sunrise and Sunset": the position that the month's sun times are for, that of the current port or a typed one. Only
// controls and copying; what they do is in the sun view.
#pragma once

#include <QLabel>
#include <QPushButton>

#include "platform/qt/filteredbox.h"
#include "platform/qt/modaldialog.h"
#include "session/session.h"

namespace tarvane {

class Frmsunrise : public ModalDialog {
  public:
    explicit Frmsunrise(MainContext& context, QWidget* parent = nullptr);

    QLabel* port = nullptr;
    QLabel *latlabel = nullptr, *longlabel = nullptr;
    FilteredBox *latitude = nullptr, *longitude = nullptr;
    QPushButton *ok = nullptr, *cancel = nullptr;

  private:
    void buildlayout();
    void ok_Click();

    MainContext& context;
};

}  // namespace tarvane
