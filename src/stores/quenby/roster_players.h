#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/number_text.h"
#include "core/shared_state.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf {

// Lower records are never used for a golfer.
inline constexpr std::int16_t kFirstGolferRecord = 10;
// This is the ID of a record that is never used again.
inline constexpr std::int32_t kNeverAgain = -1;

// Reads and writes the golfers of all Quenby rosters, in the file QBGOLFER.Q9D of StoreDataPath.
// The buffer contains one golfer. This is the base class of the tournament players. Getters trim
// texts. Setters trim them and cut them to the width of their field. A getter marked "corrects"
// replaces a stored value that is out of its range, in the buffer only. An index out of its range
// raises error 9. A number too large for its field raises error 6. Functions on files raise the
// errors of FileTable.
class RosterPlayers {
 public:
  explicit RosterPlayers(SharedState& state) : state_(state) {}
  RosterPlayers(const RosterPlayers&) = delete;
  RosterPlayers& operator=(const RosterPlayers&) = delete;
  virtual ~RosterPlayers() = default;

  void OpenRosterFile();
  void CloseRosterFile();
  bool IsRosterFileOpen() const { return file_ > 0; }
  std::int32_t RosterFileLength();
  void BlankPlayerRecord();
  // Returns the number of the first free record, beginning at `start`. The search never begins
  // below record 10: a lower `start` is set to 10. If no record is free, returns the number after
  // the last record of the file, but at least `start`. Afterwards the buffer contains the last
  // record read.
  std::int32_t FindAvailableRecordInRosterFile(std::int16_t& start);
  // Returns the number of the record in the buffer, in the format "000".
  std::string RecordNumber() const;
  bool PlayerExists() const { return player_.Get<"IDNum">() >= 1; }

  bool PrintPlayer() const { return IsFlagged<"PrintPlayer">(); }
  // Sets the flag for "Y", and clears it for any other text.
  void SetPrintPlayer(std::string_view value);
  int Cart() const { return IsFlagged<"Cart">() ? 1 : 0; }
  void SetCart(bool value) { SetFlag<"Cart">(value); }
  std::string CartString() const { return IsFlagged<"Cart">() ? "Y" : " "; }

  // Returns the ID as text, or an empty text for a record without a golfer.
  std::string IDNum() const;
  void SetIDNum(double value);
  std::int32_t StoredID() const { return player_.Get<"IDNum">(); }
  // Reads only the ID of a record. Does not change the player in the buffer.
  std::int32_t StoredIDOf(std::int32_t record) const;

  // Return or set the roster numbers in slots 1 to 4. 0 means no roster. SetRosters clears the same
  // number in the other slots 1 to 3. Then it moves these three slots up, so that no empty slot
  // precedes a used one.
  std::int16_t Rosters(int n) const { return player_.Get<"Rosters">(n); }
  void SetRosters(int n, double value);
  // Returns the names of the rosters in slots 1 to 3 if `which` is 0. If `which` is 1 to 4, returns
  // the display text of that slot, with the roster number at its end. Reads the roster list of the
  // shared Program.
  std::string RosterNames(int which);

  std::string NameFirst() const { return Text<"NameFirst">(); }
  void SetNameFirst(std::string_view value) { SetText<"NameFirst">(value); }
  std::string NameLast() const { return Text<"NameLast">(); }
  void SetNameLast(std::string_view value) { SetText<"NameLast">(value); }
  // Returns "Last, First". Returns an empty text if there is no last name.
  std::string NameLF() const;
  std::string NameFL() const;

  std::uint8_t SexIndice();  // corrects to 0
  std::string sex() const { return player_.Get<"Sex">() == 0 ? "M" : "F"; }
  void Setsex(std::string_view value);

  std::string AddressHomeLine(int n) const { return Text<"AddressHomeLine">(n); }
  void SetAddressHomeLine(int n, std::string_view value) { SetText<"AddressHomeLine">(n, value); }
  std::string AddressHomeFull() const;
  std::string AddressWorkLine(int n) const { return Text<"AddressWorkLine">(n); }
  void SetAddressWorkLine(int n, std::string_view value) { SetText<"AddressWorkLine">(n, value); }
  std::string AddressWorkFull() const;
  std::string PhoneHome() const { return Text<"PhoneHome">(); }
  void SetPhoneHome(std::string_view value) { SetText<"PhoneHome">(value); }
  std::string PhoneWork() const { return Text<"PhoneWork">(); }
  void SetPhoneWork(std::string_view value) { SetText<"PhoneWork">(value); }
  std::string PhoneFax() const { return Text<"PhoneFax">(); }
  void SetPhoneFax(std::string_view value) { SetText<"PhoneFax">(value); }
  std::string Email() const { return Text<"Email">(); }
  void SetEmail(std::string_view value) { SetText<"Email">(value); }
  std::string GroupText() const { return Text<"GroupText">(); }
  void SetGroupText(std::string_view value) { SetText<"GroupText">(value); }
  std::string ReportFlags() const { return Text<"ReportFlags">(); }
  void SetReportFlags(std::string_view value) { SetText<"ReportFlags">(value); }
  std::string MiscText(int n) const { return Text<"MiscText">(n); }
  void SetMiscText(int n, std::string_view value) { SetText<"MiscText">(n, value); }
  std::string DueComment() const { return Text<"DueComment">(); }
  void SetDueComment(std::string_view value) { SetText<"DueComment">(value); }
  std::string Comments() const { return Text<"Comments">(); }
  void SetComments(std::string_view value) { SetText<"Comments">(value); }
  std::string MiscInTourText(int n) const { return Text<"MiscInTourText">(n); }
  void SetMiscInTourText(int n, std::string_view value) { SetText<"MiscInTourText">(n, value); }

