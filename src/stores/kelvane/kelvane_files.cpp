#include "stores/kelvane/kelvane_files.h"

#include "core/file_name.h"
#include "core/text.h"

namespace golf {
namespace {

constexpr std::int16_t kSystemVersion = 500;
constexpr int kUnusedFile = 201;  // never opened, but closed like the other files

// Sets those numbers of a new roster whose default is not 0.
void FillNumbers(Record<KelvaneHeaderLayout>& header) {
  header.Fill<"Version">(5000);
  header.Fill<"Setting154">(639);
  header.Fill<"Setting158">(1);
  header.Fill<"Setting160">(1);
  header.Fill<"Setting164">(1);
  header.Fill<"Setting174">(1);
  header.Fill<"Slope200">(113);
  header.Fill<"Setting209">(36.0);
  header.Fill<"Slope213">(113);
  header.Fill<"Setting214">(1);
  header.Fill<"Setting216">(1);
  header.Fill<"HandicapMethod">(1);
  header.Fill<"Setting253">(80.0);
  header.Fill<"Setting257">(10);
  header.Fill<"Setting259">(1);
  header.Fill<"Setting409">(1);
  header.Fill<"Setting415">(-1);
}

void FillBlanks(Record<KelvaneHeaderLayout>& header) {
  for (const Field& field : KelvaneHeaderLayout::kFields) {
    if (field.type == FieldType::kText) FillField(field, header.MutableBytes(), 0);
  }
}

template <FieldName kName>
void NameFields(Record<KelvaneHeaderLayout>& header, const std::string& name, int count) {
  for (int i = 1; i <= count; ++i) header.Set<kName>({i}, name + std::to_string(i));
}

void FillSystemDefaults(Record<KelvaneSystemLayout>& system) {
  system = {};
  system.Set<"Version">(kSystemVersion);
  system.Set<"RosterName">("None");
  system.Set<"Setting130">("None");
  system.Set<"Setting192">(255);
  for (int i = 1; i <= 9; ++i) system.Set<"FontName">({i}, "MS Sans Serif");
}

}  // namespace

KelvaneBuffers::KelvaneBuffers() { FillBlanks(header); }

void LoadKVSystemFile(SharedState& state) {
  FileTable& files = state.files;
  auto& system = state.Kelvane().system;
  files.Close(kKelvaneSystemFile);
  files.Open(kKelvaneSystemFile, state.ProgramPath + "KVSYSTEM.FIL", KelvaneSystemLayout::kLength,
             FileAccess::kDefault);
  files.Read(kKelvaneSystemFile, 1, system);
  if (system.Get<"Version">() == kSystemVersion) return;
  FillSystemDefaults(system);
  files.Write(kKelvaneSystemFile, 1, system);
}

bool OpenKVRoster(SharedState& state, std::string_view roster_name) {
  if (!FitsFileName(roster_name)) return false;
  const std::string base = state.KVDataPath + std::string(roster_name);
  FileTable& files = state.files;
  if (!files.FileExists(base + ".kv5")) return false;
  CloseKVFiles(state);
  files.Open(kKelvaneHeaderFile, base + ".kv5", KelvaneHeaderLayout::kLength);
  files.Open(kKelvaneGolferFile, base + ".kvg", KelvaneGolferLayout::kLength);
  files.Open(kKelvaneScoreFile, base + ".kvs", KelvaneHistoryLayout::kLength);
  files.Open(kKelvaneReportsFile, state.KVDataPath + "REPORTS.CFG", KelvaneReportsLayout::kLength);
  return true;
}

void CloseKVFiles(SharedState& state) {
  for (const int number : {kKelvaneReportsFile, kKelvaneScoreFile, kUnusedFile, kKelvaneGolferFile,
                           kKelvaneHeaderFile}) {
    state.files.Close(number);
  }
}

void BuildBlankKVHeader(SharedState& state, std::uint8_t holes) {
  auto& header = state.Kelvane().header;
  header = {};
  FillBlanks(header);
  FillNumbers(header);
  header.Set<"Holes">(holes);
  header.Fill<"CounterDate">(state.Now());
  const bool nine = holes == 9;
  for (int sex = 0; sex <= 1; ++sex) {
    header.Set<"MaximumHandicap">(
        {sex}, static_cast<std::int16_t>((nine ? 18 : 36) + sex * (nine ? 2 : 4)));
  }
  header.Set<"MaximumIndex">({0}, nine ? 18.2f : 36.4f);
  header.Set<"MaximumIndex">({1}, nine ? 20.2f : 40.4f);
  NameFields<"MiscTextName">(header, "Misc Text", 20);
  NameFields<"MiscDateName">(header, "Misc Date", 5);
  NameFields<"MiscCurrName">(header, "Misc Curr", 5);
}

std::string KVGolferName(const Record<KelvaneGolferLayout>& golfer) {
  return GolferTitle(golfer.View<"NameFirst">(), golfer.View<"NameLast">(), golfer.Get<"IDNum">());
}

std::string KVGolferNameLF(const Record<KelvaneGolferLayout>& golfer) {
  return GolferTitleLF(golfer.View<"NameFirst">(), golfer.View<"NameLast">(),
                       golfer.Get<"IDNum">());
}

std::string ReadKVGolferNameLF(SharedState& state, std::int64_t place) {
  auto& golfer = state.Kelvane().golfer;
  state.files.Read(kKelvaneGolferFile, place, golfer);
  return IsGolfer(golfer) ? KVGolferNameLF(golfer) : std::string();
}

std::int32_t KVGolferPlaces(SharedState& state) {
  return state.files.RecordCount<KelvaneGolferLayout>(kKelvaneGolferFile);
}

}  // namespace golf
