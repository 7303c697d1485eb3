#pragma once

#include <gumbo.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Reads a page with a parser of HTML 5. Texts are UTF-8.
class HtmlPage {
 public:
  using Cells = std::vector<std::string>;

  explicit HtmlPage(std::string html);
  HtmlPage(const HtmlPage&) = delete;
  HtmlPage& operator=(const HtmlPage&) = delete;
  ~HtmlPage() { gumbo_destroy_output(&kGumboDefaultOptions, output_); }

  unsigned parse_errors() const { return output_->errors.length; }

  // Returns the element with an id, or null.
  const GumboNode* Find(const std::string& id) const;
  // Returns the elements with a tag, such as "table", below a node, in the order of the page.
  std::vector<const GumboNode*> All(std::string_view tag, const GumboNode* below = nullptr) const;
  // Returns the text of a node and of all nodes below it.
  static std::string Text(const GumboNode* node);
  // Returns the value of an attribute, or an empty text.
  static std::string Attribute(const GumboNode* node, const char* name);
  static std::string Tag(const GumboNode* node);
  // Returns the rows of a table with the texts of their cells. The first row contains the headings.
  std::vector<Cells> Rows(const GumboNode* table) const;

 private:
  std::string html_;
  GumboOutput* output_;
  std::map<std::string, const GumboNode*> by_id_;
};

}  // namespace golf
