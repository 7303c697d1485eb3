#include "history/held_file_changes.h"

#include <algorithm>
#include <utility>

namespace golf {
namespace {

constexpr std::int64_t kPortion = 64 << 10;
constexpr std::size_t kWindow = std::size_t{64} << 10;

std::int64_t PortionOf(std::int64_t offset) { return offset / kPortion; }

bool StartsBefore(const HeldPlace& place, std::int64_t offset) { return place.offset < offset; }

}  // namespace

HeldFileChanges::HeldFileChanges(std::string path, std::shared_ptr<PlatformFile> real,
                                 SpillStore& store)
    : path_(std::move(path)), real_(std::move(real)), store_(store) {
  if (real_ != nullptr) old_length_ = length_ = kept_ = real_->Length();
}

std::size_t HeldFileChanges::ReadAt(std::int64_t offset, std::span<char> into) {
  if (offset >= length_) return 0;
  const auto size =
      static_cast<std::size_t>(std::min<std::int64_t>(length_ - offset, std::ssize(into)));
  const std::int64_t from_file = std::clamp<std::int64_t>(kept_ - offset, 0, std::ssize(into));
  std::size_t read = 0;
  if (from_file > 0) {
    read = real_->ReadAt(offset, into.first(static_cast<std::size_t>(from_file)));
  }
  std::fill(into.begin() + static_cast<std::ptrdiff_t>(read), into.end(), '\0');

  const std::int64_t end = offset + static_cast<std::int64_t>(size);
  // A place may begin in an earlier portion and reach into this one.
  auto portion = portions_.lower_bound(PortionOf(std::max<std::int64_t>(offset - longest_, 0)));
  for (; portion != portions_.end() && portion->first * kPortion < end; ++portion) {
    for (const HeldPlace& place : portion->second) {
      const std::int64_t first = std::max(place.offset, offset);
      const std::int64_t last = std::min(place.offset + std::int64_t{place.new_size}, end);
      if (first >= last) continue;
      store_.Read(place.stored + (first - place.offset),
                  into.subspan(static_cast<std::size_t>(first - offset),
                               static_cast<std::size_t>(last - first)));
    }
  }
  return size;
}

void HeldFileChanges::WriteAt(std::int64_t offset, std::string_view bytes, ChangeGroup group) {
  if (bytes.empty()) return;
  FillCut(offset, group);
  WriteOver(offset, bytes, group);
}

// What a truncation has cut off reads as zeros where the file grows again.
void HeldFileChanges::FillCut(std::int64_t end, ChangeGroup group) {
  const std::int64_t cut = std::min(end, old_length_) - length_;
  if (cut > 0) WriteOver(length_, std::string(static_cast<std::size_t>(cut), '\0'), group);
}

void HeldFileChanges::WriteOver(std::int64_t offset, std::string_view bytes, ChangeGroup group) {
  const std::int64_t end = offset + std::ssize(bytes);
  length_ = std::max(length_, end);
  if (HeldPlace* place = FindExact(offset, bytes.size())) {
    NoteShared(place->group, group);
    return store_.Replace(place->stored, bytes);
  }
  if (!Overlaps(offset, end)) {
    HeldPlace place{.offset = offset, .group = group};
    return Insert(place, bytes, OldBytes(offset, bytes.size()));
  }
  // Several places become one.
  const std::vector<HeldPlace> taken = TakeOverlapping(offset, end);
  const std::int64_t first = std::min(offset, taken.front().offset);
  std::int64_t last = end;
  for (const HeldPlace& place : taken) last = std::max(last, place.End());
  const auto size = static_cast<std::size_t>(last - first);
  std::string old_bytes = OldBytes(first, size);
  std::string new_bytes(size, '\0');
  old_bytes.copy(new_bytes.data(), old_bytes.size());
  for (const HeldPlace& place : taken) {
    NoteShared(place.group, group);
    const auto at = static_cast<std::size_t>(place.offset - first);
    store_.Read(place.stored, std::span(new_bytes).subspan(at, place.new_size));
    // The bytes as they were at the first write hold, whatever the disk says by now.
    if (place.old_size == 0) continue;
    store_.Read(place.stored + place.new_size, std::span(old_bytes).subspan(at, place.old_size));
  }
  bytes.copy(new_bytes.data() + (offset - first), bytes.size());
  Insert({.offset = first, .group = group}, new_bytes, old_bytes);
}

void HeldFileChanges::Truncate(std::int64_t length, ChangeGroup group) {
  if (length > length_) {
    FillCut(length, group);
    length_ = length;
    return;
  }
  const std::vector<HeldPlace> taken = TakeOverlapping(length, length_);
  length_ = length;
  kept_ = std::min(kept_, length);
  for (const HeldPlace& place : taken) {
    NoteShared(place.group, group);
    if (place.offset >= length) continue;
    std::string new_bytes(static_cast<std::size_t>(length - place.offset), '\0');
    store_.Read(place.stored, new_bytes);
    Insert({.offset = place.offset, .group = group}, new_bytes,
           OldBytes(place.offset, new_bytes.size()));
  }
}

void HeldFileChanges::ForEach(const EachPlace& each) {
  std::string bytes;
  for (const auto& [number, portion] : portions_) {
    for (const HeldPlace& place : portion) {
      bytes.resize(std::size_t{place.new_size} + place.old_size);
      store_.Read(place.stored, bytes);
      const std::string_view both = bytes;
      each(place, both.substr(place.new_size), both.substr(0, place.new_size));
    }
  }
  for (std::int64_t offset = length_; offset < old_length_;) {
    const std::string old_bytes = OldBytes(offset, kWindow);
    if (old_bytes.empty()) break;
    each({.offset = offset, .old_size = static_cast<std::uint32_t>(old_bytes.size())}, old_bytes,
         {});
    offset += std::ssize(old_bytes);
  }
}

bool HeldFileChanges::Differs() {
  if (is_created() || length_ != old_length_) return true;
  bool differs = false;
  ForEach([&](const HeldPlace&, std::string_view old_bytes, std::string_view new_bytes) {
    differs = differs || old_bytes != new_bytes;
  });
  return differs;
}

HeldPlace* HeldFileChanges::FindExact(std::int64_t offset, std::size_t size) {
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

void HeldFileChanges::Insert(HeldPlace place, std::string_view new_bytes,
                             std::string_view old_bytes) {
  place.new_size = static_cast<std::uint32_t>(new_bytes.size());
  place.old_size = static_cast<std::uint32_t>(old_bytes.size());
  place.stored = store_.Append(std::string(new_bytes).append(old_bytes));
  longest_ = std::max(longest_, place.End() - place.offset);
  Portion& portion = portions_[PortionOf(place.offset)];
  portion.insert(std::lower_bound(portion.begin(), portion.end(), place.offset, StartsBefore),
                 place);
}

std::string HeldFileChanges::OldBytes(std::int64_t offset, std::size_t size) {
  const auto wanted = static_cast<std::size_t>(
      std::clamp<std::int64_t>(old_length_ - offset, 0, static_cast<std::int64_t>(size)));
  if (wanted == 0) return {};
  const std::int64_t window_end = window_offset_ + std::ssize(window_);
  if (offset < window_offset_ || offset + static_cast<std::int64_t>(wanted) > window_end) {
    // Writes that follow each other read ahead.
    const bool follows = offset >= window_offset_ && offset <= window_end && !window_.empty();
    window_.resize(follows ? std::max(wanted, kWindow) : wanted);
    window_offset_ = offset;
    window_.resize(real_->ReadAt(offset, window_));
  }
  std::string bytes = window_.substr(static_cast<std::size_t>(offset - window_offset_), wanted);
  bytes.resize(wanted);
  return bytes;
}

void HeldFileChanges::NoteShared(ChangeGroup a, ChangeGroup b) {
  if (a != b && on_shared) on_shared(a, b);
}

}  // namespace golf
