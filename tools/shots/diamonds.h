// The windows of the tidal diamonds, over diamonds and a medium that are made for the picture.
#pragma once

#include <QString>
#include <functional>

#include "shots/stage.h"

namespace tarvane::shots {

/// Hands every window with the name of its picture to `take`.
void takediamonds(Stage& stage, const std::function<void(QWidget&, const QString&)>& take);

}  // namespace tarvane::shots
