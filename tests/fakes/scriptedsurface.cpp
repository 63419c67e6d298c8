#include "fakes/scriptedsurface.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace tarvane {
namespace {

using Kind = ScriptedSurface::Kind;
using Drawn = ScriptedSurface::Drawn;

std::string logline(const Drawn& entry) {
    std::ostringstream line;
    for (const double place : {entry.x1, entry.y1, entry.x2, entry.y2})
        line << place << ' ';
    line << std::hex << entry.colour << std::dec << ' ' << entry.width << ' ' << entry.text << '\n';
    return line.str();
}

}  // namespace

std::string ScriptedSurface::log(const std::vector<Drawn>& layer) {
    std::string all;
    for (const Drawn& entry : layer)
        all += logline(entry);
    return all;
}

std::vector<Drawn> ScriptedSurface::only(const std::vector<Drawn>& layer, Kind kind, Colour colour) {
    std::vector<Drawn> found;
    std::copy_if(layer.begin(), layer.end(), std::back_inserter(found),
                 [&](const Drawn& entry) { return entry.kind == kind && entry.colour == colour; });
    return found;
}

void ScriptedSurface::setscale(double newleft, double newtop, double newright, double newbottom) {
    left = newleft;
    top = newtop;
    right = newright;
    bottom = newbottom;
}

void ScriptedSurface::clear() {
    passinglayer.clear();
    if (!persistent) return;
    persistentlayer.clear();
    ++persistentclears;
}

}  // namespace tarvane
