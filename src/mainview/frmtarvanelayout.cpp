// The controls of the main window and where they stand.
#include "mainview/frmtarvane.h"
#include "mainview/layersview.h"
#include "platform/qt/named.h"
#include "platform/qt/twips.h"

namespace tarvane {
namespace {

constexpr int toldheight = 7400;
constexpr int pictureheight = 3415;
constexpr Colour boxgrey = 0xE0E0E0;

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
    const int disclaimertop = surface->height() - 2 * row - 6;
    disclaimer->setGeometry(margin, disclaimertop, width - 2 * margin, 2 * row);
    const int left = margin + curvewidth + width / 50;
    const int buttonheight = Nextday->sizeHint().height();
    const int buttonwidth = (width - left - margin - 8) / 2;
    const int buttontop = disclaimertop - buttonheight - 4;
    Previousday->setGeometry(left, buttontop, buttonwidth, buttonheight);
    Nextday->setGeometry(left + buttonwidth + 8, buttontop, buttonwidth, buttonheight);
    layoutrightcolumn(left, width - left - margin);
}

void frmtarvane::layoutrightcolumn(int left, int width) {
    const int top = tidedatebox->y();
    laidoutmode = session.layersmode;
    const bool withlayers = laidoutmode == 1;
    // The day's table has the column to itself, and larger letters, while the constituents are away.
    QFont tablefont = font();
    if (!withlayers) tablefont.setPointSizeF(tablefont.pointSizeF() * 1.3);
    daystide1->setFont(tablefont);
    const int picturebottom = Picture1->y() + Picture1->height();
    const int tableheight = withlayers ? 9 * fontMetrics().height() + 12 : picturebottom - top;
    daystide1->setGeometry(left, top, width, tableheight);
    const QRect closingline(surface->width() * 7920 / 9720, twips(5400) + (height() - twips(toldheight)), twips(1080),
                            1);
    const QRect table(left, top + tableheight + 4, width, closingline.top() - top - tableheight - 4);
    if (withlayers) layers.place(table, closingline);
    const int listheight = picturebottom - top + Nextday->height() / 2;
    monthspredictions->setGeometry(left, top, width, listheight);
}

}  // namespace tarvane
