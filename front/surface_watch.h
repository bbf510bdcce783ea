#pragma once

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "scene/container.h"

namespace quintara {

// What is different on a surface since the last look.
struct SurfaceChanges {
  bool children = false;               // some came or went: all have to be looked at anew, none is listed
  std::vector<const Object*> objects;  // front to back, those of which a property changed
  bool wiped = false;                  // the marks that were drawn are gone
  std::size_t firstNewMark = 0;        // in the container's dots; as many as there are where none is new
};

// Looks at a form's or picture box's surface: which of the objects on it changed, and which marks are new.
class SurfaceWatch {
 public:
  // The first look finds everything new. The container must outlive it.
  explicit SurfaceWatch(const Container& container) : container_(container) {}

  SurfaceChanges Look();
  // The next look finds everything new, as the first one did.
  void Forget() { childrenSeen_.reset(); }

 private:
  const Container& container_;
  std::vector<std::pair<const Object*, ChangeCount>> seen_;
  std::optional<ChangeCount> childrenSeen_;
  std::optional<ChangeCount> wipesSeen_;
  std::size_t marksSeen_ = 0;
};

}  // namespace quintara
