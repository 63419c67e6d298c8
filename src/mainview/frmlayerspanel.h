// The table beside the picture in the constituents view: a check box, a constant and a contribution a constituent, and
// their sum. Only controls; the values come from the session.
#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QRect>
#include <array>
#include <functional>

#include "session/session.h"

namespace tarvane {

class LayersPanel {
  public:
    /// Makes the controls on a window, hidden. A click on a check box calls `onclick`.
    void build(QWidget* parent, const std::function<void()>& onclick);

    /// Places the table in an area; the line that closes it stands where `line` says.
    void place(const QRect& area, const QRect& line);

    void HideLevelControls();
    void showlevelcontrols();

    /// What the session holds of it: whether the table is there, the constants behind the names where they are shown,
    /// and the contributions at the mouse.
    void show(const Session& session);

    LayerChoice choice() const;

    QLabel *Label1 = nullptr, *Label3 = nullptr, *lblSum = nullptr, *lblSumHt = nullptr;
    QFrame* Line1 = nullptr;

    /// The controls of one constituent, by its place in `constituents`: chkM2, lblm2Harm and lblHtM2 and their like.
    struct Row {
        QCheckBox* box = nullptr;
        QLabel* constant = nullptr;
        QLabel* value = nullptr;
    };
    std::array<Row, constituents.size()> rows{};

  private:
    void showcontrols(bool visible);
};

}  // namespace tarvane
