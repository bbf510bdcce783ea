#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "front/tour_platform.h"
#include "program/program.h"

namespace quintara {

// What a tour is played on: the windows of a front end.
class TourStage {
 public:
  // Hands input to the Scene, and shows what came of it.
  virtual void Run(const std::function<void()>& input) = 0;
  // A stage of the tour is reached, which the window of a form shows, or several with their frames side by
  // side. The names are file names without an ending. False: a window did not open.
  virtual bool Picture(std::string_view name, const Form& form) = 0;
  virtual bool PictureWithFrames(std::string_view name, std::initializer_list<const Form*> forms) = 0;

 protected:
  ~TourStage() = default;
};

// Plays a whole game by itself, then looks into the documents and the demonstrations. Its clock moves only as
// the tour goes on, so each run shows the same.
class Tour {
 public:
  // All three must outlive the tour; the platform is the program's own.
  Tour(Program& program, TourPlatform& platform, TourStage& stage);

  // Why it ended early, where the game did not go as it should; empty where all went well. To be called once.
  std::string Play();

 private:
  struct Shot {
    std::int16_t elevationBar;  // value of the scroll bar, which stands upside down
    std::int16_t velocity;      // m/s
  };

  // tour.cpp: the stages
  void PlayFirstTarget();
  void PlaySecondAndThirdTarget();
  void PlayBonusShell();
  void ReadDocuments();
  void ShowDemonstrations();
  void FindTarget(double chance);
  void OpenProfile();
  void TurnDragOn();
  void Lay(const Shot& shot);
  void Fire();
  void WaitForReset();
  void Choose(Menu& item);

  // tour_steps.cpp: what they are made of. After the first that fails, the others do nothing.
  void Run(const std::function<void()>& input);
  void Queue(double chance) { program_.scene().chance().Queue(chance); }
  void Click(Object& object);
  void Drag(ScrollBar& bar, std::int16_t value);
  void Type(TextBox& box, std::string_view text);
  void Advance(std::int64_t milliseconds);
  // Goes on until the condition holds.
  void AdvanceUntil(const std::function<bool()>& reached);
  void Picture(std::string_view name, const Form& form);
  void PictureWithFrames(std::string_view name, std::initializer_list<const Form*> forms);
  void Fail(const std::string& why);

  Program& program_;
  TourPlatform& platform_;
  TourStage& stage_;
  std::string fault_;
};

}  // namespace quintara
