#include "stores/quenby/roster_players.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "core/number_text.h"
#include "core/text.h"
#include "stores/quenby/program_class.h"

namespace golf {
namespace {

constexpr int kMostRosterNumber = 255;

constexpr std::array<std::string_view, 4> kPreferredTimes = {"None", "Early", "Middle", "Late"};

std::string JoinedLines(const std::string& a, const std::string& b, const std::string& c) {
  const std::string joined = a + "; " + b + "; " + c;
  return joined == "; ; " ? std::string() : joined;
}

}  // namespace

std::string PreferredTimeName(int number) {
  const bool named = number >= 1 && number <= 3;
  return std::string(kPreferredTimes[static_cast<std::size_t>(named ? number : 0)]);
}

std::int16_t PreferredTimeNumber(std::string_view name) {
  const auto found =
      std::find_if(kPreferredTimes.begin() + 1, kPreferredTimes.end(),
                   [&](std::string_view time) { return EqualIgnoringCase(time, name); });
  return static_cast<std::int16_t>(
      found == kPreferredTimes.end() ? 0 : found - kPreferredTimes.begin());
}

std::int64_t CurrencyInCents(std::int64_t value) {
  const std::int64_t rest = value % 100;
  return value / 100 + (rest >= 50 ? 1 : 0) - (rest <= -50 ? 1 : 0);
}

std::string FormatCurrency(std::int64_t value) {
  const std::int64_t cents = std::abs(CurrencyInCents(value));
  const std::string digits = std::to_string(100 + cents % 100);
  return (value < 0 ? "-" : "") + std::to_string(cents / 100) + "." + digits.substr(1);
}

void RosterPlayers::OpenRosterFile() {
  state_.files.Close(file_);
  file_ = state_.files.FreeNumber();
  state_.files.Open(file_, state_.StoreDataPath + "QBGOLFER.Q9D", PlayerLayout::kLength);
}

void RosterPlayers::CloseRosterFile() { state_.files.Close(std::exchange(file_, 0)); }

std::int32_t RosterPlayers::RosterFileLength() {
  return state_.files.RecordCount<PlayerLayout>(file_);
}

bool RosterPlayers::ReadPlayer(std::int32_t record) {
  if (record <= 0) return false;
  entry_was_read_last_ = false;
  state_.files.Read(file_, record, player_);
  held_ = record;
  recalculate_.fill(true);
  return true;
}

void RosterPlayers::WritePlayer() {
  state_.files.Write(file_, held_, player_);
  recalculate_.fill(true);
}

std::string RosterPlayers::RecordNumber() const { return FormatNumber(held_, "000"); }

void RosterPlayers::BlankPlayerRecord() {
  static const Record<PlayerLayout> kBlank = [] {
    Record<PlayerLayout> blank;
    for (const Field& field : PlayerLayout::kFields) FillField(field, blank.MutableBytes(), 0);
    blank.Set<"Flight">("A");
    return blank;
  }();
  player_ = kBlank;
  player_.Fill<"MiscDate">(state_.Now());
  player_.Fill<"DueDate">(state_.Now());
}

std::int32_t RosterPlayers::FindAvailableRecordInRosterFile(std::int16_t& start) {
  start = std::max(start, kFirstGolferRecord);
  const std::int32_t length = RosterFileLength();
  for (std::int32_t record = start; record <= length; ++record) {
    ReadPlayer(record);
    if (!PlayerExists() && StoredID() != kNeverAgain) return record;
  }
  return std::max<std::int32_t>(length + 1, start);
}

void RosterPlayers::SetPrintPlayer(std::string_view value) {
  SetFlag<"PrintPlayer">(EqualIgnoringCase(value, "Y"));
}

std::string RosterPlayers::IDNum() const {
  return FormatNumber(int{player_.Get<"IDNum">()}, "0;;");
}

std::int32_t RosterPlayers::StoredIDOf(std::int32_t record) const {
  constexpr Field kId = FieldOf<PlayerLayout, "IDNum">();
  std::array<char, kId.offset + sizeof(std::int32_t)> start;
  state_.files.ReadBytes(file_, record, start);
  return LoadLittleEndian<std::int32_t>(start.data() + kId.offset);
}

void RosterPlayers::SetIDNum(double value) { player_.Set<"IDNum">(RoundToInt32(value)); }

void RosterPlayers::SetRosters(int n, double value) {
  const std::int16_t roster = RoundToInt16(value);
  const auto set = [this](int slot, std::int16_t to) { player_.Set<"Rosters">({slot}, to); };
  for (int slot = 1; slot <= 3 && roster != 0; ++slot) {
    if (slot != n && Rosters(slot) == roster) set(slot, 0);
  }
  set(n, roster);
  if (Rosters(2) < 1) {
    set(2, Rosters(3));
    set(3, 0);
  }
  if (Rosters(1) < 1) {
    set(1, Rosters(2));
    set(2, Rosters(3));
    set(3, 0);
  }
}

std::string RosterPlayers::NameOfRoster(int roster) {
  state_.Program().GetRosterRecord(roster);
  return state_.Program().ClubName();
}

std::string RosterPlayers::RosterNames(int which) {
  const auto is_roster = [](int number) { return number >= 1 && number <= kMostRosterNumber; };
  if (which == 0) {
    std::string names;
    for (int slot = 1; slot <= 3; ++slot) {
      if (!is_roster(Rosters(slot))) continue;
      names += (slot > 1 ? ";  " : "") + NameOfRoster(Rosters(slot));
    }
    return names;
  }
  const int roster = Rosters(which);
  if (!is_roster(roster)) {
    const char* none = which == 1 ? "(Not in a roster)" : "(Not in another roster)";
    return none + std::string(30, ' ') + "000";
  }
  return NameOfRoster(roster) + std::string(50, ' ') + FormatNumber(roster, "000");
}

std::string RosterPlayers::NameLF() const {
  const std::string name = NameLast() + ", " + NameFirst();
  return name.starts_with(',') ? std::string() : name;
}

// Returns the first name alone if there is no last name. Returns a blank and the last name if there
// is no first name.
std::string RosterPlayers::NameFL() const {
  const std::string last = NameLast();
  return last.empty() ? NameFirst() : NameFirst() + " " + last;
}

std::uint8_t RosterPlayers::SexIndice() {
  if (player_.Get<"Sex">() >= 2) player_.Set<"Sex">(0);
  return player_.Get<"Sex">();
}

void RosterPlayers::Setsex(std::string_view value) {
  player_.Set<"Sex">(EqualIgnoringCase(value, "F") ? 1 : 0);
}

std::string RosterPlayers::AddressHomeFull() const {
  return JoinedLines(AddressHomeLine(1), AddressHomeLine(2), AddressHomeLine(3));
}

std::string RosterPlayers::AddressWorkFull() const {
  return JoinedLines(AddressWorkLine(1), AddressWorkLine(2), AddressWorkLine(3));
}

std::string RosterPlayers::Flight() {
  const char flight = player_.Get<"Flight">()[0];
  if (flight < 'A' || flight > 'Z') player_.Set<"Flight">("A");
  return player_.Get<"Flight">();
}

void RosterPlayers::SetFlight(std::string_view value) { player_.Set<"Flight">(value); }

std::int16_t RosterPlayers::GroupTee() {
  const int group = player_.Get<"GroupTee">();
  if (group < 1 || group > kTeeGroups) player_.Set<"GroupTee">(1);
  return player_.Get<"GroupTee">();
}

void RosterPlayers::SetGroupTee(double& value) {
  if (value < 1 || value > kTeeGroups) value = 1;
  player_.Set<"GroupTee">(RoundToInt16(value));
}

std::string RosterPlayers::PreferredTime() const {
  return PreferredTimeName(player_.Get<"PreferredTime">());
}

void RosterPlayers::SetPreferredTime(std::string_view value) {
  player_.Set<"PreferredTime">(PreferredTimeNumber(value));
}

std::string RosterPlayers::Index() const {
  return FormatNumber(player_.Get<"Index">(), "#0.0;+0.0");
}
std::string RosterPlayers::IndexValue() const {
  return FormatNumber(player_.Get<"Index">(), "#0.0;-0.0");
}
std::string RosterPlayers::Handicap(bool decimals) const {
  return FormatPlusHandicap(player_.Get<"Handicap">(), decimals);
}
std::string RosterPlayers::HandicapValue(bool decimals) const {
  return FormatSignedHandicap(player_.Get<"Handicap">(), decimals);
}

std::string RosterPlayers::MiscDateString(int n) const {
  return n == 1 || n == 2 ? FormatDay(MiscDate(n), state_.DateFormat) : std::string();
}
std::string RosterPlayers::DueDateString() const { return FormatDay(DueDate(), state_.DateFormat); }
std::string RosterPlayers::MiscCurrency(int n) const {
  return FormatCurrency(player_.Get<"MiscCurrency">(n));
}
std::string RosterPlayers::DueAmount() const { return FormatCurrency(player_.Get<"DueAmount">()); }

}  // namespace golf
