#include "platform/qt/qtfiledialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QRegularExpression>
#include <QScreen>
#include <QSplitter>
#include <QUrl>

namespace tarvane {

namespace {

QString casefolded(const QString& patterns) {
    QStringList all;
    for (const QString& part : patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString pattern = part.trimmed();
        if (!pattern.isEmpty()) all << pattern << pattern.toLower() << pattern.toUpper();
    }
    all.removeDuplicates();
    return all.join(QLatin1Char(' '));
}

/// "txt" when the filter's first pattern is "*.txt"; empty for "*.*" and the like.
QString extension(const QString& namefilter) {
    const QString patterns = namefilter.mid(namefilter.lastIndexOf(QLatin1Char('(')) + 1);
    const QRegularExpression plain(QStringLiteral("^\\*\\.([A-Za-z0-9~]+)[ )]"));
    return plain.match(patterns).captured(1);
}

/// Home and the computer stay below them. Not every desktop's own dialog would show them.
void offerplaces(QFileDialog& dialog, const std::vector<std::string>& places) {
    if (places.empty()) return;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    QList<QUrl> urls;
    for (const std::string& place : places)
        urls << QUrl::fromLocalFile(QString::fromStdString(place));
    urls << QUrl::fromLocalFile(QDir::homePath()) << QUrl("file:");
    dialog.setSidebarUrls(urls);
    // Of its own the dialog gives them less room than their names need.
    constexpr int placeswidth = 130, fileswidth = 470;
    if (auto* columns = dialog.findChild<QSplitter*>()) columns->setSizes({placeswidth, fileswidth});
}

std::optional<std::string> run(const FileRequest& request, bool saving) {
    QFileDialog dialog(QApplication::activeWindow(), QString::fromStdString(request.title));
    dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.askoverwrite);
    dialog.setDirectory(request.folder.empty() ? QDir::homePath() : QString::fromStdString(request.folder));
    const QList<QUrl> bookmarks = dialog.sidebarUrls();
    offerplaces(dialog, request.places);
    const QStringList filters = namefilters(request.filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        if (saving) {
            dialog.setDefaultSuffix(extension(filters.first()));
            QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                             [&dialog](const QString& shown) { dialog.setDefaultSuffix(extension(shown)); });
        }
    }
    if (!request.filename.empty()) dialog.selectFile(QString::fromStdString(request.filename));
    // The dialog's own size can be larger than a small screen.
    const QRect room = dialog.screen()->availableGeometry();
    dialog.resize(dialog.sizeHint().boundedTo(room.size() - QSize(16, 48)));
    const bool accepted = dialog.exec() == QDialog::Accepted;
    // What stands beside the files as the dialog goes is kept for every program of the toolkit.
    if (!request.places.empty()) dialog.setSidebarUrls(bookmarks);
    if (!accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return dialog.selectedFiles().first().toStdString();
}

}  // namespace

QStringList namefilters(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = casefolded(parts[i + 1]);
        if (!patterns.isEmpty()) filters << parts[i].trimmed() + QStringLiteral(" (") + patterns + QLatin1Char(')');
    }
    return filters;
}

std::optional<std::string> QtFileDialogs::open(const FileRequest& request) {
    return run(request, false);
}

std::optional<std::string> QtFileDialogs::save(const FileRequest& request) {
    return run(request, true);
}

}  // namespace tarvane
