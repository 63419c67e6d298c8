// The status bar of the main window: what tides are on show, and under it the last command's answer and the notes where
// something differs. Only labels; the texts come from the view.
#pragma once

#include <QLabel>
#include <QStatusBar>

#include "session/session.h"

namespace tarvane {

class StatusBar : public QStatusBar {
  public:
    explicit StatusBar(QWidget* parent = nullptr);

    void show(const MainView& view);

    /// The present tide, in few words.
    void shownow(const std::string& text);

    QLabel* statusline = nullptr;
    QLabel* statusnotes = nullptr;
    QLabel* statusnow = nullptr;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fill();

    QString answer;
    QStringList notes;
};

}  // namespace tarvane
