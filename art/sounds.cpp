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

// Hertz; from 0 the band is open downward.
struct Band {
  double from;
  double to;
};

// Noise of a band, as loud in a narrow one as in a wide one.
void AddNoise(Track& track, double start, double loudness, Band band, Envelope envelope, std::uint32_t seed) {
  Hiss hiss(seed);
  LowPass upper(band.to);
  LowPass lower(band.from);
  const double gain = loudness * std::sqrt(sampleRate / (band.to - band.from)) / 2;
  track.Add(start, gain, [&] {
    const double noise = upper.Next(hiss.Next());
    return envelope.Next() * (noise - lower.Next(noise));
  });
}

// The rise of sounds that begin with a blow.
constexpr double atOnce = 0.0005;

// Stones and earth coming down, thick at first and then ever fewer and fainter.
void AddDebris(Track& track, double start, double seconds, int count, double loudness, std::uint32_t seed) {
  for (int i = 0; i < count; ++i) {
    const double late = Square(Chance(i, 0, seed));
    const double size = Chance(i, 1, seed);
    const double pitch = 260 + 1900 * Square(1 - size);
    const double level = loudness * (0.25 + 0.75 * size) * Square(1 - 0.9 * late);
    AddNoise(track, start + seconds * late, level, {pitch * 0.5, pitch * 1.6},
             Envelope(atOnce, 0.025 + 0.09 * size), Hash(i, 2, seed) | 1);
  }
}

struct Partial {
  double pitch;
  double loudness;
  double rise;
  double fall;
};

void AddPartial(Track& track, const Partial& partial) {
  Envelope envelope(partial.rise, partial.fall);
  double phase = partial.loudness;
  track.Add(0, partial.loudness, [&] {
    phase += partial.pitch / sampleRate;
    return envelope.Next() * Sine(phase);
  });
}

}  // namespace

Samples HeavyGun() {
  Track track(3.6);
  AddNoise(track, 0.0, 3.4, {500, 5200}, Envelope(atOnce, 0.10), 101);
  AddNoise(track, 0.012, 2.8, {160, 1300}, Envelope(atOnce, 0.42), 102);
  AddBoom(track, 0.0, 1.7, 160, 56, 1.1);
  AddBoom(track, 0.004, 0.8, 330, 118, 0.45);
  AddNoise(track, 0.01, 1.3, {0, 320}, Envelope(0.02, 1.4), 103);
  track.Saturate(1.2);
  track.Echo(0.56, 0.42, 1500);
  track.Echo(1.17, 0.34, 1000);
  track.Echo(0.23, 0.16, 700);
  return track.Finished(0.84, 0.9);
}

Samples GroundBurst() {
  Track track(2.4);
  AddNoise(track, 0.0, 2.5, {300, 3600}, Envelope(atOnce, 0.20), 111);
  AddNoise(track, 0.02, 1.5, {140, 900}, Envelope(atOnce, 0.5), 114);
  AddBoom(track, 0.0, 1.2, 150, 72, 0.5);
  AddNoise(track, 0.0, 1.3, {0, 480}, Envelope(0.008, 0.8), 112);
  track.Saturate(1.2);
  AddDebris(track, 0.10, 1.9, 130, 0.42, 113);
  track.Echo(0.31, 0.25, 900);
  return track.Finished(0.80, 0.6);
}

Samples TargetExplosion() {
  Track track(3.8);
  AddNoise(track, 0.0, 3.2, {350, 4200}, Envelope(atOnce, 0.17), 121);
  AddBoom(track, 0.0, 1.5, 150, 54, 1.2);
  AddNoise(track, 0.0, 1.6, {0, 420}, Envelope(0.006, 1.7), 122);
  AddNoise(track, 0.17, 3.0, {180, 2000}, Envelope(atOnce, 0.7), 123);
  AddBoom(track, 0.17, 1.2, 112, 47, 1.6);
  AddNoise(track, 0.2, 1.3, {0, 190}, Envelope(0.12, 2.8), 124);
  track.Saturate(1.3);
  AddDebris(track, 0.35, 2.6, 170, 0.40, 125);
  track.Echo(0.43, 0.30, 1100);
  track.Echo(0.71, 0.22, 700);
  return track.Finished(0.92, 1.1);
}

Samples TempleGong() {
  // A struck plate: the deep tones, in pairs that beat, speak at once; a crowd of high ones swells after them
  // and is gone first.
  constexpr Partial deep[] = {
      {86.0, 0.85, 0.010, 9.0}, {129.5, 0.60, 0.012, 8.0}, {131.1, 0.50, 0.014, 8.0},
      {188.0, 0.55, 0.03, 7.0}, {190.2, 0.45, 0.04, 7.0},  {247.7, 0.48, 0.06, 6.0},
      {301.9, 0.42, 0.09, 5.4}, {305.0, 0.36, 0.10, 5.4},  {387.3, 0.38, 0.13, 4.6},
      {451.0, 0.32, 0.16, 4.2}, {523.8, 0.30, 0.20, 3.8},  {528.9, 0.24, 0.20, 3.8},
  };
  Track track(3.95);
  for (const Partial& partial : deep) AddPartial(track, partial);
  constexpr int crowd = 44;
  for (int i = 0; i < crowd; ++i) {
    const double high = (i + Chance(i, 0, 133)) / crowd;
    const double pitch = 600 + 3600 * high * (0.4 + 0.6 * high);
    const double loudness = (0.17 - 0.125 * high) * (0.6 + 0.8 * Chance(i, 1, 133));
    AddPartial(track, {pitch, loudness, 0.18 + 0.3 * Chance(i, 2, 133), 3.2 - 1.9 * high});
  }
  AddNoise(track, 0, 0.35, {0, 260}, Envelope(0.002, 0.12), 131);
  AddNoise(track, 0, 0.22, {400, 2800}, Envelope(atOnce, 0.06), 132);
  return track.Finished(0.80, 1.6);
}

}  // namespace quintara::art
