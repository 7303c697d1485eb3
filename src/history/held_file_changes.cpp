#include "history/held_file_changes.h"

#include <algorithm>
#include <utility>

#include "history/hold_failed.h"

namespace golf {
namespace {

constexpr std::int64_t kPortion = 64 << 10;
constexpr std::size_t kWindow = std::size_t{64} << 10;
constexpr std::size_t kLongestRecord = std::size_t{16} << 10;

std::int64_t PortionOf(std::int64_t offset) { return offset / kPortion; }

bool StartsBefore(const HeldPlace& place, std::int64_t offset) { return place.offset < offset; }

}  // namespace

void FileWindow::Note(std::int64_t read_offset, std::span<const char> read) {
  if (read.size() > kLongestRecord) return;
  bytes.assign(read.data(), read.size());
  offset = read_offset;
}

HeldFileChanges::HeldFileChanges(std::string path, std::shared_ptr<PlatformFile> real,
                                 SpillStore& store)
    : path_(std::move(path)), real_(std::move(real)), store_(store) {
  if (real_ != nullptr) old_length_ = length_ = real_->Length();
}

std::size_t HeldFileChanges::ReadAt(std::int64_t offset, std::span<char> into) {
  if (offset >= length_) return 0;
  const auto size =
      static_cast<std::size_t>(std::min<std::int64_t>(length_ - offset, std::ssize(into)));
  // A file may be truncated and extended again. The new bytes behind the truncation are then in the
  // held places, if they differ from the bytes of the real file.
  const std::int64_t from_file =
      std::clamp<std::int64_t>(std::min(old_length_, length_) - offset, 0, std::ssize(into));
  std::size_t read = 0;
  if (from_file > 0) {
    read = real_->ReadAt(offset, into.first(static_cast<std::size_t>(from_file)));
    // A record is read before it is written, so these bytes are the old ones.
    window_.Note(offset, into.first(read));
  }
  std::fill(into.begin() + static_cast<std::ptrdiff_t>(read), into.end(), '\0');

  const std::int64_t end = offset + static_cast<std::int64_t>(size);
  // A place may start in an earlier portion and extend into this one.
  auto portion = portions_.lower_bound(PortionOf(std::max<std::int64_t>(offset - longest_, 0)));
  for (; portion != portions_.end() && portion->first * kPortion < end; ++portion) {
    // Places do not overlap each other, so their ends rise like their offsets.
    auto next = std::partition_point(portion->second.begin(), portion->second.end(),
                                     [&](const HeldPlace& place) { return place.End() <= offset; });
    for (; next != portion->second.end() && next->offset < end; ++next) {
      const HeldPlace& place = *next;
      const std::int64_t first = std::max(place.offset, offset);
      const std::int64_t last = std::min(place.offset + std::int64_t{place.new_size}, end);
      if (first >= last) continue;
      const std::string& bytes = Bytes(place).new_bytes;
      std::copy_n(bytes.begin() + (first - place.offset), last - first,
                  into.begin() + (first - offset));
    }
  }
  return size;
}

void HeldFileChanges::WriteAt(std::int64_t offset, std::string_view bytes, ChangeGroup group) {
  if (bytes.empty()) return;
  FillCut(offset, group);
  WriteOver(offset, bytes, group);
}

// Holds zeros for bytes that a truncation has cut off, up to `end`, since the file is extended
// again.
void HeldFileChanges::FillCut(std::int64_t end, ChangeGroup group) {
  const std::int64_t cut = std::min(end, old_length_) - length_;
  if (cut > 0) WriteOver(length_, std::string(static_cast<std::size_t>(cut), '\0'), group);
}

void HeldFileChanges::WriteOver(std::int64_t offset, std::string_view bytes, ChangeGroup group) {
  const std::int64_t end = offset + std::ssize(bytes);
  length_ = std::max(length_, end);
  if (const HeldPlace* place = FindExact(offset, bytes.size())) {
    return Replace(*place, bytes, group);
  }
  if (!Overlaps(offset, end)) {
    return Insert(offset, group, OldBytes(offset, bytes.size()), bytes);
  }
  // Replaces the overlapping places by one place.
  const std::vector<HeldPlace> taken = TakeOverlapping(offset, end);
  const std::int64_t first = std::min(offset, taken.front().offset);
  std::int64_t last = end;
  for (const HeldPlace& place : taken) last = std::max(last, place.End());
  const auto size = static_cast<std::size_t>(last - first);
  std::string old_bytes(OldBytes(first, size));
  std::string new_bytes = old_bytes;
  new_bytes.resize(size);
  for (const HeldPlace& place : taken) {
    NoteShared(place.group, group);
    const auto at = static_cast<std::size_t>(place.offset - first);
    const HistoryPlace& held = Bytes(place);
    new_bytes.replace(at, held.new_bytes.size(), held.new_bytes);
    // The bytes that were read before the first write remain the old ones, even if another program
    // has changed the file since.
    if (at < old_bytes.size()) old_bytes.replace(at, held.old_bytes.size(), held.old_bytes);
  }
  new_bytes.replace(static_cast<std::size_t>(offset - first), bytes.size(), bytes);
  Insert(first, group, old_bytes, new_bytes);
}

void HeldFileChanges::Replace(const HeldPlace& place, std::string_view bytes, ChangeGroup group) {
  NoteShared(place.group, group);
  if (group == 0) group = place.group;
  const std::int64_t offset = place.offset;
  const std::string old_bytes = Bytes(place).old_bytes;
  Portion& portion = portions_[PortionOf(offset)];
  portion.erase(portion.begin() + (&place - portion.data()));
  Insert(offset, group, old_bytes, bytes);
}

void HeldFileChanges::Truncate(std::int64_t length, ChangeGroup group) {
  if (length > length_) {
    FillCut(length, group);
    length_ = length;
    return;
  }
  const std::vector<HeldPlace> taken = TakeOverlapping(length, length_);
  length_ = length;
  for (const HeldPlace& place : taken) {
    NoteShared(place.group, group);
    if (place.offset >= length) continue;
    const std::string new_bytes =
        Bytes(place).new_bytes.substr(0, static_cast<std::size_t>(length - place.offset));
    Insert(place.offset, group, OldBytes(place.offset, new_bytes.size()), new_bytes);
  }
}

bool HeldFileChanges::HasNetChange() const {
  return is_created() || length_ != old_length_ ||
         std::any_of(portions_.begin(), portions_.end(),
                     [](const auto& portion) { return !portion.second.empty(); });
}

void HeldFileChanges::ForEach(
    std::size_t record_length,
    const std::function<void(const HeldPlace&, std::string_view code)>& each) {
  for (const auto& [number, portion] : portions_) {
    for (const HeldPlace& place : portion) {
      code_.resize(place.code_size);
      store_.Read(place.stored, code_);
      each(place, code_);
    }
  }
  const std::size_t piece = record_length > 0 ? record_length : kWindow;
  for (std::int64_t offset = length_; offset < old_length_;) {
    const std::string_view old_bytes = OldBytes(offset, piece);
    code_.clear();
    AppendPlace(code_, old_bytes, {});
    each({.offset = offset, .old_size = static_cast<std::uint32_t>(old_bytes.size())}, code_);
    offset += std::ssize(old_bytes);
  }
}

const HistoryPlace& HeldFileChanges::Bytes(const HeldPlace& place) {
  code_.resize(place.code_size);
  store_.Read(place.stored, code_);
  CodeReader(code_).Place(place.old_size, place.new_size, PlaceParts::kWhole, bytes_);
  return bytes_;
}

const HeldPlace* HeldFileChanges::FindExact(std::int64_t offset, std::size_t size) const {
  const auto portion = portions_.find(PortionOf(offset));
  if (portion == portions_.end()) return nullptr;
  const auto place =
      std::lower_bound(portion->second.begin(), portion->second.end(), offset, StartsBefore);
  const bool exact = place != portion->second.end() && place->offset == offset &&
                     place->new_size == size && place->old_size <= size;
  return exact ? &*place : nullptr;
}

bool HeldFileChanges::Overlaps(std::int64_t offset, std::int64_t end) {
  const auto after = portions_.upper_bound(PortionOf(end - 1));
  for (auto portion = after; portion != portions_.begin();) {
    --portion;
    const Portion& places = portion->second;
    const auto next = std::lower_bound(places.begin(), places.end(), end, StartsBefore);
    if (next == places.begin()) continue;
    // Places do not overlap each other, so the last one before the end reaches farthest.
    return std::prev(next)->End() > offset;
  }
  return false;
}

std::vector<HeldPlace> HeldFileChanges::TakeOverlapping(std::int64_t offset, std::int64_t end) {
  std::vector<HeldPlace> taken;
  for (auto portion = portions_.begin(); portion != portions_.end();) {
    Portion& places = portion->second;
    for (auto place = places.begin(); place != places.end();) {
      if (place->offset < end && place->End() > offset) {
        taken.push_back(*place);
        place = places.erase(place);
      } else {
        ++place;
      }
    }
    portion = places.empty() ? portions_.erase(portion) : std::next(portion);
  }
  return taken;
}

// Stores a place. Stores nothing if its old and new bytes are equal.
void HeldFileChanges::Insert(std::int64_t offset, ChangeGroup group, std::string_view old_bytes,
                             std::string_view new_bytes) {
  code_.clear();
  if (!AppendPlace(code_, old_bytes, new_bytes)) return;
  const HeldPlace place{.offset = offset,
                        .old_size = static_cast<std::uint32_t>(old_bytes.size()),
                        .new_size = static_cast<std::uint32_t>(new_bytes.size()),
                        .group = group,
                        .code_size = static_cast<std::uint32_t>(code_.size()),
                        .stored = store_.Append(code_)};
  longest_ = std::max(longest_, place.End() - place.offset);
  Portion& portion = portions_[PortionOf(offset)];
  portion.insert(std::lower_bound(portion.begin(), portion.end(), offset, StartsBefore), place);
}

std::string_view HeldFileChanges::OldBytes(std::int64_t offset, std::size_t size) {
  const auto wanted = static_cast<std::size_t>(
      std::clamp<std::int64_t>(old_length_ - offset, 0, static_cast<std::int64_t>(size)));
  if (wanted == 0) return {};
  if (offset < window_.offset || offset + static_cast<std::int64_t>(wanted) > window_.End()) {
    // Reads ahead if the writes are sequential.
    const bool follows =
        offset >= window_.offset && offset <= window_.End() && !window_.bytes.empty();
    window_.bytes.resize(follows ? std::max(wanted, kWindow) : wanted);
    window_.offset = offset;
    window_.bytes.resize(OrHoldFailed([&] { return real_->ReadAt(offset, window_.bytes); }));
  }
  const auto first = static_cast<std::size_t>(offset - window_.offset);
  // The file is shorter if another program has cut it since.
  if (window_.bytes.size() < first + wanted) window_.bytes.resize(first + wanted);
  return std::string_view(window_.bytes).substr(first, wanted);
}

void HeldFileChanges::NoteShared(ChangeGroup a, ChangeGroup b) {
  if (a != b && on_shared) on_shared(a, b);
}

}  // namespace golf
