// The days that a table leaves out because there is no result for them. Must not decide which days those are.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "dates/calendar.h"

namespace tarvane {

class Absences {
  public:
    /// A day without a result. `subject` says of what there is none: "prediction for Dover, port 15,".
    void note(const std::string& subject, const char* reason, Date date);

    /// Takes over what another has noted, behind what is noted here.
    void add(const Absences& others);

    bool empty() const { return absences.empty(); }

    /// How many days in all.
    int count() const;

    /// A line for each subject and reason.
    void tell(std::ostream& err) const;

  private:
    struct Absence {
        std::string subject;
        std::string reason;
        Date first{};
        Date last{};
        int days = 0;
    };
    void add(const Absence& more);

    std::vector<Absence> absences;
};

}  // namespace tarvane
