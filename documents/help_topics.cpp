#include "documents/help_topics.h"

namespace quintara {
namespace {

using enum DocumentPosition;

// clang-format off
constexpr HelpDocument introduction{"Introduction",  9615, 6040, Beside,     6000, 8640, 1610, 8745, 3240, 8745, false, false, "Help\\Introduction.rtf"};
constexpr HelpDocument scenario    {"Scenario",      4250, 5830, CentredLow, 5830, 3285, 1300, 3400, 3575, 3400, false, true,  "Help\\Scenario.rtf"};
constexpr HelpDocument rules       {"Rules",         6900, 5730, Centred,    5730, 6030, 1260, 6100, 3495, 6100, false, false, "Help\\Rules.rtf"};
constexpr HelpDocument physics     {"Analysis",      9615, 6040, Beside,     6000, 8640, 1610, 8745, 3240, 8745, true,  false, "Help\\Analysis.rtf"};
constexpr HelpDocument code        {"Computer Code", 9615, 6850, Beside,     6800, 8640, 1610, 8745, 4175, 8745, false, false, "Help\\Code.rtf"};
constexpr HelpDocument printing    {"Print",         4500, 5730, Centred,    5730, 3430, 1260, 3600, 3495, 3600, false, false, "Help\\Printing.rtf"};
// clang-format on

}  // namespace

const HelpDocument& DocumentOn(HelpTopic topic) {
  switch (topic) {
    case HelpTopic::Introduction: return introduction;
    case HelpTopic::Scenario: return scenario;
    case HelpTopic::Rules: return rules;
    case HelpTopic::Physics: return physics;
    case HelpTopic::Code: return code;
    case HelpTopic::Printing: break;
  }
  return printing;
}

}  // namespace quintara
