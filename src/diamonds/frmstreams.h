// "Streams for a Day": the tidal streams at a diamond through the hours of a day's high waters, as a table and as
// arrows on a compass rose. Only controls and copying; what they do is in the streams view.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "diamonds/streamrose.h"
#include "diamonds/streamsview.h"
#include "platform/qt/datebox.h"
#include "platform/qt/modaldialog.h"
#include "platform/qt/picturebox.h"

namespace tarvane {

class frmstreams : public ModalDialog {
  public:
    explicit frmstreams(MainContext& context, QWidget* parent = nullptr);

    QComboBox *cmbFile = nullptr, *cmbDiamond = nullptr, *cmbPort = nullptr;
    QPushButton *Previousday = nullptr, *Nextday = nullptr;
    DateBox* DTPicker = nullptr;
    QLabel* txtDayName = nullptr;  ///< the weekday, or why the typed text is no date
    QTableWidget* table = nullptr;
    PictureBox* Picture1 = nullptr;
    QLabel* lblhour = nullptr;  ///< the hour that is strong, in words
    QLabel *lblabout = nullptr, *lblnote = nullptr, *lblanswer = nullptr;
    QPushButton *cmdCopy = nullptr, *cmdSave = nullptr, *cancel = nullptr;

    /// So large that the table shows all its columns.
    QSize sizeHint() const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void buildlayout();
    QLayout* buildchoices();
    QLayout* builddate();
    QLayout* buildfoot();
    void buildtable();
    void connectcontrols();
    void filllists();
    void filldiamonds();
    void showdate();
    void showdayname();
    void showstreams();
    void filltable();
    void showrow(int row);
    void drawpicture();
    void Picture1_MouseMove(double x, double y);
    void DTPicker_Change();
    void stepday(int days);

    MainContext& context;
    StreamsView view;
    Rose rose;
    int strongrow = -1;  ///< of the table
};

}  // namespace tarvane
