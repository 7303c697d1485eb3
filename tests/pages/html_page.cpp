#include "pages/html_page.h"

#include <functional>

namespace golf {
namespace {

void Visit(const GumboNode* node, const std::function<void(const GumboNode*)>& action) {
  action(node);
  if (node->type != GUMBO_NODE_ELEMENT) return;
  const GumboVector& children = node->v.element.children;
  for (unsigned i = 0; i < children.length; ++i) {
    Visit(static_cast<const GumboNode*>(children.data[i]), action);
  }
}

}  // namespace

HtmlPage::HtmlPage(std::string html)
    : html_(std::move(html)),
      output_(gumbo_parse_with_options(&kGumboDefaultOptions, html_.data(), html_.size())) {
  Visit(output_->root, [&](const GumboNode* node) {
    const std::string id = Attribute(node, "id");
    if (!id.empty()) by_id_[id] = node;
  });
}

const GumboNode* HtmlPage::Find(const std::string& id) const {
  const auto found = by_id_.find(id);
  return found == by_id_.end() ? nullptr : found->second;
}

std::vector<const GumboNode*> HtmlPage::All(std::string_view tag, const GumboNode* below) const {
  std::vector<const GumboNode*> found;
  Visit(below == nullptr ? output_->root : below, [&](const GumboNode* node) {
    if (node->type == GUMBO_NODE_ELEMENT && (tag.empty() || Tag(node) == tag)) {
      found.push_back(node);
    }
  });
  return found;
}

std::string HtmlPage::Text(const GumboNode* node) {
  std::string text;
  Visit(node, [&](const GumboNode* each) {
    if (each->type == GUMBO_NODE_TEXT || each->type == GUMBO_NODE_WHITESPACE) {
      text += each->v.text.text;
    }
  });
  return text;
}

std::string HtmlPage::Attribute(const GumboNode* node, const char* name) {
  if (node->type != GUMBO_NODE_ELEMENT) return {};
  const GumboAttribute* attribute = gumbo_get_attribute(&node->v.element.attributes, name);
  return attribute == nullptr ? "" : attribute->value;
}

std::string HtmlPage::Tag(const GumboNode* node) {
  if (node->v.element.tag != GUMBO_TAG_UNKNOWN) {
    return gumbo_normalized_tagname(node->v.element.tag);
  }
  GumboStringPiece name = node->v.element.original_tag;
  gumbo_tag_from_original_text(&name);
  return {name.data, name.length};
}

std::vector<HtmlPage::Cells> HtmlPage::Rows(const GumboNode* table) const {
  std::vector<Cells> rows;
  for (const GumboNode* row : All("tr", table)) {
    Cells& cells = rows.emplace_back();
    for (const GumboNode* cell : All("", row)) {
      if (Tag(cell) == "td" || Tag(cell) == "th") cells.push_back(Text(cell));
    }
  }
  return rows;
}

}  // namespace golf
