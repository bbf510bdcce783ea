#pragma once

#include <QtCore/QString>

class QThread;

namespace quintara::desktop {

// Plays wave files, one at a time. It works in a thread of its own: a sound server that is slow to answer, or
// never does, holds up no tick of the game. Where there is no device, or nothing in a file that can be
// played, it is silent. So is a build without Qt Multimedia.
class SoundPlayer {
 public:
  SoundPlayer() = default;
  ~SoundPlayer() { End(); }
  SoundPlayer(const SoundPlayer&) = delete;
  SoundPlayer& operator=(const SoundPlayer&) = delete;

  // Starts the file and returns; a sound that still plays is cut off.
  void Play(const QString& path);

  // In percent of the loudest, for sounds to come and the one that still plays. At 0 nothing is played.
  void SetVolume(int percent);

  // Ends the sound and its thread. False: the thread still waits for a sound server that does not answer.
  bool End();

 private:
  class Speaker;
  void Begin();

  [[maybe_unused]] int volume_ = 100;
  // Both from the first sound on.
  [[maybe_unused]] QThread* thread_ = nullptr;
  [[maybe_unused]] Speaker* speaker_ = nullptr;
};

}  // namespace quintara::desktop
