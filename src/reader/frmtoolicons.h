// The reader's toolbar pictures: the desktop's own, or drawn where it has none. Must not know what a key does.
#pragma once

#include <QIcon>

namespace tarvane {

enum class ToolPicture { first, back, next, last, zoomin, zoomout, up, down, fitwidth, fitpage };

/// `theme` is the desktop's name for it, empty for none.
QIcon toolicon(ToolPicture picture, const char* theme);

}  // namespace tarvane
