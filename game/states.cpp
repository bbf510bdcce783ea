#include "game/quintara.h"
#include "scene/scene.h"

namespace quintara {

void QuintaraForm::cmdCancel_Click() {
  scene().End();
}

}  // namespace quintara
