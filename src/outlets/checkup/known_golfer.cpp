#include "outlets/checkup/known_golfer.h"

#include <cctype>
#include <functional>
#include <utility>

#include "core/code_page.h"
#include "core/text.h"

namespace golf {
namespace {

// Maps the capital letters 0xC0 to 0xDE of code page 1252 to letters without accents. The
// multiplication sign, 0xD7, is mapped to a blank.
constexpr std::string_view kPlainLetters = "AAAAAAACEEEEIIIIDNOOOOO OUUUUYT";
constexpr unsigned char kFirstAccent = 0xC0;

}  // namespace

std::string KnownGolfer::Title() const { return GolferTitleLF(first, last, id); }

std::string FoldedName(std::string_view name) {
  std::string folded;
  for (const char c : UpperCase(name)) {
    const auto byte = static_cast<unsigned char>(c);
    const std::size_t accent = static_cast<std::size_t>(byte) - kFirstAccent;
    const char plain = byte < kFirstAccent             ? c
                       : accent < kPlainLetters.size() ? kPlainLetters[accent]
                                                       : c;
    const bool is_ascii = static_cast<unsigned char>(plain) < 0x80;
    if (!is_ascii || std::isalnum(static_cast<unsigned char>(plain)) != 0) folded += plain;
  }
  return folded;
}

void TwinCheck::Add(const KnownGolfer& golfer, std::initializer_list<TwinMark> marks) {
  const auto add = [&](FindingCode code, std::int64_t other, const std::string& what) {
    scan_.Add(code, file_, golfer.record, golfer.Title(),
              "Record " + std::to_string(other) + " has the same " + what + ".");
  };
  if (golfer.id > 0) {
    const auto [other, is_new] = records_.emplace(golfer.id, golfer.record);
    if (!is_new) {
      ids_twice_.insert(golfer.id);
      add(FindingCode::kIdTwice, other->second, "ID number, " + std::to_string(golfer.id));
    }
  }
  const std::string name = FoldedName(golfer.last) + '/' + FoldedName(golfer.first) + '/';
  bool is_reported = name.size() == 2;  // without a name
  for (const TwinMark& mark : marks) {
    if (mark.bytes.empty()) continue;
    const std::size_t hash = std::hash<std::string>()(mark.bytes);
    const auto [other, is_new] =
        named_.emplace(name + std::string(mark.what) + std::to_string(hash), golfer.record);
    if (is_new || std::exchange(is_reported, true)) continue;
    add(FindingCode::kGolferTwice, other->second, std::string(mark.what));
  }
}

int BirthdayIndex(int count, const std::function<std::string(int)>& caption) {
  constexpr std::string_view kBirths[] = {"BIRTH",  "DOB",   "NELE",    "NAISSANCE", "GEBOREN",
                                          "GEBURT", "NACIM", "NASCITA", "BDAY"};
  for (int index = 1; index <= count; ++index) {
    const std::string text = FoldedName(caption(index));
    for (const std::string_view birth : kBirths) {
      if (text.find(birth) != std::string::npos) return index;
    }
  }
  return 0;
}

}  // namespace golf
