// Lays the manual out: "makemanual CHAPTERS SHOTS FILE.pdf", of the chapters in one folder (drawings in its "figures")
// and the pictures of the program's windows in another.
#include <QGuiApplication>
#include <QHashFunctions>
#include <cstdio>

#include "files/wholefiles.h"
#include "manual/book.h"

int main(int argc, char** argv) {
    using namespace tarvane;
    // The same source makes the same bytes, on every screen.
    QHashSeed::setDeterministicGlobalSeed();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_FONT_DPI");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4) {
        std::fprintf(stderr, "usage: makemanual CHAPTERS SHOTS FILE.pdf\n");
        return 2;
    }
    try {
        const manual::FigureFolders figures{arguments[2], arguments[1] + "/figures"};
        const std::string book = manual::makebook(manual::readchapters(arguments[1]), figures);
        const WriteOutcome written = replacefile(arguments[3].toStdString(), book);
        if (written) return 0;
        std::fprintf(stderr, "makemanual: %s: %s\n", qPrintable(arguments[3]), written.reason().c_str());
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "makemanual: %s\n", fault.what());
    }
    return 1;
}