  std::string Flight();  // corrects to "A"
  void SetFlight(std::string_view value);
  std::int16_t GroupTee();  // corrects to 1
  // Sets `value` to 1 in place if it is outside 1 to 5.
  void SetGroupTee(double& value);
  std::string PreferredTime() const;  // "Early", "Middle", "Late" or "None"
  void SetPreferredTime(std::string_view value);

  // Return or set the handicap index in strokes, with one decimal. A negative index is a plus
  // index. Index() shows it with a plus sign, IndexValue() with a minus sign.
  std::string Index() const;
  std::string IndexValue() const;
  void SetIndex(double value) { player_.Set<"Index">(CheckedSingle(value)); }
  // Return or set the handicap in strokes. The getters return text with two decimals or none. A
  // negative handicap is a plus handicap. Handicap() shows it with a plus sign, HandicapValue()
  // with a minus sign.
  std::string Handicap(bool decimals) const;
  std::string HandicapValue(bool decimals) const;
  void SetHandicap(double value) { player_.Set<"Handicap">(CheckedSingle(value)); }

  DateValue MiscDate(int n) const { return player_.Get<"MiscDate">(n); }
  void SetMiscDate(int n, DateValue value) { player_.Set<"MiscDate">({n}, value); }
  // Returns the date in the date format of the shared state. Returns an empty text if `n` is not 1
  // or 2.
  std::string MiscDateString(int n) const;
  DateValue DueDate() const { return player_.Get<"DueDate">(); }
  void SetDueDate(DateValue value) { player_.Set<"DueDate">(value); }
  std::string DueDateString() const;
  // The parameter of a setter is the amount times 10000. A getter returns the amount in the format
  // "0.00".
  std::string MiscCurrency(int n) const;
  void SetMiscCurrency(int n, std::int64_t value) { player_.Set<"MiscCurrency">({n}, value); }
  std::string DueAmount() const;
  void SetDueAmount(std::int64_t value) { player_.Set<"DueAmount">(value); }

 protected:
  SharedState& state() const { return state_; }

  // Reads a golfer's record into the buffer. Returns false and reads nothing if the number is below
  // 1.
  bool ReadPlayer(std::int32_t record);
  void WritePlayer();

  // Contains an element per round. It is true if the results must be calculated again. Every read
  // and save sets all elements.
  std::array<bool, kRounds> recalculate_{};

  std::int32_t held_ = 0;             // the number of the record in the buffer
  bool entry_was_read_last_ = false;  // true if the last read or save was for an entry

 private:
  template <FieldName kName>
  std::string Text() const {
    return std::string(Trim(player_.Get<kName>()));
  }
  template <FieldName kName>
  std::string Text(int n) const {
    return std::string(Trim(player_.Get<kName>(n)));
  }
  template <FieldName kName>
  void SetText(std::string_view value) {
    player_.Set<kName>(Trim(value));
  }
  template <FieldName kName>
  void SetText(int n, std::string_view value) {
    player_.Set<kName>({n}, Trim(value));
  }
  template <FieldName kName>
  bool IsFlagged() const {
    return (player_.Get<kName>() & 1) != 0;
  }
  // Clearing the flag also clears bits 9 to 15.
  template <FieldName kName>
  void SetFlag(bool value) {
    const int word = player_.Get<kName>();
    player_.Set<kName>(static_cast<std::int16_t>(value ? word | 1 : word & 0x1FE));
  }

  std::string NameOfRoster(int roster);

  SharedState& state_;
  int file_ = 0;
  Record<PlayerLayout> player_;
};

// Convert between 1, 2, 3 and "Early", "Middle", "Late". Any other number is converted to "None",
// and any other text to 0.
std::string PreferredTimeName(int number);
std::int16_t PreferredTimeNumber(std::string_view name);

// Convert an amount times 10000 to whole cents, rounded half away from zero, and to text in the
// format "0.00".
std::int64_t CurrencyInCents(std::int64_t value);
std::string FormatCurrency(std::int64_t value);

}  // namespace golf
