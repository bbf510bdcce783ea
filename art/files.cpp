#include "art/files.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string_view>

#include "art/deflate.h"

namespace quintara::art {
namespace {

using Bytes = std::vector<std::uint8_t>;

void PutText(Bytes& out, std::string_view text) {
  out.insert(out.end(), text.begin(), text.end());
}

void PutLittle(Bytes& out, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) out.push_back(static_cast<std::uint8_t>(value >> 8 * i & 255));
}

void PutBig(Bytes& out, std::uint32_t value) {
  for (int shift : {24, 16, 8, 0}) out.push_back(static_cast<std::uint8_t>(value >> shift & 255));
}

void Save(const std::filesystem::path& path, const Bytes& bytes) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("cannot write " + path.string());
}

std::uint32_t Crc(const Bytes& bytes, std::size_t begin) {
  std::uint32_t crc = ~0u;
  for (std::size_t i = begin; i < bytes.size(); ++i) {
    crc ^= bytes[i];
    for (int bit = 0; bit < 8; ++bit) crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320u : 0);
  }
  return ~crc;
}

void PutChunk(Bytes& out, std::string_view name, const Bytes& content) {
  PutBig(out, static_cast<std::uint32_t>(content.size()));
  const std::size_t begin = out.size();
  PutText(out, name);
  out.insert(out.end(), content.begin(), content.end());
  PutBig(out, Crc(out, begin));
}

// What a PNG filter expects of a byte from those to the left, above and above left.
int Forecast(int filter, int left, int above, int corner) {
  if (filter == 1) return left;
  if (filter == 2) return above;
  if (filter == 3) return (left + above) / 2;
  if (filter == 0) return 0;
  const int byLeft = std::abs(above - corner);
  const int byAbove = std::abs(left - corner);
  const int byCorner = std::abs(left + above - 2 * corner);
  if (byLeft <= byAbove && byLeft <= byCorner) return left;
  return byAbove <= byCorner ? above : corner;
}

// The bytes of a picture row by row, each row behind the number of its filter.
class PngRows {
 public:
  explicit PngRows(const Bitmap& bitmap) : bitmap_(bitmap), channels_(bitmap.transparent ? 4 : 3) {}

  int channels() const { return channels_; }

  Bytes Unfiltered() const {
    Bytes all;
    for (int y = 0; y < bitmap_.height; ++y) Append(all, Filtered(y, 0));
    return all;
  }

  Bytes Adaptive() const {
    Bytes all;
    for (int y = 0; y < bitmap_.height; ++y) {
      Bytes best;
      for (int filter = 0; filter < 5; ++filter) {
        Bytes row = Filtered(y, filter);
        if (best.empty() || Weight(row) < Weight(best)) best = std::move(row);
      }
      Append(all, best);
    }
    return all;
  }

 private:
  static void Append(Bytes& all, const Bytes& row) { all.insert(all.end(), row.begin(), row.end()); }

  static int Weight(const Bytes& row) {
    int sum = 0;
    for (std::size_t i = 1; i < row.size(); ++i) sum += std::abs(static_cast<std::int8_t>(row[i]));
    return sum;
  }

  int At(int x, int y, int channel) const {
    if (x < 0 || y < 0) return 0;
    return bitmap_.bytes[static_cast<std::size_t>((y * bitmap_.width + x) * 4 + channel)];
  }

  Bytes Filtered(int y, int filter) const {
    Bytes row{static_cast<std::uint8_t>(filter)};
    for (int x = 0; x < bitmap_.width; ++x) {
      for (int c = 0; c < channels_; ++c) {
        const int expected =
            Forecast(filter, At(x - 1, y, c), At(x, y - 1, c), x > 0 ? At(x - 1, y - 1, c) : 0);
        row.push_back(static_cast<std::uint8_t>((At(x, y, c) - expected) & 255));
      }
    }
    return row;
  }

  const Bitmap& bitmap_;
  int channels_;
};

}  // namespace

void WritePng(const std::filesystem::path& path, const Bitmap& bitmap) {
  const PngRows rows(bitmap);
  Bytes header;
  PutBig(header, static_cast<std::uint32_t>(bitmap.width));
  PutBig(header, static_cast<std::uint32_t>(bitmap.height));
  for (int value : {8, rows.channels() == 4 ? 6 : 2, 0, 0, 0})
    header.push_back(static_cast<std::uint8_t>(value));
  const Bytes plain = Deflate(rows.Unfiltered());
  const Bytes adaptive = Deflate(rows.Adaptive());
  Bytes out;
  PutText(out, "\x89PNG\r\n\x1a\n");
  PutChunk(out, "IHDR", header);
  PutChunk(out, "IDAT", plain.size() < adaptive.size() ? plain : adaptive);
  PutChunk(out, "IEND", {});
  Save(path, out);
}

void WriteBmp(const std::filesystem::path& path, const Bitmap& bitmap) {
  const int stride = (bitmap.width * 3 + 3) / 4 * 4;
  const std::uint32_t size = static_cast<std::uint32_t>(stride * bitmap.height);
  Bytes out;
  PutText(out, "BM");
  for (std::uint32_t value : {54 + size, 0u, 54u, 40u}) PutLittle(out, value, 4);
  PutLittle(out, static_cast<std::uint32_t>(bitmap.width), 4);
  PutLittle(out, static_cast<std::uint32_t>(bitmap.height), 4);
  PutLittle(out, 1, 2);
  PutLittle(out, 24, 2);
  for (std::uint32_t value : {0u, size, 2835u, 2835u, 0u, 0u}) PutLittle(out, value, 4);
  for (int y = bitmap.height - 1; y >= 0; --y) {
    for (int x = 0; x < bitmap.width; ++x) {
      const std::uint8_t* pixel = &bitmap.bytes[static_cast<std::size_t>((y * bitmap.width + x) * 4)];
      out.insert(out.end(), {pixel[2], pixel[1], pixel[0]});
    }
    for (int x = bitmap.width * 3; x < stride; ++x) out.push_back(0);
  }
  Save(path, out);
}

void WriteWav(const std::filesystem::path& path, const std::vector<std::int16_t>& samples,
              int samplesPerSecond) {
  const std::uint32_t rate = static_cast<std::uint32_t>(samplesPerSecond);
  const std::uint32_t size = static_cast<std::uint32_t>(samples.size() * 2);
  Bytes out;
  PutText(out, "RIFF");
  PutLittle(out, 36 + size, 4);
  PutText(out, "WAVEfmt ");
  PutLittle(out, 16, 4);
  PutLittle(out, 1, 2);
  PutLittle(out, 1, 2);
  PutLittle(out, rate, 4);
  PutLittle(out, rate * 2, 4);
  PutLittle(out, 2, 2);
  PutLittle(out, 16, 2);
  PutText(out, "data");
  PutLittle(out, size, 4);
  for (std::int16_t sample : samples) PutLittle(out, static_cast<std::uint16_t>(sample), 2);
  Save(path, out);
}

}  // namespace quintara::art
