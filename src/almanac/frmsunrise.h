// "Sunrise and Sunset": the position that the month's sun times are for, that of the current port or a typed one. Only
// controls and copying; what they do is in the sun view.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/qt/modaldialog.h"
#include "session/session.h"

namespace tarvane {

class Frmsunrise : public ModalDialog {
  public:
    explicit Frmsunrise(MainContext& context, QWidget* parent = nullptr);

    QLabel* port = nullptr;
    QLabel* latlabel = nullptr;
    QLineEdit* latitude = nullptr;
    QLabel* longlabel = nullptr;
    QLineEdit* longitude = nullptr;
    QPushButton* ok = nullptr;
    QPushButton* cancel = nullptr;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildlayout();
    bool positionkey(QLineEdit& box, const QString& typed);
    void position_Change(QLineEdit& box);
    void ok_Click();

    MainContext& context;
};

}  // namespace tarvane
