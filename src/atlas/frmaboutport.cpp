#include "atlas/frmaboutport.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>

#include "atlas/frmcheckport.h"
#include "paint/frmlightpalette.h"
#include "platform/qt/named.h"
#include "platform/qt/nightlight.h"
#include "platform/qt/screentext.h"
#include "world/frmtrusticon.h"

namespace tarvane {
namespace {

constexpr int linewidth = 62, leastwidth = 24;  // characters

/// As large as what is in it, with lines of the usual width, where the screen has room for that.
class RoomyArea : public QScrollArea {
  public:
    /// `tallat` gives the height that the contents take at a width: nested layouts give too much.
    RoomyArea(QWidget* contents, std::function<int(int width)> tallat) : tall(std::move(tallat)) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setWidget(contents);
    }

    QSize sizeHint() const override {
        const int more = fontMetrics().averageCharWidth() * (linewidth - leastwidth);
        const int wide = widget()->layout()->totalMinimumSize().width() + more;
        return {wide, tall(wide)};
    }

    QSize minimumSizeHint() const override { return {0, fontMetrics().lineSpacing() * 6}; }

  private:
    std::function<int(int width)> tall;
};

QLabel* plainlabel(const char* name) {
    auto* label = named<QLabel>(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}  // namespace

frmaboutport::frmaboutport(MainContext& maincontext, const std::string& areafile, int portnumber, QWidget* parent)
    : ModalDialog("frmaboutport", "About This Port", parent),
      context(maincontext),
      hcfile(areafile),
      number(portnumber) {
    setProperty(ownlight, true);
    setPalette(paletteof(coloursof(lightingof(nightison()))));
    buildlayout();
    fill();
    fillconstants();
    area->updateGeometry();
    connect(cmdCheck, &QPushButton::clicked, this, &frmaboutport::cmdCheck_Click);
    connect(cmdCopy, &QPushButton::clicked, this, [this] {
        context.services.clipboard.settext(sheettext(shown));
        lblSaid->setText("Copied");
    });
    connect(cmdClose, &QPushButton::clicked, this, &frmaboutport::reject);
    settle(cmdClose, cmdClose);
}

void frmaboutport::buildlayout() {
    lines = new QGridLayout;
    lines->setColumnStretch(1, 1);
    lines->setVerticalSpacing(fontMetrics().height() / 3);
    constants = named<QTableWidget>("constants", 0, 2);
    constants->setAccessibleName("Constants");
    constants->setHorizontalHeaderLabels({"Term", "Constants"});
    constants->verticalHeader()->hide();
    constants->setEditTriggers(QAbstractItemView::NoEditTriggers);
    constants->setSelectionMode(QAbstractItemView::SingleSelection);
    constants->setTabKeyNavigation(false);
    constants->horizontalHeader()->setHighlightSections(false);
    constants->horizontalHeader()->setStretchLastSection(true);
    constants->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    lblSaid = plainlabel("lblSaid");
    cmdCheck = named<QPushButton>("cmdCheck", "C&heck This Port");
    cmdCheck->setToolTip("Compare the prediction with the waters of an official table");
    cmdCheck->setMinimumWidth(cmdCheck->sizeHint().width() + 2 * fontMetrics().averageCharWidth());
    cmdCopy = named<QPushButton>("cmdCopy", "&Copy");
    cmdClose = named<QPushButton>("cmdClose", "Close");

    auto* middle = new QHBoxLayout;
    auto* left = new QVBoxLayout;
    left->addLayout(lines);
    left->addStretch(1);
    middle->addLayout(left, 1);
    middle->addWidget(constants, 0, Qt::AlignTop);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdCheck);
    buttons->addWidget(cmdCopy);
    buttons->addWidget(lblSaid, 1);
    buttons->addWidget(cmdClose);
    auto* contents = new QWidget;
    auto* scrolled = new QVBoxLayout(contents);
    scrolled->setContentsMargins(0, 0, 0, 0);
    scrolled->addLayout(buildhead());
    scrolled->addWidget(lblKept = new KeptNote);
    scrolled->addLayout(middle, 1);
    auto* whole = new QVBoxLayout(this);
    // The buttons stay in view, and the window opens at its head.
    whole->addWidget(area = new RoomyArea(contents, [this](int wide) { return tallat(wide); }), 1);
    whole->addSpacing(fontMetrics().height() / 2);
    whole->addLayout(buttons);
}

int frmaboutport::tallat(int wide) const {
    const int gap = style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, this);
    const int note = lblKept->text().isEmpty() ? 0 : lblKept->heightForWidth(wide) + gap;
    const int texts = lines->heightForWidth(wide - constants->width() - gap);
    return lblName->sizeHint().height() + gap + note + std::max(texts, constants->height()) + gap;
}

