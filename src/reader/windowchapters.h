// Which chapter of the manual tells of which window. Must not know where a chapter stands.
#pragma once

#include <optional>
#include <span>
#include <string>

namespace tarvane {

/// The manual's file, in the folder "PDF" of the program's.
inline constexpr const char* manualfile = "Tarvane Tides Manual.pdf";

struct WindowChapter {
    const char* window;   ///< its name, "frmconfig"
    const char* chapter;  ///< the chapter's title as the manual's outline has it
};

std::span<const WindowChapter> windowchapters();

/// The title of a window's chapter; nothing for a window that no chapter tells of.
std::optional<std::string> chapterof(const std::string& window);

}  // namespace tarvane
