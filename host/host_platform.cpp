#include "host/host_platform.h"

#include <cstdlib>
#include <ostream>
#include <random>

#include "host/values.h"
#include "scene/form.h"
#include "scene/menu.h"

namespace quintara::host {
namespace {

std::string WithoutTrailingSeparator(const std::filesystem::path& folder) {
  const std::u8string text = (folder.has_filename() ? folder : folder.parent_path()).u8string();
  return std::string(text.begin(), text.end());
}

bool AsksYesOrNo(const MessageBox& box) {
  return box.buttons == MessageBox::Buttons::YesAndNo;
}

// A box that asks Yes or No is refused, so that a script that forgot it destroys nothing.
std::int32_t DefaultAnswer(const MessageBox& box) {
  return static_cast<std::int32_t>(AsksYesOrNo(box) ? Answer::No : Answer::Ok);
}

// The number that scripts know the look of a box by: its icon, and its buttons.
std::int32_t StyleOf(const MessageBox& box) {
  constexpr std::int32_t exclamation = 48, yesAndNo = 4;
  return exclamation + (AsksYesOrNo(box) ? yesAndNo : 0);
}

Menu* ItemToChoose(const Menu& menu, const std::string& name) {
  for (Menu* item : menu.items()) {
    if (item->CanBeChosen() && FullName(*item) == name) return item;
  }
  return nullptr;
}

template <typename Value>
Value TakeFirst(std::deque<Value>& answers, Value whenEmpty) {
  if (answers.empty()) return whenEmpty;
  Value answer = answers.front();
  answers.pop_front();
  return answer;
}

}  // namespace

HostPlatform::HostPlatform(const std::filesystem::path& folder, std::ostream& out)
    : out_(out), folder_(WithoutTrailingSeparator(folder)) {}

std::uint64_t HostPlatform::Seed() {
  std::random_device device;
  // The count keeps seeds apart also where the device has no randomness of its own.
  constexpr std::uint64_t step = 0x9E3779B97F4A7C15;
  return (std::uint64_t{device()} << 32 | device()) + ++seeds_ * step;
}

void HostPlatform::PlaySound(const DataFile& sound) {
  out_ << "! sound " << sound.name << '\n';
}

void HostPlatform::Beep() {
  out_ << "! beep\n";
}

void HostPlatform::ShowMessageBox(const MessageBox& box, std::function<void(Answer)> reply) {
  const std::int32_t result = TakeFirst(boxAnswers_, DefaultAnswer(box));
  out_ << "! box " << Quoted(box.text) << ' ' << Integer32::Write(StyleOf(box)) << ' ' << Quoted(box.title)
       << " -> " << Integer32::Write(result) << '\n';
  reply(static_cast<Answer>(result));
}

void HostPlatform::OpenPopupMenu(Form& form, Menu& menu, double x, double y,
                                 std::function<void(Menu*)> reply) {
  Menu* chosen = ItemToChoose(menu, TakeFirst(menuAnswers_, std::string("-")));
  // The program's own numbers: it opens menus in the scale of its form.
  const double across = x / form.scale().unitAcross;
  const double down = y / form.scale().unitDown;
  out_ << "! popup " << FullName(menu) << ' ' << Decimal::Write(across) << ' ' << Decimal::Write(down)
       << " -> " << (chosen != nullptr ? FullName(*chosen) : "-") << '\n';
  reply(chosen);
}

void HostPlatform::PutOnClipboard(const std::string& text) {
  out_ << "! clipboard " << Quoted(text) << '\n';
}

void HostPlatform::FormShown(Form& form) {
  out_ << "! show " << form.name() << '\n';
}

void HostPlatform::FormUnloaded(Form& form) {
  out_ << "! unload " << form.name() << '\n';
}

void HostPlatform::ProgramEnded() {
  out_ << "! end\n";
}

// Nothing more can be trusted, so the host ends, too: with the line that a command would be refused with.
void HostPlatform::FaultFound(const std::string& what) {
  constexpr int faultInProgram = 3;
  out_ << "error: " << what << '\n' << std::flush;
  std::exit(faultInProgram);
}

}  // namespace quintara::host
