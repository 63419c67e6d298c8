// "Import Charts": the files of chart areas from a removable medium. Controls and copying only; folders are read and
// files copied by the import's plain routines.
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>

#include "diamonds/chartimport.h"
#include "platform/qt/modaldialog.h"
#include "session/session.h"

namespace tarvane {

class frmimport : public ModalDialog {
  public:
    explicit frmimport(MainContext& context, QWidget* parent = nullptr);

    QComboBox* drvDrives = nullptr;
    QListWidget *dirDirectories = nullptr, *filFilenames = nullptr;
    QListWidget* lstoutcomes = nullptr;  ///< what became of each file of the last import
    QPushButton *cmdimport = nullptr, *Cmdfinished = nullptr;

  protected:
    /// Media that were put in while another window was in front come into the list.
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildlayout();
    QLayout* buildplace();
    QLayout* buildfiles();
    void connectcontrols();

    void showdrives();
    void showfolder();

    void drvDrives_Change(int row);
    void dirDirectories_Change(int row);
    void cmdimport_Click();

    MainContext& context;
    ChartImport import;
};

}  // namespace tarvane
