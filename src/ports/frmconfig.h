// "Select Port": the ports of the area in hand, by name or in the order of the file, and the search by part of a name.
// Controls and copying only; what is chosen and stored is decided by the port list and the port selection.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <optional>

#include "platform/qt/modaldialog.h"
#include "ports/portlist.h"
#include "session/session.h"
#include "world/frmmapbox.h"

namespace tarvane {

class frmconfig : public ModalDialog {
  public:
    explicit frmconfig(MainContext& context, QWidget* parent = nullptr);

    /// Escape, the window's cross and Cancel alike.
    void reject() override;

    QListWidget* portlist2 = nullptr;
    QLineEdit* txtSearch = nullptr;
    QPushButton* cmdSearch = nullptr;
    QGroupBox* Frame1 = nullptr;
    QRadioButton *optSortbyName = nullptr, *optSortGeog = nullptr;
    QPushButton* cmdSort = nullptr;
    QPushButton *portconfigok = nullptr, *portconfigcancel = nullptr;
    QLabel *confselectedport = nullptr, *portconfigbox = nullptr;
    MapBox* picture = nullptr;  ///< of the area
    QLabel *Label1 = nullptr, *lblhint = nullptr, *lblmissing = nullptr;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildlayout();
    QLayout* buildside();
    void connectcontrols();
    void openlist();
    void loadlist();
    void showlist();
    void pickonmap(std::size_t place);
    void showhit(std::optional<std::size_t> index);
    int listindex() const;
    bool searchkey(QKeyEvent& key);

    void portlist2_Click();
    void txtSearch_Change();
    void cmdSearch_Click();
    void cmdSort_Click();
    void portconfigok_Click();

    MainContext& context;
    PortList ports;
};

}  // namespace tarvane
