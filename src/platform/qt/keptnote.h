// What the user has to be told of a file that the program keeps for him, as a line of a window. Must not read files.
#pragma once

#include <QLabel>
#include <string>

namespace tarvane {

/// Hidden as long as there is nothing to tell.
class KeptNote : public QLabel {
  public:
    KeptNote();

    /// An empty text leaves what was told before.
    void tell(const std::string& text);
};

}  // namespace tarvane
