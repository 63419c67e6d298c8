// Two halves side by side where there is the width for both, and one above the other where there isn't. Must not know
// what the halves hold.
#pragma once

#include <QBoxLayout>
#include <QWidget>

namespace tarvane {

class FoldingBox : public QWidget {
  public:
    /// The widths that the halves grow by go as the two stretches.
    FoldingBox(QWidget* first, QWidget* second, int firststretch, int secondstretch);

    /// As narrow as the wider half alone.
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    int leastwidth(int half) const;
    void fold();

    QBoxLayout* halves;
};

}  // namespace tarvane
