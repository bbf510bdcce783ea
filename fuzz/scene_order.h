#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "scene/scene.h"

namespace quintara::fuzz {

// What holds of any scene of the program at any moment between two inputs, whatever was played or set.
class SceneOrder {
 public:
  // To be made before any form is loaded. The scene must outlive this object.
  explicit SceneOrder(Scene& scene);

  void RequireHolds();

 private:
  using Values = std::vector<std::string>;
  struct Unloaded {
    Form* form;
    const Values& start;
    std::uint64_t changes;  // of the whole form when its values were last compared
  };

  static const std::vector<Values>& StartValues(const Scene& scene);
  void RequireStartValues(Unloaded& unloaded) const;

  Scene& scene_;
  std::vector<Unloaded> forms_;
};

}  // namespace quintara::fuzz
