#include "world/mappicture.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "paint/labels.h"
#include "text/numbers.h"
#include "world/landpicture.h"

namespace tarvane {
namespace {

constexpr double markradius = 5;
constexpr double inhandradius = 7;
constexpr double smalltext = 0.85;
constexpr double gridapart = 110;  // of its lines at least
constexpr double scalewidth = 130;
constexpr double edge = 8;
constexpr std::size_t mostnames = 300;  // that are tried

/// Minutes of a degree.
constexpr std::array gridsteps{1, 2, 5, 10, 30, 60, 120, 300, 600, 900, 1800};
constexpr std::array scalesteps{0.1, 0.2, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0, 200.0, 500.0, 1000.0, 2000.0};

Area areaof(const MapPicture& picture) {
    return {0, 0, picture.view.width, picture.view.height};
}

std::string angletext(double degrees, const char* hemispheres) {
    const long minutes = std::lround(std::abs(degrees) * 60);
    std::string text = std::to_string(minutes / 60) + "\u00B0";
    if (minutes % 60 != 0) text += (minutes % 60 < 10 ? "0" : "") + std::to_string(minutes % 60) + "'";
    if (minutes != 0 && minutes != 180 * 60) text += degrees > 0 ? hemispheres[0] : hemispheres[1];
    return text;
}

/// Paints a map's parts over one another, names last.
class MapPainter {
  public:
    MapPainter(Canvas& canvas, const MapPicture& picture)
        : canvas_(canvas),
          picture_(picture),
          view_(picture.view),
          look_(picture.look),
          places_(canvas, areaof(picture)) {}

    void paint() {
        canvas_.fill(areaof(picture_), look_.sea);
        paintland(canvas_, picture_.coast, view_, look_);
        grid();
        scalebar();
        fault();
        marks();
        names();
    }

  private:
    TextLook small(Anchor anchor = Anchor::left) const {
        return {look_.faint, picture_.textsize * smalltext, false, anchor};
    }

    /// A text of the grid, to be read over land and coast alike.
    void gridnote(Place place, const std::string& text) {
        const double width = canvas_.textwidth(text, small()), height = canvas_.textheight(small());
        canvas_.fill(Area{place.x - 2, place.y, place.x + width + 2, place.y + height}, look_.sea, 0.7);
        note(place, text, small());
    }

    /// A text that names keep clear of.
    void note(Place place, const std::string& text, const TextLook& look) {
        const double width = canvas_.textwidth(text, look);
        const double left = place.x - (look.anchor == Anchor::left    ? 0
                                       : look.anchor == Anchor::right ? width
                                                                      : width / 2);
        places_.take({left - 2, place.y, left + width + 2, place.y + canvas_.textheight(look)});
        canvas_.text(place, text, look);
    }

    void grid() {
        const auto step = std::find_if(gridsteps.begin(), gridsteps.end(),
                                       [&](int minutes) { return view_.scale / (360 * 60) * minutes >= gridapart; });
        const double degrees = (step == gridsteps.end() ? gridsteps.back() : *step) / 60.0;
        const double west = (view_.middle.x - view_.width / 2 / view_.scale - 0.5) * 360,
                     east = west + view_.width / view_.scale * 360;
        const double north = latitudeof(view_.pointof({0, 0})), south = latitudeof(view_.pointof({0, view_.height}));
        const double high = canvas_.textheight(small());
        for (double line = std::ceil(west / degrees); line * degrees <= east; ++line) {
            const double x = (line * degrees - west) / 360 * view_.scale;
            canvas_.line(std::array{Place{x, 0}, Place{x, view_.height}}, {look_.grid, 0.6});
            const double longitude = line * degrees - 360 * std::floor((line * degrees + 180) / 360);
            if (x > edge && x + 4 * high < view_.width) gridnote({x + 3, 2}, longitudetext(longitude));
        }
        for (double line = std::ceil(south / degrees); line * degrees <= north; ++line) {
            const double y = view_.placeof(mappoint(line * degrees, 0)).y;
            canvas_.line(std::array{Place{0, y}, Place{view_.width, y}}, {look_.grid, 0.6});
            if (y - high > high && y < view_.height - 3 * high) gridnote({3, y - high}, latitudetext(line * degrees));
        }
    }

    void scalebar() {
        const double mile = view_.milewidth();
        const auto beyond = std::upper_bound(scalesteps.begin(), scalesteps.end(), scalewidth / mile);
        const double miles = beyond == scalesteps.begin() ? scalesteps.front() : *(beyond - 1);
        const double left = edge, right = edge + miles * mile, foot = view_.height - edge;
        canvas_.line(std::array{Place{left, foot - 5}, Place{left, foot}, Place{right, foot}, Place{right, foot - 5}},
                     {look_.text, 1.5});
        TextLook look = small(Anchor::middle);
        look.colour = look_.text;
        note({(left + right) / 2, foot - 4 - canvas_.textheight(look)}, numbertext(miles) + " nm", look);
        places_.take({left, foot - 6, right, foot + 2});
    }

