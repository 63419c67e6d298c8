// The workshop's window: three pictures side by side over one table, each constituent's part in the heights and each
// port's constants under its curve. What is reckoned stands in the workspace. Closing it ends the program.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <array>
#include <functional>

#include "adjust/workspace.h"
#include "platform/qt/picturebox.h"
#include "platform/qt/stepcontrol.h"

class QGridLayout;
class QMenu;

namespace tarvane {

class frmHarmAdjust : public QMainWindow {
  public:
    frmHarmAdjust(MainContext& context, QWidget* over);

    std::function<void()> onclosed;   ///< the window is closed: the program ends
    std::function<void()> onchanged;  ///< the program's date or the tides behind this window may have changed

    /// False when the user wants to stay, having been told that the constants aren't saved.
    bool mayclose();

    /// Chooses a file of observed heights and draws it; empty for none.
    void displayheights(const std::string& path);

    /// What one picture's column consists of.
    struct Column {
        PictureBox* picture = nullptr;
        QLabel *name = nullptr, *turning = nullptr, *height = nullptr;
        QLabel* owner = nullptr;  ///< the name over its constants; none of the intermediate location
        std::array<QLabel*, constituents.size()> parts{};
    };
    std::array<Column, curveplaces> columns;
    std::array<QLineEdit*, constantrows.size()> boxes{};
    std::array<StepControl*, constantrows.size()> steps{};

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildlayout();
    void buildmenus();
    QAction* addentry(QMenu* menu, const char* name, const char* caption, void (frmHarmAdjust::*command)());
    QLayout* buildside();
    void buildcolumn(QGridLayout& grid, CurvePlace place);
    void buildrows(QGridLayout& grid);
    QWidget* buildbox(std::size_t row);
    QWidget* constantfield(CurvePlace place, std::size_t row);
    PictureBox* swatch(std::size_t place);
    void connectcontrols();

    void cmdCalc_Click();
    void Nextday_Click();
    void Previousday_Click();
    void mnuDataLoad_Click();
    void MnuFileSave_Click();
    void MnuFileExit_Click();
    void mnuObsEnterData_Click();
    void mnuDataHeightSelect_Click();
    void fit_Click();
    void undo_Click();
    void weigh_Click();
    void circle_Click();
    // `Picture1_MouseMove`, `Picture2_MouseMove` and `Picture3_MouseMove` do the same; so do the three `_MouseDown`.
    void Picture_MouseMove(double x);
    void Picture_MouseDown();
    void steptime(int tenminutes);

    void redraw();
    void drawcurve(CurvePlace place);
    void recalculated();
    void showboxes();
    void showmarks();
    void showreadouts();
    void showworkspace();

    MainContext& context;
    AdjustWorkspace workspace;
    QLabel *tidedatebox = nullptr, *timeval = nullptr, *found = nullptr, *answer = nullptr, *heightsname = nullptr;
    QPushButton *cmdCalc = nullptr, *Nextday = nullptr, *Previousday = nullptr, *cmdFit = nullptr, *cmdUndo = nullptr;
    std::array<QLabel*, constantrows.size()> labels1{}, labels2{};
    std::array<QAction*, constantrows.size()> northmarks{};
    QAction* mnuFit = nullptr;
};

}  // namespace tarvane
