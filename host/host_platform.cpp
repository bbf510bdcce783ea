#include "host/host_platform.h"

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

Menu* ItemToChoose(const Menu& menu, const std::string& name) {
  for (Menu* item : menu.items()) {
    if (item->CanBeChosen() && FullName(*item) == name) return item;
  }
  return nullptr;
}

template <typename Answer>
Answer TakeAnswer(std::deque<Answer>& answers, Answer whenEmpty) {
  if (answers.empty()) return whenEmpty;
  Answer answer = answers.front();
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

std::int32_t HostPlatform::ShowMessageBox(const std::string& text, std::int32_t style,
                                          const std::string& title) {
  // A script that forgot a box destroys nothing.
  const std::int32_t result = TakeAnswer(boxAnswers_, message_box::SafeAnswer(style));
  out_ << "! box " << Quoted(text) << ' ' << Integer32::Write(style) << ' ' << Quoted(title) << " -> "
       << Integer32::Write(result) << '\n';
  return result;
}

Menu* HostPlatform::RunPopupMenu(Form& form, Menu& menu, double x, double y) {
  Menu* chosen = ItemToChoose(menu, TakeAnswer(menuAnswers_, std::string("-")));
  // The program's own numbers: it opens menus in the scale of its form.
  const double across = x / form.scale().unitAcross;
  const double down = y / form.scale().unitDown;
  out_ << "! popup " << FullName(menu) << ' ' << Decimal::Write(across) << ' ' << Decimal::Write(down)
       << " -> " << (chosen != nullptr ? FullName(*chosen) : "-") << '\n';
  return chosen;
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

}  // namespace quintara::host
