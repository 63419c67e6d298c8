// The map over the world and nearer, by day and in the dark. Must not choose a port for good.
#pragma once

#include <QString>
#include <functional>
#include <string>

#include "shots/stage.h"

namespace tarvane::shots {

/// Hands the window, as it stands each time, with the name of its picture to `take`. The areas are those beside `area`.
void takemaps(Stage& stage, const std::string& area, const std::function<void(QWidget&, const QString&)>& take);

}  // namespace tarvane::shots
