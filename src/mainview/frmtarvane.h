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
#include <memory>
#include <vector>

#include "adjust/frmharmadjust.h"
#include "atlas/finderkeeps.h"
#include "atlas/frmmap.h"
#include "planner/frmplanner.h"

#include "mainview/frmlayerspanel.h"
#include "mainview/frmstatusbar.h"
#include "mainview/menus.h"
#include "mainview/readouts.h"
#include "platform/qt/picturebox.h"
#include "session/session.h"
#include "world/worldports.h"

namespace tarvane {

class frmtarvane : public QMainWindow {
  public:
    frmtarvane(Session& session, const Services& services, QWidget* parent = nullptr);

    /// The start-up: reads what is stored, predicts today and starts the timers.
    void Form_Load();

    /// Opens the planner where the user wants it at the start.
    void openatstart();

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
    QLabel* daystide2 = nullptr;  ///< the rows of the day table that its first column has no room for
    QListWidget* monthspredictions = nullptr;
    StatusBar* statusbar = nullptr;
    LayersPanel layers;
    QTimer* Timer1 = nullptr;
    QTimer* Timer2 = nullptr;

    /// The planner was put into red light, or out of it.
    std::function<void(bool night)> onnight;

    /// A menu or an entry by its name ("mnuNextPort"); nothing if there is none.
    QAction* menuentry(const char* name) const;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildlayout();
    void buildmenus();
    void connectcontrols();
    void layoutcontrols();
    void layoutrightcolumn(int left, int width);
    void showdaytable();
    int tablelines() const;
    void placecontrols();
    void picture_resized();
    void redrawresized();
    void copyview();
    void showmenus();
    void showmonthlist();

    void Form_Activate();
    void Nextday_Click();
    void Previousday_Click();
    void Picture1_MouseMove(double x);
    void Picture1_MouseDown();
    void Timer1_Timer();
    void Timer2_Timer();

    void choose(const MenuEntry& entry);
    void opendialog(Dialog dialog);
    void openadjust();
    void openplanner();
    void openfinder(const std::string& text = "");
    void openmap();
    void openabout();
    World& worldports();
    void followrecent();
    void keeprecent();
    void shownow();

    /// A menu or an entry that the view can hide or disable.
    struct Switched {
        QAction* action;
        bool MainView::*visible;
        bool MainView::*enabled;
    };

    Session& session;
    PictureBox* surface = nullptr;  ///< the window's own surface, on which the controls lie
    MainContext context;
    std::vector<Switched> switched;
    QAction* layersentry = nullptr;  ///< mnuLayersShow, which carries a tick
    FirstDrawing firstdrawing;
    int laidoutmode = 0;                   ///< the layers mode that the layout was made for
    std::string shownday;                  ///< the day table that `daystide1` and `daystide2` show
    int laidoutlines = 0;                  ///< and the lines of its day table
    std::vector<std::string> listedmonth;  ///< what `monthspredictions` was filled with
    bool loaded = false;
    bool layingout = false;                 ///< the controls are being placed: resized pictures wait
    std::unique_ptr<frmHarmAdjust> adjust;  ///< once it was opened
    std::unique_ptr<frmplanner> planner;    ///< once it was opened
    std::unique_ptr<World> world;           ///< once a window asked for the ports of all areas
    KeptPort shownport;                     ///< the port that was on show last
    QTimer* recentlater = nullptr;          ///< until it becomes a recent one
    std::unique_ptr<frmmap> map;            ///< once it was opened
    PresentTide present;
    bool resized = false;  ///< a picture is empty and waits to be drawn anew
};

}  // namespace tarvane
