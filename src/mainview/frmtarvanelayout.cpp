// The controls of the main window and where they stand.
#include "mainview/frmtarvane.h"
#include "mainview/layersview.h"
#include "platform/qt/named.h"
#include "platform/qt/screentext.h"
#include "platform/qt/twips.h"

namespace tarvane {
namespace {

constexpr int toldheight = 7400;
constexpr int pictureheight = 3415;
constexpr Colour boxgrey = 0xE0E0E0;

/// Lines of the day table over its rows.
constexpr int headinglines = 3;

void setbackground(QWidget* widget, Colour colour) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, screencolour(colour));
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

Colour colourof(const QColor& colour) {
    return static_cast<Colour>(colour.blue() << 16 | colour.green() << 8 | colour.red());
}

}  // namespace

void frmtarvane::buildlayout() {
    setCentralWidget(surface);
    surface->setbackcolour(colourof(palette().color(QPalette::Window)));
    Picture1->setParent(surface);
    Picture1->setObjectName("Picture1");
    Picture1->setCursor(Qt::CrossCursor);
    Picture1->setAccessibleName("Tide curve of the day");
    pctSpringsStatus->setParent(surface);
    pctSpringsStatus->setObjectName("pctSpringsStatus");
    pctSpringsStatus->setbackcolour(boxgrey);
    pctSpringsStatus->setToolTip("How far the day stands from springs or neaps");
    portbox = namedlabel("portbox", surface);
    tidedatebox = namedlabel("tidedatebox", surface);
    timelabel = namedlabel("timelabel", surface, "Time   :");
    timeval = namedlabel("timeval", surface);
    hitelabel = namedlabel("hitelabel", surface, "Height :");
    hiteval = namedlabel("hiteval", surface);
    lblrate = namedlabel("lblrate", surface);
    lblmousestatus = namedlabel("lblmousestatus", surface, "(Click curve to change)");
    lblSprings = namedlabel("lblSprings", surface, "Springs");
    lblNeap = namedlabel("lblNeap", surface, "Neaps");
    disclaimer = namedlabel("disclaimer", surface);
    daystide1 = namedlabel("daystide1", surface, "Predicted Tides      ");
    daystide1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    daystide1->setMargin(6);
    setbackground(daystide1, boxgrey);
    daystide2 = namedlabel("daystide2", surface);
    daystide2->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    daystide2->setMargin(6);
    statusbar = new StatusBar(this);
    setStatusBar(statusbar);
    statusbar->onclick = [this] { menuentry("mnuAboutPort")->trigger(); };
    QFont bold = font();
    bold.setBold(true);
    for (QLabel* label : {portbox, tidedatebox, timeval, hiteval})
        label->setFont(bold);
    layers.build(surface, [this] {
        ticklayers(context, layers.choice());
        showview();
    });
    Previousday = new QPushButton("Prev day", surface);
    Previousday->setObjectName("Previousday");
    Previousday->setToolTip("The day before (Page Up)");
    Nextday = new QPushButton("Next day", surface);
    Nextday->setObjectName("Nextday");
    Nextday->setToolTip("The day after (Page Down)");
    monthspredictions = new QListWidget(surface);
    monthspredictions->setObjectName("monthspredictions");
    monthspredictions->setUniformItemSizes(true);
    monthspredictions->hide();
}

void frmtarvane::layoutcontrols() {
    layingout = true;
    placecontrols();
    layingout = false;
    redrawresized();
}

