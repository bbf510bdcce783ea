#include "art/deflate.h"

#include <algorithm>
#include <array>

#include "art/huffman.h"

namespace quintara::art {
namespace {

constexpr std::array<int, 29> lengthBases = {3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                                             31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr std::array<int, 30> distanceBases = {1,    2,    3,    4,    5,    7,    9,    13,    17,    25,
                                               33,   49,   65,   97,   129,  193,  257,  385,   513,   769,
                                               1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
constexpr int window = 32768;
constexpr int endOfBlock = 256;
constexpr std::size_t blockSymbols = 40000;

// A byte as it is (distance 0, length its value) or a repeat of bytes further back.
struct Symbol {
  int length = 0;
  int distance = 0;
};

int LengthExtra(int code) {
  return code < 8 || code == 28 ? 0 : code / 4 - 1;
}
int DistanceExtra(int code) {
  return code < 4 ? 0 : code / 2 - 1;
}

template <std::size_t Count>
int CodeOf(const std::array<int, Count>& bases, int value) {
  return static_cast<int>(std::upper_bound(bases.begin(), bases.end(), value) - bases.begin()) - 1;
}

// Finds repeats by chains of places that begin with the same three bytes.
class Matcher {
 public:
  explicit Matcher(const std::vector<std::uint8_t>& bytes)
      : bytes_(bytes), heads_(1 << 15, -1), previous_(bytes.size(), -1) {}

  std::vector<Symbol> Symbols() {
    std::vector<Symbol> symbols;
    const int size = static_cast<int>(bytes_.size());
    for (int place = 0; place < size;) {
      const Symbol match = place + 3 <= size ? Longest(place) : Symbol{};
      const int step = match.distance > 0 ? match.length : 1;
      symbols.push_back(match.distance > 0 ? match : Symbol{At(place), 0});
      for (int i = 0; i < step; ++i) Remember(place + i);
      place += step;
    }
    return symbols;
  }

 private:
  int At(int place) const { return bytes_[static_cast<std::size_t>(place)]; }
  std::size_t Key(int place) const {
    return static_cast<std::size_t>((At(place) << 10 ^ At(place + 1) << 5 ^ At(place + 2)) & 0x7FFF);
  }

  void Remember(int place) {
    if (place + 3 > static_cast<int>(bytes_.size())) return;
    previous_[static_cast<std::size_t>(place)] = heads_[Key(place)];
    heads_[Key(place)] = place;
  }

  Symbol Longest(int place) const {
    Symbol best;
    const int limit = std::min(258, static_cast<int>(bytes_.size()) - place);
    int tries = 48;
    for (int from = heads_[Key(place)]; from >= 0 && place - from < window && tries-- > 0;
         from = previous_[static_cast<std::size_t>(from)]) {
      int length = 0;
      while (length < limit && At(from + length) == At(place + length)) ++length;
      if (length > best.length) best = {length, place - from};
    }
    // A short repeat from far away takes more bits than its bytes.
    const bool worth = best.length >= 4 || (best.length == 3 && best.distance < 2048);
    return worth ? best : Symbol{};
  }

  const std::vector<std::uint8_t>& bytes_;
  std::vector<int> heads_;
  std::vector<int> previous_;
};

void PutCodes(BitWriter& writer, const HuffmanCode& literals, const HuffmanCode& distances) {
  constexpr std::array<int, 19> order = {16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};
  std::vector<int> lengths = literals.lengths();
  lengths.insert(lengths.end(), distances.lengths().begin(), distances.lengths().end());
  std::vector<std::uint32_t> frequencies(19, 0);
  for (int length : lengths) ++frequencies[static_cast<std::size_t>(length)];
  const HuffmanCode code(frequencies, 7);
  writer.Put(286 - 257, 5);
  writer.Put(30 - 1, 5);
  writer.Put(19 - 4, 4);
  for (int symbol : order) {
    writer.Put(static_cast<std::uint32_t>(code.lengths()[static_cast<std::size_t>(symbol)]), 3);
  }
  for (int length : lengths) code.Put(writer, length);
}

void PutSymbol(BitWriter& writer, const HuffmanCode& literals, const HuffmanCode& distances, Symbol symbol) {
  if (symbol.distance == 0) return literals.Put(writer, symbol.length);
  const int lengthCode = CodeOf(lengthBases, symbol.length);
  literals.Put(writer, 257 + lengthCode);
  writer.Put(static_cast<std::uint32_t>(symbol.length - lengthBases[static_cast<std::size_t>(lengthCode)]),
             LengthExtra(lengthCode));
  const int distanceCode = CodeOf(distanceBases, symbol.distance);
  distances.Put(writer, distanceCode);
  writer.Put(
      static_cast<std::uint32_t>(symbol.distance - distanceBases[static_cast<std::size_t>(distanceCode)]),
      DistanceExtra(distanceCode));
}

void PutBlock(BitWriter& writer, const Symbol* begin, const Symbol* end, bool last) {
  std::vector<std::uint32_t> literalCounts(286, 0);
  std::vector<std::uint32_t> distanceCounts(30, 0);
  literalCounts[endOfBlock] = 1;
  for (const Symbol* symbol = begin; symbol != end; ++symbol) {
    if (symbol->distance == 0) {
      ++literalCounts[static_cast<std::size_t>(symbol->length)];
    } else {
      ++literalCounts[static_cast<std::size_t>(257 + CodeOf(lengthBases, symbol->length))];
      ++distanceCounts[static_cast<std::size_t>(CodeOf(distanceBases, symbol->distance))];
    }
  }
  const HuffmanCode literals(literalCounts, 15);
  const HuffmanCode distances(distanceCounts, 15);
  writer.Put(last ? 1 : 0, 1);
  writer.Put(2, 2);
  PutCodes(writer, literals, distances);
  for (const Symbol* symbol = begin; symbol != end; ++symbol) PutSymbol(writer, literals, distances, *symbol);
  literals.Put(writer, endOfBlock);
}

std::uint32_t Adler(const std::vector<std::uint8_t>& bytes) {
  std::uint32_t a = 1;
  std::uint32_t b = 0;
  for (std::uint8_t byte : bytes) {
    a = (a + byte) % 65521;
    b = (b + a) % 65521;
  }
  return b << 16 | a;
}

}  // namespace

std::vector<std::uint8_t> Deflate(const std::vector<std::uint8_t>& bytes) {
  BitWriter writer;
  writer.Put(0x78, 8);
  writer.Put(0xDA, 8);
  const std::vector<Symbol> symbols = Matcher(bytes).Symbols();
  std::size_t done = 0;
  do {
    const std::size_t end = std::min(done + blockSymbols, symbols.size());
    PutBlock(writer, symbols.data() + done, symbols.data() + end, end == symbols.size());
    done = end;
  } while (done < symbols.size());
  writer.FillByte();
  const std::uint32_t sum = Adler(bytes);
  for (int shift : {24, 16, 8, 0}) writer.Put(sum >> shift & 255, 8);
  return std::move(writer.bytes());
}

}  // namespace quintara::art
