#include "outlets/pages/html_writer.h"

#include <array>

#include "core/code_page.h"

namespace golf {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

// Returns true if HTML does not permit the character of code page 1252. These are control
// characters, and the characters that the code page leaves undefined.
bool IsForbidden(unsigned char c) {
  return c < ' ' || c == 0x7F || c == 0x81 || c == 0x8D || c == 0x8F || c == 0x90 || c == 0x9D;
}

bool IsLineEndOrTab(char c) { return c == '\r' || c == '\n' || c == '\t' || c == '\f'; }

std::string HtmlCharacter(char c) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    default:
      break;
  }
  if (IsLineEndOrTab(c)) return " ";
  if (IsForbidden(static_cast<unsigned char>(c))) return std::string(kReplacement);
  return Utf8FromText(std::string_view(&c, 1));
}

std::array<std::string, 256> HtmlCharacters() {
  std::array<std::string, 256> characters;
  for (std::size_t i = 0; i < characters.size(); ++i) {
    characters[i] = HtmlCharacter(static_cast<char>(i));
  }
  return characters;
}

bool IsPlain(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == ' ';
}

}  // namespace

std::string HtmlText(std::string_view text) {
  static const std::array<std::string, 256> kCharacters = HtmlCharacters();
  std::string html;
  html.reserve(text.size());
  for (const char c : text) html += kCharacters[static_cast<unsigned char>(c)];
  return html;
}

std::string CssString(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string css = "\"";
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (IsPlain(c)) {
      css += c;
    } else if (code == 0 || code >= 0x80) {
      css += HtmlText(std::string_view(&c, 1));
    } else {
      // A style sheet reads a backslash, a hexadecimal code and a blank as one character. This
      // character then has no special meaning in the style sheet or in HTML.
      css += {'\\', kDigits[code / 16], kDigits[code % 16], ' '};
    }
  }
  return css + '"';
}

void HtmlWriter::Element(std::string_view tag, std::string_view text) {
  Open(tag);
  Text(text);
  Close(tag.substr(0, tag.find(' ')));
}

void HtmlWriter::OpenTableBody(const std::vector<std::string>& headings) {
  Open("thead");
  Open("tr");
  for (const std::string& heading : headings) Element("th scope=\"col\"", heading);
  Close("tr");
  Close("thead");
  Open("tbody");
  EndLine();
}

}  // namespace golf
