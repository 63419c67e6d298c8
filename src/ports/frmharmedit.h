// "Harmonic Constants": the editor of the ports of an area file. Controls and copying only; what the commands do stands
// in the editor's plain routines.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <vector>

#include "platform/qt/filteredbox.h"
#include "platform/qt/modaldialog.h"
#include "ports/harmonicedit.h"
#include "session/session.h"

namespace tarvane {

class frmharmedit : public ModalDialog {
  public:
    explicit frmharmedit(MainContext& context, QWidget* parent = nullptr);

    /// Escape, the window's cross and Exit alike.
    void reject() override;

    QListWidget *fileList = nullptr, *portlist = nullptr;
    std::vector<FilteredBox*> boxes;  ///< in the order of `portboxes`, each with its name
    QPushButton *chartok = nullptr, *cmdAdd = nullptr, *cmdInsert = nullptr, *cmdDelete = nullptr;
    QPushButton *cmdClear = nullptr, *Command2 = nullptr;
    QLabel* lblstatus = nullptr;  ///< what the file now holds

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    using Command = bool (*)(MainContext&, HarmonicEdit&);

    void buildlayout();
    void buildboxes();
    QLayout* buildlists();
    QLayout* buildport();
    QLayout* buildconstants();
    QLayout* buildmonths();
    QLayout* buildbuttons();
    FilteredBox* box(const char* name) const { return boxes[boxplace(name)]; }
    void connectcontrols();

    void taketexts();
    void showedit();
    void showhighlights();
    void stay();
    bool offertoaccept();
    bool listkey(QListWidget& list, const QEvent& event);
    void leavebox(const QObject* left);
    void run(Command command);

    void fileList_Click();
    void portlist_Click();
    void clicked(const QListWidget& list);
    void cmdClear_Click();

    MainContext& context;
    HarmonicEdit edit;
    std::vector<std::string> listed;  ///< what `portlist` was filled with
    bool settling = false;            ///< a click that was refused is being taken back
    int rowpressed = -1;              ///< row that a moving key was pressed on, none being highlighted
};

}  // namespace tarvane
