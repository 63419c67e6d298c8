// The mark of trust as a picture for buttons and lists.
#pragma once

#include <QIcon>

#include "world/trust.h"

namespace tarvane {

/// `size` logical pixels each way, sharp at any scaling of the screen.
QIcon trusticon(Trust trust, const Colours& colours, int size);

}  // namespace tarvane
