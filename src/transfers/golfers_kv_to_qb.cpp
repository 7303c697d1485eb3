#include "transfers/golfers_kv_to_qb.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/take_records.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/quenby/free_golfer_places.h"
#include "stores/quenby/tournament_players.h"

namespace golf {
namespace {

// Finds Quenby's golfers as they were before the run. The index contains the first record of each
// ID and the free places. Golfers added during the run are not in the index. A search for an ID of
// 0 finds the first record without a golfer.
class QuenbyGolfers {
 public:
  QuenbyGolfers(TournamentPlayers& player, std::int32_t length) : places(length) {
    unread_ = TakeRecords(kFirstGolferRecord, length, [&](std::int32_t record) {
      const std::int32_t id = player.StoredIDOf(record);
      places.Note(record, id);
      records_.push_back({std::max(id, 0), record});
    });
    std::sort(records_.begin(), records_.end());
  }

  // Raises a ReadError if some record could not be read. That record may contain a golfer who was
  // not found, and adding the golfer could create a duplicate.
  void CheckAllRead() const {
    if (unread_.empty()) return;
    throw ReadError({ErrorNumber::kDeviceFault,
                     "Record " + std::to_string(unread_.front()) +
                         " of Quenby's golfer file cannot be read, and he may stand there."});
  }
  // Returns the first record with this ID, or 0 if there is none.
  std::int32_t Find(std::int32_t id) const {
    const auto found = std::lower_bound(records_.begin(), records_.end(), std::pair(id, 0));
    return found == records_.end() || found->first != id ? 0 : found->second;
  }

  FreeGolferPlaces places;

 private:
  std::vector<std::pair<std::int32_t, std::int32_t>> records_;  // IDs and records, sorted
  std::vector<std::int32_t> unread_;
};

// Copies the golfers of the open roster in a loop.
class GolferCopy {
 public:
  GolferCopy(SharedState& state, RunHost& host, const GolfersKvToQbRequest& request,
             GolfersKvToQbReport& report, std::int32_t length)
      : state_(state),
        host_(host),
        request_(request),
        report_(report),
        next_([&host](const NumberedError& fault) { host.NoteFault(fault); }),
        quenby_(state.PlayerRecords(), length) {}

  void CopyAll() {
    std::int32_t places = 0;
    next_([&] { places = KVGolferPlaces(state_); });
    const auto copy = [&](std::int64_t place) {
      if (IsWanted(place)) Copy(place, places);
      return true;
    };
    TakeInOrder(report_, places, copy,
                [this](std::int64_t place) { return ReadKVGolferNameLF(state_, place); });
  }

 private:
  const Record<KelvaneGolferLayout>& Golfer() const { return state_.Kelvane().golfer; }

  Who Name() const { return {KVGolferNameLF(Golfer()), KVGolferName(Golfer())}; }

  bool IsWanted(std::int64_t place) {
    const bool read = ReadOrLeaveOut(
        host_, report_,
        [&] { state_.files.Read(kKelvaneGolferFile, place, state_.Kelvane().golfer); },
        [&] { return Who("The golfer at place " + std::to_string(place)); });
    if (!read || !IsGolfer(Golfer())) return false;
    if (!request_.marked_only || Golfer().Get<"MarkedToPrint">() != 0) return true;
    report_.left_out.Add(KVGolferNameLF(Golfer()), left_out::kNotMarked);
    return false;
  }

  void Copy(std::int64_t place, std::int32_t places) {
    host_.Report({place, places,
                  "Transferring: " + std::to_string(report_.updated + report_.added) + " " +
                      Golfer().Get<"NameLast">()});
    host_.Group(KVGolferName(Golfer()));
    const std::int32_t found = quenby_.Find(Golfer().Get<"IDNum">());
    const std::int32_t record = found > 0 ? found : quenby_.places.First();
    const bool prepared = ReadOrLeaveOut(
        host_, report_, [&] { Prepare(found); }, [&] { return Name(); });
    if (!prepared) return;
    CopyGolferToQb(state_.Kelvane(), request_.choice, state_.PlayerRecords(), next_);
    next_([&] { state_.PlayerRecords().SetRosters(3, request_.destination); });
    ++(found > 0 ? report_.updated : report_.added);
    next_([&] { Save(record); });
  }

  // Reads the player of `record` into the buffer, or makes a blank player if `record` is 0.
  void Prepare(std::int32_t record) {
    if (record > 0) {
      state_.PlayerRecords().GetRecord(record, false);
    } else {
      quenby_.CheckAllRead();
      state_.PlayerRecords().BlankPlayerRecord();
    }
  }

  // Writes the player. A golfer without an ID makes the record free, even if it was not free
  // before.
  void Save(std::int32_t record) {
    try {
      state_.PlayerRecords().SaveRecord(record, false);
    } catch (const NumberedError& error) {
      report_.left_out.Add(KVGolferNameLF(Golfer()), StoppedBy(error));
      throw;
    }
    quenby_.places.Note(record, state_.PlayerRecords().StoredID());
  }

  SharedState& state_;
  RunHost& host_;
  const GolfersKvToQbRequest& request_;
  GolfersKvToQbReport& report_;
  ResumeNext next_;
  QuenbyGolfers quenby_;
};

std::string Log(const GolfersKvToQbRequest& request, const GolfersKvToQbReport& report) {
  std::string log = request.roster + " TRANSFERED:";
  log.append(kReportLineEnd);
  return log + GolferCountLines(report.updated, report.added);
}

}  // namespace

void Run(SharedState& state, RunHost& host, const GolfersKvToQbRequest& request,
         GolfersKvToQbReport& report) {
  if (!OpenKVRoster(state, request.roster)) {
    report.end = RunEnd::kNoRoster;
    return;
  }
  host.Begin();
  state.files.Read(kKelvaneHeaderFile, 1, state.Kelvane().header);
  state.PlayerRecords().OpenRosterFile();
  const std::int32_t length = state.PlayerRecords().RosterFileLength();
  GolferCopy(state, host, request, report, length).CopyAll();
  report.log = Log(request, report);
  report.end = RunEnd::kDone;
}

}  // namespace golf
