#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Converts a text from code page 1252 to the text of an HTML or SVG element or attribute. Replaces
// characters that HTML does not permit by the replacement character, and line ends by blanks.
std::string HtmlText(std::string_view text);

// Converts a text from code page 1252 to a string of a style sheet, with its quotes.
std::string CssString(std::string_view text);

// Writes elements one after the other. Tags may contain attributes, as in `td class="n"`. Texts are
// in code page 1252.
class HtmlWriter {
 public:
  // Writes a start tag.
  void Open(std::string_view tag) { html_.append("<").append(tag).append(">"); }
  void Close(std::string_view name) { html_.append("</").append(name).append(">"); }
  void Text(std::string_view text) { html_ += HtmlText(text); }
  // Writes an element that contains only text.
  void Element(std::string_view tag, std::string_view text);
  // Writes the row of headings of a table and opens its body.
  void OpenTableBody(const std::vector<std::string>& headings);
  // Writes HTML as it is.
  void Raw(std::string_view html) { html_ += html; }
  // Writes a line end, for readers of the file. It must not be called within a text.
  void EndLine() { html_ += '\n'; }

  const std::string& html() const { return html_; }
  std::string Take() { return std::move(html_); }

 private:
  std::string html_;
};

}  // namespace golf
