#pragma once

#include <map>
#include <string>

#include "desktop/screen_panel.h"

namespace golf {

class GridSort;
class KVCoursestoQB;
class TipBox;
class TransferMenu;

enum class WindowKind { kMain, kDialog };

// How the window of a screen is made.
struct View {
  WindowKind kind;
  void (*fill)(ScreenPanel&, Screen&);
};
// Views by the names of their screens.
using ViewCatalogue = std::map<std::string, View, std::less<>>;

ViewCatalogue Views();

void FillTransferMenu(ScreenPanel& panel, TransferMenu& screen);
void FillTipBox(ScreenPanel& panel, TipBox& screen);
void FillGridSort(ScreenPanel& panel, GridSort& screen);
void FillKVCoursestoQB(ScreenPanel& panel, KVCoursestoQB& screen);

}  // namespace golf
