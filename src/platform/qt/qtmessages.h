// Message boxes over the active window, and the beep.
#pragma once

#include "platform/messages.h"

namespace tarvane {

class QtMessages : public Messages {
  public:
    void show(const std::string& text, const std::string& title, MessageIcon icon = MessageIcon::none) override;
    bool ask(const std::string& text, const std::string& title, MessageIcon icon = MessageIcon::question) override;
    Answer askorcancel(const std::string& text, const std::string& title,
                       MessageIcon icon = MessageIcon::question) override;
    void beep() override;
};

}  // namespace tarvane
