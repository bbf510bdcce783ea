#include "host/properties.h"

#include <span>

#include "scene/scene.h"
#include "scene/visit.h"

namespace quintara::host {
namespace {

// How a property is read and written.
struct Access {
  std::string (*read)(Object&);
  Result<Assignment> (*prepare)(Object&, const Word&) = nullptr;  // null: it can only be read
};

// The part of an object that has a property. That of a form or picture box may be the Container in it.
template <typename Owner, typename Member>
Owner& OwnerOf(Object& object, Member Owner::*) {
  return static_cast<Owner&>(object);
}
template <typename Member>
Container& OwnerOf(Object& object, Member Container::*) {
  return *object.AsContainer();
}

template <typename Value, auto member>
std::string Read(Object& object) {
  return Value::Write(OwnerOf(object, member).*member);
}

// The statement that assigns what was read.
template <typename Property, typename Value>
Result<Assignment> Assigning(Property& property, const Result<Value>& read) {
  if (!read) return *read.refusal();
  return Assignment([&property, value = *read] { property = value; });
}

template <typename Value, auto member>
Result<Assignment> Prepare(Object& object, const Word& word) {
  return Assigning(OwnerOf(object, member).*member, Value::Read(word));
}

template <typename Value, auto member, auto allows>
Result<Assignment> PrepareWhere(Object& object, const Word& word) {
  auto& owner = OwnerOf(object, member);
  const auto value = Value::Read(word);
  if (value && !allows(owner, *value)) return Refusal{"the property takes no such value"};
  return Assigning(owner.*member, value);
}

template <typename Value, auto member>
constexpr Access plain{Read<Value, member>, Prepare<Value, member>};
// Only values that `allows` finds right for the object.
template <typename Value, auto member, auto allows>
constexpr Access plainWhere{Read<Value, member>, PrepareWhere<Value, member, allows>};
template <typename Value, auto member>
constexpr Access readOnly{Read<Value, member>};

template <typename Bar>
Result<Assignment> PrepareBarValue(Object& object, const Word& word) {
  Bar& bar = static_cast<Bar&>(object);
  return Assigning(bar.Value, ReadBarValue(bar, word));
}
template <typename Bar, typename Value>
constexpr Access barValue{Read<Value, &Bar::Value>, PrepareBarValue<Bar>};

bool IsDotWidth(const Container&, std::int16_t pixels) {
  return pixels >= 1;
}
bool IsInterval(const Timer&, std::int32_t milliseconds) {
  return milliseconds >= 0;
}
bool IsScaleMode(const Form&, std::int16_t mode) {
  return mode == Scale::user || mode == Scale::twips || mode == Scale::pixels;
}
// A form squeezed to nothing has no inner size that could be counted in units.
bool IsScaleWidth(const Form& form, Single units) {
  return units > 0 && form.InnerWidth() > 0;
}
bool IsScaleHeight(const Form& form, Single units) {
  return units > 0 && form.InnerHeight() > 0;
}

std::string ReadPicture(Object& object) {
  return Text::Write(static_cast<PictureBox&>(object).Picture.Get().name);
}

// The program empties a picture box, or loads a bitmap from its folder.
Result<Assignment> PreparePicture(Object& object, const Word& word) {
  auto& box = static_cast<PictureBox&>(object);
  const auto name = Text::Read(word);
  if (!name) return *name.refusal();
  if (name->empty()) return Assignment([&box] { box.Picture = Picture{}; });
  const Scene& scene = object.form().scene();
  const std::string path = scene.AppPath() + "\\" + *name;
  const bool leavesFolder = name->find_first_of("/:") != std::string::npos || name->starts_with('\\') ||
                            name->find("..") != std::string::npos;
  if (leavesFolder || !scene.files().IsBitmap(path)) return Refusal{"there is no such bitmap"};
  return Assignment([&box, &scene, path] { scene.LoadPictureInto(box, path); });
}

constexpr Access picture{ReadPicture, PreparePicture};
constexpr Access isLoaded{[](Object& object) { return Boolean::Write(static_cast<Form&>(object).loaded()); }};
constexpr Access isShown{[](Object& object) { return Boolean::Write(object.IsVisible()); }};
constexpr Access listCount{
    [](Object& object) { return Integer16::Write(static_cast<ListBox&>(object).ListCount()); }};
constexpr Access selLength{
    [](Object& object) { return Integer32::Write(static_cast<RichTextBox&>(object).SelLength()); }};
constexpr Access selText{
    [](Object& object) { return Text::Write(static_cast<RichTextBox&>(object).SelText()); }};

struct Rule {
  std::string_view name;
  Access access;
  bool dumped = true;
};

using Rules = std::span<const Rule>;

// What every box has.
constexpr Rule boxLeft{"Left", plain<Decimal, &Box::Left>};
constexpr Rule boxTop{"Top", plain<Decimal, &Box::Top>};
constexpr Rule boxWidth{"Width", plain<Decimal, &Box::Width>};
constexpr Rule boxHeight{"Height", plain<Decimal, &Box::Height>};
constexpr Rule boxVisible{"Visible", plain<Boolean, &Box::Visible>};

// One table a kind, or for those that share a class. Each stands in the order of the dump; what only `get`
// tells comes behind.
// clang-format off

Rules RulesFor(const Form&) {
  static constexpr Rule rules[] = {
      {"Caption", plain<Text, &Form::Caption>},
      {"Left", plain<Decimal, &Form::Left>},
      {"Top", plain<Decimal, &Form::Top>},
      {"Width", plain<Decimal, &Form::Width>},
      {"Height", plain<Decimal, &Form::Height>},
      {"Visible", isShown},
      {"Loaded", isLoaded, false},
      {"DrawWidth", plainWhere<Integer16, &Form::DrawWidth, IsDotWidth>, false},
      {"ScaleMode", plainWhere<Integer16, &Form::ScaleMode, IsScaleMode>, false},
      {"ScaleWidth", plainWhere<Decimal, &Form::ScaleWidth, IsScaleWidth>, false},
      {"ScaleHeight", plainWhere<Decimal, &Form::ScaleHeight, IsScaleHeight>, false},
  };
  return rules;
}

Rules RulesFor(const PictureBox&) {
  static constexpr Rule rules[] = {
      boxLeft, boxTop, boxWidth, boxHeight, boxVisible,
      {"Picture", picture},
      {"DrawWidth", plainWhere<Integer16, &PictureBox::DrawWidth, IsDotWidth>, false},
  };
  return rules;
}

Rules RulesFor(const Label&) {
  static constexpr Rule rules[] = {
      {"Caption", plain<Text, &Label::Caption>},
      boxVisible,
      {"BackColor", plain<ColourCode, &Label::BackColor>},
      {"ForeColor", plain<ColourCode, &Label::ForeColor>},
      boxLeft, boxTop, boxWidth, boxHeight,
  };
  return rules;
}

Rules RulesFor(const Line&) {
  static constexpr Rule rules[] = {
      {"X1", plain<Decimal, &Line::X1>},
      {"Y1", plain<Decimal, &Line::Y1>},
      {"X2", plain<Decimal, &Line::X2>},
      {"Y2", plain<Decimal, &Line::Y2>},
      {"Visible", plain<Boolean, &Line::Visible>},
      {"BorderColor", plain<ColourCode, &Line::BorderColor>},
  };
  return rules;
}

Rules RulesFor(const Shape&) {
  static constexpr Rule rules[] = {
      boxLeft, boxTop, boxWidth, boxHeight, boxVisible,
      {"BorderColor", plain<ColourCode, &Shape::BorderColor>},
  };
  return rules;
}

Rules RulesFor(const Image&) {
  static constexpr Rule rules[] = {
      boxLeft, boxTop, boxWidth, boxHeight, boxVisible,
      {"Enabled", plain<Boolean, &Image::Enabled>},
  };
  return rules;
}

Rules RulesFor(const Button&) {
  static constexpr Rule rules[] = {
      {"Caption", plain<Text, &Button::Caption>},
      boxLeft, boxTop, boxWidth, boxHeight,
      {"Enabled", plain<Boolean, &Button::Enabled>},
      boxVisible,
  };
  return rules;
}

Rules RulesFor(const SSPanel&) {
  static constexpr Rule rules[] = {
      {"Caption", plain<Text, &SSPanel::Caption>},
      boxLeft, boxTop, boxWidth, boxHeight,
  };
  return rules;
}

Rules RulesFor(const ScrollBar&) {
  static constexpr Rule rules[] = {
      {"Value", barValue<ScrollBar, Integer16>},
      {"Enabled", plain<Boolean, &ScrollBar::Enabled>},
      {"Min", readOnly<Integer16, &ScrollBar::Min>},
      {"Max", readOnly<Integer16, &ScrollBar::Max>},
      {"SmallChange", readOnly<Integer16, &ScrollBar::SmallChange>},
      {"LargeChange", readOnly<Integer16, &ScrollBar::LargeChange>},
  };
  return rules;
}

Rules RulesFor(const Slider&) {
  static constexpr Rule rules[] = {
      {"Value", barValue<Slider, Integer32>},
      {"Min", readOnly<Integer32, &Slider::Min>},
      {"Max", readOnly<Integer32, &Slider::Max>},
  };
  return rules;
}

Rules RulesFor(const Timer&) {
  static constexpr Rule rules[] = {
      {"Enabled", plain<Boolean, &Timer::Enabled>},
      {"Interval", plainWhere<Integer32, &Timer::Interval, IsInterval>},
  };
  return rules;
}

Rules RulesFor(const TextBox&) {
  static constexpr Rule rules[] = {
      {"Text", plain<Text, &TextBox::Text>},
      boxVisible,
  };
  return rules;
}

Rules RulesFor(const ListBox&) {
  static constexpr Rule rules[] = {
      {"ListCount", listCount},
  };
  return rules;
}

Rules RulesFor(const RichTextBox&) {
  static constexpr Rule rules[] = {
      boxLeft, boxTop, boxWidth, boxHeight, boxVisible,
      {"SelLength", selLength},
      {"SelText", selText, false},
      {"TextRTF", plain<Text, &RichTextBox::TextRTF>, false},
  };
  return rules;
}

Rules RulesFor(const Menu&) {
  static constexpr Rule rules[] = {
      {"Caption", plain<Text, &Menu::Caption>},
      {"Visible", plain<Boolean, &Menu::Visible>},
  };
  return rules;
}
// clang-format on

Rules RulesOf(const Object& object) {
  return Visit(object, [](const auto& one) { return RulesFor(one); });
}

Result<const Access&> AccessTo(const Object& object, std::string_view name) {
  for (const Rule& rule : RulesOf(object)) {
    if (rule.name == name) return rule.access;
  }
  return Refusal{"the object has no property " + Quoted(name)};
}

// The list box of which such a name means an item; null where it means no item.
const ListBox* ListOfItem(const Object& object, std::string_view name) {
  return name.starts_with("List(") ? As<const ListBox>(object) : nullptr;
}

Result<std::string> ReadListItem(const ListBox& list, std::string_view name) {
  const auto item = SplitIndex(name);
  if (!item) return *item.refusal();
  if (!item->index || *item->index >= list.ListCount()) return Refusal{"the list has no such item"};
  return Text::Write(list.List(*item->index));
}

template <typename Bar, typename Number>
Result<Number> WithinBar(const Bar& bar, const Result<Number>& value) {
  if (value && *value != WithinRange(*value, bar.Min, bar.Max)) {
    return Refusal{"the value lies outside Min and Max"};
  }
  return value;
}

}  // namespace

Result<std::string> ReadProperty(Object& object, std::string_view name) {
  const bool ofAnyForm = object.container() == nullptr && (name == "Loaded" || name == "Visible");
  if (!object.form().loaded() && !ofAnyForm) return Refusal{"the form is not loaded"};
  if (const ListBox* list = ListOfItem(object, name)) return ReadListItem(*list, name);
  const auto access = AccessTo(object, name);
  if (!access) return *access.refusal();
  return access->read(object);
}

Result<Assignment> PrepareAssignment(Object& object, std::string_view name, const Word& value) {
  const bool isListItem = ListOfItem(object, name) != nullptr;
  const auto access = AccessTo(object, name);
  if (!access && !isListItem) return *access.refusal();
  if (isListItem || access->prepare == nullptr) return Refusal{"the property can only be read"};
  return access->prepare(object, value);
}

std::vector<NamedValue> DumpedProperties(Object& object) {
  std::vector<NamedValue> values;
  for (const Rule& rule : RulesOf(object)) {
    if (rule.dumped) values.push_back({std::string(rule.name), rule.access.read(object)});
  }
  const auto* list = As<const ListBox>(object);
  for (std::int16_t i = 0; list != nullptr && i < list->ListCount(); ++i) {
    values.push_back({"List(" + std::to_string(i) + ")", Text::Write(list->List(i))});
  }
  return values;
}

Result<std::int16_t> ReadBarValue(const ScrollBar& bar, const Word& word) {
  return WithinBar(bar, Integer16::Read(word));
}

Result<std::int32_t> ReadBarValue(const Slider& slider, const Word& word) {
  return WithinBar(slider, Integer32::Read(word));
}

}  // namespace quintara::host
