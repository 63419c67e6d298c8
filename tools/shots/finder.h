// The finder over all the areas that ship. Must not leave them on the stage.
#pragma once

#include <QString>
#include <functional>
#include <string>

#include "shots/stage.h"

namespace tarvane::shots {

/// `areas` is the folder where the built areas lie. Hands each window with the name of its picture to `take`.
void takefinder(Stage& stage, const std::string& areas, const std::function<void(QWidget&, const QString&)>& take);

}  // namespace tarvane::shots
