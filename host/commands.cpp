#include "host/commands.h"

#include <limits>
#include <ostream>

#include "host/arguments.h"
#include "host/names.h"
#include "host/properties.h"
#include "scene/visit.h"
#include "text/utf8.h"

namespace quintara::host {
namespace {

Outcome Start(Host& host) {
  host.started = true;
  host.startProgram();
  return InputResult::Done;
}

Outcome Get(Host& host, PropertyPath path) {
  const auto value = ReadProperty(path.object, path.property);
  if (!value) return *value.refusal();
  host.out << *value << '\n';
  return InputResult::Done;
}

Outcome Set(Host& host, PropertyPath path, const Word& value) {
  const auto assign = PrepareAssignment(path.object, path.property, value);
  if (!assign) return *assign.refusal();
  Form& form = path.object.form();
  host.scene.dispatcher().Run(form, [&form, assign = *assign] {
    form.Touch();
    assign();
  });
  return InputResult::Done;
}

Outcome Click(Host&, Object& object) {
  if (object.ClickEvent() == nullptr) return Refusal{"the object is no button or image"};
  return UserClicks(object);
}

Outcome Move(Host&, Object& object) {
  if (!object.HasPlace()) return Refusal{"the object has no place on its form"};
  return UserMovesOnto(object);
}

// The action is one for scroll bars and sliders alike.
template <typename Action>
Outcome UseAnyBar(Object& object, const Action& action) {
  return Visit(
      object, [&](ScrollBar& bar) -> Outcome { return action(bar); },
      [&](Slider& slider) -> Outcome { return action(slider); },
      [](Object&) -> Outcome { return Refusal{"the object is no scroll bar or slider"}; });
}

Outcome Scroll(Host&, Object& object, const Word& value) {
  return UseAnyBar(object, [&value](auto& bar) -> Outcome {
    const auto number = ReadBarValue(bar, value);
    if (!number) return *number.refusal();
    return UserDragsTo(bar, *number);
  });
}

Outcome Arrow(Host&, ScrollBar& bar, BarEnd end) {
  return UserPressesArrow(bar, end);
}

Outcome Trough(Host&, Object& object, BarEnd end) {
  return UseAnyBar(object, [end](auto& bar) { return UserPressesTrough(bar, end); });
}

Outcome Type(Host&, TextBox& box, const std::string& text) {
  if (!IsShown(box)) return InputResult::NoTarget;
  // A handler may hide the box in the middle of the text: the other keys are lost.
  for (std::size_t at = 0; at < text.size();) UserTypes(box, static_cast<std::int32_t>(ReadUtf8(text, at)));
  return InputResult::Done;
}

Outcome Key(Host&, TextBox& box, Count code) {
  if (code.value > static_cast<std::int32_t>(lastCharacter)) return Refusal{"no character has that code"};
  return UserTypes(box, code.value);
}

Outcome Select(Host&, RichTextBox& box, Count start, Count length) {
  return UserSelects(box, start.value, length.value);
}

Outcome Close(Host&, Form& form) {
  return UserCloses(form);
}

Outcome Advance(Host& host, Count milliseconds) {
  host.scene.dispatcher().Advance(milliseconds.value);
  return InputResult::Done;
}

Outcome QueueChances(Host& host, const Arguments& arguments) {
  std::vector<double> chances;
  for (const Word& word : arguments) {
    const auto chance = ReadNumber(word);
    if (!chance) return *chance.refusal();
    if (*chance < 0 || *chance >= 1) return Refusal{"a chance is at least 0 and below 1"};
    chances.push_back(*chance);
  }
  for (const double chance : chances) host.scene.chance().Queue(chance);
  return InputResult::Done;
}

Outcome QueueBoxAnswer(Host& host, const Word& word) {
  const auto number = Integer32::Read(word);
  if (!number) return *number.refusal();
  host.platform.QueueBoxAnswer(*number);
  return InputResult::Done;
}

Outcome QueueMenuAnswer(Host& host, const Word& word) {
  const auto item = PlainWord(word);
  if (!item) return *item.refusal();
  if (*item != "-" && !IsMenuItem(host.scene, *item)) {
    return Refusal{"there is no menu item " + Quoted(*item)};
  }
  host.platform.QueueMenuAnswer(*item);
  return InputResult::Done;
}

Outcome QueueAnswer(Host& host, Asker asker, const Word& answer) {
  return asker == Asker::Box ? QueueBoxAnswer(host, answer) : QueueMenuAnswer(host, answer);
}

Outcome Dots(Host& host, Object& object) {
  const Container* surface = object.AsContainer();
  if (surface == nullptr) return Refusal{"the object is no form or picture box"};
  if (!surface->form().loaded()) return Refusal{"the form is not loaded"};
  for (const Dot& dot : surface->dots()) {
    host.out << Decimal::Write(dot.x) << ' ' << Decimal::Write(dot.y) << ' ' << ColourCode::Write(dot.colour)
             << ' ' << Integer16::Write(dot.width) << '\n';
  }
  return InputResult::Done;
}

void DumpObject(std::ostream& out, Object& object) {
  const std::string path = PathOf(object);
  for (const NamedValue& property : DumpedProperties(object)) {
    out << path << '.' << property.name << " = " << property.value << '\n';
  }
}

void DumpForm(std::ostream& out, Form& form) {
  DumpObject(out, form);
  for (Object* object : form.objects()) DumpObject(out, *object);
}

Outcome DumpOne(Host& host, Form& form) {
  if (!form.loaded()) return Refusal{"the form is not loaded"};
  DumpForm(host.out, form);
  return InputResult::Done;
}

Outcome DumpAll(Host& host) {
  for (Form* form : host.scene.loadedForms()) DumpForm(host.out, *form);
  return InputResult::Done;
}

Outcome Dump(Host& host, const Arguments& arguments) {
  return (arguments.empty() ? calls<DumpAll> : calls<DumpOne>).run(host, arguments);
}

Outcome Time(Host& host) {
  host.out << host.scene.dispatcher().now() << '\n';
  return InputResult::Done;
}

Outcome Quit(Host& host) {
  host.left = true;
  return InputResult::Done;
}

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

constexpr Command commands[] = {
    {"start", When::BeforeStart, calls<Start>},
    {"get", When::WhileRunning, calls<Get>},
    {"set", When::WhileRunning, calls<Set>},
    {"click", When::WhileRunning, calls<Click>},
    {"move", When::WhileRunning, calls<Move>},
    {"scroll", When::WhileRunning, calls<Scroll>},
    {"arrow", When::WhileRunning, calls<Arrow>},
    {"trough", When::WhileRunning, calls<Trough>},
    {"type", When::WhileRunning, calls<Type>},
    {"key", When::WhileRunning, calls<Key>},
    {"select", When::WhileRunning, calls<Select>},
    {"close", When::WhileRunning, calls<Close>},
    {"advance", When::WhileRunning, calls<Advance>},
    {"chance", When::BeforeEnd, {1, anyNumber, QueueChances}},
    {"answer", When::BeforeEnd, calls<QueueAnswer>},
    {"dots", When::WhileRunning, calls<Dots>},
    {"dump", When::WhileRunning, {0, 1, Dump}},
    {"time", When::WhileRunning, calls<Time>},
    {"quit", When::Always, calls<Quit>},
};

}  // namespace

const Command* FindCommand(std::string_view name) {
  for (const Command& command : commands) {
    if (command.name == name) return &command;
  }
  return nullptr;
}

}  // namespace quintara::host
