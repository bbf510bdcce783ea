#include "desktop/assistance.h"

#include <algorithm>

#include "desktop/units.h"
#include "scene/visit.h"

namespace quintara::desktop {
namespace {

constexpr std::string_view metresPerSecond = "metres per second";

// clang-format off
constexpr Assistance table[] = {
    {"Quintara", "cmdSearch",   "Search",          "S",     "Search for a target"},
    {"Quintara", "cmdMagnify",  "Magnify",         "M",     "Magnify the terrain and open the simulator"},
    {"Quintara", "VScroll1",    "Elevation",       "",      "", "Label1", "degrees"},
    {"Quintara", "VScroll2",    "Muzzle velocity", "",      "", "Label6", metresPerSecond},
    {"Quintara", "HScroll1",    "Flight time",     "",      "", "Label31"},
    {"Quintara", "cmdAdvanced", "Drag",            "D",     "Turn the drag of the air on or off", "cmdAdvanced"},
    {"Quintara", "Image7",      "Fire",            "F",     "Fire the shell"},
    {"Quintara", "cmdReset",    "",                "R",     "Go on to the next target"},
    {"Quintara", "cmdSound",    "",                "O",     "Turn the sound on or off"},
    {"Quintara", "cmdHelp",     "",                "H; F1", "Open the help menu"},
    {"Quintara", "cmdCancel",   "",                "",      "Leave the game"},
    {"Quintara", "txtReadme",   "Readme"},
    {"Quintara", "Label4",      "", "", "", "", "", true},
    {"Quintara", "Label5",      "", "", "", "", "", true},
    {"Quintara", "Label21",     "Shell in the gun"},
    {"Quintara", "Label15",     "Drag"},
    {"Quintara", "Label31"},
    {"Quintara", "Label25",     "Shots fired"},
    {"Quintara", "Label23",     "Highest score possible"},
    {"Quintara", "Label17",     "Score", "", "", "", "", true},

    {"projectile", "cmdBall1", "Ball 1", "1", "Start ball 1"},
    {"projectile", "cmdBall2", "Ball 2", "2", "Start ball 2"},
    {"projectile", "cmdBall3", "Ball 3", "3", "Start ball 3"},
    {"projectile", "cmdReset", "",       "R", "Put the balls back"},
    {"projectile", "cmdStop",  "",       "S", "Stop the balls, or let them go on"},

    {"frmTrajectory", "HScroll1", "Elevation angle",                "", "", "Label5",  "degrees"},
    {"frmTrajectory", "HScroll2", "Initial velocity",               "", "", "Label6",  metresPerSecond},
    {"frmTrajectory", "HScroll3", "Air resistance",                 "", "", "Label11"},
    {"frmTrajectory", "cmdFire",  "",                               "F", "Fire the projectile"},
    {"frmTrajectory", "cmdStop",  "",                               "S", "Stop the projectile"},
    {"frmTrajectory", "Slider1",  "Projectile position",            "", "", "Label20", "metres"},
    {"frmTrajectory", "Label20",  "Range in metres"},
    {"frmTrajectory", "Label21",  "Height in metres"},
    {"frmTrajectory", "Label23",  "Velocity across", "", "", "", metresPerSecond},
    {"frmTrajectory", "Label25",  "Velocity upwards", "", "", "", metresPerSecond},
    {"frmTrajectory", "Label27",  "Velocity at impact", "", "", "", metresPerSecond},
    {"frmTrajectory", "Label29",  "Time of flight", "", "", "", "seconds"},

    {"Analysis", "rtbMath",       "Document"},
    {"Analysis", "cmdFreeFall",   "", "", "Open the bench of balls"},
    {"Analysis", "cmdCopy",       "", "Ctrl+C", "Copy the selected text"},
    {"Analysis", "cmdCancel"},
    {"Analysis", "cmdTrajectory", "", "", "Open the trajectory simulator"},

    {"frmMasters", "Text1",  "Your first and last name"},
    {"frmMasters", "List1",  "Masters of Quintara"},
    {"frmMasters", "cmdRemove", "", "", "Erase the list"},
};
// clang-format on

QString CaptionOf(const Object& object) {
  const std::string_view caption = Visit(
      object, [](const Label& label) -> std::string_view { return label.Caption; },
      [](const Button& button) -> std::string_view { return button.Caption; },
      [](const Object&) -> std::string_view { return {}; });
  return ToQString(caption).simplified();
}

std::size_t RowOf(const Object& object) {
  const auto isIt = [&](const Assistance& row) {
    return row.control == object.name() && row.form == object.form().name();
  };
  if (object.index() != Object::notInArray) return std::size(table);
  return static_cast<std::size_t>(std::find_if(std::begin(table), std::end(table), isIt) - std::begin(table));
}

}  // namespace

std::span<const Assistance> AssistanceTable() {
  return table;
}

const Assistance* AssistanceFor(const Object& object) {
  const std::size_t row = RowOf(object);
  return row < std::size(table) ? &table[row] : nullptr;
}

const Object* ReadOutOf(const Object& object) {
  const Assistance* row = AssistanceFor(object);
  if (row == nullptr) return nullptr;
  if (!row->readOut.empty()) return object.form().Find(row->readOut);
  return As<const Label>(object);
}

QString AccessibleNameOf(const Object& object) {
  const Assistance* row = AssistanceFor(object);
  if (row == nullptr || row->name.empty()) return CaptionOf(object);
  QString name = ToQString(row->name);
  if (const Object* readOut = ReadOutOf(object)) name += ", " + CaptionOf(*readOut);
  if (!row->unit.empty()) name += ' ' + ToQString(row->unit);
  return name;
}

QString ToolTipOf(const Object& object) {
  const Assistance* row = AssistanceFor(object);
  if (row == nullptr || row->toolTip.empty()) return {};
  const QString tip = ToQString(row->toolTip);
  const QString key = ToQString(row->keys).section("; ", 0, 0);
  return key.isEmpty() ? tip : tip + " (" + key + ')';
}

std::vector<Object*> InTabOrder(const Form& form) {
  std::vector<Object*> objects = form.objects();
  std::stable_sort(objects.begin(), objects.end(),
                   [](const Object* one, const Object* other) { return RowOf(*one) < RowOf(*other); });
  return objects;
}

}  // namespace quintara::desktop
