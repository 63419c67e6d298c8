// How the main window comes up. Must not know any control.
#pragma once

#include "session/session.h"

namespace tarvane {

/// The load of the main window: configuration, user depths, port, date, first prediction, pictures and texts.
void loadmainwindow(MainContext& context);

}  // namespace tarvane
