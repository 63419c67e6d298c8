// "User Depth and Notes": the depth and the note that the user keeps for each port. Controls and copying only; files
// are read and written by the user notes of the main view.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include "platform/qt/modaldialog.h"
#include "ports/usernotes.h"
#include "session/session.h"

namespace tarvane {

class frmChartdepth : public ModalDialog {
  public:
    explicit frmChartdepth(MainContext& context, QWidget* parent = nullptr);

    /// Escape, the window's cross and Exit alike.
    void reject() override;

    QListWidget* List1;
    QLabel* portlabel;
    QLabel* portnolabel;
    QLineEdit* depth;
    QPlainTextEdit* usernotes;
    QLabel* noteslimit;  ///< how much of the note's room is used
    QPushButton* cdok;
    QPushButton* cdclose;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void buildlayout();
    void connectcontrols();
    void shownotes();
    bool changed() const;
    bool offertoenter();
    void showstate();

    void List1_Click();
    void List1_DblClick();
    void depth_Change();
    void usernotes_Change();
    bool cdok_Click();

    MainContext& context;
    UserNotes notes;
    QString shownnote;  ///< the note as it was last loaded or entered
    int typedat = 0;    ///< where the last change of the note stands, and how many characters came in with it
    int typedcount = 0;
};

}  // namespace tarvane