    /// Why there is no coast, or whose it is.
    void fault() {
        const bool whole = picture_.coast.fault.empty();
        TextLook look = small(Anchor::right);
        if (!whole) look.colour = look_.now;
        note({view_.width - edge, view_.height - edge / 2 - canvas_.textheight(look)},
             whole ? "Coast: Natural Earth" : picture_.coast.fault, look);
    }

    bool isinhand(const MapPort& port) const { return picture_.inhand == port.place; }

    void marks() {
        const int depth = depthof(view_);
        const Area around{-inhandradius, -inhandradius, view_.width + inhandradius, view_.height + inhandradius};
        const MapPort* inhand = nullptr;
        for (const MapPort& port : picture_.ports) {
            if (isinhand(port)) inhand = &port;
            if (port.depth > depth || isinhand(port)) continue;
            const Place place = view_.placeof(port.point);
            if (!around.holds(place)) continue;
            painttrust(canvas_, place, markradius, port.trust, look_);
            shown_.push_back(&port);
            takemark(place, markradius);
        }
        if (!inhand || !around.holds(view_.placeof(inhand->point))) return;
        const Place place = view_.placeof(inhand->point);
        paintring(canvas_, place, inhandradius + 4, {look_.now, 2.5});
        painttrust(canvas_, place, inhandradius, inhand->trust, look_);
        takemark(place, inhandradius + 4);
        shown_.insert(shown_.begin(), inhand);
    }

    void takemark(Place place, double radius) {
        places_.take({place.x - radius, place.y - radius, place.x + radius, place.y + radius});
    }

    void names() {
        std::size_t tried = 0;
        for (const MapPort* port : shown_) {
            if (++tried > mostnames) break;
            const std::vector<Label> choices = labelsof(*port);
            std::optional<Label> label = places_.placefirst(choices);
            if (!label && isinhand(*port)) {
                label = choices.front();
                label->behind = look_.paper;
                places_.take(tarvane::areaof(canvas_, *label));
            }
            if (label) paintlabel(canvas_, *label);
        }
    }

    /// To the right of its mark, to the left, under and over it.
    std::vector<Label> labelsof(const MapPort& port) const {
        const bool inhand = isinhand(port);
        const double radius = (inhand ? inhandradius + 4 : markradius) + 2;
        Label label{{picture_.world.ports[port.place].name}, {look_.text, picture_.textsize, inhand}, {}};
        const Area size = tarvane::areaof(canvas_, label);
        const Place mark = view_.placeof(port.point);
        const double across = radius + size.width() / 2, middle = mark.y - size.height() / 2;
        std::vector<Label> labels;
        for (const Place& place : {Place{mark.x + across, middle}, Place{mark.x - across, middle},
                                   Place{mark.x, mark.y + radius}, Place{mark.x, mark.y - radius - size.height()}}) {
            label.middle = place;
            labels.push_back(label);
        }
        return labels;
    }

    Canvas& canvas_;
    const MapPicture& picture_;
    const MapView& view_;
    const Colours& look_;
    LabelPlaces places_;
    std::vector<const MapPort*> shown_;
};

}  // namespace

void paintmap(Canvas& canvas, const MapPicture& picture) {
    MapPainter(canvas, picture).paint();
}

void paintpointed(Canvas& canvas, const MapPicture& picture, std::size_t pointed) {
    const MapPort& port = picture.ports[pointed];
    const Colours& look = picture.look;
    const Place mark = picture.view.placeof(port.point);
    if (!areaof(picture).holds(mark)) return;
    // It may be one that is too near another to be shown.
    painttrust(canvas, mark, inhandradius, port.trust, look);
    paintring(canvas, mark, inhandradius + 4, {look.cursor, 2});
    Label label{porttexts(picture.world, port), {look.text, picture.textsize}, mark, 0, {}};
    const Area size = areaof(canvas, label);
    const double wide = size.width() + 10, high = size.height() + 8;
    // Over the mark, where there is no room under it.
    double top = mark.y - inhandradius - 10 - high;
    if (top < 2) top = mark.y + inhandradius + 10;
    const double left = std::clamp(mark.x - wide / 2, 2.0, std::max(2.0, picture.view.width - wide - 2));
    const std::array corners{Place{left, top}, Place{left + wide, top}, Place{left + wide, top + high},
                             Place{left, top + high}, Place{left, top}};
    canvas.fill(Area{left, top, left + wide, top + high}, look.band);
    canvas.line(corners, {look.grid, 1});
    label.middle = {left + wide / 2, top + 4};
    paintlabel(canvas, label);
}

std::vector<std::string> porttexts(const World& world, const MapPort& port) {
    const WorldPort& told = world.ports[port.place];
    return {told.name, world.areas[told.area].name, trustword(port.trust)};
}

std::string latitudetext(double degrees) {
    return angletext(degrees, "NS");
}

std::string longitudetext(double degrees) {
    return angletext(degrees, "EW");
}

}  // namespace tarvane
