#include "art/files.h"

#include <png.h>

#include <csetjmp>
#include <cstdio>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace quintara::art {
namespace {

using Bytes = std::vector<std::uint8_t>;

void PutText(Bytes& out, std::string_view text) {
  out.insert(out.end(), text.begin(), text.end());
}

void PutLittle(Bytes& out, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) out.push_back(static_cast<std::uint8_t>(value >> 8 * i & 255));
}

void Save(const std::filesystem::path& path, const Bytes& bytes) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("cannot write " + path.string());
}

// Nothing here needs a destructor, since the library leaves by longjmp where it fails.
bool Encode(std::FILE* file, const Bitmap& bitmap) {
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  if (png == nullptr) return false;
  png_infop info = png_create_info_struct(png);
  if (info == nullptr || setjmp(png_jmpbuf(png)) != 0) {
    png_destroy_write_struct(&png, &info);
    return false;
  }
  png_init_io(png, file);
  png_set_compression_level(png, 9);
  // A filter forecasts smooth surfaces. A grain it makes larger to store and slower to show.
  png_set_filter(png, PNG_FILTER_TYPE_BASE, bitmap.dithered ? PNG_FILTER_NONE : PNG_ALL_FILTERS);
  png_set_IHDR(png, info, static_cast<png_uint_32>(bitmap.width), static_cast<png_uint_32>(bitmap.height), 8,
               bitmap.transparent ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  if (!bitmap.transparent) png_set_filler(png, 0, PNG_FILLER_AFTER);
  const std::size_t stride = static_cast<std::size_t>(bitmap.width) * 4;
  for (int y = 0; y < bitmap.height; ++y)
    png_write_row(png, &bitmap.bytes[static_cast<std::size_t>(y) * stride]);
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  return true;
}

}  // namespace

void WritePng(const std::filesystem::path& path, const Bitmap& bitmap) {
  std::filesystem::create_directories(path.parent_path());
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.string().c_str(), "wb"),
                                                             std::fclose);
  if (!file || !Encode(file.get(), bitmap) || std::fflush(file.get()) != 0)
    throw std::runtime_error("cannot write " + path.string());
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
