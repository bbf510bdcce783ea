#pragma once

#include "fuzz/answering_platform.h"
#include "fuzz/bytes.h"
#include "program/program.h"

namespace quintara::fuzz {

// Plays a game as its input says. A capital letter is a step of the usual course; every other byte uses
// whatever control of an open window it points to.
class Player {
 public:
  // All must outlive the player.
  Player(Program& program, MemoryDisk& disk, AnsweringPlatform& platform, Bytes& bytes)
      : program_(program), disk_(disk), platform_(platform), bytes_(bytes) {}

  // Takes one action off the input.
  void Act();

 private:
  void ActInWindow(std::uint8_t which);
  void Use(Object& object);
  void WatchToTheEnd();
  void CloseWindow();
  void Lay(ScrollBar& bar);

  Program& program_;
  MemoryDisk& disk_;
  AnsweringPlatform& platform_;
  Bytes& bytes_;
};

}  // namespace quintara::fuzz
