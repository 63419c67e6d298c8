#include "manual/figures.h"

#include <QPainter>

#include "manual/style.h"

namespace tarvane::manual {
namespace {

constexpr int indexproperty = QTextFormat::UserProperty + 1;
constexpr int sizeproperty = QTextFormat::UserProperty + 2;

[[noreturn]] void unusable(const QString& path, const char* why) {
    throw SourceError((path + ": " + why).toStdString());
}

Figure loaddrawing(const QString& path) {
    Figure figure;
    figure.drawing = std::make_shared<QSvgRenderer>(path);
    if (!figure.drawing->isValid()) unusable(path, "this drawing can't be read");
    figure.size = figure.drawing->defaultSize();
    return figure;
}

/// What stands where a picture should be: the manual is of use without it, and says so.
Figure missing(const QString& path) {
    qWarning("makemanual: %s: this picture can't be read", qPrintable(path));
    Figure figure;
    figure.size = {360, 48};
    return figure;
}

Figure loadshot(const QString& path, const QRect& crop) {
    Figure figure;
    figure.picture = QImage(path).convertToFormat(QImage::Format_RGB32);
    if (figure.picture.isNull()) return missing(path);
    if (!crop.isNull()) {
        const QRect part(crop.topLeft() * shotscale, crop.size() * shotscale);
        if (part.isEmpty() || !figure.picture.rect().contains(part))
            unusable(path, "the part lies outside the picture");
        figure.picture = figure.picture.copy(part);
    }
    figure.picture.setDevicePixelRatio(1);
    figure.size = QSizeF(figure.picture.size()) / shotscale;
    return figure;
}

}  // namespace

Figure loadfigure(const FigureSource& source, const FigureFolders& folders) {
    if (source.kind == "figure") return loaddrawing(folders.drawings + "/" + source.name);
    return loadshot(folders.shots + "/" + source.name + ".png", source.crop);
}

QTextCharFormat FigureLetter::format(int index, QSizeF size) {
    QTextCharFormat format;
    format.setObjectType(type);
    format.setProperty(indexproperty, index);
    format.setProperty(sizeproperty, size);
    return format;
}

QSizeF FigureLetter::figuresize(const QTextFormat& format) {
    return format.property(sizeproperty).toSizeF();
}

int FigureLetter::indexof(const QTextFormat& format) {
    return format.intProperty(indexproperty);
}

void FigureLetter::drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int, const QTextFormat& format) {
    const Figure& figure = figures.at(static_cast<std::size_t>(indexof(format)));
    if (figure.drawing) return figure.drawing->render(painter, place);
    if (figure.picture.isNull()) {
        painter->setFont(fontof(headfamily, bodysize));
        painter->setPen(QColor(grey));
        painter->drawText(place, Qt::AlignCenter, missingpicture);
    } else {
        painter->drawImage(place, figure.picture);
    }
    const double line = dots(0.15);
    painter->setPen(QPen(QColor(hairline), line));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(place.adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

}  // namespace tarvane::manual
