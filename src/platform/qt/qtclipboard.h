// The system clipboard.
#pragma once

#include "platform/clipboard.h"

namespace tarvane {

class QtClipboard : public Clipboard {
  public:
    void clear() override;
    void settext(const std::string& text) override;
    std::string text() const override;
};

}  // namespace tarvane
