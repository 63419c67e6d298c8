// Message boxes and the beep. Nothing else opens a box.
#pragma once

#include <string>

namespace tarvane {

enum class MessageIcon { none, information, question, exclamation };
enum class Answer { yes, no, cancel };

class Messages {
  public:
    virtual ~Messages() = default;

    /// Shows a text with an OK button and waits for it. CR, LF and CR LF are line ends.
    virtual void show(const std::string& text, const std::string& title, MessageIcon icon = MessageIcon::none) = 0;

    /// Asks with the buttons Yes and No; true for Yes. Escape is No.
    virtual bool ask(const std::string& text, const std::string& title, MessageIcon icon = MessageIcon::question) = 0;

    /// Asks with the buttons Yes, No and Cancel, of which Cancel takes the user back to where he was. Escape is Cancel.
    virtual Answer askorcancel(const std::string& text, const std::string& title,
                               MessageIcon icon = MessageIcon::question) = 0;

    virtual void beep() = 0;
};

}  // namespace tarvane
