// One day of the month's sun times at a time, the length of the day and the month's lunar phases. Only controls and
// copying; what they do is in the sun view.
#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "platform/qt/modaldialog.h"
#include "session/session.h"

namespace tarvane {

class Frmriseresults : public ModalDialog {
  public:
    explicit Frmriseresults(MainContext& context, QWidget* parent = nullptr);

    /// Escape, the window's cross and Exit alike.
    void reject() override;

    QScrollBar* VScroll1 = nullptr;
    QLabel *port = nullptr, *latlabel = nullptr, *latitude = nullptr, *longlabel = nullptr, *longitude = nullptr;
    QLabel* risedate = nullptr;
    QLabel *risetime = nullptr, *settime = nullptr;
    QLabel *civildawn = nullptr, *civildusk = nullptr;
    QLabel *nautdawn = nullptr, *nautdusk = nullptr;
    QLabel *Label1 = nullptr, *daylighthours = nullptr;
    QLabel *twilighthours = nullptr, *Label4 = nullptr;
    QLabel* Label2 = nullptr;         ///< the lunar phases
    QLabel* lblphasenotes = nullptr;  ///< what could be misread of them
    QPushButton *cmdsunprint = nullptr, *Command1 = nullptr, *cancel = nullptr;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void buildlayout();
    QGridLayout* buildday();
    QLayout* buildlunar();
    void shownotes();
    void setscroll();
    void VScroll1_Change();
    void cmdsunprint_Click();
    void Command1_Click();

    MainContext& context;
    int turned = 0;  ///< wheel movement not yet made into a step, eighths of a degree
};

}  // namespace tarvane
