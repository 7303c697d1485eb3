#include "core/text.h"

#include <algorithm>
#include <array>

#include "core/numbered_error.h"

namespace golf {
namespace {

struct CasePair {
  unsigned char lower;
  unsigned char upper;
};

// Lists the letters of code page 1252 whose capital code is not 32 less than their own.
constexpr CasePair kIrregularPairs[] = {{0x9A, 0x8A}, {0x9C, 0x8C}, {0x9E, 0x8E}, {0xFF, 0x9F}};

constexpr bool HasRegularCapital(unsigned char code) {
  return (code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7);
}

using CaseTable = std::array<char, 256>;

constexpr CaseTable MakeCaseTable(bool to_upper) {
  CaseTable table{};
  for (int code = 0; code < 256; ++code) {
    table[static_cast<std::size_t>(code)] = static_cast<char>(code);
  }
  const auto map = [&](unsigned char lower, unsigned char upper) {
    table[to_upper ? lower : upper] = static_cast<char>(to_upper ? upper : lower);
  };
  for (int code = 0; code < 256; ++code) {
    const auto lower = static_cast<unsigned char>(code);
    if (HasRegularCapital(lower)) map(lower, static_cast<unsigned char>(lower - 0x20));
  }
  for (const CasePair& pair : kIrregularPairs) map(pair.lower, pair.upper);
  return table;
}

constexpr CaseTable kUpper = MakeCaseTable(true);
constexpr CaseTable kLower = MakeCaseTable(false);

std::string Mapped(std::string_view text, const CaseTable& table) {
  std::string result(text);
  for (char& c : result) c = table[static_cast<unsigned char>(c)];
  return result;
}

int Compared(unsigned char a, unsigned char b) { return int{a} - int{b}; }

unsigned char UpperCode(char c) {
  return static_cast<unsigned char>(kUpper[static_cast<unsigned char>(c)]);
}

// Returns true if the text is a sign and digits with at most one point or comma among them.
bool IsSignedNumber(std::string_view text) {
  text.remove_prefix(1);
  const std::size_t point = std::min(text.find_first_of(".,"), text.size());
  const auto are_digits = [](std::string_view part) {
    return part.find_first_not_of("0123456789") == std::string_view::npos;
  };
  return are_digits(text.substr(0, point)) &&
         are_digits(text.substr(std::min(point + 1, text.size()))) &&
         text.find_first_of("0123456789") != std::string_view::npos;
}

}  // namespace

std::string UpperCase(std::string_view text) { return Mapped(text, kUpper); }
std::string LowerCase(std::string_view text) { return Mapped(text, kLower); }

std::string_view TrimRight(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string_view Trim(std::string_view text) {
  const std::string_view cut = TrimRight(text);
  return cut.empty() ? cut : cut.substr(cut.find_first_not_of(' '));
}

std::string WithoutPadding(std::string_view text) {
  std::string shown(text);
  std::erase(shown, '\0');
  return std::string(Trim(shown));
}

std::string FullName(std::string_view first, std::string_view last) {
  std::string name(Trim(first));
  name += ' ';
  name += Trim(last);
  return std::string(Trim(name));
}

std::string GolferTitle(std::string_view first, std::string_view last, std::int64_t id) {
  const std::string name = FullName(first, last);
  return name.empty() ? "Golfer #" + std::to_string(id) : name;
}

std::string GolferTitleLF(std::string_view first, std::string_view last, std::int64_t id) {
  const std::string given = WithoutPadding(first);
  const std::string family = WithoutPadding(last);
  if (given.empty() || family.empty()) return GolferTitle(given, family, id);
  return family + ", " + given;
}

int CompareIgnoringCase(std::string_view a, std::string_view b) {
  const std::size_t shared = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < shared; ++i) {
    if (const int order = Compared(UpperCode(a[i]), UpperCode(b[i]))) return order;
  }
  return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && CompareIgnoringCase(a, b) == 0;
}

bool IsBlankText(std::string_view text) { return CompareIgnoringCase(text, "!") < 0; }

std::string FitText(std::string_view text, std::size_t width) {
  std::string result(text.substr(0, width));
  result.resize(width, ' ');
  return result;
}

std::string_view LastCharacters(std::string_view text, std::size_t count) {
  return text.size() <= count ? text : text.substr(text.size() - count);
}

std::string ReplaceText(std::string_view text, std::string_view find, std::string_view replace,
                        ReplaceMode mode) {
  std::string result(text);
  if (mode == ReplaceMode::kDigitsToMarks) {
    std::replace_if(
        result.begin(), result.end(), [](char c) { return c >= '0' && c <= '9'; }, '#');
    return result;
  }
  if (find.empty()) return result;
  const bool exact = mode == ReplaceMode::kExact;
  const auto folded = [exact](std::string_view part) {
    return exact ? std::string(part) : UpperCase(part);
  };
  const std::string wanted = folded(find);
  const std::string put_in = folded(replace);
  std::string searched = folded(text);
  for (std::size_t hit = 0; (hit = searched.find(wanted, hit)) != std::string::npos; ++hit) {
    if (put_in.find(wanted, 1) != std::string::npos) {
      throw NumberedError(ErrorNumber::kBadCall,
                          "A text cannot be replaced by one that holds it again.");
    }
    searched.replace(hit, wanted.size(), put_in);
    result.replace(hit, find.size(), replace);
  }
  return result;
}

std::string CsvValue(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

bool LooksLikeFormula(std::string_view text) {
  if (text.empty()) return false;
  if (text[0] == '=' || text[0] == '@') return true;
  return (text[0] == '+' || text[0] == '-') && !IsSignedNumber(text);
}

std::string CsvLine(const std::vector<std::string>& values) {
  std::string line;
  for (const std::string& value : values) {
    if (&value != &values.front()) line += ',';
    line += CsvValue(LooksLikeFormula(value) ? "'" + value : value);
  }
  return line;
}

}  // namespace golf
