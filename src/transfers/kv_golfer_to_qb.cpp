#include "transfers/kv_golfer_to_qb.h"

#include "core/number_text.h"
#include "core/text.h"

namespace golf {
namespace {

using Player = RosterPlayers;

using CopyStep = void (*)(Player&, KelvaneBuffers&);

constexpr int kFirstMethodWithoutIndex = 100;

bool HasNoIndex(const KelvaneBuffers& from) {
  return from.header.Get<"HandicapMethod">() >= kFirstMethodWithoutIndex;
}

// Returns true if Kelvane shows a blank or "*" as the handicap, which means that the golfer has too
// few scores.
bool HasNoHandicap(const KelvaneBuffers& from) {
  return CompareIgnoringCase(Trim(from.golfer.View<"HandicapText">()), "*") <= 0;
}

constexpr CopyStep kAlways[] = {
    [](Player& to, KelvaneBuffers& from) { to.SetIDNum(from.golfer.Get<"IDNum">()); },
    [](Player& to, KelvaneBuffers& from) { to.SetNameFirst(from.golfer.View<"NameFirst">()); },
    [](Player& to, KelvaneBuffers& from) { to.SetNameLast(from.golfer.View<"NameLast">()); },
    [](Player& to, KelvaneBuffers& from) { to.SetEmail(from.golfer.View<"Email">()); },
    [](Player& to, KelvaneBuffers& from) { to.SetPhoneHome(from.golfer.View<"PhoneHome">()); },
    [](Player& to, KelvaneBuffers& from) { to.SetPhoneWork(from.golfer.View<"PhoneWork">()); },
    [](Player& to, KelvaneBuffers& from) { to.Setsex(from.golfer.Get<"Sex">() == 1 ? "F" : "M"); },
    [](Player& to, KelvaneBuffers& from) { to.SetIndex(from.golfer.Get<"Index">()); },
    [](Player& to, KelvaneBuffers& from) { to.SetHandicap(from.golfer.Get<"Handicap">()); },
    [](Player& to, KelvaneBuffers& from) {
      if (HasNoIndex(from)) to.SetIndex(from.golfer.Get<"Handicap">());
    },
    [](Player&, KelvaneBuffers& from) {
      from.golfer.Set<"HandicapText">(Trim(from.golfer.View<"HandicapText">()));
    },
    [](Player& to, KelvaneBuffers& from) {
      if (HasNoHandicap(from)) to.SetIndex(0);
    },
    [](Player& to, KelvaneBuffers& from) {
      if (HasNoHandicap(from)) to.SetHandicap(0);
    },
};

constexpr CopyStep kAddresses[] = {
    [](Player& to, KelvaneBuffers& from) {
      to.SetAddressHomeLine(1, from.golfer.View<"AddressHomeLine">(1));
    },
    [](Player& to, KelvaneBuffers& from) {
      to.SetAddressHomeLine(2, from.golfer.View<"AddressHomeLine">(2));
    },
    [](Player& to, KelvaneBuffers& from) {
      to.SetAddressHomeLine(3, from.golfer.View<"AddressHomeLine">(3));
    },
    [](Player& to, KelvaneBuffers& from) {
      to.SetAddressWorkLine(1, from.golfer.View<"AddressWorkLine">(1));
    },
    [](Player& to, KelvaneBuffers& from) {
      to.SetAddressWorkLine(2, from.golfer.View<"AddressWorkLine">(2));
    },
    [](Player& to, KelvaneBuffers& from) {
      to.SetAddressWorkLine(3, from.golfer.View<"AddressWorkLine">(3));
    },
    [](Player& to, KelvaneBuffers& from) { to.SetPhoneFax(from.golfer.View<"PhoneFax">()); },
};

template <int kNumber>
void CopyMiscDate(Player& to, KelvaneBuffers& from) {
  to.SetMiscDate(kNumber, from.golfer.Get<"MiscDate">(kNumber));
}

template <int kNumber, FieldName kField>
void CopyMiscText(Player& to, KelvaneBuffers& from) {
  to.SetMiscText(kNumber, from.golfer.View<kField>());
}

template <int kNumber>
void CopyMiscCurrency(Player& to, KelvaneBuffers& from) {
  to.SetMiscCurrency(kNumber, from.golfer.Get<"MiscCurrency">(kNumber));
}

// Lists the optional items, starting with this row of the grid.
constexpr int kFirstOptionalRow = 2;
constexpr CopyStep kOptional[] = {
    [](Player& to, KelvaneBuffers& from) { to.SetFlight(from.golfer.Get<"Flight">()); },
    [](Player& to, KelvaneBuffers& from) {
      double group = from.golfer.Get<"GroupNumber">();
      to.SetGroupTee(group);
    },
    [](Player& to, KelvaneBuffers& from) { to.SetGroupText(from.golfer.View<"GroupText">()); },
    CopyMiscDate<1>,
    CopyMiscDate<2>,
    CopyMiscText<1, "MiscText1">,
    CopyMiscText<2, "MiscText2">,
    CopyMiscText<3, "MiscText3">,
    CopyMiscText<4, "MiscText4">,
    CopyMiscText<5, "MiscText5">,
    CopyMiscCurrency<1>,
    CopyMiscCurrency<2>,
    CopyMiscCurrency<3>,
    CopyMiscCurrency<4>,
    CopyMiscCurrency<5>,
};

// Multiplies the index and the handicap. Reads both from their texts. The text of a negative index
// has a plus sign, so the index becomes positive. A negative handicap stays negative.
void Convert(Player& player, double factor, const ResumeNext& next) {
  next([&] { player.SetIndex(LeadingNumber(player.Index()) * factor); });
  next([&] { player.SetHandicap(LeadingNumber(player.HandicapValue(true)) * factor); });
}

}  // namespace

void CopyGolferToQb(KelvaneBuffers& from, const GolferToQbChoice& choice, RosterPlayers& to,
                    const ResumeNext& next) {
  for (const CopyStep step : kAlways) next([&] { step(to, from); });
  if (choice.halve_handicap) Convert(to, 0.5, next);
  if (choice.double_handicap) Convert(to, 2.0, next);
  for (const CopyStep step : kAddresses) next([&] { step(to, from); });
  std::size_t row = kFirstOptionalRow;
  for (const CopyStep step : kOptional) {
    if (choice.item[row++]) next([&] { step(to, from); });
  }
}

}  // namespace golf