void frmtarvane::placecontrols() {
    const int width = surface->width();
    const int row = fontMetrics().height() + 4;
    const int margin = width / 100;
    // What the window is higher than told goes to the picture, which else has its told height.
    const int curveheight = twips(pictureheight) + std::max(0, height() - twips(toldheight));
    const int curvewidth = twips(static_cast<int>(115.0 / 190 * width * 15));
    int y = 10;
    portbox->setGeometry(margin, y, curvewidth, row);
    tidedatebox->setGeometry(margin, y += row, curvewidth, row);
    const int curvetop = y + row + 8;
    Picture1->setGeometry(margin, curvetop, curvewidth, curveheight);
    context.surfaces.pictureplace = {margin * 15.0, curvetop * 15.0, curvewidth * 15.0, curveheight * 15.0};
    surface->setscale(0, 0, width * 15.0, surface->height() * 15.0);
    y = curvetop + curveheight + row + 8;
    const int captionwidth = fontMetrics().horizontalAdvance("Height :  ");
    const int valuewidth = QFontMetrics(hiteval->font()).horizontalAdvance("000.0 M") + 4;
    timelabel->setGeometry(margin, y, captionwidth, row);
    timeval->setGeometry(margin + captionwidth, y, valuewidth, row);
    const int rest = margin + captionwidth + valuewidth;
    lblmousestatus->setGeometry(rest, y, curvewidth - rest + margin, row);
    y += row;
    hitelabel->setGeometry(margin, y, captionwidth, row);
    hiteval->setGeometry(margin + captionwidth, y, valuewidth, row);
    lblrate->setGeometry(rest, y, width - rest - margin, row);
    y += row + 12;
    const int endwidth = fontMetrics().horizontalAdvance("Springs  ");
    lblSprings->setGeometry(margin, y, endwidth, row);
    pctSpringsStatus->setGeometry(margin + endwidth, y + 2, curvewidth - 2 * endwidth, row - 4);
    lblNeap->setGeometry(margin + curvewidth - endwidth + 8, y, endwidth, row);
    const int disclaimerheight = 2 * fontMetrics().lineSpacing() + 2;
    const int disclaimertop = surface->height() - disclaimerheight;
    disclaimer->setGeometry(margin, disclaimertop, width - 2 * margin, disclaimerheight);
    const int left = margin + curvewidth + width / 50;
    const int buttonheight = Nextday->sizeHint().height();
    const int buttonwidth = (width - left - margin - 8) / 2;
    const int buttontop = disclaimertop - buttonheight - 2;
    Previousday->setGeometry(left, buttontop, buttonwidth, buttonheight);
    Nextday->setGeometry(left + buttonwidth + 8, buttontop, buttonwidth, buttonheight);
    layoutrightcolumn(left, width - left - margin);
}

/// Lines of the day table beside the constituents: its rows stand in two columns there, and twelve have room always.
int frmtarvane::tablelines() const {
    return headinglines + std::max(6, (session.prediction.turningcount + 1) / 2);
}

void frmtarvane::layoutrightcolumn(int left, int width) {
    const int top = tidedatebox->y();
    laidoutmode = session.layersmode;
    laidoutlines = tablelines();
    const bool withlayers = laidoutmode == 1;
    const int picturebottom = Picture1->y() + Picture1->height();
    const int tableheight = withlayers ? tablelines() * fontMetrics().height() + 12 : picturebottom - top;
    daystide1->setGeometry(left, top, width, tableheight);
    const QRect closingline(surface->width() * 7920 / 9720, twips(5400) + std::max(0, height() - twips(toldheight)),
                            twips(1080), 3);
    const QRect table(left, top + tableheight + 4, width, closingline.top() - top - tableheight - 4);
    if (withlayers) layers.place(table, closingline);
    const int listheight = picturebottom - top + Nextday->height() / 2;
    monthspredictions->setGeometry(left, top, width, listheight);
    showdaytable();
}

/// The day's table with all its rows: in large letters where the column is its own and they have room, else in smaller
/// ones, and in two columns when even these don't.
void frmtarvane::showdaytable() {
    shownday = session.daytable.daystide1;
    const QStringList lines = screentext(session.daytable.daystide1).split('\n');
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    const int room = daystide1->height() - 2 * daystide1->margin();
    const auto fits = [&](const QFont& font) { return lines.size() * QFontMetrics(font).lineSpacing() <= room; };
    const QFont used = laidoutmode == 0 && fits(large) ? large : font();
    const qsizetype capacity = std::max(room / QFontMetrics(used).lineSpacing(), headinglines + 1);
    daystide1->setFont(used);
    daystide2->setFont(used);
    daystide1->setText(lines.first(std::min(lines.size(), capacity)).join('\n'));
    const QStringList rest = lines.mid(capacity);
    daystide2->setText(rest.join('\n'));
    const int headings = headinglines * QFontMetrics(used).lineSpacing();
    daystide2->setGeometry(daystide1->x() + daystide1->width() / 2, daystide1->y() + headings, daystide1->width() / 2,
                           daystide1->height() - headings);
}

}  // namespace tarvane
