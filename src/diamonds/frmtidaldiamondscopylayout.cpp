// The controls of the diamond editor and their places.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "diamonds/frmtidaldiamondscopy.h"
#include "platform/qt/choicelist.h"
#include "platform/qt/filteredbox.h"
#include "platform/qt/named.h"
#include "platform/qt/twips.h"

namespace tarvane {
namespace {

constexpr int filerows = 4, diamondrows = 8;
constexpr const char* heads[boxesanhour] = {"Dir.", "Springs", "Neaps"};
constexpr const char* firstcaptions[firsthourplace] = {"Diamond Ref.", "Latitude", "Longitude"};

/// The point is the decimal mark, and what a comma means.
char32_t ratekey(char32_t key) {
    return key == U',' ? U'.' : key;
}

/// Hemispheres are read in capital letters alone.
char32_t positionkey(char32_t key) {
    return key >= U'a' && key <= U'z' ? key - U'a' + U'A' : key;
}

char32_t anyletter(char32_t key) {
    return key;
}

KeyRule ruleof(std::size_t place) {
    if (place == idplace) return anyletter;
    return place < firsthourplace ? positionkey : ratekey;
}

QString spokenname(std::size_t place) {
    if (place < firsthourplace) return firstcaptions[place];
    const std::size_t at = place - firsthourplace;
    return QString::fromStdString(hourcaption(at / boxesanhour)) + " " + heads[at % boxesanhour];
}

}  // namespace

void frmTidalDiamondsCopy::buildlayout() {
    buildlists();
    lblInstructions = named<QLabel>("lblInstructions", QString::fromUtf8(diamondinstructions));
    lblstatus = named<QLabel>("lblstatus");
    for (QLabel* label : {lblInstructions, lblstatus}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    lblstatus->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblstatus->setMinimumHeight(2 * lblstatus->fontMetrics().lineSpacing());
    auto* sides = new QHBoxLayout;
    sides->addLayout(buildsource(), 1);
    sides->addSpacing(twips(300));
    sides->addLayout(builddestination(), 1);
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(lblInstructions);
    whole->addLayout(sides, 1);
    whole->addLayout(buildbuttons());
    whole->addWidget(lblstatus);
}

void frmTidalDiamondsCopy::buildlists() {
    const int width = fontMetrics().horizontalAdvance("A  00.00.00N  000.00.00W") + twips(600);
    for (const auto& [list, name, spoken] : {std::tuple{&fileSource, "fileSource", "Source Files"},
                                             {&List1, "List1", "Diamonds of the source file"},
                                             {&fileDest, "fileDest", "Existing Files"},
                                             {&List2, "List2", "Diamonds of the destination file"}}) {
        *list = named<ChoiceList>(name);
        (*list)->setAccessibleName(spoken);
        (*list)->setMinimumWidth(width);
        (*list)->installEventFilter(this);
    }
    for (QListWidget* files : {fileSource, fileDest})
        files->setFixedHeight(filerows * fontMetrics().lineSpacing() + 2 * files->frameWidth() + twips(90));
    for (QListWidget* diamonds : {List1, List2})
        setrowsinview(*diamonds, diamondrows);
    // What is chosen there would do nothing.
    List2->setSelectionMode(QAbstractItemView::NoSelection);
}

void frmTidalDiamondsCopy::buildboxes(Side side, std::vector<QLineEdit*>& boxes) {
    for (std::size_t place = 0; place < diamondboxes; ++place) {
        auto* made = named<FilteredBox>(boxname(side, place).c_str(), ruleof(place), context.services.messages);
        made->setAccessibleName(spokenname(place));
        boxes.push_back(made);
        if (place < firsthourplace) continue;
        made->setFixedWidth(fontMetrics().horizontalAdvance("00000.0") + twips(240));
        if ((place - firsthourplace) % boxesanhour == 0) {
            made->setToolTip("A double click empties this hour");
            made->installEventFilter(this);
        }
    }
    boxes[idplace]->setMaxLength(1);
    boxes[idplace]->setFixedWidth(fontMetrics().horizontalAdvance("WW") + twips(240));
    for (const std::size_t place : {latitudeplace, longitudeplace})
        boxes[place]->setFixedWidth(fontMetrics().horizontalAdvance("000.00.00W") + twips(300));
}

QLayout* frmTidalDiamondsCopy::buildsource() {
    lblSourceFile = namedvalue("lblSourceFile");
    lblSourceFile->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    Lbldiamno = namedvalue("Lbldiamno");
    buildboxes(Side::source, sourceboxes);
    auto* lists = new QVBoxLayout;
    lists->addWidget(captionof("&Source Files", fileSource));
    lists->addWidget(fileSource);
    lists->addWidget(lblSourceFile);
    lists->addWidget(List1, 1);
    auto* number = new QHBoxLayout;
    number->addWidget(new QLabel("This entry no. ="));
    number->addWidget(Lbldiamno, 1);
    lists->addLayout(number);
    lists->addLayout(buildplace(sourceboxes));
    auto* side = new QHBoxLayout;
    side->addLayout(lists, 1);
    side->addSpacing(twips(120));
    side->addLayout(buildtable(sourceboxes));
    return side;
}

QLayout* frmTidalDiamondsCopy::builddestination() {
    txtDestFile = named<QLineEdit>("txtDestFile");
    buildboxes(Side::destination, destinationboxes);
    auto* lists = new QVBoxLayout;
    lists->addWidget(captionof("Existing &Files", fileDest));
    lists->addWidget(fileDest);
    lists->addWidget(captionof("Destination Fil&e", txtDestFile));
    lists->addWidget(txtDestFile);
    lists->addWidget(List2, 1);
    lists->addLayout(buildplace(destinationboxes));
    auto* side = new QHBoxLayout;
    side->addLayout(lists, 1);
    side->addSpacing(twips(120));
    side->addLayout(buildtable(destinationboxes));
    return side;
}

QLayout* frmTidalDiamondsCopy::buildplace(const std::vector<QLineEdit*>& boxes) {
    auto* grid = new QGridLayout;
    int row = 0;
    for (const std::size_t place : {idplace, latitudeplace, longitudeplace}) {
        grid->addWidget(captionof(firstcaptions[place], boxes[place]), row, 0);
        grid->addWidget(boxes[place], row++, 1);
    }
    grid->setColumnStretch(2, 1);
    return grid;
}

QLayout* frmTidalDiamondsCopy::buildtable(const std::vector<QLineEdit*>& boxes) {
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(twips(45));
    int row = 0;
    for (std::size_t i = 0; i < boxesanhour; ++i)
        grid->addWidget(new QLabel(heads[i]), row, static_cast<int>(i) + 1);
    for (std::size_t hour = 0; hour < streamhours; ++hour) {
        const std::size_t first = firsthourplace + hour * boxesanhour;
        grid->addWidget(captionof(hourcaption(hour).c_str(), boxes[first]), ++row, 0);
        for (std::size_t i = 0; i < boxesanhour; ++i)
            grid->addWidget(boxes[first + i], row, static_cast<int>(i) + 1);
    }
    grid->setRowStretch(row + 1, 1);
    return grid;
}

QLayout* frmTidalDiamondsCopy::buildbuttons() {
    cmdCopy = named<QPushButton>("cmdCopy", "&Copy");
    cmdAmend = named<QPushButton>("cmdAmend", "A&mend");
    cmdAddtoFile = named<QPushButton>("cmdAddtoFile", "Add &to End");
    cmdDelete = named<QPushButton>("cmdDelete", "&Delete");
    cmdAdd = named<QPushButton>("cmdAdd", "&Add");
    cmdImportCharts = named<QPushButton>("cmdImportCharts", "&Import Charts...");
    cmdExit = named<QPushButton>("cmdExit", "E&xit");
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdAmend, cmdAddtoFile, cmdDelete, cmdCopy, cmdAdd, cmdImportCharts, cmdExit}) {
        if (button == cmdAdd || button == cmdImportCharts) buttons->addStretch(1);
        buttons->addWidget(button);
        // Enter in a box writes nothing: a button wants a click, Space or its letter.
        button->setAutoDefault(false);
    }
    return buttons;
}

}  // namespace tarvane
