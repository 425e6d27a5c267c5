// Png.cpp - the chunks of a PNG file.
#include "teskarlt/preview/Png.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <zlib.h>

#include "teskarlt/Error.h"

namespace teskarlt::preview {

namespace {

constexpr std::string_view SIGNATURE("\x89PNG\r\n\x1a\n", 8);
constexpr char HEADER_REST[] = {8, 2, 0, 0, 0};              // 8 bits of red, green, blue; no interlacing
constexpr char TRANSPARENT_HEADER_REST[] = {8, 6, 0, 0, 0};  // and of alpha

const Bytef* AsBytes(const std::string& text) {
  return reinterpret_cast<const Bytef*>(text.data());
}

void PutNumber(std::string& to, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8)
    to += static_cast<char>(value >> shift & 255U);
}

void PutChunk(std::string& to, std::string_view type, const std::string& content) {
  const std::string checked = std::string(type) + content;
  PutNumber(to, static_cast<std::uint32_t>(content.size()));
  to += checked;
  PutNumber(to, static_cast<std::uint32_t>(crc32(0, AsBytes(checked), static_cast<uInt>(checked.size()))));
}

// The predictor of the format: whichever of left, up and upper left is nearest to left + up - upper left.
int Paeth(int left, int up, int upperLeft) {
  const int guess = left + up - upperLeft;
  const int toLeft = std::abs(guess - left);
  const int toUp = std::abs(guess - up);
  const int toUpperLeft = std::abs(guess - upperLeft);
  if (toLeft <= toUp && toLeft <= toUpperLeft) return left;
  return toUp <= toUpperLeft ? up : upperLeft;
}

// The rows, each behind the number of its filter.
std::string Filtered(const Picture& picture) {
  constexpr char paethFilter = 4;
  const std::size_t pixel = picture.Channels();
  const std::size_t width = static_cast<std::size_t>(picture.width) * pixel;
  std::string rows;
  rows.reserve((width + 1) * static_cast<std::size_t>(picture.height));
  for (std::size_t row = 0; row < static_cast<std::size_t>(picture.height); ++row) {
    rows += paethFilter;
    const std::uint8_t* const own = &picture.bytes[row * width];
    const std::uint8_t* const above = row == 0 ? nullptr : own - width;
    for (std::size_t i = 0; i < width; ++i) {
      const int left = i < pixel ? 0 : own[i - pixel];
      const int up = above == nullptr ? 0 : above[i];
      const int upperLeft = i < pixel || above == nullptr ? 0 : above[i - pixel];
      rows += static_cast<char>(own[i] - Paeth(left, up, upperLeft));
    }
  }
  return rows;
}

std::string Compressed(const std::string& bytes) {
  constexpr int level = 4;  // half the time of zlib's own choice, for files as small
  std::string packed(compressBound(static_cast<uLong>(bytes.size())), '\0');
  auto size = static_cast<uLongf>(packed.size());
  if (compress2(reinterpret_cast<Bytef*>(packed.data()), &size, AsBytes(bytes),
                static_cast<uLong>(bytes.size()), level) != Z_OK)
    throw Error("the picture could not be compressed");
  packed.resize(size);
  return packed;
}

}  // namespace

std::string Png(const Picture& picture) {
  std::string header;
  PutNumber(header, static_cast<std::uint32_t>(picture.width));
  PutNumber(header, static_cast<std::uint32_t>(picture.height));
  header.append(picture.isTransparent ? TRANSPARENT_HEADER_REST : HEADER_REST, sizeof HEADER_REST);
  std::string file(SIGNATURE);
  PutChunk(file, "IHDR", header);
  PutChunk(file, "IDAT", Compressed(Filtered(picture)));
  PutChunk(file, "IEND", {});
  return file;
}

}  // namespace teskarlt::preview