QLayout* frmaboutport::buildhead() {
    lblMark = named<QLabel>("lblMark");
    lblName = plainlabel("lblName");
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    lblName->setFont(large);
    lblGrade = plainlabel("lblGrade");
    QFont bold = font();
    bold.setBold(true);
    lblGrade->setFont(bold);
    lblPlace = plainlabel("lblPlace");
    auto* head = new QHBoxLayout;
    head->addWidget(lblMark);
    for (QLabel* label : {lblName, lblGrade, lblPlace}) {
        label->setWordWrap(label == lblPlace);
        head->addWidget(label, label == lblPlace ? 1 : 0, Qt::AlignVCenter);
        head->addSpacing(fontMetrics().averageCharWidth());
    }
    return head;
}

void frmaboutport::fill() {
    lblKept->tell(tellownports(context.session.folders));
    const Services& services = context.services;
    shown = aboutsheet(aboutof(context.session.folders, hcfile, number), services.clock.moment(), services.zones);
    const int size = lblName->fontMetrics().height();
    lblMark->setPixmap(trusticon(shown.trust, coloursof(lightingof(nightison())), size)
                           .pixmap(QSize(size, size), devicePixelRatioF()));
    lblMark->setToolTip(trustword(shown.trust));
    lblMark->setAccessibleName(QStringLiteral("How good: %1").arg(trustword(shown.trust)));
    lblGrade->setText(trustword(shown.trust));
    lblName->setText(screentext(shown.name));
    lblPlace->setText(screentext(shown.place));
    while (QLayoutItem* item = lines->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    int row = 0;
    for (const AboutLine& line : shown.lines) {
        auto* caption = plainlabel("");
        caption->setText(screentext(line.caption));
        auto* text = plainlabel("");
        text->setText(screentext(line.text));
        text->setWordWrap(true);
        text->setMinimumWidth(fontMetrics().averageCharWidth() * leastwidth);
        text->setAccessibleName(screentext(line.caption));
        lines->addWidget(caption, row, 0, Qt::AlignTop | Qt::AlignRight);
        lines->addWidget(text, row++, 1, Qt::AlignTop);
        // At once in a window that is up, so that it can be measured.
        for (QLabel* each : {caption, text})
            each->setVisible(true);
    }
    area->widget()->layout()->activate();
    area->updateGeometry();
}

void frmaboutport::fillconstants() {
    constants->setRowCount(static_cast<int>(shown.constants.size()));
    for (int row = 0; row < constants->rowCount(); ++row) {
        const AboutLine& line = shown.constants[static_cast<std::size_t>(row)];
        constants->setItem(row, 0, new QTableWidgetItem(screentext(line.caption)));
        constants->setItem(row, 1, new QTableWidgetItem(screentext(line.text)));
    }
    constants->resizeColumnsToContents();
    const int frame = 2 * constants->frameWidth();
    constants->setFixedSize(
        constants->columnWidth(0) + fontMetrics().averageCharWidth() * 22 + frame,
        constants->verticalHeader()->length() + constants->horizontalHeader()->sizeHint().height() + frame + 2);
}

void frmaboutport::cmdCheck_Click() {
    frmcheckport check(context, hcfile, number, this);
    context.services.windows.showmodal(check);
    fill();
    // A line more may need the room.
    const int lacking = tallat(area->viewport()->width()) - area->viewport()->height();
    if (lacking <= 0) return;
    resize(width(), height() + lacking);
    fitscreen(*this);
}

}  // namespace tarvane
