#include "tides/absences.h"

#include <algorithm>

#include "text/numbers.h"
#include "tides/textforms.h"
#include "tides/views.h"

namespace tarvane {

void Absences::note(const std::string& subject, const char* reason, Date date) {
    add({subject, reason, date, date, 1});
}

void Absences::add(const Absences& others) {
    for (const Absence& each : others.absences)
        add(each);
}

void Absences::add(const Absence& more) {
    // looked for from the end, where the port in hand stands
    const auto known = std::find_if(absences.rbegin(), absences.rend(), [&](const Absence& absence) {
        return absence.subject == more.subject && absence.reason == more.reason;
    });
    if (known == absences.rend()) {
        absences.push_back(more);
        return;
    }
    known->last = more.last;
    known->days += more.days;
}

int Absences::count() const {
    int days = 0;
    for (const Absence& absence : absences)
        days += absence.days;
    return days;
}

void Absences::tell(std::ostream& err) const {
    for (const Absence& absence : absences) {
        err << "tides: no " << plaintext(absence.subject);
        if (absence.days > 1) {
            err << " on " << numbertext(absence.days) << " days from " << isodate(absence.first) << " to "
                << isodate(absence.last);
        } else {
            err << " on " << isodate(absence.first);
        }
        err << ": " << absence.reason << "\n";
    }
}

}  // namespace tarvane
