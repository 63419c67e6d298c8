// "Check This Port": the waters of an official table, typed or pasted, each beside the prediction. Only controls; what
// is compared is the port check's, and what is typed is kept with the port while it is typed.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QTimer>
#include <array>
#include <functional>

#include "atlas/aboutlines.h"
#include "platform/qt/keptnote.h"
#include "platform/qt/modaldialog.h"
#include "session/session.h"

namespace tarvane {

/// A table whose Tab goes through what can be typed alone.
class CheckTable : public QTableWidget {
  public:
    CheckTable();

    static constexpr int columns = 8;

    std::function<void()> onpaste;

    /// All columns are in view, where there is room.
    QSize sizeHint() const override;

  protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void setwidths(const std::array<int, columns>& characters);
    int widthof(const std::array<int, columns>& characters) const;

    bool narrowed = false;
};

class frmcheckport : public ModalDialog {
  public:
    frmcheckport(MainContext& context, const std::string& hcfile, int number, QWidget* parent = nullptr);
    ~frmcheckport() override;

    /// The columns of the table; those before `predictedcolumn` are typed.
    enum Column {
        datecolumn,
        timecolumn,
        heightcolumn,
        kindcolumn,
        predictedcolumn,
        minutescolumn,
        metrescolumn,
        notecolumn,
        columns
    };
    static_assert(static_cast<int>(columns) == CheckTable::columns);

    QComboBox* cmbClock = nullptr;
    CheckTable* table = nullptr;
    KeptNote* lblKept = nullptr;
    QLabel *lblResult = nullptr, *lblHint = nullptr, *lblSaid = nullptr;
    QPushButton *cmdPaste = nullptr, *cmdDelete = nullptr, *cmdCopy = nullptr, *cmdClose = nullptr;

    /// What is typed by now; the last line of the table, which waits for one, is none of it.
    const TableCheck& check() const { return of.check; }

    void done(int result) override;

  private:
    void buildlayout();
    QLayout* buildfoot();
    void connectcontrols();
    void filltable();
    void fillline(int row, const TableWater& water);
    void type(int row, int column, const QString& text);
    DateReading dates() const;
    void tidyline(int row);
    void showresult();
    void showline(int row, const CheckedWater& water, const PortClock& clock);
    void paste();
    void deleteline();
    void keepsoon();
    void say(const QString& text);
    void keep();
    std::string copytext() const;

    MainContext& context;
    AboutOf of;
    QString notkept;  ///< why what was typed isn't in the file; empty when it is
    /// What stood as the date of a line before it was typed over.
    struct {
        int row = -1;
        std::string text;
    } dateleft;
    QTimer* keeplater = nullptr;
    bool filling = false;  ///< the table follows the lines, not the user
};

}  // namespace tarvane
