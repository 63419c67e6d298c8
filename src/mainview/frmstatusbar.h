// The status bar of the main window: what tides are on show, and under it the last command's answer and the notes where
// something differs. Only labels; the texts come from the view.
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <functional>

#include "session/session.h"

namespace tarvane {

class StatusBar : public QStatusBar {
  public:
    explicit StatusBar(QWidget* parent = nullptr);

    void show(const MainView& view);

    /// The present tide: few words that stand there, all of them in the tool tip.
    void shownow(const std::string& brief, const std::string& whole);

    /// The line of what tides are on show was clicked.
    std::function<void()> onclick;

    QLabel* statusline = nullptr;
    QLabel* statusnotes = nullptr;
    QLabel* statusnow = nullptr;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void fill();

    QString line, answer;
    QStringList notes;
};

}  // namespace tarvane
