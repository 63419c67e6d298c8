// The file dialogs over the active window. Must not remember a folder or a name from one call to the next.
#pragma once

#include <QStringList>

#include "platform/filedialogs.h"

namespace tarvane {

class QtFileDialogs : public FileDialogs {
  public:
    std::optional<std::string> open(const FileRequest& request) override;

    /// A name typed without an extension gets that of the filter shown, where it names one.
    std::optional<std::string> save(const FileRequest& request) override;
};

/// "A (*.txt)|*.txt|B|*.hc;*.dep" as the toolkit's filters: one text a pair, its patterns behind it in brackets, each
/// also in lower and in upper case. Nothing for a filter without a pattern.
QStringList namefilters(const std::string& filter);

}  // namespace tarvane
