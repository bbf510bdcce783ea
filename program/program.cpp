#include "program/program.h"

namespace quintara {

void Program::Start() {
  scene_.dispatcher().Run(quintara_, [this] { quintara_.Show(); });
}

}  // namespace quintara
