#include "art/sounds.h"

#include "art/noise.h"
#include "art/numeric.h"
#include "art/track.h"

namespace quintara::art {
namespace {

// A tone which sinks from one pitch to another like a struck membrane.
void AddBoom(Track& track, double start, double loudness, double highPitch, double lowPitch, double fall) {
  Envelope envelope(0.004, fall);
  Envelope pitch(0.0, fall * 0.5);
  double phase = 0;
  track.Add(start, loudness, [&] {
    phase += (lowPitch + (highPitch - lowPitch) * pitch.Next()) / sampleRate;
    return envelope.Next() * (Sine(phase) + 0.3 * Sine(2 * phase));
  });
}

// Noise below a frequency.
void AddRumble(Track& track, double start, double loudness, double frequency, double rise, double fall,
               std::uint32_t seed) {
  Envelope envelope(rise, fall);
  Hiss hiss(seed);
  LowPass filter(frequency);
  const double gain = loudness * std::sqrt(sampleRate / frequency) * 0.5;
  track.Add(start, gain, [&] { return envelope.Next() * filter.Next(hiss.Next()); });
}

// Noise between two frequencies.
void AddCrack(Track& track, double start, double loudness, double from, double to, double fall,
              std::uint32_t seed) {
  Envelope envelope(0.0005, fall);
  Hiss hiss(seed);
  LowPass upper(to);
  LowPass lower(from);
  track.Add(start, loudness, [&] {
    const double noise = upper.Next(hiss.Next());
    return envelope.Next() * (noise - lower.Next(noise));
  });
}

// Stones and earth coming down, thick at first and then ever fewer.
void AddDebris(Track& track, double start, double seconds, int count, double loudness, std::uint32_t seed) {
  for (int i = 0; i < count; ++i) {
    const double late = Square(Chance(i, 0, seed));
    const double size = Chance(i, 1, seed);
    const double pitch = 260 + 1900 * Square(1 - size);
    const double level = loudness * (0.25 + 0.75 * size) * (1 - 0.75 * late);
    AddCrack(track, start + seconds * late, level, pitch * 0.5, pitch * 1.6, 0.025 + 0.09 * size,
             Hash(i, 2, seed) | 1);
  }
}

}  // namespace

Samples HeavyGun() {
  Track track(3.4);
  AddCrack(track, 0.0, 4.0, 450, 3200, 0.11, 101);
  AddCrack(track, 0.012, 5.0, 160, 1300, 0.38, 102);
  AddBoom(track, 0.0, 1.7, 170, 63, 0.95);
  AddRumble(track, 0.01, 1.5, 300, 0.02, 1.4, 103);
  track.Saturate(1.1);
  track.Echo(0.37, 0.40, 1100);
  track.Echo(0.59, 0.26, 800);
  track.Echo(0.97, 0.20, 600);
  return track.Finished(0.84, 0.9);
}

Samples GroundBurst() {
  Track track(2.4);
  AddCrack(track, 0.0, 3.2, 300, 3400, 0.20, 111);
  AddCrack(track, 0.02, 3.4, 140, 900, 0.5, 114);
  AddBoom(track, 0.0, 1.1, 140, 74, 0.45);
  AddRumble(track, 0.0, 1.3, 480, 0.008, 0.8, 112);
  track.Saturate(1.0);
  AddDebris(track, 0.12, 1.7, 120, 1.5, 113);
  track.Echo(0.31, 0.25, 900);
  return track.Finished(0.76, 0.5);
}

Samples TargetExplosion() {
  Track track(3.8);
  AddCrack(track, 0.0, 3.8, 350, 3400, 0.17, 121);
  AddBoom(track, 0.0, 1.5, 150, 54, 1.2);
  AddRumble(track, 0.0, 1.6, 420, 0.006, 1.7, 122);
  AddCrack(track, 0.17, 4.2, 180, 2000, 0.6, 123);
  AddBoom(track, 0.17, 1.2, 112, 47, 1.6);
  AddRumble(track, 0.2, 1.3, 190, 0.12, 2.8, 124);
  track.Saturate(1.2);
  AddDebris(track, 0.35, 2.6, 150, 1.2, 125);
  track.Echo(0.43, 0.30, 900);
  track.Echo(0.71, 0.22, 600);
  return track.Finished(0.90, 1.1);
}

Samples TempleGong() {
  struct Partial {
    double pitch;
    double loudness;
    double rise;
    double fall;
  };
  // A struck plate: the deep tones speak at once, the shimmer swells after and is gone first.
  constexpr Partial partials[] = {
      {86.0, 1.00, 0.010, 9.0},   {129.5, 0.62, 0.012, 8.0}, {131.1, 0.50, 0.014, 8.0},
      {188.0, 0.55, 0.03, 7.0},   {190.2, 0.42, 0.04, 7.0},  {247.7, 0.46, 0.06, 6.0},
      {301.9, 0.36, 0.09, 5.4},   {305.0, 0.30, 0.10, 5.4},  {387.3, 0.30, 0.13, 4.6},
      {451.0, 0.24, 0.16, 4.2},   {523.8, 0.22, 0.20, 3.6},  {528.9, 0.17, 0.20, 3.6},
      {640.4, 0.16, 0.24, 3.0},   {771.6, 0.13, 0.28, 2.6},  {933.1, 0.11, 0.30, 2.2},
      {1120.7, 0.09, 0.32, 1.9},  {1377.2, 0.07, 0.30, 1.7}, {1688.5, 0.05, 0.28, 1.5},
      {2091.3, 0.035, 0.26, 1.3},
  };
  Track track(3.95);
  for (const Partial& partial : partials) {
    Envelope envelope(partial.rise, partial.fall);
    double phase = partial.loudness;
    track.Add(0, partial.loudness, [&] {
      phase += partial.pitch / sampleRate;
      return envelope.Next() * Sine(phase);
    });
  }
  AddRumble(track, 0, 0.35, 260, 0.002, 0.12, 131);
  AddCrack(track, 0, 0.25, 400, 2400, 0.05, 132);
  return track.Finished(0.80, 1.6);
}

}  // namespace quintara::art
