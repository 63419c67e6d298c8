// A map on a window: dragged and zoomed by mouse, wheel, pinch and keys, a port chosen by a click on its mark. The
// still picture is painted once and kept, what is pointed at over it. Must not choose a port itself.
#pragma once

#include <functional>
#include <optional>

#include "paint/frmzoombox.h"
#include "world/mappicture.h"

namespace tarvane {

class MapBox : public ZoomBox {
  public:
    /// The coast is read from the program's folder.
    explicit MapBox(const std::string& programfolder, QWidget* parent = nullptr);

    std::function<void(std::size_t place)> onport;  ///< a port was chosen, by its place in `World::ports`
    std::function<void()> onpointed;                ///< another port, another place or none is pointed at

    /// Those of the area with the path `first` are shown before others that are as good.
    void setports(World world, const std::string& first = "");

    /// Marks a port, by its place in `World::ports`, and where it was another goes to it if it isn't in view.
    void setinhand(std::optional<std::size_t> place);

    void pointat(std::optional<std::size_t> place);  ///< a port, by its place in `World::ports`
    void zoom(double factor);                        ///< about the middle, or about the port that is pointed at
    void goinhand();                 ///< the port in hand into the middle, near enough to tell it from its neighbours
    void goport(std::size_t place);  ///< the same of any port, by its place in `World::ports`, which is pointed at then
    void fitports();                 ///< all ports that it has
    void fitarea(std::size_t area);  ///< those of one, a place in `World::areas`
    void wholeworld();

    const World& world() const { return world_; }
    const std::vector<MapPort>& ports() const { return ports_; }
    const MapView& view() const { return view_; }

    /// Places in `World::ports`.
    std::optional<std::size_t> inhand() const { return inhand_; }
    std::optional<std::size_t> pointed() const;

    /// Where the mouse is.
    std::optional<MapPoint> mouseat() const { return mouseat_; }

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintstill(Canvas& canvas) override;
    void zoomabout(double factor, QPointF about) override;

  private:
    MapPicture picture() const;
    void fit(const std::function<bool(const MapPort&)>& wanted);
    void gopoint(const MapPoint& point);
    void point(std::optional<std::size_t> port);
    void choose(std::size_t port);
    const MapPort* inhandport() const;

    Coast coast_;
    World world_;
    std::vector<MapPort> ports_;
    MapView view_;
    std::optional<std::size_t> inhand_;
    std::optional<std::size_t> pointed_;  ///< in `ports_`
    std::optional<MapPoint> mouseat_;
    std::optional<QPointF> pressedat_, draggedfrom_;
    bool dragging_ = false;
    bool fitted_ = false;      ///< what is seen was chosen by the user or his port, not by the size
    bool steppedout_ = false;  ///< Escape was pressed: Tab leaves
};

}  // namespace tarvane
