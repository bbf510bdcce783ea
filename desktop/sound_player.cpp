#include "desktop/sound_player.h"

#ifdef QUINTARA_SOUND
#include <QtCore/QUrl>
#include <QtMultimedia/QSoundEffect>
#endif

namespace quintara::desktop {

void SoundPlayer::Play([[maybe_unused]] const QString& path) {
#ifdef QUINTARA_SOUND
  // A fresh one each time: one that is used again may go on with its old file.
  auto effect = std::make_unique<QSoundEffect>();
  effect->setSource(QUrl::fromLocalFile(path));
  effect->play();
  playing_ = std::move(effect);
#endif
}

}  // namespace quintara::desktop
