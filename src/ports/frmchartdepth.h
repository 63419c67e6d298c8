// "User Depth and Notes": the depth and the note that the user keeps for each port. Controls and copying only; files
// are read and written by the user notes of the main view.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include "platform/qt/filteredbox.h"
#include "platform/qt/modaldialog.h"
#include "ports/usernotes.h"
#include "session/session.h"

namespace tarvane {

class frmChartdepth : public ModalDialog {
  public:
    explicit frmChartdepth(MainContext& context, QWidget* parent = nullptr);

    /// Escape, the window's cross and Exit alike.
    void reject() override;

    QListWidget* List1 = nullptr;
    QLabel *portlabel = nullptr, *portnolabel = nullptr;
    FilteredBox* depth = nullptr;
    QPlainTextEdit* usernotes = nullptr;
    QLabel* noteslimit = nullptr;  ///< how much of the note's room is used
    QLabel* matchline = nullptr;   ///< how many records were made for another port, hidden when none was
    QPushButton *cdok = nullptr, *cdclose = nullptr, *matchnames = nullptr;

  private:
    void buildlayout();
    QLayout* buildside();
    void connectcontrols();
    void shownotes();
    void showstate();
    bool offertoenter();

    void List1_Click();
    void List1_DblClick();
    void usernotes_Change();
    bool cdok_Click();
    void matchnames_Click();

    MainContext& context;
    UserNotes notes;
    int typedat = 0;  ///< where the last change of the note stands, and how many characters came in with it
    int typedcount = 0;
};

}  // namespace tarvane
