// make_icon FILE draws the icon of the programs, a flag and a ball on a green, and writes it in the
// sizes that Windows shows.

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr int kSizes[] = {16, 20, 24, 32, 40, 48, 64, 128, 256};
constexpr int kPngSize = 256;  // Windows reads this size as PNG, and smaller ones as bitmaps
constexpr int kSamples = 8;    // for each pixel, in each direction

struct Colour {
  double red = 0;
  double green = 0;
  double blue = 0;
  double cover = 0;
};

Colour Mix(const Colour& a, const Colour& b, double part) {
  const auto mix = [part](double from, double to) { return from + (to - from) * part; };
  return {mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue), 1};
}

bool InEllipse(double x, double y, double centre_x, double centre_y, double wide, double high) {
  return std::hypot((x - centre_x) / wide, (y - centre_y) / high) <= 1;
}

bool InRoundedSquare(double x, double y) {
  constexpr double kEdge = 0.03;
  constexpr double kRadius = 0.2;
  const double far_x = std::max(std::abs(x - 0.5) - (0.5 - kEdge - kRadius), 0.0);
  const double far_y = std::max(std::abs(y - 0.5) - (0.5 - kEdge - kRadius), 0.0);
  return std::hypot(far_x, far_y) <= kRadius;
}

// Returns the colour at a point of the drawing. Coordinates are from 0 to 1, with y downwards.
// Small sizes need a thicker `pole`.
Colour At(double x, double y, double pole) {
  if (!InRoundedSquare(x, y)) return {};
  if (InEllipse(x, y, 0.31, 0.74, 0.12, 0.12)) {
    return Mix({1, 1, 1, 1}, {0.72, 0.76, 0.80, 1}, std::hypot(x - 0.27, y - 0.69) / 0.22);
  }
  if (std::abs(x - 0.64) <= pole / 2 && y >= 0.14 && y <= 0.76) return {0.97, 0.97, 0.97, 1};
  const double flag = (y - 0.14) / 0.30;  // the way down its edge
  const double tip = 0.42 * (1 - std::abs(2 * flag - 1));
  if (flag >= 0 && flag <= 1 && x <= 0.64 && x >= 0.64 - tip) return {0.84, 0.13, 0.15, 1};
  if (InEllipse(x, y, 0.64, 0.76, 0.15, 0.05)) return {0.05, 0.26, 0.12, 1};
  if (InEllipse(x, y, 0.45, 1.45, 1.00, 0.92)) return {0.20, 0.58, 0.25, 1};
  return Mix({0.25, 0.55, 0.85, 1}, {0.80, 0.92, 0.99, 1}, y / 0.6);
}

Colour Pixel(int column, int row, int size) {
  const double pole = std::max(0.05, 1.5 / size);
  Colour sum;
  for (int i = 0; i < kSamples * kSamples; ++i) {
    const double x = (column + (i % kSamples + 0.5) / kSamples) / size;
    const double y = (row + (i / kSamples + 0.5) / kSamples) / size;
    const Colour colour = At(x, y, pole);
    sum.red += colour.red * colour.cover;
    sum.green += colour.green * colour.cover;
    sum.blue += colour.blue * colour.cover;
    sum.cover += colour.cover;
  }
  if (sum.cover == 0) return {};
  return {sum.red / sum.cover, sum.green / sum.cover, sum.blue / sum.cover,
          sum.cover / (kSamples * kSamples)};
}

// Returns the red, green, blue and opacity of a pixel, from 0 to 255.
std::array<std::uint8_t, 4> Channels(int column, int row, int size) {
  const Colour pixel = Pixel(column, row, size);
  const auto channel = [](double part) {
    return static_cast<std::uint8_t>(std::lround(std::min(part, 1.0) * 255));
  };
  return {channel(pixel.red), channel(pixel.green), channel(pixel.blue), channel(pixel.cover)};
}

