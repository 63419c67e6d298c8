#include "mainview/frmstatusbar.h"

#include <QHBoxLayout>
#include <QMouseEvent>
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
    statusline->setCursor(Qt::PointingHandCursor);
    statusline->installEventFilter(this);
    QFont bold = font();
    bold.setBold(true);
    statusnotes->setFont(bold);
    statusnow = namedlabel("statusnow", rows);
    statusnow->setAccessibleName("Tide now");
    auto* column = new QVBoxLayout(rows);
    column->setContentsMargins(sidemargin, 0, sidemargin, 0);
    column->setSpacing(0);
    // The texts are fitted to these labels and never widen the window.
    for (QLabel* label : {statusline, statusnotes})
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    for (QLabel* label : {statusline, statusnotes, statusnow})
        label->setFixedHeight(label->fontMetrics().height() + 1);
    auto* lower = new QHBoxLayout;
    lower->addWidget(statusnotes, 1);
    lower->addWidget(statusnow);
    column->addWidget(statusline);
    column->addLayout(lower);
    addWidget(rows, 1);
}

void StatusBar::show(const MainView& view) {
    const QString tides = screentext(view.statusline);
    QStringList clauses;
    for (const std::string& note : view.notes)
        clauses << screentext(note);
    const QString said = screentext(view.answer);
    if (tides == line && clauses == notes && said == answer) return;
    line = tides;
    statusline->setToolTip(line + "\nClick here for what is known of this port (Ctrl+I)");
    notes = clauses;
    answer = said;
    fill();
}

void StatusBar::shownow(const std::string& brief, const std::string& whole) {
    const QString told = screentext(whole);
    statusnow->setToolTip(told);
    statusnow->setAccessibleDescription(told);
    const QString shown = screentext(brief);
    if (shown == statusnow->text()) return;
    statusnow->setText(shown);
    fill();
}

/// As many notes as have room; the rest is counted, and all stand in the tool tip.
void StatusBar::fill() {
    // By the bar's width: the labels get theirs only after this.
    const int room = width() - 2 * sidemargin - 8;
    const int lower = room - (statusnow->text().isEmpty() ? 0 : statusnow->sizeHint().width() + sidemargin);
    const QFontMetrics plain = statusline->fontMetrics();
    statusline->setText(plain.elidedText(line, Qt::ElideMiddle, room));
    const QFontMetrics bold = statusnotes->fontMetrics();
    const auto joined = [&](qsizetype count) {
        QString text = answer;
        if (notes.isEmpty()) return text;
        if (!text.isEmpty()) text += ". ";
        if (count == 0)
            return text + QString("NOTE: %1 difference%2").arg(notes.size()).arg(notes.size() == 1 ? "" : "s");
        text += "NOTE: " + notes.first(count).join("; ");
        if (count < notes.size()) text += QString("; and %1 more").arg(notes.size() - count);
        return text;
    };
    qsizetype count = notes.size();
    // What was saved or printed where is told before the notes, which can be reduced to their number.
    const qsizetype least = answer.isEmpty() ? 1 : 0;
    while (count > least && bold.horizontalAdvance(joined(count)) > lower)
        --count;
    statusnotes->setText(bold.elidedText(joined(count), Qt::ElideMiddle, lower));
    statusnotes->setToolTip(joined(notes.size()));
}

bool StatusBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched != statusline || event->type() != QEvent::MouseButtonRelease) return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const bool here = mouse->button() == Qt::LeftButton && statusline->rect().contains(mouse->position().toPoint());
    if (here && onclick) onclick();
    return here;
}

void StatusBar::resizeEvent(QResizeEvent* event) {
    QStatusBar::resizeEvent(event);
    fill();
}

}  // namespace tarvane
