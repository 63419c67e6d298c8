// A drawing surface in memory, for pictures that go to a file. Must not need a window.
#pragma once

#include "platform/qt/layeredsurface.h"

namespace tarvane {

class ImageSurface : public LayeredSurface {
  public:
    /// Size in logical pixels; the image has `pixelratio` times as many each way.
    explicit ImageSurface(QSize size, double pixelratio = 1);

    /// Both layers as they stand.
    QImage image();

  protected:
    QFont textfont() const override { return {}; }
};

}  // namespace tarvane
