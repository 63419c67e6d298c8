// Red light on black for windows that know no colours of their own choosing: what is light on them becomes dark, and
// what is dark red. Windows with the property `ownlight` see to themselves.
#pragma once

#include <QObject>

class QWidget;

namespace tarvane {

/// Set on a window that paints by night itself, with all that pops up from it.
inline constexpr const char* ownlight = "ownlight";

/// Whether it is on, for windows that paint by night themselves.
bool nightison();

class NightLight : public QObject {
  public:
    /// All windows there are, and those that come up while it is on.
    void set(bool on);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool on_ = false;
};

}  // namespace tarvane
