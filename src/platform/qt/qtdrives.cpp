#include "platform/qt/qtdrives.h"

#include <QStorageInfo>
#include <algorithm>

namespace tarvane {

bool mountedmedium(const std::string& path) {
    const auto below = [&path](const std::string& folder) { return path == folder || path.starts_with(folder + "/"); };
    return below("/media") || below("/run/media") || below("/mnt");
}

std::vector<Drive> QtDrives::drives() const {
    std::vector<Drive> media;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const std::string path = volume.rootPath().toStdString();
        if (volume.isValid() && volume.isReady() && mountedmedium(path))
            media.push_back({path, volume.name().toStdString()});
    }
    std::sort(media.begin(), media.end(), [](const Drive& a, const Drive& b) { return a.path < b.path; });
    media.insert(media.begin(), {"/", ""});
    return media;
}

}  // namespace tarvane
