#include "fuzz/player.h"

#include <algorithm>

#include "scene/input.h"
#include "scene/visit.h"

namespace quintara::fuzz {
namespace {

// What a user can do something with, front to back, in all windows that are open.
std::vector<Object*> Controls(const Scene& scene) {
  std::vector<Object*> controls;
  for (const Form* form : scene.loadedForms()) {
    for (Object* object : form->objects()) {
      const bool answers = Visit(
          *object, [](Label&) { return false; }, [](Line&) { return false; },
          [](Object& any) { return any.HasPlace(); });
      if (answers && IsShown(*object) && object->IsEnabled()) controls.push_back(object);
    }
  }
  return controls;
}

}  // namespace

void Player::Act() {
  QuintaraForm& form = program_.quintara();
  Dispatcher& dispatcher = program_.scene().dispatcher();
  const std::uint8_t action = bytes_.Take();
  switch (action) {
    case 'S': UserClicks(form.searchButton); break;
    case 'M': UserClicks(form.magnifyButton); break;
    case 'F': UserClicks(form.fireButton); break;
    case 'R': UserClicks(form.resetButton); break;
    case 'D': UserClicks(form.dragButton); break;
    case 'E': Lay(form.elevationBar); break;
    case 'V': Lay(form.velocityBar); break;
    case 'T': Lay(form.flightTimeBar); break;
    case 'L': WatchToTheEnd(); break;
    case 'W': dispatcher.Advance(bytes_.Take()); break;
    case 'P': dispatcher.PassTime(bytes_.Take()); break;
    case 'C': CloseWindow(); break;
    case 'Q': program_.scene().chance().Queue(bytes_.Take() / 256.0); break;
    case 'B': platform_.boxAnswer = bytes_.Take() % 8; break;
    case 'Z': disk_.full = !disk_.full; break;
    case 'J': UserClicks(program_.analysis().benchButton); break;
    case 'K': UserClicks(program_.analysis().simulatorButton); break;
    case 'H':
      platform_.menuAnswer = bytes_.Below(16);
      UserClicks(form.helpButton);
      break;
    default: ActInWindow(action);
  }
}

void Player::ActInWindow(std::uint8_t which) {
  const std::vector<Object*> controls = Controls(program_.scene());
  if (controls.empty()) return;
  Object& object = *controls[which % controls.size()];
  UserMovesOnto(object);
  Use(object);
}

void Player::Use(Object& object) {
  const std::uint8_t how = bytes_.Take();
  const BarEnd end = how % 2 == 0 ? BarEnd::Min : BarEnd::Max;
  Visit(
      object,
      [&](ScrollBar& bar) {
        if (how < 8) {
          UserPressesArrow(bar, end);
        } else if (how < 16) {
          UserPressesTrough(bar, end);
        } else {
          Lay(bar);
        }
      },
      [&](Slider& slider) {
        if (how < 16) {
          UserPressesTrough(slider, end);
        } else {
          UserDragsTo(slider, how);
        }
      },
      [&](TextBox& box) { UserTypes(box, how); },
      [&](RichTextBox& box) { UserSelects(box, 16 * how, bytes_.Take()); },
      [](Object& other) { UserClicks(other); });
}

// Until a target is locked on, or the shell has come down and its fragments too.
void Player::WatchToTheEnd() {
  constexpr int longest = 13'000, glance = 500;
  const QuintaraForm& form = program_.quintara();
  const auto isMoving = [&form] {
    return form.driftRightTimer.Enabled || form.driftLeftTimer.Enabled || form.shellTimer.Enabled ||
           form.fragmentTimer.Enabled;
  };
  for (int watched = 0; watched < longest && isMoving(); watched += glance)
    program_.scene().dispatcher().Advance(glance);
}

void Player::CloseWindow() {
  const std::vector<Form*>& loaded = program_.scene().loadedForms();
  // The main window, which ends the program, is only closed when it stands alone.
  const std::size_t which = bytes_.Below(4);
  if (loaded.size() > 1)
    UserCloses(*loaded[1 + which % (loaded.size() - 1)]);
  else
    UserCloses(*loaded.front());
}

// Any value, a few beyond the ends.
void Player::Lay(ScrollBar& bar) {
  const std::int32_t least = std::min(bar.Min, bar.Max), most = std::max(bar.Min, bar.Max);
  const std::int32_t value = least - 2 + bytes_.Take() * (most - least + 4) / 255;
  UserDragsTo(bar, static_cast<std::int16_t>(value));
}

}  // namespace quintara::fuzz
