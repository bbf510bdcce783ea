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
  if (row == nullptr || row->toolTip.empty()) return {};
  std::string tip(row->toolTip);
  const std::string_view key = row->keys.substr(0, row->keys.find(betweenKeys));
  if (!key.empty()) tip.append(" (").append(key).append(")");
  return tip;
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
