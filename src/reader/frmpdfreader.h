// "Read Manual": a PDF with its outline beside it, to page through, zoom, search and print. A window of its own that
// can be used beside every other one, modal ones too. Must not know which window of the program it was called from.
#pragma once

#include <QMainWindow>
#include <QPdfBookmarkModel>
#include <QPdfDocument>
#include <QPdfSearchModel>
#include <functional>

#include "platform/services.h"

#include "reader/frmpageview.h"

class QAction;
class QLabel;
class QLineEdit;
class QSpinBox;
class QToolBar;
class QTreeView;

namespace tarvane {

/// Where the reader finds what it shows and leaves what it makes.
struct ReaderFolders {
    std::string programfolder;  ///< the manual lies in its "PDF"
    std::string textoutput;     ///< where printouts go on a machine without a printer
};

class frmPDFReader : public QMainWindow {
  public:
    frmPDFReader(const Services& services, const ReaderFolders& folders);

    /// Opens the manual of this name. When that fails the user is told, and the window stays open and empty.
    void openmanual(const std::string& manualname);

    /// Opens a file in place of the one that is open.
    void openpdf(const QString& path);

    /// Goes to the outline's entry of this title; to the first page when there is none.
    void gotochapter(const std::string& title);

    /// Titles of the outline's topmost entries.
    std::vector<std::string> chapters() const;

    QToolBar* Toolbar1 = nullptr;
    QLabel* lblPage = nullptr;
    QAction *mnuOpenPDF = nullptr, *mnuPrint = nullptr, *mnuSelectPrinter = nullptr, *mnuExit = nullptr;
    QAction *fitwidth = nullptr, *fitpage = nullptr, *showcontents = nullptr;
    PageView* pages = nullptr;
    QTreeView* contents = nullptr;
    QSpinBox* pagebox = nullptr;
    QLineEdit* findbox = nullptr;
    QLabel* foundlabel = nullptr;

    /// The toolbar's key of this name: "FIRST", "BACK", "NEXT", "LAST", "ZOOMIN" or "ZOOMOUT".
    QAction* key(const char* name) const;

    /// What Enter in the find box and the keys beside it do: the next place, or the one before.
    void findnext(bool forward);

  protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildlayout();
    void buildmenus();
    void buildtoolbar();
    void buildfind();
    void Toolbar1_ButtonClick(const QString& key);
    void mnuOpenPDF_Click();
    void mnuPrint_Click();
    void mnuSelectPrinter_Click();
    void gotoentry(const QModelIndex& entry);
    void refreshpage();
    void followpage();
    void search();
    void showfound();
    void noprinter(const std::string& instead, const std::string& path);
    PrintOutcome printpages(const PageRange& range);
    void staybeside();

    Services services;
    ReaderFolders folders;
    QString openpath;
    QPdfDocument document;
    QPdfBookmarkModel bookmarks;
    QPdfSearchModel searching;
    std::vector<FoundPlace> found;
    int chosen = -1;  ///< of `found`
};

}  // namespace tarvane
