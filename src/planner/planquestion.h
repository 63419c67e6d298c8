// "When can I go?": what the user types of his boat, the bottom and the bridge, and what it means. Must not reckon
// tides.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "planner/access.h"
#include "planner/plansettings.h"

namespace tarvane {

/// The fields in which metres or minutes are typed.
enum class PlanField { draught, clearance, bottom, bridge, airdraught, bridgelevel, least };
inline constexpr std::size_t planfields = 7;

/// The texts as they stand in the fields; an empty bridge asks for none.
using PlanQuestion = std::array<std::string, planfields>;

struct QuestionRead {
    Passage passage;
    int leastminutes = 0;
    std::optional<double> mast;  ///< also where no bridge asks for it
    bool mastempty = false;
    std::string refusal;  ///< why a text can't be meant, a sentence; empty when all can
    PlanField refused = PlanField::draught;
};

/// A number with "." or "," as its decimal sign, a blank "m" behind it left off; nothing for any other text.
std::optional<double> typednumber(std::string_view text);

QuestionRead readquestion(const PlanQuestion& question);

/// A field's text after so many steps up, or down below zero: tenths of a metre, quarters of an hour. An empty one
/// begins at what is usual and is empty again below its least; one that is no number stays.
std::string stepped(const std::string& text, PlanField field, int steps);

/// The fields as they come up: what was typed in the planner, else what is stored for the classic window. `port` is its
/// key among the bottoms and bridges; metres.
PlanQuestion prefilledquestion(const PlanSettings& settings, const Settings& stored, const std::string& port);

/// Keeps what was read: draught and clearance where they aren't what is stored, the bottom where the user typed it.
void keepquestion(const QuestionRead& read, const Settings& stored, const std::string& port, bool bottomtyped,
                  PlanSettings& settings);

}  // namespace tarvane
