#include "front/assistance.h"

#include <algorithm>

#include "numbers/numbers.h"
#include "scene/visit.h"

namespace quintara {
namespace {

// A caption in one line: its runs of blanks stand for places on the screen.
std::string InOneLine(std::string_view caption) {
  std::string line;
  bool gap = false;
  for (const char c : caption) {
    if (c == ' ' || (c >= '\t' && c <= '\r')) {
      gap = !line.empty();
      continue;
    }
    if (std::exchange(gap, false)) line += ' ';
    line += c;
  }
  return line;
}

std::string CaptionOf(const Object& object) {
  if (const auto* label = As<const Label>(object)) return InOneLine(label->Caption.Get());
  if (const auto* button = As<const Button>(object)) return InOneLine(button->Caption.Get());
  return {};
}

constexpr std::string_view betweenKeys = "; ";

bool Names(std::string_view keys, std::string_view key) {
  while (!keys.empty()) {
    const std::size_t end = std::min(keys.find(betweenKeys), keys.size());
    if (keys.substr(0, end) == key) return true;
    keys.remove_prefix(std::min(end + betweenKeys.size(), keys.size()));
  }
  return false;
}

bool IsFunctionKey(std::string_view key) {
  return key.size() > 1 && key[0] == 'F' && IsDigit(key[1]);
}

}  // namespace

void AssistanceTable::Add(std::initializer_list<Assistance> rows) {
  for (const Assistance& row : rows) {
    rowOf_.emplace(&row.control, rows_.size());
    rows_.push_back(row);
  }
}

Assistance& AssistanceTable::RowToAddTo(Object& control) {
  if (For(control) == nullptr) Add({{control}});
  return rows_[RowOf(control)];
}

void AssistanceTable::AddReasons(
    std::initializer_list<std::pair<Object*, std::function<std::string_view()>>> whyOff) {
  for (const auto& [control, reason] : whyOff) RowToAddTo(*control).whyOff = reason;
}

void AssistanceTable::AddScales(std::initializer_list<std::pair<Object*, BarScale>> scales) {
  for (const auto& [bar, scale] : scales) RowToAddTo(*bar).scale = scale;
}

void AssistanceTable::PressOnce(std::initializer_list<Object*> controls) {
  for (Object* control : controls) RowToAddTo(*control).pressedOnce = true;
}

std::size_t AssistanceTable::RowOf(const Object& control) const {
  const auto found = rowOf_.find(&control);
  return found == rowOf_.end() ? rows_.size() : found->second;
}

const Assistance* AssistanceTable::For(const Object& control) const {
  const std::size_t row = RowOf(control);
  return row < rows_.size() ? &rows_[row] : nullptr;
}

const Object* AssistanceTable::ReadOutOf(const Object& control) const {
  const Assistance* row = For(control);
  if (row == nullptr || row->readOut != nullptr) return row == nullptr ? nullptr : row->readOut;
  return As<const Label>(control) != nullptr ? &control : nullptr;
}

std::string AssistanceTable::NameOf(const Object& control) const {
  const Assistance* row = For(control);
  if (row == nullptr || row->name.empty()) return CaptionOf(control);
  std::string name(row->name);
  if (const Object* readOut = ReadOutOf(control)) name += ", " + CaptionOf(*readOut);
  if (!row->unit.empty()) name.append(" ").append(row->unit);
  return name;
}

std::string AssistanceTable::ToolTipOf(const Object& control) const {
  const Assistance* row = For(control);
  if (row == nullptr) return {};
  if (!control.IsEnabled() && row->whyOff) return std::string(row->whyOff());
  std::string tip(row->toolTip);
  const std::string_view key = row->keys.substr(0, row->keys.find(betweenKeys));
  if (!tip.empty() && !key.empty()) tip.append(" (").append(key).append(")");
  return tip;
}

const Object* AssistanceTable::TippedAt(const Container& container, double left, double top) const {
  for (const bool graphical : {false, true}) {
    for (const Object* child : container.children()) {
      if (child->IsGraphical() != graphical || !child->IsVisible() || ToolTipOf(*child).empty()) continue;
      const Rectangle place = Visit(
          *child, [](const Box& box) { return box.Surface(); }, [](const Object&) { return Rectangle{}; });
      if (left >= place.left && left < place.left + place.width && top >= place.top &&
          top < place.top + place.height)
        return child;
    }
  }
  return nullptr;
}

BarScale AssistanceTable::ScaleOf(const Object& bar) const {
  const Assistance* row = For(bar);
  return row != nullptr ? row->scale : BarScale{};
}

std::vector<Object*> AssistanceTable::InTabOrder(const Form& form) const {
  std::vector<Object*> objects = form.objects();
  std::stable_sort(objects.begin(), objects.end(),
                   [this](const Object* one, const Object* other) { return RowOf(*one) < RowOf(*other); });
  return objects;
}

Object* AssistanceTable::ForKey(const Form& form, std::string_view key) const {
  const bool inAllWindows = IsFunctionKey(key);
  for (const Assistance& row : rows_) {
    if ((inAllWindows || &row.control.form() == &form) && Names(row.keys, key)) return &row.control;
  }
  return nullptr;
}

}  // namespace quintara
