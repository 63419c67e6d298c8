// "About This Port": where a port's constants come from, how good they are, its clock and its ranges, and what the
// user's own checks came to. Only controls; what they show are the about lines.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <vector>

#include "atlas/aboutlines.h"
#include "platform/qt/keptnote.h"
#include "platform/qt/modaldialog.h"
#include "session/session.h"

class QGridLayout;
class QScrollArea;

namespace tarvane {

class frmaboutport : public ModalDialog {
  public:
    /// Port `number` of the area with that path, whichever port is in hand.
    frmaboutport(MainContext& context, const std::string& hcfile, int number, QWidget* parent = nullptr);

    QLabel *lblMark = nullptr, *lblName = nullptr, *lblGrade = nullptr, *lblPlace = nullptr, *lblSaid = nullptr;
    KeptNote* lblKept = nullptr;
    QTableWidget* constants = nullptr;
    QPushButton *cmdCheck = nullptr, *cmdCopy = nullptr, *cmdClose = nullptr;

    const AboutSheet& sheet() const { return shown; }

  private:
    void buildlayout();
    QLayout* buildhead();
    int tallat(int wide) const;
    void fill();
    void fillconstants();
    void cmdCheck_Click();

    MainContext& context;
    std::string hcfile;
    int number;
    AboutSheet shown;
    QGridLayout* lines = nullptr;
    QScrollArea* area = nullptr;
};

}  // namespace tarvane
