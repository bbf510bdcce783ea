#pragma once

#include <cstdint>
#include <string>

namespace quintara {

// A modal box with a text, which carries an exclamation mark.
struct MessageBox {
  enum class Buttons { Ok, YesAndNo };

  std::string text;
  std::string title;
  Buttons buttons = Buttons::Ok;
};

// The button that the user chose, by its number. To close a box without one is to choose Ok or No. A script
// may answer with other numbers, which are none of these.
enum class Answer : std::int32_t { Ok = 1, Yes = 6, No = 7 };

}  // namespace quintara
