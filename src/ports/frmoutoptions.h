// "Program Settings": display of heights, summer time, draught and clearance, the maintenance menu. Only controls and
// copying.
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "platform/qt/filteredbox.h"
#include "platform/qt/modaldialog.h"
#include "ports/programsettings.h"

namespace tarvane {

class frmoutoptions : public ModalDialog {
  public:
    explicit frmoutoptions(MainContext& context, QWidget* parent = nullptr);

    QGroupBox *Frame1 = nullptr, *Frame2 = nullptr, *Frame3 = nullptr;
    QRadioButton *Option1 = nullptr, *Option2 = nullptr, *Option3 = nullptr;
    QLabel* Label2 = nullptr;
    QRadioButton *optNonDaylightsavings = nullptr, *optDaylightSavings = nullptr;
    FilteredBox *draughttext = nullptr, *ukctext = nullptr;
    QLabel *Label3 = nullptr, *Label4 = nullptr, *draftlabel = nullptr, *Label1 = nullptr;
    QCheckBox* Check1 = nullptr;
    QPushButton *optionsok = nullptr, *Command1 = nullptr;

  private:
    void buildlayout();
    void buildframe1();
    void buildframe2();
    void buildframe3();
    void connectcontrols();
    QRadioButton* displayoption() const;
    void showoptions();
    void optionsok_Click();

    MainContext& context;
    ProgramOptions options;
};

}  // namespace tarvane
