#include "front/tour.h"
#include "scene/input.h"
#include "scene/scene.h"

namespace quintara {

Tour::Tour(Program& program, TourPlatform& platform, TourStage& stage)
    : program_(program), platform_(platform), stage_(stage) {
  // A front end lets the game's clock follow real time. It never has to where that clock is far ahead.
  constexpr std::int64_t day = 86'400'000;
  program_.scene().dispatcher().AdvanceTo(day);
}

void Tour::Fail(const std::string& why) {
  if (fault_.empty()) fault_ = why;
}

void Tour::Run(const std::function<void()>& input) {
  if (!fault_.empty()) return;
  stage_.Run(input);
  if (!platform_.boxText().empty()) Fail("the game said: " + platform_.boxText());
}

void Tour::Click(Object& object) {
  Run([&] {
    if (UserClicks(object) == InputResult::NoTarget) Fail(FullName(object) + " could not be clicked on");
  });
}

void Tour::Drag(ScrollBar& bar, std::int16_t value) {
  Run([&] { UserDragsTo(bar, value); });
}

void Tour::Type(TextBox& box, std::string_view text) {
  for (const char character : text) Run([&] { UserTypes(box, character); });
}

void Tour::Advance(std::int64_t milliseconds) {
  Dispatcher& dispatcher = program_.scene().dispatcher();
  Run([&] { dispatcher.AdvanceTo(dispatcher.now() + milliseconds); });
}

void Tour::AdvanceUntil(const std::function<bool()>& reached) {
  Dispatcher& dispatcher = program_.scene().dispatcher();
  constexpr std::int64_t most = 60'000;
  const std::int64_t end = dispatcher.now() + most;
  Run([&] {
    while (!reached() && dispatcher.now() < end) dispatcher.AdvanceTo(dispatcher.now() + 1);
    if (!reached()) Fail("the game waited in vain for what comes next");
  });
}

void Tour::Picture(std::string_view name, const Form& form) {
  if (fault_.empty() && !stage_.Picture(name, form))
    Fail("the window of " + FullName(form) + " did not open");
}

void Tour::PictureWithFrames(std::string_view name, std::initializer_list<const Form*> forms) {
  if (fault_.empty() && !stage_.PictureWithFrames(name, forms)) Fail("a window did not open");
}

}  // namespace quintara
