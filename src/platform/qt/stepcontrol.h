// A pair of arrow buttons that holds a whole number and steps it by one within limits. The text it belongs to stands in
// a box of its own, which the owner writes: typing there is free.
#pragma once

#include <QToolButton>
#include <QWidget>
#include <functional>

namespace tarvane {

class StepControl : public QWidget {
  public:
    StepControl(int lowest, int highest, QWidget* parent = nullptr);

    int value() const { return current; }

    /// Puts the number without telling; within the limits.
    void setvalue(int value);

    /// Steps by so many, no further than the limits, and tells when the number has changed.
    void step(int by);

    /// The arrow keys and the wheel over a text box step too.
    void serve(QWidget& box);

    std::function<void(int)> onchange;

    QToolButton *up = nullptr, *down = nullptr;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    int current = 0;
    int lowest, highest;
    int wheeled = 0;  ///< eighths of a degree that haven't made a step yet
};

}  // namespace tarvane
