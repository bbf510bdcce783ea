#include "front/assistance.h"
#include "program/program.h"

// Beside each control: name, keys, tool tip, the control that shows its value, unit, whether a change is
// told, whether it is there for its tool tip only.

namespace quintara {
namespace {

constexpr std::string_view metresPerSecond = "metres per second";

// clang-format off

// Tips of bars also say what moving them does to what flies.
constexpr std::string_view elevationTip =
    "30 to 80 degrees. Type a value and press Enter, or use the arrows, Page Up and Page Down; Home is 30, End "
    "is 80.\nMoved while a shell is in the air, it loses that shell.";
constexpr std::string_view velocityTip =
    "250 to 750 m/s. Type a value and press Enter, or use the arrows, Page Up and Page Down; Home is 250, End is "
    "750.\nMoved while a shell is in the air, it loses that shell.";
constexpr std::string_view flightTimeTip =
    "1, slow, to 15, fast. Type a value and press Enter, or use the arrows; Home is 1, End is 15.\nIt is also "
    "the length of the steps of a flight: with another setting the same laying lands elsewhere.\nMoved while a "
    "shell is in the air, it takes that shell along.";
constexpr std::string_view dragTip =
    "Air resistance for the shell now laid: 5 points more for a hit; a burst switches it off, you can't";
constexpr std::string_view scoreTip =
    "The shells fired in this game; the points that can still be reached, and those that you have";
constexpr std::string_view curveTip =
    "Type a value and press Enter, or use the arrows, Page Up and Page Down; Home is the least, End the "
    "most.\nMoved while a ball is in the air, it ends that flight and draws a whole new one.";
constexpr std::string_view distanceTip =
    "Takes the ball to a distance: type metres and press Enter, or use the arrows, Page Up and Page Down; Home "
    "is 0, End is 9900.\nA ball that is in the air goes on from there.";

void AddGame(AssistanceTable& table, QuintaraForm& form) {
  table.Add({
      {form.fireButton,     "Fire",            "F",     "Fire the shell"},
      {form.searchButton,   "Search",          "S",     "Search for a target"},
      {form.magnifyButton,  "Magnify",         "M",     "Magnify the terrain and open the simulator"},
      {form.elevationBar,   "Elevation",       "",      elevationTip,  &form.elevation, "degrees"},
      {form.velocityBar,    "Muzzle velocity", "",      velocityTip,   &form.velocity, metresPerSecond},
      {form.flightTimeBar,  "Flight time",     "",      flightTimeTip, &form.timeToImpact},
      {form.dragButton,     "Drag",            "D",     dragTip,       &form.dragButton},
      {form.resetButton,    "",                "R",     "Go on to the next target"},
      {form.soundButton,    "",                "O",     "Turn the sound on or off"},
      {form.helpButton,     "",                "H; F1", "Open the help menu"},
      {form.readme,         "Readme"},
      {form.closeReadmeButton, "Close the Readme", "Esc", "Close the Readme"},
      {form.advice,         "", "", "", nullptr, "", true},
      {form.targetTag,      "", "", "", nullptr, "", true},
      {form.shellInGun,     "Shell in the gun"},
      {form.dragConstant,   "Drag"},
      {form.timeToImpact},
      {form.shotsFired,     "Shots fired", "", scoreTip},
      {form.bestScore,      "Highest score possible", "", scoreTip},
      {form.score,          "Score", "", scoreTip, nullptr, "", true},
      {form.scoreBoard,     "", "", scoreTip, nullptr, "", false, true},
      {form.cancelButton,   "",                "",      "Leave the game at once"},
  });
  table.PressOnce({&form.fireButton, &form.dragButton, &form.searchButton, &form.magnifyButton, &form.resetButton});
  table.AddScales({
      {&form.elevationBar,  {370, -1, "deg"}},
      {&form.velocityBar,   {0, 1, "m/s"}},
      {&form.flightTimeBar, {0, 1, "of 15"}},
  });
}

void AddBench(AssistanceTable& table, ProjectileForm& form) {
  table.Add({
      {form.ball1Button, "Ball 1", "1", "Start ball 1"},
      {form.ball2Button, "Ball 2", "2", "Start ball 2"},
      {form.ball3Button, "Ball 3", "3", "Start ball 3"},
      {form.resetButton, "",       "R", "Put the balls back"},
      {form.stopButton,  "",       "S", "Stop the balls, or let them go on"},
  });
}

void AddSimulator(AssistanceTable& table, TrajectoryForm& form) {
  table.Add({
      {form.elevationBar,   "Elevation angle",     "",  curveTip, &form.elevationText, "degrees"},
      {form.velocityBar,    "Initial velocity",    "",  curveTip, &form.velocityText, metresPerSecond},
      {form.dragBar,        "Air resistance",      "",  curveTip, &form.dragText},
      {form.fireButton,     "",                    "F", "Fire the projectile"},
      {form.stopButton,     "",                    "S", "Stop the projectile"},
      {form.distanceSlider, "Projectile position", "",  distanceTip, &form.rangeText, "metres"},
      {form.rangeText,      "Range in metres"},
      {form.heightText,     "Height in metres"},
      {form.vxText,         "Velocity across",     "",  "", nullptr, metresPerSecond},
      {form.vyText,         "Velocity upwards",    "",  "", nullptr, metresPerSecond},
      {form.speedText,      "Velocity at impact",  "",  "", nullptr, metresPerSecond},
      {form.timeText,       "Time of flight",      "",  "", nullptr, "seconds"},
  });
  table.AddScales({
      {&form.elevationBar,   {370, -1, "deg"}},
      {&form.velocityBar,    {0, 1, "m/s"}},
      {&form.dragBar,        {0, 0.01}},
      {&form.distanceSlider, {0, 99, "m"}},
  });
}

void AddDocuments(AssistanceTable& table, AnalysisForm& form) {
  table.Add({
      {form.documentBox,     "Document"},
      {form.benchButton,     "", "",       "Open the bench of balls"},
      {form.copyButton,      "", "Ctrl+C", "Copy the selected text"},
      {form.cancelButton},
      {form.simulatorButton, "", "",       "Open the trajectory simulator"},
  });
}

void AddMasters(AssistanceTable& table, MastersForm& form) {
  table.Add({
      {form.nameBox,      "Your first and last name"},
      {form.list,         "Masters of Quintara"},
      {form.removeButton, "", "", "Erase the list"},
  });
}

// clang-format on

}  // namespace

AssistanceTable::AssistanceTable(Program& program) {
  AddGame(*this, program.quintara());
  AddBench(*this, program.projectile());
  AddSimulator(*this, program.trajectory());
  AddDocuments(*this, program.analysis());
  AddMasters(*this, program.masters());
  AddReasonsWhyOff(program);
}

}  // namespace quintara
