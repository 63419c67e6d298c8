// The reader's controls, its menus and its keys.
#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QSpinBox>
#include <QSplitter>
#include <QToolBar>
#include <QTreeView>

#include "platform/qt/modaldialog.h"
#include "platform/qt/named.h"
#include "reader/frmpdfreader.h"
#include "reader/frmtoolicons.h"

namespace tarvane {
namespace {

constexpr int comfortablewidth = 1020, comfortableheight = 820;

struct ToolKey {
    const char* name;
    const char* caption;
    const char* shortcut;
    ToolPicture picture;
    const char* theme;
};

constexpr ToolKey toolkeys[] = {
    {"FIRST", "First page", "Ctrl+Home", ToolPicture::first, "go-first"},
    {"BACK", "Page back", "Ctrl+PgUp", ToolPicture::back, "go-previous"},
    {"NEXT", "Next page", "Ctrl+PgDown", ToolPicture::next, "go-next"},
    {"LAST", "Last page", "Ctrl+End", ToolPicture::last, "go-last"},
    {"ZOOMIN", "Zoom in", "Ctrl++", ToolPicture::zoomin, "zoom-in"},
    {"ZOOMOUT", "Zoom out", "Ctrl+-", ToolPicture::zoomout, "zoom-out"},
};

/// Its caption, and its shortcut behind it, are what a pointer resting on it and a screen reader tell.
void tell(QAction* action, const QString& caption, const char* shortcut) {
    action->setText(caption);
    if (*shortcut) action->setShortcut(QKeySequence(shortcut));
    action->setToolTip(*shortcut ? caption + " (" + QLatin1String(shortcut) + ")" : caption);
}

QAction* menuentry(QMenu* menu, const char* name, const char* caption, const char* shortcut) {
    QAction* const action = menu->addAction(caption);
    action->setObjectName(QLatin1String(name));
    if (*shortcut) action->setShortcut(QKeySequence(shortcut));
    return action;
}

}  // namespace

void frmPDFReader::buildlayout() {
    auto* const sides = new QSplitter;
    contents = named<QTreeView>("contents");
    contents->setModel(&bookmarks);
    contents->setHeaderHidden(true);
    contents->setAccessibleName("Contents");
    contents->setTextElideMode(Qt::ElideRight);
    contents->setStyleSheet("QTreeView::item { padding: 2px 0; }");
    pages = named<PageView>("pages");
    pages->setAccessibleName("Pages");
    sides->addWidget(contents);
    sides->addWidget(pages);
    sides->setStretchFactor(1, 1);
    sides->setSizes({260, comfortablewidth - 260});
    sides->setCollapsible(1, false);
    setCentralWidget(sides);
    connect(contents, &QTreeView::clicked, this, &frmPDFReader::gotoentry);
    connect(contents, &QTreeView::activated, this, &frmPDFReader::gotoentry);
    buildmenus();
    buildtoolbar();
    buildfind();
    setMinimumSize(420, 300);
    resize(comfortablewidth, comfortableheight);
    fitscreen(*this);
    centreon(*this, nullptr);
}

void frmPDFReader::buildmenus() {
    QMenu* const file = menuBar()->addMenu("&File");
    mnuOpenPDF = menuentry(file, "mnuOpenPDF", "&Open PDF ...", "Ctrl+O");
    mnuPrint = menuentry(file, "mnuPrint", "&Print ...", "Ctrl+P");
    mnuSelectPrinter = menuentry(file, "mnuSelectPrinter", "&Select Printer ...", "");
    file->addSeparator();
    mnuExit = menuentry(file, "mnuExit", "E&xit", "Esc");
    connect(mnuOpenPDF, &QAction::triggered, this, &frmPDFReader::mnuOpenPDF_Click);
    connect(mnuPrint, &QAction::triggered, this, &frmPDFReader::mnuPrint_Click);
    connect(mnuSelectPrinter, &QAction::triggered, this, &frmPDFReader::mnuSelectPrinter_Click);
    connect(mnuExit, &QAction::triggered, this, &QWidget::close);
    QMenu* const view = menuBar()->addMenu("&View");
    showcontents = menuentry(view, "showcontents", "&Contents", "F9");
    showcontents->setCheckable(true);
    showcontents->setChecked(true);
    connect(showcontents, &QAction::toggled, contents, &QWidget::setVisible);
    fitwidth = menuentry(view, "fitwidth", "Fit &Width", "Ctrl+1");
    fitpage = menuentry(view, "fitpage", "Whole &Page", "Ctrl+2");
    fitwidth->setIcon(toolicon(ToolPicture::fitwidth, "zoom-fit-width"));
    fitpage->setIcon(toolicon(ToolPicture::fitpage, "zoom-fit-best"));
    for (QAction* action : {fitwidth, fitpage})
        action->setCheckable(true);
    connect(fitwidth, &QAction::triggered, this, [this] { pages->setfit(PageView::Fit::width); });
    connect(fitpage, &QAction::triggered, this, [this] { pages->setfit(PageView::Fit::page); });
}

void frmPDFReader::buildtoolbar() {
    Toolbar1 = addToolBar("Pages");
    Toolbar1->setObjectName("Toolbar1");
    Toolbar1->setMovable(false);
    Toolbar1->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const ToolKey& told : toolkeys) {
        QAction* const action = Toolbar1->addAction(toolicon(told.picture, told.theme), told.caption);
        action->setObjectName(QLatin1String(told.name));
        tell(action, told.caption, told.shortcut);
        connect(action, &QAction::triggered, this, [this, &told] { Toolbar1_ButtonClick(told.name); });
    }
    // On most keyboards plus is a shifted key.
    key("ZOOMIN")->setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
    Toolbar1->addAction(fitwidth);
    Toolbar1->addAction(fitpage);
    Toolbar1->addSeparator();
    lblPage = named<QLabel>("lblPage", "Page 1 of N");
    lblPage->setContentsMargins(6, 0, 6, 0);
    Toolbar1->addWidget(lblPage);
    pagebox = named<QSpinBox>("pagebox");
    pagebox->setKeyboardTracking(false);
    pagebox->setAccessibleName("Go to page");
    pagebox->setToolTip("Go to page");
    Toolbar1->addWidget(pagebox);
    connect(pagebox, &QSpinBox::valueChanged, this, [this](int page) { pages->gotopage(page - 1); });
}

