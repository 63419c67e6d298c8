#include "reader/frmpdfreader.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTreeView>
#include <QWindow>
#include <algorithm>

#include "reader/windowchapters.h"
#include "text/programcaption.h"

namespace tarvane {
namespace {

constexpr double zoomstep = 1.25;
constexpr double printdots = 200;  // to the inch
constexpr double pagetop = 100;    // points within which what heads a page stands

int pageof(const QModelIndex& entry) {
    return entry.data(static_cast<int>(QPdfBookmarkModel::Role::Page)).toInt();
}

double topof(const QModelIndex& entry) {
    return entry.data(static_cast<int>(QPdfBookmarkModel::Role::Location)).toPointF().y();
}

std::string titleof(const QModelIndex& entry) {
    return entry.data(static_cast<int>(QPdfBookmarkModel::Role::Title)).toString().toStdString();
}

/// The letters' rectangles of a place joined, one for each line that it stands on.
QList<QRectF> wholelines(const QList<QRectF>& letters) {
    QList<QRectF> lines;
    for (const QRectF& letter : letters) {
        const double middle = letter.center().y();
        if (!lines.isEmpty() && middle > lines.back().top() && middle < lines.back().bottom())
            lines.back() |= letter;
        else
            lines.push_back(letter);
    }
    return lines;
}

}  // namespace

frmPDFReader::frmPDFReader(const Services& given, const ReaderFolders& where) : services(given), folders(where) {
    setObjectName("frmPDFReader");
    setWindowTitle("Read Manual");
    // The program ends with its main window, whether or not its manual is open.
    setAttribute(Qt::WA_QuitOnClose, false);
    bookmarks.setDocument(&document);
    searching.setDocument(&document);
    buildlayout();
    pages->onchanged = [this] { refreshpage(); };
    refreshpage();
}

void frmPDFReader::openmanual(const std::string& manualname) {
    openpdf(QString::fromStdString(folders.programfolder + "/PDF/" + manualname));
}

void frmPDFReader::openpdf(const QString& path) {
    findbox->clear();
    document.close();
    const QPdfDocument::Error status = document.load(path);
    const bool open = status == QPdfDocument::Error::None;
    openpath = open ? path : QString();
    pages->showdocument(open ? &document : nullptr);
    contents->setVisible(showcontents->isChecked() && bookmarks.rowCount() > 0);
    pages->setFocus();
    refreshpage();
    if (!open) services.messages.show("PDF NOT FOUND STATUS = " + std::to_string(static_cast<int>(status)), "");
}

std::vector<std::string> frmPDFReader::chapters() const {
    std::vector<std::string> titles;
    for (int row = 0; row < bookmarks.rowCount(); ++row)
        titles.push_back(titleof(bookmarks.index(row, 0)));
    return titles;
}

void frmPDFReader::gotochapter(const std::string& title) {
    const std::vector<std::string> titles = chapters();
    const auto entry = std::find(titles.begin(), titles.end(), title);
    if (entry == titles.end()) return pages->gotopage(0);
    gotoentry(bookmarks.index(static_cast<int>(entry - titles.begin()), 0));
}

void frmPDFReader::gotoentry(const QModelIndex& entry) {
    if (!entry.isValid()) return;
    // A chapter that begins a page is shown from the page's top, anything else from its heading.
    const bool top = !entry.parent().isValid() && topof(entry) < pagetop;
    pages->gotopage(pageof(entry), top ? 0 : topof(entry));
    contents->setCurrentIndex(entry);
}

/// Marks the chapter that the page in view begins with in the contents; a section of it that was chosen stays chosen,
/// and what was chosen on the page.
void frmPDFReader::followpage() {
    QModelIndex chapter;
    for (int row = 0; row < bookmarks.rowCount(); ++row) {
        const QModelIndex entry = bookmarks.index(row, 0);
        const int past = pages->currentpage() - pageof(entry);
        if (past > 0 || (past == 0 && topof(entry) < pagetop)) chapter = entry;
    }
    const QModelIndex current = contents->currentIndex();
    const bool within = chapter.isValid() && current.parent() == chapter;
    const bool here = current.isValid() && pageof(current) == pages->currentpage();
    if (current != chapter && !within && !here) contents->setCurrentIndex(chapter);
}

void frmPDFReader::refreshpage() {
    const int count = document.pageCount();
    const int page = pages->currentpage() + 1;
    lblPage->setText(QString("Page %1 of %2").arg(page).arg(count));
    const QSignalBlocker quiet(pagebox);
    pagebox->setRange(std::min(count, 1), count);
    if (!pagebox->hasFocus() || pagebox->value() != page) pagebox->setValue(page);
    const bool open = count > 0;
    for (const char* name : {"FIRST", "BACK"})
        key(name)->setEnabled(open && page > 1);
    for (const char* name : {"NEXT", "LAST"})
        key(name)->setEnabled(open && page < count);
    for (QAction* action : {key("ZOOMIN"), key("ZOOMOUT"), fitwidth, fitpage, mnuPrint})
        action->setEnabled(open);
    followpage();
    fitwidth->setChecked(pages->fit() == PageView::Fit::width);
    fitpage->setChecked(pages->fit() == PageView::Fit::page);
}

void frmPDFReader::Toolbar1_ButtonClick(const QString& name) {
    const int page = pages->currentpage();
    if (name == "FIRST") pages->gotopage(0);
    if (name == "BACK") pages->gotopage(page - 1);
    if (name == "NEXT") pages->gotopage(page + 1);
    if (name == "LAST") pages->gotopage(document.pageCount() - 1);
    if (name == "ZOOMIN") pages->zoomby(zoomstep);
    if (name == "ZOOMOUT") pages->zoomby(1 / zoomstep);
    refreshpage();
}

void frmPDFReader::mnuOpenPDF_Click() {
    const auto path = services.filedialogs.open({"Open PDF", folders.programfolder + "/PDF", "", "PDF|*.pdf"});
    if (path) openpdf(QString::fromStdString(*path));
}

void frmPDFReader::noprinter(const std::string& instead, const std::string& path) {
    services.messages.show("There is no printer on this machine. " + instead + "\n" + path, programname,
                           MessageIcon::information);
}

void frmPDFReader::mnuSelectPrinter_Click() {
    if (services.printer.available()) {
        services.printer.choose(0);
        return;
    }
    noprinter("Printouts become PDF files in", folders.textoutput);
}

void frmPDFReader::mnuPrint_Click() {
    if (!services.printer.available()) return noprinter("The document is a PDF already:", openpath.toStdString());
    const std::optional<PageRange> range = services.printer.choose(document.pageCount());
    if (!range) return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const PrintOutcome printed = printpages(*range);
    QApplication::restoreOverrideCursor();
    if (!printed)
        services.messages.show("The document could not be printed.\n" + printed.whynot, programname,
                               MessageIcon::exclamation);
}

/// Prints pages as pictures, each as large as the paper takes it.
PrintOutcome frmPDFReader::printpages(const PageRange& range) {
    Printer& printer = services.printer;
    const PrintOutcome begun = printer.begin(QFileInfo(openpath).completeBaseName().toStdString());
    if (!begun) return begun;
    for (int page = range.first - 1; page < range.last; ++page) {
        if (page >= range.first) printer.newpage();
        const QSizeF points = document.pagePointSize(page);
        const QImage picture =
            document.render(page, (points / 72 * printdots).toSize()).convertToFormat(QImage::Format_ARGB32);
        const double part = std::min(printer.width() / points.width(), printer.height() / points.height());
        const double width = points.width() * part, height = points.height() * part;
        printer.image((printer.width() - width) / 2, (printer.height() - height) / 2, width, height,
                      {picture.width(), picture.height(), reinterpret_cast<const std::uint32_t*>(picture.constBits())});
    }
    return printer.enddocument();
}

void frmPDFReader::search() {
    searching.setSearchString(findbox->text());
    found.clear();
    chosen = -1;
    const int from = pages->currentpage();
    for (int page = 0; page < document.pageCount() && !findbox->text().isEmpty(); ++page) {
        for (const QPdfLink& place : searching.resultsOnPage(page)) {
            if (chosen < 0 && page >= from) chosen = static_cast<int>(found.size());
            found.push_back({page, wholelines(place.rectangles())});
        }
    }
    if (chosen < 0 && !found.empty()) chosen = 0;
    showfound();
}

void frmPDFReader::findnext(bool forward) {
    if (found.empty()) return;
    const int count = static_cast<int>(found.size());
    chosen = (chosen + (forward ? 1 : count - 1)) % count;
    showfound();
}

void frmPDFReader::showfound() {
    pages->showfound(found, chosen);
    if (findbox->text().isEmpty())
        foundlabel->clear();
    else if (found.empty())
        foundlabel->setText("Not found");
    else
        foundlabel->setText(QString("%1 of %2").arg(chosen + 1).arg(found.size()));
}

/// A modal window blocks every window but those that belong to it: the reader goes over to the one that is open.
void frmPDFReader::staybeside() {
    QWindow* const own = windowHandle();
    QWindow* const modal = QGuiApplication::modalWindow();
    if (!own || !modal || modal == own || own->isAncestorOf(modal, QWindow::IncludeTransients)) return;
    if (own->transientParent() == modal) return;
    own->setTransientParent(modal);
    // When that window is gone there may be another one below it.
    connect(
        modal, &QObject::destroyed, this, [this] { staybeside(); }, Qt::QueuedConnection);
}

void frmPDFReader::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    // Only the system's window is told that it is blocked.
    windowHandle()->installEventFilter(this);
    staybeside();
}

bool frmPDFReader::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowBlocked)
        QMetaObject::invokeMethod(
            this, [this] { staybeside(); }, Qt::QueuedConnection);
    if (watched == findbox && event->type() == QEvent::KeyPress) {
        const auto* const press = static_cast<QKeyEvent*>(event);
        if (press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter) {
            findnext(!(press->modifiers() & Qt::ShiftModifier));
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

}  // namespace tarvane
