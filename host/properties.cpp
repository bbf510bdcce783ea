#include "host/properties.h"

#include <span>

#include "scene/scene.h"

namespace quintara::host {
namespace {

// How a property is read and written.
struct Access {
  std::string (*read)(Object&);
  Assignment (*prepare)(Object&, const Word&) = nullptr;  // null: it can only be read
};

// Some properties belong to the Container that a form or picture box also is, hence the dynamic cast.
template <typename Owner, typename Member>
Owner& OwnerOf(Object& object, Member Owner::*) {
  return dynamic_cast<Owner&>(object);
}

template <typename Value, auto member>
std::string Read(Object& object) {
  return Value::Write(OwnerOf(object, member).*member);
}

template <typename Value, auto member>
Assignment Prepare(Object& object, const Word& word) {
  auto& property = OwnerOf(object, member).*member;
  return [&property, value = Value::Read(word)] { property = value; };
}

template <typename Value, auto member, auto allows>
Assignment PrepareWhere(Object& object, const Word& word) {
  if (!allows(OwnerOf(object, member), Value::Read(word))) throw Refusal("the property takes no such value");
  return Prepare<Value, member>(object, word);
}

template <typename Value, auto member>
constexpr Access plain{Read<Value, member>, Prepare<Value, member>};
// Only values that `allows` finds right for the object.
template <typename Value, auto member, auto allows>
constexpr Access plainWhere{Read<Value, member>, PrepareWhere<Value, member, allows>};
template <typename Value, auto member>
constexpr Access readOnly{Read<Value, member>};

template <typename Bar, typename Value>
Assignment PrepareBarValue(Object& object, const Word& word) {
  Bar& bar = static_cast<Bar&>(object);
  return [&bar, value = ReadBarValue(bar, word)] { bar.Value = value; };
}
template <typename Bar, typename Value>
constexpr Access barValue{Read<Value, &Bar::Value>, PrepareBarValue<Bar, Value>};

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
Assignment PreparePicture(Object& object, const Word& word) {
  auto& box = static_cast<PictureBox&>(object);
  const std::string name = Text::Read(word);
  if (name.empty()) return [&box] { box.Picture = Picture{}; };
  const Scene& scene = object.form().scene();
  const std::string path = scene.AppPath() + "\\" + name;
  const bool leavesFolder = name.find_first_of("/:") != std::string::npos || name.starts_with('\\') ||
                            name.find("..") != std::string::npos;
  if (leavesFolder || !scene.files().IsBitmap(path)) throw Refusal("there is no such bitmap");
  return [&box, &scene, path] { scene.LoadPictureInto(box, path); };
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

// Each table stands in the order of the dump; what only `get` tells comes behind.

constexpr Rule formRules[] = {
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

constexpr Rule pictureBoxRules[] = {
    {"Left", plain<Decimal, &PictureBox::Left>},
    {"Top", plain<Decimal, &PictureBox::Top>},
    {"Width", plain<Decimal, &PictureBox::Width>},
    {"Height", plain<Decimal, &PictureBox::Height>},
    {"Visible", plain<Boolean, &PictureBox::Visible>},
    {"Picture", picture},
    {"DrawWidth", plainWhere<Integer16, &PictureBox::DrawWidth, IsDotWidth>, false},
};

constexpr Rule labelRules[] = {
    {"Caption", plain<Text, &Label::Caption>},
    {"Visible", plain<Boolean, &Label::Visible>},
    {"BackColor", plain<ColourCode, &Label::BackColor>},
    {"ForeColor", plain<ColourCode, &Label::ForeColor>},
    {"Left", plain<Decimal, &Label::Left>},
    {"Top", plain<Decimal, &Label::Top>},
    {"Width", plain<Decimal, &Label::Width>},
    {"Height", plain<Decimal, &Label::Height>},
};

constexpr Rule lineRules[] = {
    {"X1", plain<Decimal, &Line::X1>},           {"Y1", plain<Decimal, &Line::Y1>},
    {"X2", plain<Decimal, &Line::X2>},           {"Y2", plain<Decimal, &Line::Y2>},
    {"Visible", plain<Boolean, &Line::Visible>}, {"BorderColor", plain<ColourCode, &Line::BorderColor>},
};

constexpr Rule shapeRules[] = {
    {"Left", plain<Decimal, &Shape::Left>},       {"Top", plain<Decimal, &Shape::Top>},
    {"Width", plain<Decimal, &Shape::Width>},     {"Height", plain<Decimal, &Shape::Height>},
    {"Visible", plain<Boolean, &Shape::Visible>}, {"BorderColor", plain<ColourCode, &Shape::BorderColor>},
};

constexpr Rule imageRules[] = {
    {"Left", plain<Decimal, &Image::Left>},       {"Top", plain<Decimal, &Image::Top>},
    {"Width", plain<Decimal, &Image::Width>},     {"Height", plain<Decimal, &Image::Height>},
    {"Visible", plain<Boolean, &Image::Visible>}, {"Enabled", plain<Boolean, &Image::Enabled>},
};

constexpr Rule buttonRules[] = {
    {"Caption", plain<Text, &Button::Caption>},    {"Left", plain<Decimal, &Button::Left>},
    {"Top", plain<Decimal, &Button::Top>},         {"Width", plain<Decimal, &Button::Width>},
    {"Height", plain<Decimal, &Button::Height>},   {"Enabled", plain<Boolean, &Button::Enabled>},
    {"Visible", plain<Boolean, &Button::Visible>},
};

constexpr Rule panelRules[] = {
    {"Caption", plain<Text, &SSPanel::Caption>},  {"Left", plain<Decimal, &SSPanel::Left>},
    {"Top", plain<Decimal, &SSPanel::Top>},       {"Width", plain<Decimal, &SSPanel::Width>},
    {"Height", plain<Decimal, &SSPanel::Height>},
};

constexpr Rule scrollBarRules[] = {
    {"Value", barValue<ScrollBar, Integer16>},
    {"Enabled", plain<Boolean, &ScrollBar::Enabled>},
    {"Min", readOnly<Integer16, &ScrollBar::Min>},
    {"Max", readOnly<Integer16, &ScrollBar::Max>},
    {"SmallChange", readOnly<Integer16, &ScrollBar::SmallChange>},
    {"LargeChange", readOnly<Integer16, &ScrollBar::LargeChange>},
};

constexpr Rule sliderRules[] = {
    {"Value", barValue<Slider, Integer32>},
    {"Min", readOnly<Integer32, &Slider::Min>},
    {"Max", readOnly<Integer32, &Slider::Max>},
};

constexpr Rule timerRules[] = {
    {"Enabled", plain<Boolean, &Timer::Enabled>},
    {"Interval", plainWhere<Integer32, &Timer::Interval, IsInterval>},
};

constexpr Rule textBoxRules[] = {
    {"Text", plain<Text, &TextBox::Text>},
    {"Visible", plain<Boolean, &TextBox::Visible>},
};

constexpr Rule listBoxRules[] = {
    {"ListCount", listCount},
};

constexpr Rule richTextBoxRules[] = {
    {"Left", plain<Decimal, &RichTextBox::Left>},
    {"Top", plain<Decimal, &RichTextBox::Top>},
    {"Width", plain<Decimal, &RichTextBox::Width>},
    {"Height", plain<Decimal, &RichTextBox::Height>},
    {"Visible", plain<Boolean, &RichTextBox::Visible>},
    {"SelLength", selLength},
    {"SelText", selText, false},
    {"TextRTF", plain<Text, &RichTextBox::TextRTF>, false},
};

constexpr Rule menuRules[] = {
    {"Caption", plain<Text, &Menu::Caption>},
    {"Visible", plain<Boolean, &Menu::Visible>},
};

std::span<const Rule> RulesOf(Kind kind) {
  switch (kind) {
    case Kind::Form: return formRules;
    case Kind::PictureBox: return pictureBoxRules;
    case Kind::Label: return labelRules;
    case Kind::Line: return lineRules;
    case Kind::Shape: return shapeRules;
    case Kind::Image: return imageRules;
    case Kind::CommandButton:
    case Kind::SSCommand: return buttonRules;
    case Kind::SSPanel: return panelRules;
    case Kind::HScrollBar:
    case Kind::VScrollBar: return scrollBarRules;
    case Kind::Slider: return sliderRules;
    case Kind::Timer: return timerRules;
    case Kind::TextBox: return textBoxRules;
    case Kind::ListBox: return listBoxRules;
    case Kind::RichTextBox: return richTextBoxRules;
    case Kind::Menu: return menuRules;
  }
  return {};
}

const Access& AccessTo(const Object& object, std::string_view name) {
  for (const Rule& rule : RulesOf(object.kind())) {
    if (rule.name == name) return rule.access;
  }
  throw Refusal("the object has no property " + Quoted(name));
}

bool IsListItem(const Object& object, std::string_view name) {
  return object.kind() == Kind::ListBox && name.starts_with("List(");
}

std::string ReadListItem(const ListBox& list, std::string_view name) {
  const IndexedName item = SplitIndex(name);
  if (!item.index || *item.index >= list.ListCount()) throw Refusal("the list has no such item");
  return Text::Write(list.List(*item.index));
}

template <typename Value, typename Bar>
typename Value::Type WithinBar(const Bar& bar, const Word& word) {
  const auto value = Value::Read(word);
  if (value != WithinRange(value, bar.Min, bar.Max)) throw Refusal("the value lies outside Min and Max");
  return value;
}

}  // namespace

std::string ReadProperty(Object& object, std::string_view name) {
  const bool ofAnyForm = object.kind() == Kind::Form && (name == "Loaded" || name == "Visible");
  if (!object.form().loaded() && !ofAnyForm) throw Refusal("the form is not loaded");
  if (IsListItem(object, name)) return ReadListItem(static_cast<const ListBox&>(object), name);
  return AccessTo(object, name).read(object);
}

Assignment PrepareAssignment(Object& object, std::string_view name, const Word& value) {
  const auto prepare = IsListItem(object, name) ? nullptr : AccessTo(object, name).prepare;
  if (prepare == nullptr) throw Refusal("the property can only be read");
  return prepare(object, value);
}

std::vector<NamedValue> DumpedProperties(Object& object) {
  std::vector<NamedValue> values;
  for (const Rule& rule : RulesOf(object.kind())) {
    if (rule.dumped) values.push_back({std::string(rule.name), rule.access.read(object)});
  }
  if (object.kind() != Kind::ListBox) return values;
  const auto& list = static_cast<const ListBox&>(object);
  for (std::int16_t i = 0; i < list.ListCount(); ++i) {
    values.push_back({"List(" + std::to_string(i) + ")", Text::Write(list.List(i))});
  }
  return values;
}

std::int16_t ReadBarValue(const ScrollBar& bar, const Word& word) {
  return WithinBar<Integer16>(bar, word);
}

std::int32_t ReadBarValue(const Slider& slider, const Word& word) {
  return WithinBar<Integer32>(slider, word);
}

}  // namespace quintara::host
