#include "reader/windowchapters.h"

namespace tarvane {
namespace {

constexpr const char* firstday = "Your first day with the program";
constexpr const char* planner = "When can I go? The planner";
constexpr const char* world = "The ports of the world";
constexpr const char* curve = "The curve and what its parts mean";
constexpr const char* heights = "Heights, depths and draught";
constexpr const char* choosing = "Choosing a port and a date";
constexpr const char* tables = "Month, sun and moon tables";
constexpr const char* correcting = "Correcting and copying ports";
constexpr const char* creek = "A creek of your own";
constexpr const char* streams = "Tidal streams";
constexpr const char* files = "Where your files live";

constexpr WindowChapter chapters[] = {
    {"frmConditions", firstday},    {"Form1", firstday},
    {"frmtarvane", curve},          {"frmoutoptions", heights},
    {"frmChartdepth", heights},     {"frmconfig", choosing},
    {"Frmtimdat", choosing},        {"Frmsunrise", tables},
    {"Frmriseresults", tables},     {"frmharmedit", correcting},
    {"frmHCcopy", correcting},      {"frmHarmAdjust", creek},
    {"frmHeightEnter", creek},      {"frmSelectHeightFile", creek},
    {"FrmAdjustfileselect", creek}, {"frmAdjustSave", creek},
    {"frmWeighting", creek},        {"frmTidalDiamondsCopy", streams},
    {"frmimport", streams},         {"frmstreams", streams},
    {"frmshowconf", files},         {"frmplanner", planner},
    {"frmaboutport", world},        {"frmcheckport", world},
    {"frmfinder", world},           {"frmmap", world},
};

}  // namespace

std::span<const WindowChapter> windowchapters() {
    return chapters;
}

std::optional<std::string> chapterof(const std::string& window) {
    for (const WindowChapter& told : chapters)
        if (told.window == window) return told.chapter;
    return std::nullopt;
}

}  // namespace tarvane
