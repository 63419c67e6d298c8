// "Map": the ports of all areas on their coasts, one of them chosen by a click. Stands beside the main window and
// follows it. Only controls; what it shows is the map box's, what is told of it the map texts'.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <array>
#include <functional>

#include "session/session.h"
#include "world/frmmapbox.h"

namespace tarvane {

class frmmap : public QWidget {
  public:
    explicit frmmap(MainContext& context);

    /// The user chose a port: the path of its area, and its number there.
    std::function<void(const std::string& area, std::int16_t number)> onport;

    /// The session may have another port by now, and files may have changed.
    void follow();

    /// Brings a port into the middle and points at it.
    void showport(const std::string& hcfile, std::int16_t number);

    /// Red light, or as the desktop is.
    void shownight(bool night);

    MapBox* map = nullptr;
    QLabel *lblPointed = nullptr, *lblPosition = nullptr;
    QPushButton *cmdZoomIn = nullptr, *cmdZoomOut = nullptr, *cmdThisPort = nullptr, *cmdArea = nullptr,
                *cmdAll = nullptr, *cmdClose = nullptr;
    std::array<QLabel*, 5> legend{};  ///< the marks, by `Trust`

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void buildlayout();
    QLayout* buildlegend();
    void connectcontrols();
    void choose(std::size_t place);
    void showpointed();
    void showarea();
    void showlegend();

    MainContext& context;
    World files;       ///< as they were read last
    std::string area;  ///< in hand
    bool night_ = false;
    bool shownbefore_ = false;
};

}  // namespace tarvane
