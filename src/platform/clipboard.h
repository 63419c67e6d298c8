// The system clipboard.
#pragma once

#include <string>

namespace tarvane {

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void clear() = 0;
    virtual void settext(const std::string& text) = 0;
    virtual std::string text() const = 0;  ///< empty when it holds none
};

}  // namespace tarvane
