#include "front/surface_watch.h"

namespace quintara {

SurfaceChanges SurfaceWatch::Look() {
  SurfaceChanges changes;
  if (childrenSeen_ != container_.childrenChanges()) {
    childrenSeen_ = container_.childrenChanges();
    changes.children = true;
    seen_.clear();
    for (const Object* child : container_.children()) seen_.emplace_back(child, child->changes());
  } else {
    for (auto& [object, seen] : seen_) {
      if (seen == object->changes()) continue;
      seen = object->changes();
      changes.objects.push_back(object);
    }
  }
  changes.wiped = wipesSeen_ != container_.wipes();
  if (changes.wiped) marksSeen_ = 0;
  wipesSeen_ = container_.wipes();
  changes.firstNewMark = std::exchange(marksSeen_, container_.dots().size());
  return changes;
}

}  // namespace quintara
