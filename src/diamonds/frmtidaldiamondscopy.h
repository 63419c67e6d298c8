// "Copy Tidal Diamonds": a source file of diamonds on the left, entries for a destination file on the right. Controls
// and copying only; what the commands do stands in the plain routines of the diamonds.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <vector>

#include "diamonds/diamondcopy.h"
#include "platform/qt/modaldialog.h"
#include "session/session.h"

namespace tarvane {

class frmTidalDiamondsCopy : public ModalDialog {
  public:
    explicit frmTidalDiamondsCopy(MainContext& context, QWidget* parent = nullptr);

    /// Escape, the window's cross and Exit alike.
    void reject() override;

    QListWidget *fileSource = nullptr, *List1 = nullptr, *fileDest = nullptr, *List2 = nullptr;
    QLineEdit* txtDestFile = nullptr;
    QLabel *lblInstructions = nullptr, *lblSourceFile = nullptr, *Lbldiamno = nullptr;
    std::vector<QLineEdit*> sourceboxes, destinationboxes;  ///< by their places, each with its name
    QPushButton *cmdCopy = nullptr, *cmdAmend = nullptr, *cmdAddtoFile = nullptr, *cmdDelete = nullptr;
    QPushButton *cmdAdd = nullptr, *cmdImportCharts = nullptr, *cmdExit = nullptr;
    QLabel* lblstatus = nullptr;  ///< what the file used last now holds

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    using Command = bool (*)(MainContext&, DiamondCopy&);

    void buildlayout();
    void buildlists();
    void buildboxes(Side side, std::vector<QLineEdit*>& boxes);
    QLayout* buildsource();
    QLayout* builddestination();
    QLayout* buildplace(const std::vector<QLineEdit*>& boxes);
    QLayout* buildtable(const std::vector<QLineEdit*>& boxes);
    QLayout* buildbuttons();
    void connectcontrols();

    void taketexts();
    void showcopy();
    void showhighlights();
    void stay();
    bool listkey(QListWidget& list, const QEvent& event);
    void clicked(const QListWidget& list);
    void emptyhourof(const QObject* box);
    void run(Command command);

    void fileSource_Click();
    void fileDest_Click();
    void List1_Click();
    void cmdCopy_Click();
    void cmdImportCharts_Click();

    MainContext& context;
    DiamondCopy copy;
    bool settling = false;  ///< a click that was refused is being taken back
};

}  // namespace tarvane