class Bytes {
 public:
  void Add(std::size_t value, int width) {
    for (int i = 0; i < width; ++i) data_ += static_cast<char>(value >> (8 * i) & 0xFF);
  }
  void AddBackwards(std::size_t value, int width) {
    for (int i = width - 1; i >= 0; --i) data_ += static_cast<char>(value >> (8 * i) & 0xFF);
  }
  void Add(const std::string& bytes) { data_ += bytes; }
  const std::string& data() const { return data_; }

 private:
  std::string data_;
};

// Returns a bitmap in the format of an icon file: the rows from the lowest up, and then an empty
// mask.
std::string Bitmap(int size) {
  const auto wide = static_cast<std::size_t>(size);
  Bytes bytes;
  for (const std::size_t value : {std::size_t{40}, wide, 2 * wide}) bytes.Add(value, 4);
  bytes.Add(1, 2);
  bytes.Add(32, 2);
  for (int i = 0; i < 6; ++i) bytes.Add(0, 4);
  for (int row = size - 1; row >= 0; --row) {
    for (int column = 0; column < size; ++column) {
      const auto [red, green, blue, opacity] = Channels(column, row, size);
      for (const std::uint8_t channel : {blue, green, red, opacity}) bytes.Add(channel, 1);
    }
  }
  bytes.Add(std::string((wide + 31) / 32 * 4 * wide, '\0'));
  return bytes.data();
}

const Bytef* BytesOf(const std::string& text) {
  return reinterpret_cast<const Bytef*>(text.data());
}

std::string Compressed(const std::string& bytes) {
  uLongf size = compressBound(bytes.size());
  std::string compressed(size, '\0');
  compress2(reinterpret_cast<Bytef*>(compressed.data()), &size, BytesOf(bytes), bytes.size(),
            Z_BEST_COMPRESSION);
  compressed.resize(size);
  return compressed;
}

void AddChunk(Bytes& png, const std::string& kind, const std::string& data) {
  png.AddBackwards(data.size(), 4);
  png.Add(kind + data);
  png.AddBackwards(crc32(crc32(0, BytesOf(kind), 4), BytesOf(data), static_cast<uInt>(data.size())),
                   4);
}

std::string Png(int size) {
  constexpr char kDifferenceFromRowAbove = 2;
  std::string rows;
  std::string above(4 * static_cast<std::size_t>(size), '\0');
  for (int row = 0; row < size; ++row) {
    rows += kDifferenceFromRowAbove;
    for (int column = 0; column < size; ++column) {
      char* channel_above = &above[4 * static_cast<std::size_t>(column)];
      for (const std::uint8_t channel : Channels(column, row, size)) {
        rows += static_cast<char>(channel - *channel_above);
        *channel_above++ = static_cast<char>(channel);
      }
    }
  }
  Bytes header;
  for (int side = 0; side < 2; ++side) header.AddBackwards(static_cast<std::size_t>(size), 4);
  // 8 bits a channel, red, green, blue and opacity, and the usual methods
  header.Add(std::string("\x08\x06\0\0\0", 5));
  Bytes png;
  png.Add("\x89PNG\r\n\x1A\n");
  AddChunk(png, "IHDR", header.data());
  AddChunk(png, "IDAT", Compressed(rows));
  AddChunk(png, "IEND", "");
  return png.data();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::vector<std::string> pictures;
  for (const int size : kSizes) pictures.push_back(size < kPngSize ? Bitmap(size) : Png(size));
  Bytes icon;
  for (const std::size_t value : {std::size_t{0}, std::size_t{1}, pictures.size()}) {
    icon.Add(value, 2);
  }
  std::size_t place = 6 + 16 * pictures.size();
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    // A side of 256 is written as 0.
    for (int side = 0; side < 2; ++side) icon.Add(static_cast<std::size_t>(kSizes[i]), 1);
    icon.Add(0, 2);
    icon.Add(1, 2);
    icon.Add(32, 2);
    icon.Add(pictures[i].size(), 4);
    icon.Add(place, 4);
    place += pictures[i].size();
  }
  for (const std::string& picture : pictures) icon.Add(picture);
  std::ofstream file(argv[1], std::ios::binary);
  file << icon.data();
  return file.flush() ? 0 : 1;
}
