// Where the program's windows stood and how large they were, kept in a file between runs. A window comes up again as it
// was left, where that is on a screen. Must not touch a window whose size is its own.
#pragma once

#include <QJsonObject>
#include <QObject>
#include <QTimer>
#include <string>

class QWidget;

namespace tarvane {

class WindowPlaces : public QObject {
  public:
    /// `path` of the file; to be installed as the application's event filter. A broken file is one without windows.
    explicit WindowPlaces(const std::string& path);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void restore(QWidget& window) const;
    void keep(const QWidget& window);

    /// Of all that are up, once none has been moved for a while: nobody knows how the program ends.
    void keepall();

    QTimer settled_;
    std::string path_;
    QJsonObject places_;
};

}  // namespace tarvane
