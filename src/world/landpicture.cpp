#include "world/landpicture.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tarvane {
namespace {

// Units of the canvas: islands that are all coast.
constexpr double speck = 2.5;
constexpr double islet = 5;
constexpr double clipped = 4;  // units of the canvas: what is clipped there isn't seen

/// The world moved by whole turns, on the canvas.
struct Onto {
    double left, top, scale;  ///< of the world's origin

    Place operator()(const CoastPoint& point) const {
        return {left + static_cast<double>(point.x) * scale, top + static_cast<double>(point.y) * scale};
    }
    Area operator()(const CoastBox& box) const {
        const Place first = (*this)(CoastPoint{box.left, box.top}), last = (*this)(CoastPoint{box.right, box.bottom});
        return {first.x, first.y, last.x, last.y};
    }
};

/// On which sides of a frame all of an area lies beyond it.
bool beside(const Area& area, const Area& frame) {
    return area.right < frame.left || area.left > frame.right || area.bottom < frame.top || area.top > frame.bottom;
}

bool within(const Area& area, const Area& frame) {
    return area.left >= frame.left && area.right <= frame.right && area.top >= frame.top && area.bottom <= frame.bottom;
}

/// The part of a shape on one side of a level line: `along` is the coordinate, `sign` 1 keeps what is less than the
/// limit.
void clip(std::vector<Place>& shape, double Place::*along, double limit, double sign, std::vector<Place>& room) {
    room.clear();
    const auto off = [&](const Place& place) { return sign * (place.*along - limit); };
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const Place &from = shape[i], &to = shape[i + 1 < shape.size() ? i + 1 : 0];
        const double fromoff = off(from), tooff = off(to);
        if (fromoff <= 0) room.push_back(from);
        if ((fromoff < 0 && tooff > 0) || (fromoff > 0 && tooff < 0)) {
            const double part = fromoff / (fromoff - tooff);
            Place edge{from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)};
            edge.*along = limit;
            room.push_back(edge);
        }
    }
    shape.swap(room);
}

/// Paints rings one after the other in the same room.
class LandPainter {
  public:
    LandPainter(Canvas& canvas, const MapView& view, const Colours& look)
        : canvas_(canvas), look_(look), frame_{-clipped, -clipped, view.width + clipped, view.height + clipped} {}

    void paint(const CoastRing& ring, const Onto& onto) {
        const Area all = onto(ring.box);
        if (beside(all, frame_)) return;
        const double size = std::max(all.width(), all.height());
        if (size < speck) return canvas_.fill(all, look_.shore);
        collect(ring, onto);
        if (size < islet) return canvas_.fill(shape_, look_.shore, 1);
        if (!within(all, frame_)) {
            clip(shape_, &Place::x, frame_.left, -1, room_);
            clip(shape_, &Place::x, frame_.right, 1, room_);
            clip(shape_, &Place::y, frame_.top, -1, room_);
            clip(shape_, &Place::y, frame_.bottom, 1, room_);
        }
        if (shape_.size() > 2) canvas_.fillrough(shape_, ring.lake ? look_.sea : look_.land);
        for (std::size_t piece = 0; piece < ring.pieces.size(); ++piece)
            if (!beside(onto(ring.pieces[piece]), frame_)) drawpiece(ring, piece, onto);
    }

  private:
    /// The ring's corners. Of a piece that lies wholly on one side of the frame only its ends count: what it encloses
    /// there is not seen.
    void collect(const CoastRing& ring, const Onto& onto) {
        shape_.clear();
        for (std::size_t piece = 0; piece < ring.pieces.size(); ++piece) {
            const std::size_t first = piece * coastpiece, last = std::min(first + coastpiece, ring.points.size() - 1);
            shape_.push_back(onto(ring.points[first]));
            if (beside(onto(ring.pieces[piece]), frame_)) continue;
            for (std::size_t i = first + 1; i < last; ++i)
                shape_.push_back(onto(ring.points[i]));
        }
    }

    void drawpiece(const CoastRing& ring, std::size_t piece, const Onto& onto) {
        const std::size_t first = piece * coastpiece, last = std::min(first + coastpiece, ring.points.size() - 1);
        line_.clear();
        for (std::size_t i = first; i <= last; ++i) {
            if (i > first && cutline(ring.points[i - 1], ring.points[i])) draw();
            line_.push_back(onto(ring.points[i]));
        }
        draw();
    }

    void draw() {
        if (line_.size() > 1) canvas_.line(line_, {look_.shore, 1});
        line_.clear();
    }

    Canvas& canvas_;
    const Colours& look_;
    const Area frame_;
    std::vector<Place> shape_, room_, line_;
};

}  // namespace

void paintland(Canvas& canvas, const Coast& coast, const MapView& view, const Colours& look) {
    const CoastLevel* level = coastlevel(coast, view.scale);
    if (!level) return;
    LandPainter painter(canvas, view, look);
    const double left = view.width / 2 - view.middle.x * view.scale, top = view.height / 2 - view.middle.y * view.scale;
    // Rings go on over the date line, in either direction.
    const int first = static_cast<int>(std::floor(-left / view.scale)) - 1,
              last = static_cast<int>(std::ceil((view.width - left) / view.scale));
    for (const CoastRing& ring : level->rings)
        for (int turn = first; turn <= last; ++turn)
            painter.paint(ring, {left + turn * view.scale, top, view.scale});
}

}  // namespace tarvane
