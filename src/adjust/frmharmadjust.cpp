#include "adjust/frmharmadjust.h"

#include <QCloseEvent>
#include <QShortcut>

#include "adjust/frmadjustfileselect.h"
#include "adjust/frmadjustsave.h"
#include "adjust/frmheightenter.h"
#include "adjust/frmselectheightfile.h"
#include "adjust/frmweighting.h"
#include "adjust/weighting.h"
#include "platform/qt/modaldialog.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

QString onscreen(const std::string& text) {
    return QString::fromStdString(text);
}

std::string filename(const std::string& path) {
    return path.substr(path.find_last_of('/') + 1);
}

}  // namespace

frmHarmAdjust::frmHarmAdjust(MainContext& maincontext, QWidget* over)
    : context(maincontext), workspace(openworkspace(maincontext)) {
    setObjectName("frmHarmAdjust");
    setWindowTitle("Adjust Harmonics");
    buildlayout();
    buildmenus();
    connectcontrols();
    setMinimumSize(minimumSizeHint());
    resize(minimumSizeHint().expandedTo({1160, 700}));
    fitscreen(*this);
    centreon(*this, nullptr);
    if (over) setWindowIcon(over->windowIcon());
    showworkspace();
    redraw();
    cmdCalc->setFocus();
}

void frmHarmAdjust::connectcontrols() {
    for (const CurvePlace place : {port1curve, intermediatecurve, port2curve}) {
        PictureBox* const picture = columns[place].picture;
        picture->onmousemove = [this](double x, double) { Picture_MouseMove(x); };
        picture->onmousedown = [this](double, double) { Picture_MouseDown(); };
        picture->onresized = [this, place] { drawcurve(place); };
    }
    for (std::size_t row = 0; row < boxes.size(); ++row) {
        connect(boxes[row], &QLineEdit::textEdited, this,
                [this, row](const QString& text) { workspace.boxes[row] = text.toStdString(); });
        connect(boxes[row], &QLineEdit::returnPressed, this, &frmHarmAdjust::cmdCalc_Click);
        connect(northmarks[row], &QAction::triggered, this, [this, row] {
            takecirclemean(workspace, row);
            showworkspace();
        });
        steps[row]->onchange = [this, row](int value) {
            stepconstant(workspace, row, value);
            boxes[row]->setText(onscreen(workspace.boxes[row]));
        };
    }
    connect(cmdCalc, &QPushButton::clicked, this, &frmHarmAdjust::cmdCalc_Click);
    connect(Nextday, &QPushButton::clicked, this, &frmHarmAdjust::Nextday_Click);
    connect(Previousday, &QPushButton::clicked, this, &frmHarmAdjust::Previousday_Click);
    connect(cmdFit, &QPushButton::clicked, this, &frmHarmAdjust::fit_Click);
    connect(cmdUndo, &QPushButton::clicked, this, &frmHarmAdjust::undo_Click);
    const std::pair<QKeySequence, std::function<void()>> keys[] = {
        {Qt::Key_PageDown, [this] { Nextday_Click(); }},    {Qt::Key_PageUp, [this] { Previousday_Click(); }},
        {Qt::Key_F5, [this] { cmdCalc_Click(); }},          {Qt::ALT | Qt::Key_Right, [this] { steptime(1); }},
        {Qt::ALT | Qt::Key_Left, [this] { steptime(-1); }},
    };
    for (const auto& [key, command] : keys)
        connect(new QShortcut(key, this), &QShortcut::activated, this, command);
}

void frmHarmAdjust::cmdCalc_Click() {
    workspace.answer.clear();
    cmdcalc(workspace, context);
    recalculated();
}

void frmHarmAdjust::Nextday_Click() {
    workspace.answer.clear();
    stepworkspace(workspace, context, 1);
    recalculated();
}

void frmHarmAdjust::Previousday_Click() {
    workspace.answer.clear();
    stepworkspace(workspace, context, -1);
    recalculated();
}

/// Everything is drawn; a file of too few readings is told of as often as it would be.
void frmHarmAdjust::recalculated() {
    showworkspace();
    redraw();
    if (onchanged) onchanged();
    if (workspace.toofewreadings) context.services.messages.show(workspace.answer, "Tarvane");
}

void frmHarmAdjust::mnuDataLoad_Click() {
    FrmAdjustfileselect window(context, workspace, this);
    window.onloaded = [this] { showworkspace(); };
    context.services.windows.showmodal(window);
    showworkspace();
}

void frmHarmAdjust::MnuFileSave_Click() {
    frmAdjustSave window(context, workspace, this);
    context.services.windows.showmodal(window);
    showworkspace();
    if (onchanged) onchanged();
}

void frmHarmAdjust::MnuFileExit_Click() {
    close();
}

void frmHarmAdjust::mnuObsEnterData_Click() {
    frmHeightEnter window(context, workspace, this);
    context.services.windows.showmodal(window);
    showworkspace();
    drawcurve(intermediatecurve);
}

void frmHarmAdjust::mnuDataHeightSelect_Click() {
    frmSelectHeightFile window(context, workspace, this);
    context.services.windows.showmodal(window);
    showworkspace();
    drawcurve(intermediatecurve);
    if (workspace.toofewreadings) context.services.messages.show(workspace.answer, "Tarvane");
}

void frmHarmAdjust::displayheights(const std::string& path) {
    chooseheights(workspace, path);
    showworkspace();
    drawcurve(intermediatecurve);
}

