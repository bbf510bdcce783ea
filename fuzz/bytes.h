#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quintara::fuzz {

inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Hands an input out byte by byte; behind its end come zeros.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : left_(bytes) {}

  bool empty() const { return left_.empty(); }

  std::uint8_t Take() {
    if (left_.empty()) return 0;
    const auto byte = static_cast<std::uint8_t>(left_.front());
    left_.remove_prefix(1);
    return byte;
  }

  // A number below `bound`, which is at least 1.
  std::size_t Below(std::size_t bound) { return Take() % bound; }

  std::string_view TakeText(std::size_t most) {
    const std::string_view text = left_.substr(0, most);
    left_.remove_prefix(text.size());
    return text;
  }
  std::string_view TakeRest() { return TakeText(left_.size()); }

 private:
  std::string_view left_;
};

}  // namespace quintara::fuzz
