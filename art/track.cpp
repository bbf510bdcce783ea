#include "art/track.h"

#include <algorithm>
#include <cmath>

#include "art/numeric.h"

namespace quintara::art {
namespace {

// What remains after each of the samples of a time if a thousandth is to remain at its end: the root is drawn
// by halving the exponent, which needs no functions of the library.
double KeepFor(double seconds) {
  const double samples = std::max(seconds * sampleRate, 2.0);
  double low = 0;
  double high = 1;
  for (int i = 0; i < 60; ++i) {
    const double middle = (low + high) / 2;
    double power = 1;
    double base = middle;
    for (unsigned rest = static_cast<unsigned>(samples); rest != 0; rest >>= 1) {
      if (rest & 1) power *= base;
      base *= base;
    }
    (power < 0.001 ? low : high) = middle;
  }
  return high;
}

}  // namespace

Envelope::Envelope(double rise, double fall)
    : riseStep_(1 / std::max(rise * sampleRate, 1.0)), keep_(KeepFor(fall)) {}

double Envelope::Next() {
  if (risen_ < 1) {
    risen_ = std::min(1.0, risen_ + riseStep_);
    return risen_ * risen_ * (3 - 2 * risen_);
  }
  return level_ *= keep_;
}

double Hiss::Next() {
  state_ ^= state_ << 13;
  state_ ^= state_ >> 17;
  state_ ^= state_ << 5;
  return static_cast<double>(state_) / 2147483648.0 - 1;
}

LowPass::LowPass(double frequency) {
  const double turn = 6.283185307179586 * frequency / sampleRate;
  share_ = turn / (1 + turn);
}

double LowPass::Next(double input) {
  first_ += share_ * (input - first_);
  return second_ += share_ * (first_ - second_);
}

Track::Track(double seconds) : samples_(static_cast<std::size_t>(seconds * sampleRate), 0.0) {}

void Track::Echo(double delay, double loudness, double brightness) {
  const std::size_t shift = static_cast<std::size_t>(delay * sampleRate);
  LowPass dull(brightness);
  for (std::size_t i = shift; i < samples_.size(); ++i)
    samples_[i] += loudness * dull.Next(samples_[i - shift]);
}

void Track::Saturate(double drive) {
  for (double& sample : samples_) sample = sample * drive / (1 + std::fabs(sample * drive));
}

std::vector<std::int16_t> Track::Finished(double peak, double fadeSeconds) const {
  LowPass drift(6);
  std::vector<double> level;
  double loudest = 1e-9;
  for (std::size_t i = 0; i < samples_.size(); ++i) {
    const double left = static_cast<double>(samples_.size() - 1 - i) / sampleRate;
    const double fade =
        SmoothStep(0, fadeSeconds, left) * SmoothStep(0, 0.001, static_cast<double>(i) / sampleRate);
    level.push_back((samples_[i] - drift.Next(samples_[i])) * fade);
    loudest = std::max(loudest, std::fabs(level.back()));
  }
  std::vector<std::int16_t> out;
  for (double value : level) {
    out.push_back(static_cast<std::int16_t>(std::floor(value * (32767 * peak / loudest) + 0.5)));
  }
  return out;
}

}  // namespace quintara::art
