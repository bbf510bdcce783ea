#include "front/settings.h"

#include <algorithm>
#include <cmath>

#include "numbers/numbers.h"
#include "scene/scene.h"

namespace quintara {
namespace {

constexpr double smallestZoom = 0.25, largestZoom = 8;
constexpr double farthestPixel = 32767;
constexpr std::string_view equals = " = ", placeOf = "place of ";
constexpr std::string_view settingsName = "settings.txt", damagedName = "settings.txt.damaged";

std::optional<double> NumberWithin(std::string_view text, double least, double most) {
  const auto number = ReadDecimal(text);
  return number && *number >= least && *number <= most ? number : std::nullopt;
}

std::optional<int> WholeWithin(std::string_view text, double least, double most) {
  const auto number = NumberWithin(text, least, most);
  return number && *number == std::floor(*number) ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

// Takes a value over; false where it is none.
template <typename Target, typename Value>
bool Take(Target& target, const std::optional<Value>& value) {
  if (value) target = *value;
  return value.has_value();
}

std::optional<bool> Switch(std::string_view text) {
  if (text == "on") return true;
  return text == "off" ? std::optional(false) : std::nullopt;
}

std::optional<PixelPoint> PointFrom(std::string_view text) {
  const std::size_t blank = std::min(text.find(' '), text.size());
  const auto x = WholeWithin(text.substr(0, blank), -farthestPixel, farthestPixel);
  const auto y = WholeWithin(text.substr(std::min(blank + 1, text.size())), -farthestPixel, farthestPixel);
  return x && y ? std::optional(PixelPoint{*x, *y}) : std::nullopt;
}

bool TakeLine(Settings& settings, std::string_view line) {
  const std::size_t at = line.find(equals);
  if (at == std::string_view::npos) return false;
  const std::string_view name = line.substr(0, at), value = line.substr(at + equals.size());
  if (name == "zoom") return Take(settings.zoom, NumberWithin(value, smallestZoom, largestZoom));
  if (name == "mute") return Take(settings.mute, Switch(value));
  if (name == "volume") return Take(settings.volume, WholeWithin(value, 0, Settings::loudest));
  if (name == "strip") return Take(settings.strip, Switch(value));
  if (name == "trace") return Take(settings.trace, Switch(value));
  if (name == "sound captions") return Take(settings.soundCaptions, Switch(value));
  const auto point = PointFrom(value);
  if (!name.starts_with(placeOf) || !point) return false;
  settings.places[std::string(name.substr(placeOf.size()))] = *point;
  return true;
}

std::string SettingLine(std::string_view name, std::string_view value) {
  return std::string(name).append(equals).append(value);
}

std::string PathOf(const Scene& scene, std::string_view name) {
  return scene.AppPath() + "\\" + std::string(name);
}

}  // namespace

std::vector<std::string> LinesOf(const Settings& settings) {
  const auto onOrOff = [](bool on) { return on ? "on" : "off"; };
  std::vector<std::string> lines;
  if (settings.zoom) lines.push_back(SettingLine("zoom", ToText(*settings.zoom)));
  lines.push_back(SettingLine("mute", onOrOff(settings.mute)));
  lines.push_back(SettingLine("volume", ToText(settings.volume)));
  lines.push_back(SettingLine("strip", onOrOff(settings.strip)));
  lines.push_back(SettingLine("trace", onOrOff(settings.trace)));
  lines.push_back(SettingLine("sound captions", onOrOff(settings.soundCaptions)));
  for (const auto& [form, point] : settings.places)
    lines.push_back(SettingLine(std::string(placeOf) + form, ToText(point.x) + " " + ToText(point.y)));
  return lines;
}

ReadSettings SettingsFromLines(const std::vector<std::string>& lines) {
  ReadSettings read;
  for (const std::string& line : lines) {
    if (!TakeLine(read.settings, line)) read.damaged = true;
  }
  return read;
}

ReadSettings LoadSettings(const Scene& scene) {
  const Files& files = scene.files();
  const auto lines = files.ReadLines(PathOf(scene, settingsName));
  if (!lines) return {{}, files.Exists(PathOf(scene, settingsName))};
  const ReadSettings read = SettingsFromLines(*lines);
  if (read.damaged) files.WriteLines(PathOf(scene, damagedName), *lines);
  return read;
}

bool SaveSettings(const Scene& scene, const Settings& settings) {
  const auto lines = scene.files().ReadLines(PathOf(scene, settingsName));
  const std::vector<std::string> wanted = LinesOf(settings);
  return lines == wanted || scene.files().WriteLines(PathOf(scene, settingsName), wanted);
}

}  // namespace quintara
