#ifndef QUINTARA_ART_HUFFMAN_H
#define QUINTARA_ART_HUFFMAN_H

#include <cstdint>
#include <vector>

namespace quintara::art {

// Bits packed from the lowest upward, as zlib streams want them.
class BitWriter {
 public:
  void Put(std::uint32_t value, int count);
  void FillByte();
  std::vector<std::uint8_t>& bytes() { return bytes_; }

 private:
  std::vector<std::uint8_t> bytes_;
  std::uint32_t pending_ = 0;
  int pendingBits_ = 0;
};

// A prefix code fitted to how often each symbol occurs, with no word longer than a limit.
class HuffmanCode {
 public:
  HuffmanCode(std::vector<std::uint32_t> frequencies, int longest);

  const std::vector<int>& lengths() const { return lengths_; }
  void Put(BitWriter& writer, int symbol) const;

 private:
  std::vector<int> lengths_;
  std::vector<std::uint32_t> words_;
};

}  // namespace quintara::art

#endif
