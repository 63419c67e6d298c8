#include "mainview/frmlayerspanel.h"

#include "platform/qt/marks.h"
#include "platform/qt/named.h"

namespace tarvane {
namespace {

struct RowPlan {
    QCheckBox* LayersPanel::*box;
    QLabel* LayersPanel::*constant;
    QLabel* LayersPanel::*value;
    const char *boxname, *constantname, *valuename;
    const char* caption;
    Colour colour;
};

constexpr Colour panelgrey = 0xC0C0C0;

using P = LayersPanel;
constexpr std::array<RowPlan, 7> rowplans{{
    {&P::chkZ0, &P::lblZ0harm, &P::lblHtZ0, "chkZ0", "lblZ0harm", "lblHtZ0", "Z0(...)", red},
    {&P::chkM2, &P::lblm2Harm, &P::lblHtM2, "chkM2", "lblm2Harm", "lblHtM2", "M2", blue},
    {&P::chkS2, &P::lblS2Harm, &P::lblHtS2, "chkS2", "lblS2Harm", "lblHtS2", "S2", red},
    {&P::chkK1, &P::lblK1Harm, &P::lblHtK1, "chkK1", "lblK1Harm", "lblHtK1", "K1(...)", black},
    {&P::chkO1, &P::lblO1Harm, &P::lblHtO1, "chkO1", "lblO1Harm", "lblHtO1", "O1", yellow},
    {&P::chkf4, &P::lblf4Harm, &P::lblHtf4, "chkf4", "lblf4Harm", "lblHtf4", "f4", green},
    {&P::chkf6, &P::lblf6Harm, &P::lblHtf6, "chkf6", "lblf6Harm", "lblHtf6", "f6", magenta},
}};

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
    for (const RowPlan& plan : rowplans) {
        auto* box = new QCheckBox(plan.caption, parent);
        box->setObjectName(plan.boxname);
        colourbox(box, plan.colour);
        QObject::connect(box, &QCheckBox::clicked, parent, [onclick] { onclick(); });
        this->*plan.box = box;
        QLabel* constant = this->*plan.constant = namedlabel(plan.constantname, parent);
        QFont small = constant->font();
        small.setPointSizeF(small.pointSizeF() * 0.85);
        constant->setFont(small);
        QLabel* value = this->*plan.value = namedlabel(plan.valuename, parent);
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
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
    const int boxwidth = chkZ0->sizeHint().width() + 2;
    // Contributions end a little behind the line; the mean level's many digits take the row's whole rest.
    const int valueright = line.right() + 18;
    const int constantleft = area.left() + boxwidth;
    Label1->setGeometry(area.left(), area.top(), line.left() - area.left() - 6, heading);
    Label3->setGeometry(line.left(), area.top(), area.right() - line.left(), heading);
    int y = area.top() + heading;
    for (const Row& row : rows()) {
        row.box->setGeometry(area.left(), y, boxwidth, pitch - 2);
        row.constant->setGeometry(constantleft, y, valueright - constantleft, pitch - 2);
        row.value->setGeometry(line.left() - 8, y, valueright - line.left() + 8, pitch - 2);
        row.value->raise();
        y += pitch;
    }
    lblHtZ0->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lblHtZ0->resize(area.right() - lblHtZ0->x(), lblHtZ0->height());
    Line1->setGeometry(line);
    lblSum->setGeometry(area.left(), line.bottom() + 3, line.left() - area.left() - 6, metrics.height() + 2);
    lblSumHt->setGeometry(line.left(), line.bottom() + 3, valueright - line.left(), metrics.height() + 2);
}

std::array<LayersPanel::Row, 7> LayersPanel::rows() const {
    std::array<Row, 7> result{};
    for (std::size_t i = 0; i < result.size(); ++i) {
        const RowPlan& plan = rowplans[i];
        result[i] = {this->*plan.box, this->*plan.constant, this->*plan.value};
    }
    return result;
}

std::array<QWidget*, 26> LayersPanel::levelcontrols() const {
    return {Line1,    Label1,    Label3,    lblSum,    lblHtZ0,   lblHtM2,   lblHtS2,   lblHtO1,  lblHtK1,
            lblHtf4,  lblHtf6,   chkZ0,     chkM2,     chkS2,     chkO1,     chkK1,     chkf4,    chkf6,
            lblSumHt, lblZ0harm, lblm2Harm, lblS2Harm, lblK1Harm, lblO1Harm, lblf4Harm, lblf6Harm};
}

void LayersPanel::HideLevelControls() {
    for (QWidget* control : levelcontrols())
        control->setVisible(false);
}

void LayersPanel::showlevelcontrols() {
    for (QWidget* control : levelcontrols())
        control->setVisible(true);
}

void LayersPanel::show(const Session& session) {
    if (session.showconstants) {
        const HarmonicRecord& port = session.prediction.port;
        lblZ0harm->setText(QString::fromStdString(z0text(port.Z0)));
        lblm2Harm->setText(QString::fromStdString(constituenttext(port.M2g, port.M2Hm)));
        lblS2Harm->setText(QString::fromStdString(constituenttext(port.S2g, port.S2Hm)));
        lblK1Harm->setText(QString::fromStdString(constituenttext(port.K1g, port.K1Hm)));
        lblO1Harm->setText(QString::fromStdString(constituenttext(port.O1g, port.O1Hm)));
        lblf4Harm->setText(QString::fromStdString(f4text(port.SF4, port.LF4)));
        lblf6Harm->setText(QString::fromStdString(f6text(port.SF6, port.LF6)));
    }
    showvalues(session.layervalues);
}

void LayersPanel::showvalues(const LayerReadout& values) {
    lblHtZ0->setText(QString::fromStdString(values.z0));
    lblHtM2->setText(QString::fromStdString(values.m2));
    lblHtS2->setText(QString::fromStdString(values.s2));
    lblHtK1->setText(QString::fromStdString(values.k1));
    lblHtO1->setText(QString::fromStdString(values.o1));
    lblHtf4->setText(QString::fromStdString(values.f4));
    lblHtf6->setText(QString::fromStdString(values.f6));
    lblSumHt->setText(QString::fromStdString(values.sum));
}

LayerChoice LayersPanel::choice() const {
    return {chkM2->isChecked(), chkS2->isChecked(), chkK1->isChecked(), chkO1->isChecked(),
            chkf4->isChecked(), chkf6->isChecked(), chkZ0->isChecked()};
}

}  // namespace tarvane
