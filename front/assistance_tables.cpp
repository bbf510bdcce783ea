#include "front/assistance.h"
#include "program/program.h"

// Beside each control: name, keys, tool tip, the control that shows its value, unit, whether a change is
// told.

namespace quintara {
namespace {

constexpr std::string_view metresPerSecond = "metres per second";

// clang-format off

void AddGame(AssistanceTable& table, QuintaraForm& form) {
  table.Add({
      {form.searchButton,   "Search",          "S",     "Search for a target"},
      {form.magnifyButton,  "Magnify",         "M",     "Magnify the terrain and open the simulator"},
      {form.elevationBar,   "Elevation",       "",      "", &form.elevation, "degrees"},
      {form.velocityBar,    "Muzzle velocity", "",      "", &form.velocity, metresPerSecond},
      {form.flightTimeBar,  "Flight time",     "",      "", &form.timeToImpact},
      {form.dragButton,     "Drag",            "D",     "Turn the drag of the air on or off", &form.dragButton},
      {form.fireButton,     "Fire",            "F",     "Fire the shell"},
      {form.resetButton,    "",                "R",     "Go on to the next target"},
      {form.soundButton,    "",                "O",     "Turn the sound on or off"},
      {form.helpButton,     "",                "H; F1", "Open the help menu"},
      {form.cancelButton,   "",                "",      "Leave the game"},
      {form.readme,         "Readme"},
      {form.advice,         "", "", "", nullptr, "", true},
      {form.targetTag,      "", "", "", nullptr, "", true},
      {form.shellInGun,     "Shell in the gun"},
      {form.dragConstant,   "Drag"},
      {form.timeToImpact},
      {form.shotsFired,     "Shots fired"},
      {form.bestScore,      "Highest score possible"},
      {form.score,          "Score", "", "", nullptr, "", true},
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
      {form.elevationBar,   "Elevation angle",     "",  "", &form.elevationText, "degrees"},
      {form.velocityBar,    "Initial velocity",    "",  "", &form.velocityText, metresPerSecond},
      {form.dragBar,        "Air resistance",      "",  "", &form.dragText},
      {form.fireButton,     "",                    "F", "Fire the projectile"},
      {form.stopButton,     "",                    "S", "Stop the projectile"},
      {form.distanceSlider, "Projectile position", "",  "", &form.rangeText, "metres"},
      {form.rangeText,      "Range in metres"},
      {form.heightText,     "Height in metres"},
      {form.vxText,         "Velocity across",     "",  "", nullptr, metresPerSecond},
      {form.vyText,         "Velocity upwards",    "",  "", nullptr, metresPerSecond},
      {form.speedText,      "Velocity at impact",  "",  "", nullptr, metresPerSecond},
      {form.timeText,       "Time of flight",      "",  "", nullptr, "seconds"},
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
}

}  // namespace quintara
