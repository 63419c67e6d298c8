// "When can I go?" in the planner's window: what is asked, and how it is answered.
#include "planner/frmplanner.h"
#include "planner/plantexts.h"
#include "platform/qt/screentext.h"

namespace tarvane {

void frmplanner::connectquestion() {
    for (QLineEdit* field : fields)
        connect(field, &QLineEdit::textEdited, this, [this] {
            ask();
            reveal();
        });
    const auto wished = [this] {
        if (filling) return;
        view.settings.asked = fraQuestion->isChecked();
        view.settings.daylight = static_cast<Daylight>(cmbDaylight->currentIndex());
        view.settings.twilight = chkTwilight->isChecked();
        Weekdays wanted = 0;
        for (std::size_t i = 0; i < weekdays.size(); ++i)
            if (weekdays[i]->isChecked()) wanted |= 1U << ((i + 1) % 7);
        // None chosen asks for none: all are as good.
        view.settings.weekdays = wanted == 0 ? everyweekday : wanted;
        answeranew(view);
        showanswer();
        keeplater->start();
        // Under the mouse nothing moves.
        const auto* control = qobject_cast<QWidget*>(sender());
        if (control && !control->underMouse()) reveal();
    };
    connect(fraQuestion, &QGroupBox::toggled, this, wished);
    connect(cmbDaylight, &QComboBox::activated, this, wished);
    connect(chkTwilight, &QCheckBox::toggled, this, wished);
    for (QToolButton* day : weekdays) {
        connect(day, &QToolButton::toggled, this, wished);
        connect(day, &QToolButton::toggled, this, [this] { lightdays(); });
    }
}

void frmplanner::ask() {
    PlanQuestion question;
    for (std::size_t i = 0; i < planfields; ++i)
        question[i] = fields[i]->text().toStdString();
    askquestion(context, view, question);
    showanswer();
    if (view.refusal.empty()) keeplater->start();
}

/// Where the window is scrolled: the answer, and what was typed into, in view.
void frmplanner::reveal() {
    area->ensureWidgetVisible(lblAnswer, 0, 0);
    if (focusWidget() && area->isAncestorOf(focusWidget())) area->ensureWidgetVisible(focusWidget());
}

void frmplanner::fillfields() {
    filling = true;
    for (std::size_t i = 0; i < planfields; ++i)
        fields[i]->setText(screentext(view.question[i]));
    const PlanSettings& settings = view.settings;
    fraQuestion->setChecked(settings.asked);
    cmbDaylight->setCurrentIndex(static_cast<int>(settings.daylight));
    chkTwilight->setChecked(settings.twilight);
    for (std::size_t i = 0; i < weekdays.size(); ++i)
        weekdays[i]->setChecked(settings.weekdays != everyweekday && (settings.weekdays >> ((i + 1) % 7) & 1U) != 0);
    cmbSpan->setCurrentIndex(settings.days - 1);
    cmbClock->setCurrentIndex(static_cast<int>(settings.clock));
    filling = false;
}

void frmplanner::showanswer() {
    picture->redraw();
    // While an entry is refused, everything shown is of those before it.
    const QString before = view.refusal.empty() ? "" : "Shown as it was before: ";
    lblNeeded->setText(
        view.read.refusal.empty() ? before + screentext(neededtext(view.read.passage, view.known.datum())) : QString());
    tellanswer();
    for (std::size_t i = 0; i < planfields; ++i) {
        const bool refused = !view.refusal.empty() && readquestion(view.question).refused == static_cast<PlanField>(i);
        QFont font = fields[i]->font();
        if (font.underline() == refused) continue;
        font.setUnderline(refused);
        fields[i]->setFont(font);
    }
    showpage();
    showcursor();
}

void frmplanner::tellanswer() {
    QString answer = screentext(answertext(view, context.services.locale, context.services.clock.moment()));
    // Windows a line each; a sentence stays whole.
    if (view.plan && view.refusal.empty() && accessverdict(view.access, view.read.passage, "").empty())
        answer.replace("; ", "\n");
    lblAnswer->setText(answer);
}

}  // namespace tarvane
