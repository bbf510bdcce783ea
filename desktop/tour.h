#pragma once

#include <QtCore/QString>
#include <QtGui/QImage>

#include <cstdint>
#include <functional>
#include <initializer_list>

#include "desktop/session.h"
#include "desktop/tour_platform.h"
#include "program/program.h"

namespace quintara::desktop {

// Plays a whole game by itself in the real windows, then looks into the documents and the demonstrations. Its
// clock moves only as the tour goes on, so it takes a few seconds, and each run gives the same pictures.
// Needs an Application.
class Tour {
 public:
  // Takes the picture of a stage. The names of stages are file names without an ending.
  using Keep = std::function<void(const QString& name, const QImage& picture)>;

  Tour(const QString& programFolder, Keep keep);
  ~Tour();
  Tour(const Tour&) = delete;
  Tour& operator=(const Tour&) = delete;

  // Throws std::runtime_error where the game does not go as it should.
  void Play();

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

  // tour_steps.cpp: what they are made of
  void Run(const std::function<void()>& input);
  void Start();
  void Queue(double chance) { program_.scene().chance().Queue(chance); }
  void Click(Object& object);
  void Drag(ScrollBar& bar, std::int16_t value);
  void Type(TextBox& box, const QString& text);
  void Advance(std::int64_t milliseconds);
  // Goes on until the condition holds.
  void AdvanceUntil(const std::function<bool()>& reached);
  void Picture(const QString& name, const Form& form);
  // Windows side by side, in frames: the offscreen ones have none.
  void PictureWithFrames(const QString& name, std::initializer_list<const Form*> forms);
  FormWindow& WindowOf(const Form& form) const;

  Keep keep_;
  TourPlatform platform_;
  Program program_;
  Session session_;
};

}  // namespace quintara::desktop
