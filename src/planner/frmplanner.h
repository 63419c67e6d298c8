// "Planner": a port's tides over days, when a boat can pass, and the tide now. Only controls; what they hold is the
// plan view, what leaves it the plan commands. Stands beside the main window.
#pragma once

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QScrollArea>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>
#include <array>
#include <functional>

#include "planner/frmplanpicture.h"
#include "planner/frmplantable.h"
#include "planner/planview.h"
#include "planner/presenttide.h"
#include "platform/qt/datebox.h"
#include "platform/qt/keptnote.h"

namespace tarvane {

class frmplanner : public QMainWindow {
  public:
    explicit frmplanner(MainContext& context);

    /// What the rest of the program does when the user asks for it here: another port of the sea area by its number, a
    /// day for the main window, red light everywhere.
    std::function<void(std::int16_t number)> onport;
    std::function<void(Date date)> onday;
    std::function<void(bool night)> onnight;

    /// Other windows that it asks for: the finder, with a text to begin with, the map, what is known of the port.
    std::function<void(const std::string& text)> onfind;
    std::function<void()> onmap, onabout;

    /// The session may have another port by now.
    void follow();

    PlanPictureBox* picture = nullptr;
    QScrollArea* area = nullptr;
    QComboBox *cmbPort = nullptr, *cmbSpan = nullptr, *cmbClock = nullptr, *cmbDaylight = nullptr;
    QToolButton *cmdPreviousWeek = nullptr, *cmdPreviousDay = nullptr, *cmdNextDay = nullptr, *cmdNextWeek = nullptr,
                *cmdToday = nullptr, *cmdFind = nullptr, *cmdMap = nullptr, *cmdAbout = nullptr;
    DateBox* DTPicker = nullptr;
    QLabel *lblDayName = nullptr, *lblNow = nullptr, *lblNeeded = nullptr, *lblAnswer = nullptr, *lblCursor = nullptr,
           *lblFoot = nullptr, *lblSaid = nullptr, *lblOnly = nullptr;
    KeptNote* lblKept = nullptr;
    QGroupBox* fraQuestion = nullptr;
    std::array<QLineEdit*, planfields> fields{};
    std::array<class StepArrows*, planfields> steps{};  ///< one beside each field
    QCheckBox* chkTwilight = nullptr;
    std::array<QToolButton*, 7> weekdays{};  ///< from Monday
    QTabWidget* pages = nullptr;
    PlanTableBox *tides = nullptr, *windows = nullptr, *sunandmoon = nullptr;

    PlanView& planview() { return view; }
    QAction* entry(const char* name) const { return findChild<QAction*>(QLatin1String(name)); }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildlayout();
    QWidget* buildports();
    QWidget* builddays();
    QWidget* buildquestion();
    QLayout* withsteps(PlanField which);
    QLayout* buildwishes();
    QWidget* buildpages();
    void buildmenus();
    void buildfilemenu();
    void buildpapermenu(class QMenu* file);
    QAction* add(class QMenu* menu, const char* name, const char* caption, const QKeySequence& key,
                 std::function<void()> act);
    void connectcontrols();
    void connectquestion();
    void fillports();
    void fillfields();
    void showall();
    void showplan();
    void showtrust();
    void showpage();
    void showdate();
    void showanswer();
    void tellanswer();
    void shownow();
    void showcursor();
    void shownight(bool night);
    void lightpopups(const QPalette& palette);
    void lightdays();
    void stepdays(int days);
    void gotodate(Date date);
    void typedate();
    void ask();
    void reveal();
    void chooseport(const QString& text);
    void leaveport();
    void leap(Moment at);
    void tell(const std::string& text);
    void keep();

    MainContext& context;
    PlanView view;
    PresentTide present;
    QTimer *minute = nullptr, *keeplater = nullptr;
    std::vector<std::string> listed;  ///< the names in the list of ports
    Lighting shownlight = Lighting::day;
    const QPalette ordinarytips = QToolTip::palette();
    bool filling = false;  ///< the controls follow the view, not the user
};

}  // namespace tarvane
