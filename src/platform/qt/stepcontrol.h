// A pair of arrow buttons that steps what stands in a box of its own, and one that holds a whole number and steps it by
// one within limits. The owner writes the text: typing in the box is free.
#pragma once

#include <QToolButton>
#include <QWidget>
#include <functional>

namespace tarvane {

class StepArrows : public QWidget {
  public:
    explicit StepArrows(QWidget* parent = nullptr);

    /// The arrow keys and the wheel over a text box step too.
    void serve(QWidget& box);

    std::function<void(int by)> onstep;

    QToolButton *up = nullptr, *down = nullptr;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void steps(int by);

    int wheeled = 0;  ///< eighths of a degree that haven't made a step yet
};

class StepControl : public StepArrows {
  public:
    StepControl(int lowest, int highest, QWidget* parent = nullptr);

    int value() const { return current; }

    /// Puts the number without telling; within the limits.
    void setvalue(int value);

    /// Steps by so many, no further than the limits, and tells when the number has changed.
    void step(int by);

    std::function<void(int)> onchange;

  private:
    int current = 0;
    int lowest, highest;
};

}  // namespace tarvane
