#pragma once

#include <string_view>

namespace quintara {

// The documents of the Help menu. One window shows them all; each lays it out anew.
enum class HelpTopic { Introduction, Scenario, Rules, Physics, Code, Printing };

enum class DocumentPosition {
  Beside,      // a little right of and below the main form's top left corner
  Centred,     // by half the main form's size, wherever the main form stands
  CentredLow,  // so across, its top at half the main form's height
};

// How the document window is laid out for a topic. Sizes and places in twips.
struct HelpDocument {
  std::string_view caption;
  double height, width;  // of the window
  DocumentPosition position;
  double textWidth, textHeight;
  double copyLeft, copyTop;  // the Copy button
  double cancelLeft, cancelTop;
  bool demonstrations;  // whether the buttons of the two demonstration windows show
  bool placeNames;      // whether the place names on the landscape show
  std::string_view file;
};

const HelpDocument& DocumentOn(HelpTopic topic);

}  // namespace quintara