void frmHarmAdjust::fit_Click() {
    const HeightFit fit = fitworkspace(workspace, context);
    workspace.answer = fit.refusal.empty() ? "Fitted to the observed heights; Undo brings the values before back."
                                           : "Nothing was fitted.";
    showworkspace();
    found->setText(onscreen(fittext(fit, workspace.readings)));
    redraw();
}

void frmHarmAdjust::undo_Click() {
    undoboxes(workspace);
    updatecalc(workspace, context);
    workspace.answer = "The values before are back.";
    showworkspace();
    redraw();
}

void frmHarmAdjust::weigh_Click() {
    frmWeighting window(context, workspace, this);
    context.services.windows.showmodal(window);
    showworkspace();
}

void frmHarmAdjust::circle_Click() {
    workspace.answer = takecirclemeans(workspace);
    showworkspace();
}

void frmHarmAdjust::Picture_MouseMove(double x) {
    workspacemove(workspace, x);
    showreadouts();
}

void frmHarmAdjust::Picture_MouseDown() {
    workspacepress(workspace);
    showreadouts();
}

void frmHarmAdjust::steptime(int tenminutes) {
    const std::size_t colon = workspace.timeval.find(':');
    const double hours =
        colon == std::string::npos ? 0 : val(workspace.timeval) + val(workspace.timeval.substr(colon + 1)) / 60;
    if (hours + tenminutes / 6.0 > -0.01 && hours + tenminutes / 6.0 < 24.1)
        Picture_MouseMove(hours + tenminutes / 6.0);
}

void frmHarmAdjust::redraw() {
    for (const CurvePlace place : {port1curve, port2curve, intermediatecurve})
        drawcurve(place);
}

void frmHarmAdjust::drawcurve(CurvePlace place) {
    DrawAdjustCurve(workspace, place, *columns[place].picture);
    columns[place].turning->setText(onscreen(TurningText(workspace.curves[place])));
}

void frmHarmAdjust::showboxes() {
    for (std::size_t row = 0; row < boxes.size(); ++row) {
        labels1[row]->setText(onscreen(workspace.port1[row]));
        labels2[row]->setText(onscreen(workspace.port2[row]));
        if (boxes[row]->text() != onscreen(workspace.boxes[row])) {
            boxes[row]->setText(onscreen(workspace.boxes[row]));
            found->clear();  // what a fit told isn't of these constants
        }
        steps[row]->setvalue(workspace.steps[row]);
    }
}

void frmHarmAdjust::showmarks() {
    const bool twoports = !workspace.name1.empty() && !workspace.name2.empty();
    for (std::size_t row = 0; row < boxes.size(); ++row) {
        const ConstantRow& constant = constantrows[row];
        const bool across = twoports && acrossnorth(constant, workspace.first, workspace.second);
        northmarks[row]->setVisible(across);
        if (!across) continue;
        const double one = workspace.first.*constant.field, other = workspace.second.*constant.field;
        northmarks[row]->setToolTip(onscreen("The ports' phases " + numbertext(one) + " and " + numbertext(other) +
                                             " lie across north: their plain mean points the other way. Click for the "
                                             "mean on the circle, " +
                                             circlemeantext(workspace, constant) + "."));
    }
}

void frmHarmAdjust::showreadouts() {
    timeval->setText(onscreen(workspace.timeval));
    for (const CurvePlace place : {port1curve, intermediatecurve, port2curve}) {
        const AdjustColumn& shownow = workspace.columns[place];
        for (std::size_t i = 0; i < constituents.size(); ++i)
            columns[place].parts[i]->setText(onscreen(shownow.parts[i]));
        columns[place].height->setText(onscreen(shownow.total));
    }
}

void frmHarmAdjust::showworkspace() {
    const std::pair<CurvePlace, const std::string*> names[] = {{port1curve, &workspace.name1},
                                                               {port2curve, &workspace.name2}};
    for (const auto& [place, name] : names) {
        columns[place].name->setText(onscreen(*name));
        columns[place].owner->setText(onscreen(*name));
    }
    tidedatebox->setText(onscreen(workspace.tidedatebox));
    showboxes();
    showmarks();
    showreadouts();
    const bool drawn = !workspace.readings.empty();
    heightsname->setText(workspace.heightfile.empty()
                             ? "No observed heights"
                             : onscreen("Observed heights: " + filename(workspace.heightfile)));
    cmdFit->setEnabled(drawn);
    mnuFit->setEnabled(drawn);
    cmdFit->setToolTip(drawn ? "Finds level, amplitudes and time that bring the curve nearest to the readings"
                             : "Needs a file of ten readings or more: Data, Select a height file to display");
    cmdUndo->setEnabled(workspace.undo.has_value());
    answer->setText(onscreen(workspace.answer));
}

bool frmHarmAdjust::mayclose() {
    if (workspace.boxes == workspace.saved) return true;
    const Answer wanted = context.services.messages.askorcancel(
        "The constants of the intermediate location are not saved, and closing this window ends the program.\n"
        "Save them first?",
        "Tarvane");
    if (wanted == Answer::yes) MnuFileSave_Click();
    return wanted == Answer::no || workspace.boxes == workspace.saved;
}

void frmHarmAdjust::closeEvent(QCloseEvent* event) {
    if (!mayclose()) return event->ignore();
    workspace.saved = workspace.boxes;
    event->accept();
    // kept: this window takes the program along
    if (onclosed) onclosed();
}

}  // namespace tarvane
