#include <gtk/gtk.h>

#include <memory>
#include <set>

#include "desktop/accessible_tree.h"

namespace golf {
namespace {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
using Object = std::unique_ptr<AtkObject, Unref>;

const std::set<AtkRole> kControls = {
    ATK_ROLE_CHECK_BOX,   ATK_ROLE_COMBO_BOX,          ATK_ROLE_ENTRY,    ATK_ROLE_LIST,
    ATK_ROLE_MENU,        ATK_ROLE_MENU_ITEM,          ATK_ROLE_PAGE_TAB, ATK_ROLE_PROGRESS_BAR,
    ATK_ROLE_PUSH_BUTTON, ATK_ROLE_RADIO_BUTTON,       ATK_ROLE_TABLE,    ATK_ROLE_TEXT,
    ATK_ROLE_TREE_TABLE,  ATK_ROLE_TABLE_COLUMN_HEADER};

std::string Text(const char* text) { return text == nullptr ? "" : text; }

bool Has(AtkObject& object, AtkStateType state) {
  AtkStateSet* const states = atk_object_ref_state_set(&object);
  const bool has = atk_state_set_contains_state(states, state);
  g_object_unref(states);
  return has;
}

std::string ValueOf(AtkObject& object) {
  if (ATK_IS_TEXT(&object)) {
    char* const text = atk_text_get_text(ATK_TEXT(&object), 0, -1);
    const std::string value = Text(text);
    g_free(text);
    return value;
  }
  if (!ATK_IS_SELECTION(&object)) return "";
  const Object selected(atk_selection_ref_selection(ATK_SELECTION(&object), 0));
  return selected ? Text(atk_object_get_name(selected.get())) : "";
}

std::string LabelOf(AtkObject& object) {
  AtkRelationSet* const relations = atk_object_ref_relation_set(&object);
  AtkRelation* const relation =
      atk_relation_set_get_relation_by_type(relations, ATK_RELATION_LABELLED_BY);
  std::string label;
  if (relation != nullptr && atk_relation_get_target(relation)->len > 0) {
    auto* const target =
        static_cast<AtkObject*>(g_ptr_array_index(atk_relation_get_target(relation), 0));
    label = Text(atk_object_get_name(target));
  }
  g_object_unref(relations);
  return label;
}

AccessibleNode Describe(AtkObject& object) {
  return {.name = Text(atk_object_get_name(&object)),
          .value = ValueOf(object),
          .is_checked = Has(object, ATK_STATE_CHECKED),
          .is_control = kControls.contains(atk_object_get_role(&object)),
          .label = LabelOf(object)};
}

// The items of a drop-down and the cells of a list are not part of the tree.
AccessibleNode Walk(AtkObject& object) {
  AccessibleNode node = Describe(object);
  const AtkRole role = atk_object_get_role(&object);
  const bool is_table = role == ATK_ROLE_TABLE || role == ATK_ROLE_TREE_TABLE;
  if (role == ATK_ROLE_COMBO_BOX) return node;
  const int children = is_table ? atk_table_get_n_columns(ATK_TABLE(&object))
                                : atk_object_get_n_accessible_children(&object);
  for (int i = 0; i < children; ++i) {
    const Object child(atk_object_ref_accessible_child(&object, i));
    if (child && Has(*child, ATK_STATE_SHOWING)) node.children.push_back(Walk(*child));
  }
  return node;
}

AtkObject& ObjectOf(const wxWindow& widget) {
  return *gtk_widget_get_accessible(widget.m_focusWidget);
}

}  // namespace

AccessibleNode NodeOf(wxWindow& widget) { return Describe(ObjectOf(widget)); }

AccessibleNode TreeOf(wxWindow& window) {
  return Walk(*gtk_widget_get_accessible(window.GetHandle()));
}

std::vector<std::string> RowsOf(wxDataViewCtrl& list) {
  AtkTable* const table = ATK_TABLE(&ObjectOf(list));
  std::vector<std::string> rows(static_cast<std::size_t>(atk_table_get_n_rows(table)));
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (int column = 0; column < atk_table_get_n_columns(table); ++column) {
      const Object cell(atk_table_ref_at(table, static_cast<int>(row), column));
      const bool is_text = ATK_IS_TEXT(cell.get());
      rows[row] += is_text ? Text(atk_object_get_name(cell.get()))
                           : std::string(Has(*cell, ATK_STATE_CHECKED) ? "1" : "0");
      rows[row] += "|";
      if (!is_text && Text(atk_object_get_name(cell.get())).empty()) rows[row] += "no name";
    }
  }
  return rows;
}

std::string ReadRow(int, const std::vector<std::string>&, const std::vector<std::string>& cells) {
  std::string row;
  for (const std::string& cell : cells) row += cell + "|";
  return row;
}

}  // namespace golf
