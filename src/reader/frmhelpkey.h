// Opens the manual at the chapter of a window: by F1 in whatever window is in hand, or when it is asked to. Must not
// hold anything of the reader but that it is open.
#pragma once

#include <QObject>
#include <QPointer>

#include "reader/frmpdfreader.h"

namespace tarvane {

class HelpKey : public QObject {
  public:
    HelpKey(const Services& services, const ReaderFolders& folders) : given(services), where(folders) {}
    ~HelpKey() override;

    /// Shows the manual at the window's chapter, or from its start.
    void open(const std::string& windowname);

    /// The manual's window, if it is open.
    frmPDFReader* reader() const { return shown; }

  protected:
    /// Installed on the application: the key as any of its windows gets it.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Services given;
    ReaderFolders where;
    QPointer<frmPDFReader> shown;
};

}  // namespace tarvane
