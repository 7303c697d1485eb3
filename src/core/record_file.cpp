#include "core/record_file.h"

#include <algorithm>
#include <utility>

#include "core/numbered_error.h"

namespace golf {
namespace {

constexpr std::size_t kFirstWindow = std::size_t{16} << 10;
constexpr std::size_t kLongRecord = std::size_t{8} << 10;
constexpr std::size_t kLargestWindow = std::size_t{256} << 10;

}  // namespace

RecordFile::RecordFile(ChangeGate& gate, std::string path, std::size_t record_length,
                       FileAccess access)
    : gate_(gate),
      path_(std::move(path)),
      record_length_(record_length),
      file_(gate.Open(path_, access)),
      identity_(file_->Identity()) {}

std::int64_t RecordFile::Length() { return file_->Length(); }

void RecordFile::Check(std::int64_t record, std::size_t size) const {
  if (record < 1) {
    throw NumberedError(ErrorNumber::kBadRecordNumber,
                        path_ + " has no record number " + std::to_string(record) + ".");
  }
  if (size > record_length_) {
    throw NumberedError(ErrorNumber::kBadRecordLength,
                        "A record of " + path_ + " is shorter than what was asked of it.");
  }
}

void RecordFile::Read(std::int64_t record, std::span<char> into) {
  Check(record, into.size());
  const std::int64_t offset = (record - 1) * static_cast<std::int64_t>(record_length_);
  const bool inside =
      offset >= window_offset_ && offset + static_cast<std::int64_t>(into.size()) <=
                                      window_offset_ + static_cast<std::int64_t>(window_size_);
  const bool is_single = !inside && offset != next_offset_ && into.size() >= kLongRecord;
  const std::size_t held = is_single ? ReadInto(into, offset) : ReadByWindow(into, offset, inside);
  std::fill(into.begin() + static_cast<std::ptrdiff_t>(held), into.end(), '\0');
  next_offset_ = offset + static_cast<std::int64_t>(record_length_);
}

// Reads a long record that does not follow the last one. The window would only copy it once more.
std::size_t RecordFile::ReadInto(std::span<char> into, std::int64_t offset) {
  ahead_ = window_size_ = window_held_ = 0;
  try {
    return file_->ReadAt(offset, into);
  } catch (const NumberedError& error) {
    ForgetWindow();
    throw ReadError(error);
  }
}

std::size_t RecordFile::ReadByWindow(std::span<char> into, std::int64_t offset, bool inside) {
  if (!inside) FillWindow(offset, into.size());
  const auto start = static_cast<std::size_t>(offset - window_offset_);
  const std::size_t held =
      std::min(into.size(), window_held_ > start ? window_held_ - start : std::size_t{0});
  std::copy_n(buffer_.begin() + static_cast<std::ptrdiff_t>(start), held, into.begin());
  return held;
}

// Reads at least `size` bytes into the window. Reads ahead if the record follows the last one read,
// each time twice as far as before. Otherwise reads only the requested bytes.
void RecordFile::FillWindow(std::int64_t offset, std::size_t size) {
  const bool follows = offset == next_offset_;
  ahead_ = follows ? std::clamp(ahead_ * 2, kFirstWindow, kLargestWindow) : 0;
  window_size_ = std::max(size, ahead_ / record_length_ * record_length_);
  if (buffer_.size() < window_size_) buffer_.resize(window_size_);
  window_offset_ = offset;
  window_held_ = 0;
  try {
    window_held_ = file_->ReadAt(offset, std::span(buffer_).first(window_size_));
  } catch (const NumberedError& error) {
    ForgetWindow();
    throw ReadError(error);
  }
}

void RecordFile::Write(std::int64_t record, std::string_view bytes) {
  Check(record, bytes.size());
  written_ = true;
  gate_.Write(*file_, (record - 1) * static_cast<std::int64_t>(record_length_), bytes);
}

// Closes the file. Ignores an error if the file was only read, since no data can be lost.
void RecordFile::Close() {
  try {
    file_->Close();
  } catch (const NumberedError&) {
    if (written_) throw;
  }
}

void RecordFile::ForgetWindow() {
  window_size_ = 0;
  window_held_ = 0;
  next_offset_ = -1;  // a loop that reads and writes each record does not read ahead
  ++generation_;
}

}  // namespace golf
