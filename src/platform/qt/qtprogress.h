// A progress dialog over the active window.
#pragma once

#include "platform/progress.h"

namespace tarvane {

class QtProgress : public Progress {
  public:
    bool run(const std::string& text, int steps, const std::function<bool(int)>& step) override;
};

}  // namespace tarvane
