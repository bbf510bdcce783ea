#include "front/shot_table.h"

#include <cmath>
#include <string_view>

#include "numbers/numbers.h"

namespace quintara {
namespace {

std::string_view NameOf(Shot::End end) {
  switch (end) {
    case Shot::End::InTheAir: return "in the air";
    case Shot::End::Mountain: return "mountain";
    case Shot::End::Ground: return "ground";
    case Shot::End::Buried: return "ground, no burst";
    case Shot::End::Hit: return "hit";
    case Shot::End::NextFired: return "lost, next one fired";
    case Shot::End::LaidAnew: return "lost, gun laid anew";
    case Shot::End::Left: break;
  }
  return "lost, target left";
}

std::string Whole(double number) {
  return Format(number, Pattern::Whole);
}

std::string InQuotes(const std::string& field) {
  return field.find(',') == std::string::npos ? field : '"' + field + '"';
}

std::string LineOf(const ShotFields& fields, char separator) {
  std::string line;
  for (const std::string& field : fields) {
    if (&field != &fields.front()) line += separator;
    line += separator == ',' ? InQuotes(field) : field;
  }
  return line + "\r\n";
}

}  // namespace

ShotFields ShotHeadings() {
  return {"shell", "target",    "elevation (deg)", "velocity (m/s)", "drag",
          "end",   "range (m)", "height (m)",      "miss (m)",       "points"};
}

ShotFields FieldsOf(const Shot& shot) {
  const bool fell = shot.end != Shot::End::InTheAir && !shot.IsLost();
  // Of a lost one nobody knows where it would have fallen.
  return {std::to_string(shot.shell),     std::to_string(shot.target),
          ToText(shot.elevation),         ToText(shot.velocity),
          ToText(Single(shot.drag)),      std::string(NameOf(shot.end)),
          fell ? Whole(shot.x) : "",      fell ? Whole(std::fmax(shot.y, 0)) : "",
          fell ? Whole(shot.Miss()) : "", std::to_string(shot.points)};
}

std::string TableOf(std::span<const Shot> shots, char separator) {
  std::string table = LineOf(ShotHeadings(), separator);
  for (const Shot& shot : shots) table += LineOf(FieldsOf(shot), separator);
  return table;
}

}  // namespace quintara
