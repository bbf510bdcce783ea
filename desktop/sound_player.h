#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

namespace quintara::desktop {

// Plays wave files, one at a time. A build without Qt Multimedia is silent.
class SoundPlayer {
 public:
  // Starts the file and returns; a sound that still plays is cut off.
  void Play(const QString& path);

 private:
  std::unique_ptr<QObject> playing_;
};

}  // namespace quintara::desktop
