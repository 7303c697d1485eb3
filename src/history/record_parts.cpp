#include "history/record_parts.h"

#include <algorithm>
#include <utility>

namespace golf {
namespace {

std::string_view Slice(std::string_view bytes, std::size_t at, std::size_t size) {
  return bytes.substr(std::min(at, bytes.size()), size);
}

void AppendSide(std::string& side, std::size_t size, const std::string& more) {
  if (more.empty()) return;
  side.resize(size);
  side += more;
}

}  // namespace

std::string WholeRecord(const RecordPart& part, const std::string& side, std::string record) {
  const bool is_whole = part.at == 0 && part.size == record.size();
  const bool is_cut = side.size() < part.size;
  const bool is_zero = side.find_first_not_of('\0') == std::string::npos;
  if (side.empty() ? is_whole : is_whole && is_cut && is_zero) return {};
  record.replace(part.at, part.size, part.size, '\0').replace(part.at, side.size(), side);
  return record;
}

void RecordParts::Begin(std::size_t length) {
  Finish();
  length_ = length;
}

void RecordParts::Take(std::int64_t offset, ChangeGroup group, std::string_view old_bytes,
                       std::string_view new_bytes) {
  if (length_ == 0) return;
  const auto length = static_cast<std::int64_t>(length_);
  const std::size_t size = std::max(old_bytes.size(), new_bytes.size());
  for (std::size_t at = 0; at < size;) {
    const std::int64_t place = offset + static_cast<std::int64_t>(at);
    RecordPart part{.record = place / length + 1,
                    .at = static_cast<std::size_t>(place % length),
                    .group = group,
                    .old_bytes = {},
                    .new_bytes = {}};
    part.size = std::min(length_ - part.at, size - at);
    part.old_bytes = Slice(old_bytes, at, part.size);
    part.new_bytes = Slice(new_bytes, at, part.size);
    at += part.size;
    Append(part);
  }
}

void RecordParts::Append(const RecordPart& part) {
  if (part_.record != part.record || part_.at + part_.size != part.at) {
    Finish();
    part_ = part;
    return;
  }
  AppendSide(part_.old_bytes, part_.size, part.old_bytes);
  AppendSide(part_.new_bytes, part_.size, part.new_bytes);
  part_.size += part.size;
  if (part_.group == 0) part_.group = part.group;
}

void RecordParts::Finish() {
  if (part_.record != 0) each_(part_);
  part_ = {};
}

}  // namespace golf
