// The manual's pictures as they stand in its text: pictures of windows pixel by pixel, drawings as drawings. Must not
// decide where one stands.
#pragma once

#include <QImage>
#include <QObject>
#include <QSvgRenderer>
#include <QTextFormat>
#include <QTextObjectInterface>
#include <memory>

#include "manual/chapters.h"

namespace tarvane::manual {

/// Where the pictures of windows and the drawings lie.
struct FigureFolders {
    QString shots;
    QString drawings;
};

/// Pixels that a picture of a window has for each pixel of the window at 96 dpi.
inline constexpr int shotscale = 2;

struct Figure {
    QImage picture;
    std::shared_ptr<QSvgRenderer> drawing;  ///< in place of a picture
    QSizeF size;                            ///< pixels at 96 dpi
};

/// Stands in the place of a window's picture that can't be had.
inline constexpr const char* missingpicture = "(There is no picture of this window)";

/// Throws SourceError for a drawing that can't be read, and for a part that lies outside its picture.
Figure loadfigure(const FigureSource& source, const FigureFolders& folders);

/// A figure as one letter of a text.
class FigureLetter : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)
  public:
    static constexpr int type = QTextFormat::UserObject + 1;

    using QObject::QObject;

    /// The letter's format: which of `figures` it is, and its size in the device's dots.
    static QTextCharFormat format(int index, QSizeF size);
    static QSizeF figuresize(const QTextFormat& format);
    static int indexof(const QTextFormat& format);

    std::vector<Figure> figures;

    QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat& format) override { return figuresize(format); }
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int, const QTextFormat& format) override;
};

}  // namespace tarvane::manual
