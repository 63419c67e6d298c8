// Texts one below the other that change often: what lies around them is laid out anew only when they need another
// height. Must not know what they say.
#pragma once

#include <QLabel>
#include <QWidget>
#include <vector>

namespace tarvane {

class SteadyBox : public QWidget {
  public:
    /// As wide as what is around gives it, from `leastwidth` on; as high as the texts need there, the last with what
    /// is left.
    SteadyBox(const std::vector<QLabel*>& texts, int leastwidth);

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override { return {leastwidth, needed}; }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void lay();

    std::vector<QLabel*> labels;
    int leastwidth;
    int needed = 0;  ///< height at the present width
};

}  // namespace tarvane
