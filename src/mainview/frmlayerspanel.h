// The table beside the picture in the constituents view: a check box, a constant and a contribution a constituent, and
// their sum. Only controls; the values come from the session.
#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QRect>
#include <array>
#include <functional>

#include "mainview/session.h"

namespace tarvane {

class LayersPanel {
  public:
    /// Makes the controls on a window, hidden. A click on a check box calls `onclick`.
    void build(QWidget* parent, const std::function<void()>& onclick);

    /// Places the table in an area; the line that closes it stands where `line` says.
    void place(const QRect& area, const QRect& line);

    void HideLevelControls();
    void showlevelcontrols();

    /// The constants behind the names, where the session shows them, and the contributions at the mouse.
    void show(const Session& session);
    void showvalues(const LayerReadout& values);

    LayerChoice choice() const;

    QLabel *Label1 = nullptr, *Label3 = nullptr, *lblSum = nullptr, *lblSumHt = nullptr;
    QFrame* Line1 = nullptr;

    QCheckBox *chkZ0 = nullptr, *chkM2 = nullptr, *chkS2 = nullptr, *chkK1 = nullptr, *chkO1 = nullptr,
              *chkf4 = nullptr, *chkf6 = nullptr;
    QLabel *lblZ0harm = nullptr, *lblm2Harm = nullptr, *lblS2Harm = nullptr, *lblK1Harm = nullptr, *lblO1Harm = nullptr,
           *lblf4Harm = nullptr, *lblf6Harm = nullptr;
    QLabel *lblHtZ0 = nullptr, *lblHtM2 = nullptr, *lblHtS2 = nullptr, *lblHtK1 = nullptr, *lblHtO1 = nullptr,
           *lblHtf4 = nullptr, *lblHtf6 = nullptr;

  private:
    struct Row {
        QCheckBox* box;
        QLabel* constant;
        QLabel* value;
    };
    std::array<Row, 7> rows() const;
    std::array<QWidget*, 26> levelcontrols() const;
};

}  // namespace tarvane
