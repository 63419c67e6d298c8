#include "manual/chapters.h"

#include <QDir>
#include <QFile>
#include <QRect>
#include <QRegularExpression>

namespace tarvane::manual {
namespace {

const char* const markstart = "@figure ";

[[noreturn]] void refuse(const QString& name, const QString& why) {
    throw SourceError((name + ": " + why).toStdString());
}

FigureSource figurefrom(const QRegularExpressionMatch& found, const QString& name) {
    FigureSource figure{found.captured("caption"), found.captured("kind"), found.captured("name"), {}};
    const qsizetype options = figure.name.indexOf('?');
    if (options < 0) return figure;
    static const QRegularExpression crop("^crop=(\\d+),(\\d+),(\\d+),(\\d+)$");
    const QRegularExpressionMatch part = crop.match(figure.name.mid(options + 1));
    if (!part.hasMatch()) refuse(name, "a figure's part must read ?crop=LEFT,TOP,WIDTH,HEIGHT: " + figure.name);
    const auto number = [&](int i) { return part.captured(i).toInt(); };
    figure.crop = QRect(number(1), number(2), number(3), number(4));
    figure.name.truncate(options);
    return figure;
}

}  // namespace

QString figuremark(std::size_t index) {
    return markstart + QString::number(index);
}

int figureof(const QString& paragraph) {
    if (!paragraph.startsWith(QLatin1String(markstart))) return -1;
    bool isnumber = false;
    const int index = paragraph.mid(QString(markstart).size()).toInt(&isnumber);
    return isnumber ? index : -1;
}

bool movefigure(Chapter& chapter, std::size_t index) {
    static const QRegularExpression blanklines("\\n\\s*\\n");
    QStringList parts = chapter.markdown.split(blanklines, Qt::SkipEmptyParts);
    for (qsizetype i = 0; i + 1 < parts.size(); ++i) {
        if (parts[i].trimmed() != figuremark(index)) continue;
        const QString next = parts[i + 1].trimmed();
        const bool stays =
            next.startsWith('#') || next.startsWith('|') || next.startsWith("```") || figureof(next) >= 0;
        if (stays || next.endsWith(':')) return false;
        parts.swapItemsAt(i, i + 1);
        chapter.markdown = parts.join("\n\n");
        return true;
    }
    return false;
}

Chapter readchapter(const QString& text, const QString& name) {
    static const QRegularExpression figureline(
        "^(?<indent>\\s*)!\\[(?<caption>.*)\\]\\((?<kind>shot|figure):(?<name>[^)]+)\\)\\s*$");
    Chapter chapter;
    QStringList lines = text.split('\n');
    if (!lines.first().startsWith("# ")) refuse(name, "the first line must be \"# Title of the chapter\"");
    chapter.title = lines.takeFirst().mid(2).trimmed();
    bool code = false;
    for (QString& line : lines) {
        if (line.trimmed().startsWith("```")) code = !code;
        if (code) continue;
        if (line.startsWith("# ")) refuse(name, "only the first line can be a chapter's title: " + line);
        const QRegularExpressionMatch found = figureline.match(line);
        if (found.hasMatch()) {
            line = "\n" + found.captured("indent") + figuremark(chapter.figures.size()) + "\n";
            chapter.figures.push_back(figurefrom(found, name));
        } else if (line.contains("](shot:") || line.contains("](figure:")) {
            refuse(name, "a figure must stand in a line of its own: " + line);
        }
    }
    chapter.markdown = lines.join('\n');
    return chapter;
}

std::vector<Chapter> readchapters(const QString& folder) {
    std::vector<Chapter> chapters;
    for (const QString& name : QDir(folder).entryList({"[0-9][0-9]-*.md"}, QDir::Files, QDir::Name)) {
        QFile file(QDir(folder).filePath(name));
        if (!file.open(QIODevice::ReadOnly)) refuse(name, file.errorString());
        chapters.push_back(readchapter(QString::fromUtf8(file.readAll()).remove('\r'), name));
    }
    if (chapters.empty()) refuse(folder, "no chapters are here (files like 01-beginning.md)");
    return chapters;
}

}  // namespace tarvane::manual
