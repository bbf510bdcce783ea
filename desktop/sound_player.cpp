#include "desktop/sound_player.h"

#ifdef QUINTARA_SOUND
#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QThread>
#include <QtMultimedia/QAudio>
#include <QtMultimedia/QAudioSink>
#include <QtMultimedia/QMediaDevices>

#include <memory>
#include <optional>
#include <utility>

#include "files/wave_file.h"
#endif

namespace quintara::desktop {

#ifdef QUINTARA_SOUND
namespace {

QAudioFormat FormatOf(const Wave& wave) {
  QAudioFormat format;
  format.setSampleRate(wave.samplesPerSecond);
  format.setChannelCount(wave.channels);
  format.setSampleFormat(wave.bitsPerSample == 8 ? QAudioFormat::UInt8 : QAudioFormat::Int16);
  return format;
}

std::optional<Wave> ReadWaveFile(const QString& path) {
  constexpr qint64 mostOfFile = 16 << 20;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray bytes = file.read(mostOfFile);
  return ReadWave({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

thread_local bool isSoundThread = false;
QtMessageHandler otherMessages = nullptr;

// No player can do anything about what Qt's sound library says of a missing server, device or format.
void DropMessagesOfSounds(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!isSoundThread) otherMessages(type, context, text);
}

}  // namespace

// What lives in the thread of the sounds. Used there only.
class SoundPlayer::Speaker final : public QObject {
 public:
  void Play(const QString& path, int volume) {
    isSoundThread = true;
    sink_.reset();
    const auto wave = ReadWaveFile(path);
    // The one that the player has chosen by now.
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (!wave || device.isNull()) return;
    samples_.close();
    samples_.setData(wave->samples.data(), static_cast<int>(wave->samples.size()));
    samples_.open(QIODevice::ReadOnly);
    sink_ = std::make_unique<QAudioSink>(device, FormatOf(*wave));
    SetVolume(volume);
    sink_->start(&samples_);
  }

  void SetVolume(int percent) {
    if (sink_ == nullptr) return;
    // Half of it sounds half as loud.
    sink_->setVolume(QAudio::convertVolume(static_cast<float>(percent) / 100, QAudio::LogarithmicVolumeScale,
                                           QAudio::LinearVolumeScale));
  }

  void Stop() { sink_.reset(); }

 private:
  QBuffer samples_;
  std::unique_ptr<QAudioSink> sink_;
};

bool SoundPlayer::End() {
  if (thread_ == nullptr) return true;
  thread_->quit();
  constexpr unsigned long patience = 100;  // ms
  if (!thread_->wait(patience)) return false;
  delete std::exchange(thread_, nullptr);
  return true;
}

void SoundPlayer::Play(const QString& path) {
  if (volume_ == 0) return;
  if (thread_ == nullptr) Begin();
  QMetaObject::invokeMethod(speaker_,
                            [speaker = speaker_, path, volume = volume_] { speaker->Play(path, volume); });
}

void SoundPlayer::SetVolume(int percent) {
  volume_ = percent;
  if (thread_ == nullptr) return;
  QMetaObject::invokeMethod(speaker_, [speaker = speaker_, percent] {
    if (percent == 0) {
      speaker->Stop();
    } else {
      speaker->SetVolume(percent);
    }
  });
}

void SoundPlayer::Begin() {
  if (otherMessages == nullptr) otherMessages = qInstallMessageHandler(&DropMessagesOfSounds);
  thread_ = new QThread;
  speaker_ = new Speaker;
  speaker_->moveToThread(thread_);
  QObject::connect(thread_, &QThread::finished, speaker_, &QObject::deleteLater);
  thread_->start();
}
#else
bool SoundPlayer::End() {
  return true;
}

void SoundPlayer::Play(const QString&) {}

void SoundPlayer::SetVolume(int) {}
#endif

}  // namespace quintara::desktop
