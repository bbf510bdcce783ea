#include "art/huffman.h"

#include <algorithm>
#include <functional>
#include <queue>
#include <utility>

namespace quintara::art {
namespace {

// Word lengths of the best code without regard to a limit.
std::vector<int> FreeLengths(const std::vector<std::uint32_t>& frequencies) {
  using Node = std::pair<std::uint64_t, std::size_t>;
  std::priority_queue<Node, std::vector<Node>, std::greater<>> queue;
  for (std::size_t i = 0; i < frequencies.size(); ++i) {
    if (frequencies[i] != 0) queue.push({frequencies[i], i});
  }
  std::vector<std::size_t> parents(frequencies.size() * 2, 0);
  std::size_t next = frequencies.size();
  while (queue.size() > 1) {
    const Node a = queue.top();
    queue.pop();
    const Node b = queue.top();
    queue.pop();
    parents[a.second] = parents[b.second] = next;
    queue.push({a.first + b.first, next++});
  }
  std::vector<int> depths(next, 0);
  for (std::size_t i = next - 1; i-- > 0;) {
    if (i >= frequencies.size() || frequencies[i] != 0) depths[i] = depths[parents[i]] + 1;
  }
  depths.resize(frequencies.size());
  return depths;
}

std::uint32_t Reversed(std::uint32_t word, int length) {
  std::uint32_t result = 0;
  for (int i = 0; i < length; ++i) result |= (word >> i & 1u) << (length - 1 - i);
  return result;
}

// Decoders want a code of at least two words, so symbols which never occur are lent a frequency.
void EnsureTwoSymbols(std::vector<std::uint32_t>& frequencies) {
  for (std::size_t i = 0; i < frequencies.size(); ++i) {
    if (std::count(frequencies.begin(), frequencies.end(), 0u) + 2 <= static_cast<long>(frequencies.size()))
      return;
    if (frequencies[i] == 0) frequencies[i] = 1;
  }
}

}  // namespace

void BitWriter::Put(std::uint32_t value, int count) {
  pending_ |= value << pendingBits_;
  pendingBits_ += count;
  while (pendingBits_ >= 8) {
    bytes_.push_back(static_cast<std::uint8_t>(pending_ & 255));
    pending_ >>= 8;
    pendingBits_ -= 8;
  }
}

void BitWriter::FillByte() {
  if (pendingBits_ > 0) Put(0, 8 - pendingBits_);
}

HuffmanCode::HuffmanCode(std::vector<std::uint32_t> frequencies, int longest) {
  EnsureTwoSymbols(frequencies);
  lengths_ = FreeLengths(frequencies);
  while (*std::max_element(lengths_.begin(), lengths_.end()) > longest) {
    for (std::uint32_t& frequency : frequencies) frequency = (frequency + 1) / 2;
    lengths_ = FreeLengths(frequencies);
  }
  words_.resize(lengths_.size());
  std::uint32_t word = 0;
  for (int length = 1; length <= longest; ++length) {
    for (std::size_t i = 0; i < lengths_.size(); ++i) {
      if (lengths_[i] == length) words_[i] = Reversed(word++, length);
    }
    word <<= 1;
  }
}

void HuffmanCode::Put(BitWriter& writer, int symbol) const {
  const std::size_t i = static_cast<std::size_t>(symbol);
  writer.Put(words_[i], lengths_[i]);
}

}  // namespace quintara::art
