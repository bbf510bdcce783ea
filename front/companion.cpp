#include "front/companion.h"

#include <utility>

#include "front/narrator.h"
#include "program/program.h"

namespace quintara {

Companion::Companion(Program& program) : program_(program), shots_(program.quintara()) {
  program_.scene().dispatcher().Observe([this] { Look(); });
}

Companion::~Companion() {
  program_.scene().dispatcher().Observe({});
}

void Companion::Look() {
  shots_.Look();
  const QuintaraForm& form = program_.quintara();
  const bool isHidden = form.readme.Visible && form.profile.Visible;
  // Each opening writes the text anew.
  const bool opened = std::exchange(readmeSeen_, form.readme.changes()) != form.readme.changes();
  if (opened && isHidden) {
    toldOfReadme_ = SentenceOnGame(form, shots_);
  } else if (!toldOfReadme_.empty() && (!isHidden || SentenceOnGame(form, shots_) != toldOfReadme_)) {
    toldOfReadme_.clear();
  }
}

std::string Companion::Sentence() const {
  std::string onName = SentenceOnName(program_.masters());
  if (!onName.empty()) return onName;
  const QuintaraForm& form = program_.quintara();
  std::string onGame = SentenceOnGame(form, shots_);
  return onGame == toldOfReadme_ ? SentenceOnHiddenReadme(form) : onGame;
}

}  // namespace quintara
