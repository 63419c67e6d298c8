// The part of the world that a map shows, in Mercator's projection: dragged, zoomed about a place, fitted to ports; it
// goes on over the date line. Must not paint.
#pragma once

#include <span>

#include "platform/canvas.h"

namespace tarvane {

/// A place of the projected world, which is 1 wide and, to 85.05 degrees, 1 high: x eastwards from the date line, y
/// southwards from the top. Whole numbers of x are one meridian.
struct MapPoint {
    double x = 0, y = 0;
};

/// Degrees, north and east positive; latitudes beyond 89.9 are taken for that.
MapPoint mappoint(double latitude, double longitude);
double latitudeof(const MapPoint& point);
double longitudeof(const MapPoint& point);  ///< from -180 up to 180

struct MapView {
    MapPoint middle{0.5, 0.4};
    double scale = 0;              ///< how wide the world would be, units of the canvas
    double width = 0, height = 0;  ///< of the picture

    Place placeof(const MapPoint& point) const;  ///< of its copy that is nearest to the middle
    MapPoint pointof(Place place) const;         ///< x from 0 up to 1
    double milewidth() const;                    ///< of a nautical mile at the middle
};

inline constexpr double greatestscale = 1 << 21;  ///< a pixel is some 12 m at 50 degrees: the coast has no more

void resizeview(MapView& view, double width, double height);

/// Moves what is seen by so much of the canvas.
void moveview(MapView& view, double right, double down);

/// `factor` above 1 for closer; what lies at the place stays there, as far as the world's edges let it.
void zoomview(MapView& view, double factor, Place about);

/// Puts a point into the middle.
void centreview(MapView& view, const MapPoint& point);

/// Shows all of the points with a margin, over the date line where that is shorter; the whole world when there are
/// none.
void fitview(MapView& view, std::span<const MapPoint> points);

void showworld(MapView& view);

}  // namespace tarvane
