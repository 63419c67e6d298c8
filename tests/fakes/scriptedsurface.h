// A drawing surface that notes what is drawn, and which of it a clearing has taken away. Must not draw anything.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/drawsurface.h"

namespace tarvane {

class ScriptedSurface : public DrawSurface {
  public:
    enum class Kind { line, box, point, text };

    struct Drawn {
        Kind kind = Kind::line;
        double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  ///< x2 and y2 of lines and boxes only
        Colour colour = black;
        int width = 1;
        std::string text;
    };

    std::vector<Drawn> persistentlayer;  ///< what stands there now
    std::vector<Drawn> passinglayer;
    double left = 0, top = 0, right = 0, bottom = 0;
    Colour backcolour = white;
    bool persistent = false;
    int persistentclears = 0;
    int linewidth = 1;

    /// One layer as text, an entry a line: places, colour, width and text: "0 4 0 -1 ff 1 ", "0 4 0 0 0 1 4M".
    static std::string log(const std::vector<Drawn>& layer);

    /// The entries of one kind and colour in a layer.
    static std::vector<Drawn> only(const std::vector<Drawn>& layer, Kind kind, Colour colour = black);

    void setscale(double newleft, double newtop, double newright, double newbottom) override;
    void setpersistent(bool on) override { persistent = on; }
    void clear() override;
    void setbackcolour(Colour colour) override { backcolour = colour; }
    void setlinewidth(int pixels) override { linewidth = pixels; }
    void setlinestyle(LineStyle) override {}
    void line(double x1, double y1, double x2, double y2, Colour colour) override {
        put({Kind::line, x1, y1, x2, y2, colour, linewidth, {}});
    }
    void box(double x1, double y1, double x2, double y2, Colour colour) override {
        put({Kind::box, x1, y1, x2, y2, colour, linewidth, {}});
    }
    void point(double x, double y, Colour colour) override { put({Kind::point, x, y, 0, 0, colour, linewidth, {}}); }
    void text(double x, double y, const std::string& text) override {
        put({Kind::text, x, y, 0, 0, black, linewidth, text});
    }

  private:
    void put(Drawn entry) { (persistent ? persistentlayer : passinglayer).push_back(std::move(entry)); }
};

}  // namespace tarvane
