#include "mainview/frmstatusbar.h"

#include <QVBoxLayout>

#include "platform/qt/named.h"
#include "platform/qt/screentext.h"

namespace tarvane {
namespace {

constexpr int sidemargin = 4;

}  // namespace

StatusBar::StatusBar(QWidget* parent) : QStatusBar(parent) {
    setObjectName("statusbar");
    setSizeGripEnabled(false);
    auto* rows = new QWidget(this);
    statusline = namedlabel("statusline", rows);
    statusnotes = namedlabel("statusnotes", rows);
    statusline->setAccessibleName("Tides on show");
    statusnotes->setAccessibleName("Notes on what is shown");
    QFont bold = font();
    bold.setBold(true);
    statusnotes->setFont(bold);
    statusnow = namedlabel("statusnow", this);
    statusnow->setAccessibleName("Tide now");
    auto* column = new QVBoxLayout(rows);
    column->setContentsMargins(sidemargin, 0, sidemargin, 0);
    column->setSpacing(0);
    for (QLabel* label : {statusline, statusnotes}) {
        // The text is fitted to the label and never widens the window.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        label->setFixedHeight(label->fontMetrics().height() + 1);
        column->addWidget(label);
    }
    addWidget(rows, 1);
    addPermanentWidget(statusnow);
}

void StatusBar::show(const MainView& view) {
    const QString line = screentext(view.statusline);
    QStringList clauses;
    for (const std::string& note : view.notes)
        clauses << screentext(note);
    const QString said = screentext(view.answer);
    if (line == statusline->toolTip() && clauses == notes && said == answer) return;
    statusline->setToolTip(line);
    notes = clauses;
    answer = said;
    fill();
}

void StatusBar::shownow(const std::string& text) {
    const QString shown = screentext(text);
    if (shown == statusnow->text()) return;
    statusnow->setText(shown);
    statusnow->setToolTip("The tide at this moment, on the port's own clock: " + shown);
    fill();
}

/// As many notes as have room; the rest is counted, and all stand in the tool tip.
void StatusBar::fill() {
    // By the bar's width: the labels get theirs only after this.
    const int room =
        width() - 2 * sidemargin - 8 - (statusnow->text().isEmpty() ? 0 : statusnow->sizeHint().width() + 8);
    const QFontMetrics plain = statusline->fontMetrics();
    statusline->setText(plain.elidedText(statusline->toolTip(), Qt::ElideMiddle, room));
    const QFontMetrics bold = statusnotes->fontMetrics();
    const auto joined = [&](qsizetype count) {
        QString text = answer;
        if (notes.isEmpty()) return text;
        if (!text.isEmpty()) text += ". ";
        if (count == 0) return text + QString("NOTE: %1 differences").arg(notes.size());
        text += "NOTE: " + notes.first(count).join("; ");
        if (count < notes.size()) text += QString("; and %1 more").arg(notes.size() - count);
        return text;
    };
    qsizetype count = notes.size();
    // What was saved or printed where is told before the notes, which can be reduced to their number.
    const qsizetype least = answer.isEmpty() ? 1 : 0;
    while (count > least && bold.horizontalAdvance(joined(count)) > room)
        --count;
    statusnotes->setText(bold.elidedText(joined(count), Qt::ElideMiddle, room));
    statusnotes->setToolTip(joined(notes.size()));
}

void StatusBar::resizeEvent(QResizeEvent* event) {
    QStatusBar::resizeEvent(event);
    fill();
}

}  // namespace tarvane
