// What a painted picture or booklet becomes: a file's bytes, the clipboard's picture, paper. Must not choose a path.
#pragma once

#include <functional>
#include <string>

#include "platform/canvas.h"
#include "platform/printer.h"

namespace tarvane {

/// A picture of its own size; to be painted as often as it is asked for.
struct Drawing {
    std::string title;
    double width = 0, height = 0;  ///< 1/96 inch
    std::function<void(Canvas&)> paint;
};

enum class Paper { a4, letter };

/// Pages, all lying the same way. `paint` gets the page from 0 and the part of it that is to be painted, whose top left
/// is the canvas' origin.
struct Booklet {
    std::string title;
    bool landscape = false;
    int pages = 1;
    std::function<void(int page, Canvas&, const Area&)> paint;
};

class Drawings {
  public:
    virtual ~Drawings() = default;

    /// What people write on where this computer thinks it is.
    virtual Paper usualpaper() const = 0;

    /// `scale` dots to 1/96 inch.
    virtual std::string png(const Drawing& drawing, double scale) = 0;
    virtual std::string svg(const Drawing& drawing) = 0;
    virtual std::string pdf(const Booklet& booklet, Paper paper) = 0;
    virtual void copy(const Drawing& drawing) = 0;  ///< to the clipboard, as a picture

    /// Shows the booklet page by page, from where the user prints it by the system's own dialog, or closes it.
    virtual PrintOutcome preview(const Booklet& booklet, Paper paper) = 0;
};

}  // namespace tarvane
