#include <gtk/gtk.h>

#include "desktop/accessible.h"

namespace golf {
namespace {

// Returns the accessible object of the part of a widget that gets the focus.
AtkObject* ObjectOf(wxWindow& widget) { return gtk_widget_get_accessible(widget.m_focusWidget); }

}  // namespace

void SetAccessibleName(wxWindow& widget, const wxString& name) {
  atk_object_set_name(ObjectOf(widget), name.utf8_str());
  // A combo box contains the entry that gets the focus.
  if (GTK_IS_COMBO_BOX(widget.GetHandle())) {
    atk_object_set_name(gtk_widget_get_accessible(widget.GetHandle()), name.utf8_str());
  }
}

void SetAccessibleDescription(wxWindow& widget, const wxString& description) {
  atk_object_set_description(ObjectOf(widget), description.utf8_str());
}

void SetAccessibleCellName(wxDataViewCtrl& list, int row, int column, const wxString& name) {
  AtkObject* const table = gtk_widget_get_accessible(list.GtkGetTreeView());
  AtkObject* const cell = atk_table_ref_at(ATK_TABLE(table), row, column);
  if (cell == nullptr) return;
  atk_object_set_name(cell, name.utf8_str());
  g_object_unref(cell);
}

void MakeAccessibleGroup(wxWindow& panel, const wxString& heading) {
  AtkObject* const object = gtk_widget_get_accessible(panel.GetHandle());
  atk_object_set_role(object, ATK_ROLE_GROUPING);
  atk_object_set_name(object, heading.utf8_str());
}

void Announce(wxWindow& widget, const wxString& text) {
  const char* const kSignal = "announcement";  // since ATK 2.46
  if (g_signal_lookup(kSignal, ATK_TYPE_OBJECT) == 0) return;
  g_signal_emit_by_name(ObjectOf(widget), kSignal, static_cast<const char*>(text.utf8_str()));
}

}  // namespace golf
