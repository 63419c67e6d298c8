// The mounted media as the system tells them. Must not remember them from one call to the next.
#pragma once

#include "platform/drives.h"

namespace tarvane {

class QtDrives : public Drives {
  public:
    std::vector<Drive> drives() const override;
};

/// True for a place where the desktops and their users mount removable media.
bool mountedmedium(const std::string& path);

}  // namespace tarvane
