// Pictures and booklets through the toolkit's painter, PDF writer and print preview.
#pragma once

#include "platform/drawings.h"

namespace tarvane {

class QtDrawings : public Drawings {
  public:
    Paper usualpaper() const override;
    std::string png(const Drawing& drawing, double scale) override;
    std::string svg(const Drawing& drawing) override;
    std::string pdf(const Booklet& booklet, Paper paper) override;
    void copy(const Drawing& drawing) override;
    PrintOutcome preview(const Booklet& booklet, Paper paper) override;
};

}  // namespace tarvane
