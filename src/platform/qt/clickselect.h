// A text field whose whole text is selected when a click brings the focus there, so that what is typed takes its place.
// Must not touch a selection that the user drags.
#pragma once

#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <utility>

namespace tarvane {

class ClickSelect : public QObject {
  public:
    explicit ClickSelect(QLineEdit* field) : QObject(field), field_(field) { field->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusIn)
            fresh_ = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
        // Only now: the press has put the caret where it was clicked.
        if (event->type() == QEvent::MouseButtonRelease && std::exchange(fresh_, false) && !field_->hasSelectedText())
            field_->selectAll();
        return QObject::eventFilter(watched, event);
    }

  private:
    QLineEdit* field_;
    bool fresh_ = false;  ///< the click that brought the focus is still going on
};

inline void selectonclick(QLineEdit* field) {
    new ClickSelect(field);
}

}  // namespace tarvane
