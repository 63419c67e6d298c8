// Where the pages of one document go: a printer, or a PDF that stands in for it. Must not lay out or draw anything.
#pragma once

#include <QPagedPaintDevice>
#include <memory>
#include <string>

#include "platform/printer.h"

namespace tarvane {

class PageTarget {
  public:
    virtual ~PageTarget() = default;

    /// Whether there is anything to print to. Asked once, before anything is painted.
    virtual PrintOutcome ready() = 0;

    /// What the pages are painted on.
    virtual QPagedPaintDevice& device() = 0;

    /// Hands over what was painted, the painter being gone.
    virtual PrintOutcome finish() = 0;

    /// The file that it went into; empty for a printer.
    virtual std::string destination() const { return {}; }
};

/// Whether the system has a printer.
bool anyprinter();

/// The printer of this name; without one the system's default printer, or its first.
std::unique_ptr<PageTarget> printertarget(const std::string& title, const std::string& name);

/// A new file "title.pdf" in the folder, which is made if need be; a file that stands is never overwritten. The pages
/// are made in memory, and the file is there whole or not at all.
std::unique_ptr<PageTarget> pdftarget(const std::string& folder, const std::string& title);

}  // namespace tarvane
