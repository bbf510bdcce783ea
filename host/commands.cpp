#include "host/commands.h"

#include <limits>
#include <ostream>

#include "host/names.h"
#include "host/properties.h"
#include "scene/visit.h"
#include "text/utf8.h"

namespace quintara::host {
namespace {

Object& ObjectIn(const Host& host, const Word& word) {
  return FindObject(host.scene, PlainWord(word));
}

PropertyPath PropertyIn(const Host& host, const Word& word) {
  return FindProperty(host.scene, PlainWord(word));
}

Form& LoadedFormIn(const Host& host, const Word& word) {
  Form& form = FindForm(host.scene, PlainWord(word));
  if (!form.loaded()) throw Refusal("the form is not loaded");
  return form;
}

// The object that a command names, which has to be of one kind.
template <typename Control>
Control& ControlIn(const Host& host, const Word& word, const char* kind) {
  auto* control = As<Control>(ObjectIn(host, word));
  if (control == nullptr) throw Refusal(std::string("the object is no ") + kind);
  return *control;
}

// A number that is never negative.
std::int32_t CountIn(const Word& word) {
  const std::int32_t count = Integer32::Read(word);
  if (count < 0) throw Refusal("the number is negative");
  return count;
}

BarEnd EndIn(const Word& word) {
  const std::string& end = PlainWord(word);
  if (end != "min" && end != "max") throw Refusal("min or max is expected");
  return end == "min" ? BarEnd::Min : BarEnd::Max;
}

InputResult Start(Host& host, const Arguments&) {
  host.started = true;
  host.startProgram();
  return InputResult::Done;
}

InputResult Get(Host& host, const Arguments& arguments) {
  const PropertyPath path = PropertyIn(host, arguments[0]);
  host.out << ReadProperty(path.object, path.property) << '\n';
  return InputResult::Done;
}

InputResult Set(Host& host, const Arguments& arguments) {
  const PropertyPath path = PropertyIn(host, arguments[0]);
  const Assignment assign = PrepareAssignment(path.object, path.property, arguments[1]);
  Form& form = path.object.form();
  host.scene.dispatcher().Run(form, [&form, &assign] {
    form.Touch();
    assign();
  });
  return InputResult::Done;
}

InputResult Click(Host& host, const Arguments& arguments) {
  Object& object = ObjectIn(host, arguments[0]);
  if (object.ClickEvent() == nullptr) throw Refusal("the object is no button or image");
  return UserClicks(object);
}

InputResult Move(Host& host, const Arguments& arguments) {
  Object& object = ObjectIn(host, arguments[0]);
  if (!object.HasPlace()) throw Refusal("the object has no place on its form");
  return UserMovesOnto(object);
}

template <typename Action>
InputResult UseAnyBar(Object& object, const Action& action) {
  return Visit(
      object, [&](ScrollBar& bar) { return action(bar); }, [&](Slider& slider) { return action(slider); },
      [](Object&) -> InputResult { throw Refusal("the object is no scroll bar or slider"); });
}

InputResult Scroll(Host& host, const Arguments& arguments) {
  return UseAnyBar(ObjectIn(host, arguments[0]),
                   [&](auto& bar) { return UserDragsTo(bar, ReadBarValue(bar, arguments[1])); });
}

InputResult Arrow(Host& host, const Arguments& arguments) {
  auto& bar = ControlIn<ScrollBar>(host, arguments[0], "scroll bar");
  return UserPressesArrow(bar, EndIn(arguments[1]));
}

InputResult Trough(Host& host, const Arguments& arguments) {
  Object& object = ObjectIn(host, arguments[0]);
  const BarEnd end = EndIn(arguments[1]);
  return UseAnyBar(object, [end](auto& bar) { return UserPressesTrough(bar, end); });
}

InputResult Type(Host& host, const Arguments& arguments) {
  auto& box = ControlIn<TextBox>(host, arguments[0], "text box");
  const std::string text = Text::Read(arguments[1]);
  if (!IsShown(box)) return InputResult::NoTarget;
  // A handler may hide the box in the middle of the text: the other keys are lost.
  for (std::size_t at = 0; at < text.size();) UserTypes(box, static_cast<std::int32_t>(ReadUtf8(text, at)));
  return InputResult::Done;
}

InputResult Key(Host& host, const Arguments& arguments) {
  auto& box = ControlIn<TextBox>(host, arguments[0], "text box");
  const std::int32_t code = CountIn(arguments[1]);
  if (code > static_cast<std::int32_t>(lastCharacter)) throw Refusal("no character has that code");
  return UserTypes(box, code);
}

InputResult Select(Host& host, const Arguments& arguments) {
  auto& box = ControlIn<RichTextBox>(host, arguments[0], "rich text box");
  const std::int32_t start = CountIn(arguments[1]);
  return UserSelects(box, start, CountIn(arguments[2]));
}

InputResult Close(Host& host, const Arguments& arguments) {
  return UserCloses(FindForm(host.scene, PlainWord(arguments[0])));
}

InputResult Advance(Host& host, const Arguments& arguments) {
  host.scene.dispatcher().Advance(CountIn(arguments[0]));
  return InputResult::Done;
}

InputResult QueueChances(Host& host, const Arguments& arguments) {
  for (const Word& word : arguments) {
    const double value = ReadNumber(word);
    if (value < 0 || value >= 1) throw Refusal("a chance is at least 0 and below 1");
  }
  for (const Word& word : arguments) host.scene.chance().Queue(ReadNumber(word));
  return InputResult::Done;
}

InputResult QueueAnswer(Host& host, const Arguments& arguments) {
  const std::string& asker = PlainWord(arguments[0]);
  if (asker == "box") {
    host.platform.QueueBoxAnswer(Integer32::Read(arguments[1]));
  } else if (asker == "menu") {
    const std::string& item = PlainWord(arguments[1]);
    if (item != "-" && !IsMenuItem(host.scene, item)) throw Refusal("there is no menu item " + Quoted(item));
    host.platform.QueueMenuAnswer(item);
  } else {
    throw Refusal("box or menu is expected");
  }
  return InputResult::Done;
}

InputResult Dots(Host& host, const Arguments& arguments) {
  const Container* surface = ObjectIn(host, arguments[0]).AsContainer();
  if (surface == nullptr) throw Refusal("the object is no form or picture box");
  if (!surface->form().loaded()) throw Refusal("the form is not loaded");
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

InputResult Dump(Host& host, const Arguments& arguments) {
  if (!arguments.empty()) {
    DumpForm(host.out, LoadedFormIn(host, arguments[0]));
  } else {
    for (Form* form : host.scene.loadedForms()) DumpForm(host.out, *form);
  }
  return InputResult::Done;
}

InputResult Time(Host& host, const Arguments&) {
  host.out << host.scene.dispatcher().now() << '\n';
  return InputResult::Done;
}

InputResult Quit(Host& host, const Arguments&) {
  host.left = true;
  return InputResult::Done;
}

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

constexpr Command commands[] = {
    {"start", 0, 0, When::BeforeStart, Start},
    {"get", 1, 1, When::WhileRunning, Get},
    {"set", 2, 2, When::WhileRunning, Set},
    {"click", 1, 1, When::WhileRunning, Click},
    {"move", 1, 1, When::WhileRunning, Move},
    {"scroll", 2, 2, When::WhileRunning, Scroll},
    {"arrow", 2, 2, When::WhileRunning, Arrow},
    {"trough", 2, 2, When::WhileRunning, Trough},
    {"type", 2, 2, When::WhileRunning, Type},
    {"key", 2, 2, When::WhileRunning, Key},
    {"select", 3, 3, When::WhileRunning, Select},
    {"close", 1, 1, When::WhileRunning, Close},
    {"advance", 1, 1, When::WhileRunning, Advance},
    {"chance", 1, anyNumber, When::BeforeEnd, QueueChances},
    {"answer", 2, 2, When::BeforeEnd, QueueAnswer},
    {"dots", 1, 1, When::WhileRunning, Dots},
    {"dump", 0, 1, When::WhileRunning, Dump},
    {"time", 0, 0, When::WhileRunning, Time},
    {"quit", 0, 0, When::Always, Quit},
};

}  // namespace

const Command* FindCommand(std::string_view name) {
  for (const Command& command : commands) {
    if (command.name == name) return &command;
  }
  return nullptr;
}

}  // namespace quintara::host
