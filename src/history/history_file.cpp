#include "history/history_file.h"

#include <zlib.h>

#include <bit>
#include <utility>

#include "core/little_endian.h"

namespace golf {
namespace {

constexpr std::string_view kTitle = "Golf Transfer history 1\r\n";
constexpr std::string_view kMark = "Golf Transfer mark ";
constexpr std::size_t kPortionHead = 9;  // bytes of the kind, the length and the checksum
constexpr std::size_t kMostInPortion = std::size_t{1} << 24;
constexpr std::size_t kFullPortion = std::size_t{64} << 10;
constexpr std::size_t kFullBuffer = std::size_t{256} << 10;
constexpr std::uint64_t kMostInPlace = std::uint64_t{1} << 24;

std::uint32_t Checksum(HistoryPortion kind, std::string_view bytes) {
  const auto first = static_cast<unsigned char>(kind);
  const auto of_kind = crc32_z(0, &first, 1);
  return static_cast<std::uint32_t>(
      crc32_z(of_kind, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()));
}

template <class Number>
void AppendFixed(std::string& to, Number number) {
  to.resize(to.size() + sizeof(Number));
  StoreLittleEndian(to.data() + to.size() - sizeof(Number), number);
}

std::string MarkBytes(HistoryMark mark) {
  std::string bytes(kMark);
  bytes += std::to_string(static_cast<int>(mark));
  bytes += "\r\n";
  bytes.resize(kMarkSize, ' ');
  return bytes;
}

std::int64_t PlaceOf(HistoryMark mark) {
  return static_cast<std::int64_t>(static_cast<std::size_t>(mark) * kMarkSize);
}

std::string ReadExactly(PlatformFile& file, std::int64_t offset, std::size_t size) {
  std::string bytes(size, '\0');
  bytes.resize(file.ReadAt(offset, bytes));
  return bytes;
}

}  // namespace

HistoryWriter::HistoryWriter(HistoryGate& gate, const std::string& path) : gate_(gate) {
  gate_.Create(path);
  file_ = gate_.platform().Open(path, FileAccess::kAlone);
  if (file_->Length() > 0) {
    throw NumberedError(ErrorNumber::kPermissionDenied,
                        "Another run has written " + path + " meanwhile.");
  }
}

void HistoryWriter::Run(const RunTitle& title) {
  std::string bytes;
  AppendNumber(bytes, std::bit_cast<std::uint64_t>(title.moment));
  AppendText(bytes, title.command);
  AppendText(bytes, title.about);
  AppendNumber(bytes, static_cast<std::uint32_t>(title.undoes));
  AppendNumber(bytes, title.continues ? 1 : 0);
  Portion(HistoryPortion::kRun, bytes);
}

void HistoryWriter::Group(ChangeGroup group, std::string_view title) {
  AppendNumber(groups_, group);
  AppendText(groups_, title);
  if (groups_.size() >= kFullPortion) FlushGroups();
}

void HistoryWriter::File(const HistoryFileEntry& file) {
  FlushGroups();
  FlushPlaces();
  next_offset_ = 0;
  std::string bytes;
  AppendNumber(bytes, static_cast<std::uint64_t>(file.fate));
  AppendText(bytes, file.path);
  AppendNumber(bytes, static_cast<std::uint64_t>(file.old_length));
  AppendNumber(bytes, static_cast<std::uint64_t>(file.new_length));
  AppendText(bytes, file.kept_as);
  Portion(HistoryPortion::kFile, bytes);
  if (file.fate == FileFate::kDeleted) ++changes_;
}

void HistoryWriter::Place(const HeldPlace& place, std::string_view code) {
  AppendNumber(places_, static_cast<std::uint64_t>(place.offset - next_offset_));
  AppendNumber(places_, place.old_size);
  AppendNumber(places_, place.new_size);
  AppendNumber(places_, place.group);
  places_ += code;
  next_offset_ = place.End();
  ++changes_;
  if (places_.size() >= kFullPortion) FlushPlaces();
}

void HistoryWriter::Reference(const RecordReference& reference) {
  for (const RecordId* record : {&reference.from, &reference.to}) {
    AppendText(references_, record->file);
    AppendNumber(references_, static_cast<std::uint64_t>(record->record));
  }
  if (references_.size() >= kFullPortion) FlushReferences();
}

void HistoryWriter::Report(std::string_view report) {
  FlushAll();
  Portion(HistoryPortion::kReport, report.substr(0, kMostInPortion));
}

void HistoryWriter::Finish() {
  FlushAll();
  std::string changes;
  AppendFixed(changes, changes_);
  Portion(HistoryPortion::kEnd, changes);
  Flush();
  std::string first(kTitle);
  first.resize(static_cast<std::size_t>(kContentStart), '\0');  // the blocks of the marks are zeros
  gate_.Write(*file_, 0, first);
  gate_.Sync(*file_);
}

void HistoryWriter::FlushAll() {
  FlushGroups();
  FlushPlaces();
  FlushReferences();
}
void HistoryWriter::FlushGroups() { FlushBytes(HistoryPortion::kGroups, groups_); }
void HistoryWriter::FlushPlaces() { FlushBytes(HistoryPortion::kPlaces, places_); }
void HistoryWriter::FlushReferences() { FlushBytes(HistoryPortion::kReferences, references_); }

void HistoryWriter::FlushBytes(HistoryPortion kind, std::string& bytes) {
  if (bytes.empty()) return;
  Portion(kind, bytes);
  bytes.clear();
}

void HistoryWriter::Portion(HistoryPortion kind, std::string_view bytes) {
  pending_ += static_cast<char>(kind);
  AppendFixed(pending_, static_cast<std::uint32_t>(bytes.size()));
  AppendFixed(pending_, Checksum(kind, bytes));
  pending_ += bytes;
  if (pending_.size() >= kFullBuffer) Flush();
}

void HistoryWriter::Flush() {
  gate_.Write(*file_, end_, pending_);
  end_ += std::ssize(pending_);
  pending_.clear();
}

HistoryFile::HistoryFile(std::string path, std::unique_ptr<PlatformFile> file)
    : path_(std::move(path)), file_(std::move(file)) {}

bool HistoryFile::Has(HistoryMark mark) {
  return ReadExactly(*file_, PlaceOf(mark), kMarkSize) == MarkBytes(mark);
}

bool HistoryFile::IsTorn(HistoryMark mark) {
  const std::string bytes = ReadExactly(*file_, PlaceOf(mark), kMarkSize);
  return bytes.find_first_not_of('\0') != std::string::npos && bytes != MarkBytes(mark);
}

bool HistoryFile::IsCutInMarks() {
  const std::int64_t length = file_->Length();
  return length > 0 && length < kContentStart;
}

void HistoryFile::Put(HistoryGate& gate, HistoryMark mark) {
  gate.Write(*file_, PlaceOf(mark), MarkBytes(mark));
  gate.Sync(*file_);
}

void HistoryFile::Clear(HistoryGate& gate, HistoryMark mark) {
  gate.Write(*file_, PlaceOf(mark), std::string(kMarkSize, '\0'));
  gate.Sync(*file_);
}

HistoryFile::Portion HistoryFile::ReadPortion(std::int64_t& at) {
  const std::string head = ReadExactly(*file_, at, kPortionHead);
  Check(head.size() == kPortionHead);
  const std::size_t size = LoadLittleEndian<std::uint32_t>(head.data() + 1);
  Check(size <= kMostInPortion);
  Portion portion{static_cast<HistoryPortion>(head[0]),
                  ReadExactly(*file_, at + static_cast<std::int64_t>(kPortionHead), size)};
  at += static_cast<std::int64_t>(kPortionHead + size);
  Check(portion.bytes.size() == size &&
        Checksum(portion.kind, portion.bytes) == LoadLittleEndian<std::uint32_t>(head.data() + 5));
  return portion;
}

RunTitle HistoryFile::TitleOf(const Portion& portion) const {
  CodeReader in(portion.bytes);
  RunTitle title;
  title.moment = std::bit_cast<DateValue>(in.Number());
  title.command = in.Text();
  title.about = in.Text();
  title.undoes = static_cast<std::int32_t>(in.Number(INT32_MAX));
  title.continues = in.Number(1) == 1;
  Check(portion.kind == HistoryPortion::kRun && !in.failed() && IsDate(title.moment));
  return title;
}

HistoryFileEntry HistoryFile::EntryOf(const Portion& portion) const {
  CodeReader in(portion.bytes);
  HistoryFileEntry entry;
  entry.fate = static_cast<FileFate>(in.Number(2));
  entry.path = in.Text();
  entry.old_length = static_cast<std::int64_t>(in.Number(INT64_MAX));
  entry.new_length = static_cast<std::int64_t>(in.Number(INT64_MAX));
  entry.kept_as = in.Text();
  Check(!in.failed() && !entry.path.empty());
  return entry;
}

void HistoryFile::ReadGroups(std::string_view bytes, const Reader& reader) const {
  for (CodeReader in(bytes); !in.AtEnd();) {
    const auto group = static_cast<ChangeGroup>(in.Number(UINT32_MAX));
    const std::string_view title = in.Text();
    Check(!in.failed());
    if (reader.group) reader.group(group, title);
  }
}

void HistoryFile::ReadReferences(std::string_view bytes, const Reader& reader) const {
  CodeReader in(bytes);
  const auto record = [&] {
    RecordId id{.file = std::string(in.Text())};
    id.record = static_cast<std::int64_t>(in.Number(INT64_MAX));
    return id;
  };
  while (!in.AtEnd()) {
    RecordReference reference;
    reference.from = record();
    reference.to = record();
    Check(!in.failed());
    if (reader.reference) reader.reference(std::move(reference));
  }
}

void HistoryFile::Read(const Reader& reader) {
  std::int64_t at = kContentStart;
  const RunTitle title = Title(at);
  if (reader.run) reader.run(title);
  std::int64_t next_offset = -1;  // below 0 before the first file
  std::int64_t length = 0;        // the greater length of the current file
  while (true) {
    const Portion portion = ReadPortion(at);
    switch (portion.kind) {
      case HistoryPortion::kGroups:
        ReadGroups(portion.bytes, reader);
        break;
      case HistoryPortion::kFile: {
        const HistoryFileEntry entry = EntryOf(portion);
        next_offset = 0;
        length = std::max(entry.old_length, entry.new_length);
        if (reader.file) reader.file(entry);
        break;
      }
      case HistoryPortion::kPlaces:
        Check(next_offset >= 0);
        ReadPlaces(portion.bytes, length, next_offset, reader);
        break;
      case HistoryPortion::kReferences:
        ReadReferences(portion.bytes, reader);
        break;
      case HistoryPortion::kReport:
        if (reader.report) reader.report(portion.bytes);
        break;
      case HistoryPortion::kEnd:
        return Check(at == file_->Length());
      default:
        Check(false);
    }
  }
}

void HistoryFile::ReadPlaces(std::string_view bytes, std::int64_t length, std::int64_t& next_offset,
                             const Reader& reader) {
  CodeReader in(bytes);
  HistoryPlace place;
  while (!in.AtEnd()) {
    const std::uint64_t gap = in.Number(INT64_MAX / 2);
    const std::size_t old_size = in.Number(kMostInPlace);
    const std::size_t new_size = in.Number(kMostInPlace);
    place.group = static_cast<ChangeGroup>(in.Number(UINT32_MAX));
    place.offset = next_offset + static_cast<std::int64_t>(gap);
    Check(!in.failed() && place.offset < INT64_MAX / 2 && std::max(old_size, new_size) > 0);
    // A few bytes can describe a long place, so its length must be that of the file at most.
    Check(place.offset + static_cast<std::int64_t>(std::max(old_size, new_size)) <= length);
    in.Place(old_size, new_size, reader.parts, place);
    Check(!in.failed() && !place.changed.empty());
    next_offset = place.End();
    if (reader.place) reader.place(place);
  }
}

RunTitle HistoryFile::Title() {
  std::int64_t at = kContentStart;
  return Title(at);
}

RunTitle HistoryFile::Title(std::int64_t& at) {
  Check(ReadExactly(*file_, 0, kTitle.size()) == kTitle);
  return TitleOf(ReadPortion(at));
}

std::int64_t HistoryFile::CountChanges() {
  std::int64_t at = file_->Length() - static_cast<std::int64_t>(sizeof(std::uint64_t)) -
                    static_cast<std::int64_t>(kPortionHead);
  Check(at >= kContentStart);
  const Portion portion = ReadPortion(at);
  Check(portion.kind == HistoryPortion::kEnd && portion.bytes.size() == sizeof(std::uint64_t));
  return static_cast<std::int64_t>(LoadLittleEndian<std::uint64_t>(portion.bytes.data()));
}

bool HistoryFile::IsWhole() {
  try {
    Read({});
    return true;
  } catch (const DamagedHistory&) {
    return false;
  }
}

}  // namespace golf
