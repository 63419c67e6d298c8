// A small manual of known contents, for what is tested of its reader.
#pragma once

#include "fakes/temporaryfolder.h"
#include "manual/book.h"
#include "reader/windowchapters.h"

namespace tarvane::tests {

/// Lines enough that no other chapter begins on the page.
inline QString almostapage() {
    return QString("Calm water.\n\n").repeated(26);
}

/// Title, contents, and the chapters "First", "The curve and what its parts mean" and "Choosing a port and a date", a
/// page each, with "Last" below the third. The word "harbour" stands on pages 3, 3, 4 and 5.
inline void puttestbook(const fakes::TemporaryFolder& programfolder) {
    using manual::readchapter;
    const std::vector<manual::Chapter> chapters{
        readchapter("# First\n\nA harbour, and a second Harbour.\n\n" + almostapage(), "1"),
        readchapter("# The curve and what its parts mean\n\nThe harbour's curve.\n\n## Its red line\n\nNow.\n\n" +
                        almostapage(),
                    "2"),
        readchapter("# Choosing a port and a date\n\nA harbour by name.\n", "3"),
        readchapter("# Last\n\nOf all.\n", "4"),
    };
    std::filesystem::create_directory(programfolder / "PDF");
    putfile(programfolder / "PDF/" + manualfile, manual::makebook(chapters, {}));
}

}  // namespace tarvane::tests