void frmPDFReader::buildfind() {
    Toolbar1->addSeparator();
    findbox = named<QLineEdit>("findbox");
    findbox->setPlaceholderText("Find");
    findbox->setAccessibleName("Find");
    findbox->setToolTip("Find (Ctrl+F)");
    findbox->setClearButtonEnabled(true);
    findbox->setMaximumWidth(220);
    findbox->installEventFilter(this);
    Toolbar1->addWidget(findbox);
    connect(findbox, &QLineEdit::textChanged, this, &frmPDFReader::search);
    const auto findkey = [this](const char* name, const char* caption, const char* shortcut, ToolPicture picture) {
        QAction* const action = Toolbar1->addAction(toolicon(picture, ""), caption);
        action->setObjectName(QLatin1String(name));
        tell(action, caption, shortcut);
        return action;
    };
    connect(findkey("findback", "Find the one before", "Shift+F3", ToolPicture::up), &QAction::triggered, this,
            [this] { findnext(false); });
    connect(findkey("findnext", "Find the next", "F3", ToolPicture::down), &QAction::triggered, this,
            [this] { findnext(true); });
    foundlabel = named<QLabel>("foundlabel");
    foundlabel->setMinimumWidth(fontMetrics().horizontalAdvance("888 of 888") + 12);
    foundlabel->setContentsMargins(6, 0, 0, 0);
    Toolbar1->addWidget(foundlabel);
    auto* const find = new QAction("Find", this);
    find->setShortcut(QKeySequence("Ctrl+F"));
    addAction(find);
    connect(find, &QAction::triggered, this, [this] {
        findbox->setFocus();
        findbox->selectAll();
    });
}

QAction* frmPDFReader::key(const char* name) const {
    return Toolbar1->findChild<QAction*>(QLatin1String(name));
}

}  // namespace tarvane
