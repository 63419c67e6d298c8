// "Current Configuration and User Notes": the settings read-only, and every port's user depth and note. Only controls
// and copying.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include "platform/qt/modaldialog.h"
#include "ports/programsettings.h"

namespace tarvane {

class frmshowconf : public ModalDialog {
  public:
    explicit frmshowconf(MainContext& context, QWidget* parent = nullptr);

    QLabel *portnolabel = nullptr, *confportnamebox = nullptr, *sealabel = nullptr;
    QLabel *confdraughtbox = nullptr, *confukcbox = nullptr, *confoutputoption = nullptr, *depth = nullptr;
    QListWidget* confportlist = nullptr;
    QPlainTextEdit* notes = nullptr;
    QPushButton* Confexit = nullptr;

  private:
    void buildlayout();
    QLayout* buildvalues();
    void showconfiguration();
    void showport();
    void confportlist_Click();

    MainContext& context;
    ConfigurationView view;
};

}  // namespace tarvane
