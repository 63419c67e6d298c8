// The program's one main window: controls, menus and timers. What its commands do stands in the plain routines of this
// folder; here they are called and the session's view is copied to the controls.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <vector>

#include "mainview/frmlayerspanel.h"
#include "mainview/readouts.h"
#include "mainview/session.h"
#include "platform/qt/picturebox.h"

namespace tarvane {

class frmtarvane : public QMainWindow {
  public:
    frmtarvane(Session& session, const Services& services, QWidget* parent = nullptr);

    /// The start-up: reads what is stored, predicts today and starts the timers.
    void Form_Load();

    /// Copies the session's view to every control.
    void showview();

    /// What the window's commands work with.
    MainContext commandcontext() const { return context; }

    PictureBox* Picture1 = nullptr;
    PictureBox* pctSpringsStatus = nullptr;
    QLabel *portbox = nullptr, *tidedatebox = nullptr, *daystide1 = nullptr, *disclaimer = nullptr;
    QLabel *timelabel = nullptr, *timeval = nullptr, *hitelabel = nullptr, *hiteval = nullptr;
    QLabel *lblrate = nullptr, *lblmousestatus = nullptr, *lblSprings = nullptr, *lblNeap = nullptr;
    QPushButton *Previousday = nullptr, *Nextday = nullptr;
    QListWidget* monthspredictions = nullptr;
    LayersPanel layers;
    QTimer* Timer1 = nullptr;
    QTimer* Timer2 = nullptr;

    /// A menu entry by its name ("mnuNextPort"); nothing if there is none.
    QAction* menuentry(const char* name) const;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildlayout();
    void buildmenus();
    void connectcontrols();
    void layoutcontrols();
    void layoutrightcolumn(int left, int width);
    void placecontrols();
    void picture_resized();
    void redrawresized();
    void drawcurveandshow();
    void showmonthlist();

    void Form_Activate();
    void Nextday_Click();
    void Previousday_Click();
    void mnuNextPort_Click();
    void mnuPrevPort_Click();
    void mnuLayersShow_Click();
    void mnutidedate_Click();
    void mnuPortList_Click();
    void mnuArea_Click();
    void mnumonth_Click();
    void mnusunrise_Click();
    void mnuoutputoptions_Click();
    void mnuchartdepth_Click();
    void Mnushowconfig_Click();
    void mnuExit_Click();
    void mnusavmonth_Click();
    void mnusaveday_Click();
    void mnusavesun_Click();
    void mnumonthprint_Click();
    void mnuhrprint_Click();
    void mnudayprint_Click();
    void mnusunprint_Click();
    void mnuCopyDaysTides_Click();
    void mnuCopyMonth_Click();
    void mnuCopySunTimes_Click();
    void mnuCopyMonthSunTimes_Click();
    void Picture1_MouseMove(double x);
    void Picture1_MouseDown();
    void Timer1_Timer();
    void Timer2_Timer();

    /// Runs a command, under the hourglass when it takes long, and shows what it left.
    using Command = void (*)(MainContext&);
    void run(Command command);
    void runlong(Command command);

    Session& session;
    PictureBox* surface = nullptr;  ///< the window's own surface, on which the controls lie
    MainContext context;
    FirstDrawing firstdrawing;
    int laidoutmode = 0;                   ///< the layers mode that the layout was made for
    std::vector<std::string> listedmonth;  ///< what `monthspredictions` was filled with
    bool loaded = false;
    bool layingout = false;  ///< the controls are being placed: resized pictures wait
    bool resized = false;    ///< a picture is empty and waits to be drawn anew
};

}  // namespace tarvane
