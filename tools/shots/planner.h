// The planner over some days, questions and lights. Must not keep what it asks.
#pragma once

#include <QString>
#include <functional>

#include "shots/stage.h"

namespace tarvane::shots {

/// Hands the window, as it stands each time, with the name of its picture to `take`.
void takeplanner(Stage& stage, const std::function<void(QWidget&, const QString&)>& take);

}  // namespace tarvane::shots
