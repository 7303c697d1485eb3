#include "cli/script_line.h"

#include <algorithm>

#include "core/code_page.h"

namespace golf {
namespace {

constexpr std::string_view kBlanks = " \t\r";

// Removes a quoted word from the start of `rest` and returns it.
std::string TakeQuoted(std::string_view& rest) {
  std::string word;
  rest.remove_prefix(1);
  while (true) {
    const std::size_t quote = rest.find('"');
    if (quote == std::string_view::npos) throw ScriptError("A quote is not closed.");
    word += rest.substr(0, quote);
    rest.remove_prefix(quote + 1);
    if (!rest.starts_with('"')) return word;
    word += '"';
    rest.remove_prefix(1);
  }
}

std::string TakeBare(std::string_view& rest) {
  const std::size_t end = std::min(rest.find_first_of(kBlanks), rest.size());
  std::string word(rest.substr(0, end));
  rest.remove_prefix(end);
  return word;
}

}  // namespace

std::vector<std::string> WordsOf(std::string_view utf8_line) {
  std::vector<std::string> words;
  std::string_view rest = utf8_line;
  while (true) {
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
    if (rest.empty() || (words.empty() && rest.starts_with('#'))) return words;
    words.push_back(TextFromUtf8(rest.starts_with('"') ? TakeQuoted(rest) : TakeBare(rest)));
  }
}

}  // namespace golf
