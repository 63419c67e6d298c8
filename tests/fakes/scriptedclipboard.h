// A clipboard in memory. Must not touch the machine's own.
#pragma once

#include <string>

#include "platform/clipboard.h"

namespace tarvane {

class ScriptedClipboard : public Clipboard {
  public:
    std::string contents;
    int clears = 0;

    void clear() override {
        contents.clear();
        ++clears;
    }
    void settext(const std::string& text) override { contents = text; }
};

}  // namespace tarvane
