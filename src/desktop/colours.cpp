#include "desktop/colours.h"

#include <wx/settings.h>

#include <algorithm>
#include <cmath>

namespace golf {
namespace {

constexpr double kReadable = 4.5;
const wxColour kDarkRed(176, 0, 32);
const wxColour kLightRed(255, 160, 160);

// Returns the part of one colour component in the brightness, as the guidelines for accessible
// web content define it.
double Linear(unsigned char component) {
  const double value = component / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Brightness(const wxColour& colour) {
  return 0.2126 * Linear(colour.Red()) + 0.7152 * Linear(colour.Green()) +
         0.0722 * Linear(colour.Blue());
}

const wxColour& MoreReadable(const wxColour& background, const wxColour& a, const wxColour& b) {
  return Contrast(a, background) >= Contrast(b, background) ? a : b;
}

}  // namespace

double Contrast(const wxColour& a, const wxColour& b) {
  const auto [dark, light] = std::minmax({Brightness(a), Brightness(b)});
  return (light + 0.05) / (dark + 0.05);
}

wxColour TextColour(const wxColour& background) {
  const wxColour usual = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
  if (Contrast(usual, background) >= kReadable) return usual;
  return MoreReadable(background, *wxBLACK, *wxWHITE);
}

wxColour SelectionColour() {
  const wxColour text = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHTTEXT);
  const wxColour usual = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT);
  const int step = Brightness(text) > Brightness(usual) ? -5 : 5;  // percent
  int lightness = 100;
  const auto colour = [&] { return usual.ChangeLightness(lightness); };
  while (Contrast(text, colour()) < kReadable && lightness > 0 && lightness < 200) {
    lightness += step;
  }
  return colour();
}

wxColour WarningColour(const wxColour& background) {
  return MoreReadable(background, kDarkRed, kLightRed);
}

}  // namespace golf
