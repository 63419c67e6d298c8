// The pages of a PDF one below the other, as large as the user wants them, with found places marked. Must not open a
// file or search one.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QPdfDocument>
#include <functional>
#include <map>
#include <vector>

namespace tarvane {

/// A place that was found: rectangles of a page, in points from its top left.
struct FoundPlace {
    int page = 0;
    QList<QRectF> rectangles;
};

class PageView : public QAbstractScrollArea {
  public:
    enum class Fit { width, page, none };

    explicit PageView(QWidget* parent = nullptr);

    /// Shows a document, which must outlive the view, from its first page on. Called again when the document has
    /// changed.
    void showdocument(QPdfDocument* document);

    /// The page that is being read, from 0; -1 without a document.
    int currentpage() const;

    /// Scrolls to a page, or to a place of it in points from its top. Pages that aren't there are taken for the
    /// nearest.
    void gotopage(int page, double top = 0);

    Fit fit() const { return fitting; }
    void setfit(Fit fit);

    /// 1 is the size on paper. Between a quarter and four times.
    double zoom() const { return zoomed; }
    void zoomby(double factor);

    /// Marks places; the chosen one, by its number, stands out and is scrolled into view. -1 chooses none.
    void showfound(std::vector<FoundPlace> places, int chosen);

    /// The page that is being read, or the size, may have changed.
    std::function<void()> onchanged;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    int pagecount() const { return static_cast<int>(places.size()); }
    double pixelsperpoint() const;
    void arrange();
    void arrangekeeping();
    QRect placeof(int page) const;
    const QImage& picture(int page);
    void drawpage(QPainter& painter, int page);
    void told();

    QPdfDocument* document = nullptr;
    std::vector<QRect> places;  ///< of the pages, in logical pixels from the top left of them all
    std::map<int, QImage> pictures;
    std::vector<FoundPlace> found;
    int chosenplace = -1;
    Fit fitting = Fit::width;
    double zoomed = 1;
};

}  // namespace tarvane
