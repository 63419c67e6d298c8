#include "mainview/frmlayerspanel.h"

#include "platform/qt/marks.h"
#include "platform/qt/named.h"

namespace tarvane {
namespace {

constexpr Colour panelgrey = 0xC0C0C0;

/// The told names of a row's controls and its caption, in the order of `constituents`.
struct RowNames {
    const char *box, *constant, *value;
    const char* caption;
};

constexpr std::array<RowNames, constituents.size()> rownames{{
    {"chkM2", "lblm2Harm", "lblHtM2", "M2"},
    {"chkS2", "lblS2Harm", "lblHtS2", "S2"},
    {"chkK1", "lblK1Harm", "lblHtK1", "K1(...)"},
    {"chkO1", "lblO1Harm", "lblHtO1", "O1"},
    {"chkf4", "lblf4Harm", "lblHtf4", "f4"},
    {"chkf6", "lblf6Harm", "lblHtf6", "f6"},
    {"chkZ0", "lblZ0harm", "lblHtZ0", "Z0(...)"},
}};

/// The mean level stands on top of the table, the others follow as they are drawn.
std::size_t placeinrow(std::size_t row) {
    return (row + meanlevelplace) % constituents.size();
}

void colourbox(QCheckBox* box, Colour colour) {
    QPalette palette = box->palette();
    palette.setColor(QPalette::WindowText, screencolour(colour));
    palette.setColor(box->backgroundRole(), screencolour(panelgrey));
    box->setPalette(palette);
    box->setAutoFillBackground(true);
}

}  // namespace

void LayersPanel::build(QWidget* parent, const std::function<void()>& onclick) {
    Label1 = namedlabel("Label1", parent, "Tide Raising Constituent");
    Label3 = namedlabel("Label3", parent, "Contribution to Height (M)");
    for (QLabel* heading : {Label1, Label3})
        heading->setWordWrap(true);
    for (std::size_t place = 0; place < rows.size(); ++place) {
        const RowNames& names = rownames[place];
        Row& row = rows[place];
        row.box = new QCheckBox(names.caption, parent);
        row.box->setObjectName(names.box);
        colourbox(row.box, constituents[place].colour);
        QObject::connect(row.box, &QCheckBox::clicked, parent, [onclick] { onclick(); });
        row.constant = namedlabel(names.constant, parent);
        QFont small = row.constant->font();
        small.setPointSizeF(small.pointSizeF() * 0.85);
        row.constant->setFont(small);
        row.value = namedlabel(names.value, parent);
        row.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    Line1 = new QFrame(parent);
    Line1->setObjectName("Line1");
    Line1->setFrameStyle(QFrame::HLine | QFrame::Plain);
    lblSum = namedlabel("lblSum", parent, "Sum");
    lblSumHt = namedlabel("lblSumHt", parent);
    lblSumHt->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    HideLevelControls();
}

void LayersPanel::place(const QRect& area, const QRect& line) {
    const QFontMetrics metrics = Label1->fontMetrics();
    const int heading = 2 * metrics.height() + 4;
    const int pitch = (line.top() - 3 - area.top() - heading) / 7;
    const int height = std::min(pitch - 2, metrics.height() + 6);
    const int boxwidth = rows[meanlevelplace].box->sizeHint().width() + 2;
    // Contributions end a little behind the line; the mean level's many digits take the row's whole rest.
    const int valueright = line.right() + 18;
    const int constantleft = area.left() + boxwidth;
    Label1->setGeometry(area.left(), area.top(), line.left() - area.left() - 6, heading);
    Label3->setGeometry(line.left(), area.top(), area.right() - line.left(), heading);
    int y = area.top() + heading;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Row& row = rows[placeinrow(i)];
        row.box->setGeometry(area.left(), y, boxwidth, height);
        row.constant->setGeometry(constantleft, y, valueright - constantleft, height);
        row.value->setGeometry(line.left() - 8, y, valueright - line.left() + 8, height);
        row.value->raise();
        y += pitch;
    }
    QLabel* const level = rows[meanlevelplace].value;
    level->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    level->resize(area.right() - level->x(), level->height());
    Line1->setGeometry(line);
    lblSum->setGeometry(area.left(), line.bottom() + 3, line.left() - area.left() - 6, metrics.height() + 2);
    lblSumHt->setGeometry(line.left(), line.bottom() + 3, valueright - line.left(), metrics.height() + 2);
}

void LayersPanel::showcontrols(bool visible) {
    for (QWidget* control : std::initializer_list<QWidget*>{Line1, Label1, Label3, lblSum, lblSumHt})
        control->setVisible(visible);
    for (const Row& row : rows)
        for (QWidget* control : std::initializer_list<QWidget*>{row.box, row.constant, row.value})
            control->setVisible(visible);
}

void LayersPanel::HideLevelControls() {
    showcontrols(false);
}

void LayersPanel::showlevelcontrols() {
    showcontrols(true);
}

void LayersPanel::show(const Session& session) {
    for (std::size_t place = 0; place < rows.size(); ++place) {
        rows[place].constant->setText(QString::fromStdString(session.layerconstants[place]));
        rows[place].value->setText(QString::fromStdString(session.layervalues.parts[place]));
    }
    lblSumHt->setText(QString::fromStdString(session.layervalues.sum));
    if (session.layersmode == 1)
        showlevelcontrols();
    else
        HideLevelControls();
}

LayerChoice LayersPanel::choice() const {
    LayerChoice ticked{};
    for (std::size_t place = 0; place < rows.size(); ++place)
        ticked[place] = rows[place].box->isChecked();
    return ticked;
}

}  // namespace tarvane
