#pragma once

#include <cstdint>
#include <vector>

namespace quintara::art {

inline constexpr int samplesPerSecond = 22050;
inline constexpr double sampleRate = samplesPerSecond;

// A fall of loudness to a thousandth within the given seconds, after a rise within a few of its own.
class Envelope {
 public:
  Envelope(double rise, double fall);
  double Next();

 private:
  double riseStep_;
  double risen_ = 0;
  double keep_;
  double level_ = 1;
};

// White noise from a shift register.
class Hiss {
 public:
  explicit Hiss(std::uint32_t seed) : state_(seed) {}
  double Next();  // In [-1, 1).

 private:
  std::uint32_t state_;
};

// Lets through what is slower than a frequency.
class LowPass {
 public:
  explicit LowPass(double frequency);
  double Next(double input);

 private:
  double share_;
  double first_ = 0;
  double second_ = 0;
};

// A sound being mixed, in seconds and in loudness of any scale.
class Track {
 public:
  explicit Track(double seconds);

  // Adds next() sample by sample from a moment on.
  template <class Next>
  void Add(double start, double loudness, Next next) {
    for (std::size_t i = static_cast<std::size_t>(start * sampleRate); i < samples_.size(); ++i) {
      samples_[i] += loudness * next();
    }
  }
  // Returns of the sound from far walls; each is duller than the one before.
  void Echo(double delay, double loudness, double brightness);
  // Bends loud passages over, as a strained loudspeaker or ear does.
  void Saturate(double drive);
  // Without standing offset, silent at both ends, its peak at a share of full scale.
  std::vector<std::int16_t> Finished(double peak, double fadeSeconds) const;

 private:
  std::vector<double> samples_;
};

}  // namespace quintara::art
