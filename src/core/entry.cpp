#include "core/entry.h"

namespace golf {

void PrepareStart(SharedState& state, const RegionalForms& forms, DateValue now) {
  state.InitSharedObjects();
  const DateForms dates = DetectDateForms(forms, now);
  state.DateFormat = dates.format;
  state.DateMask = dates.mask;
  const TimeForms times = DetectTimeForms(forms);
  state.TimeSeparator = times.separator;
  state.TimeMask = times.mask;
  state.decimal_comma = forms.decimal_comma;
  Platform& platform = state.files.platform();
  const auto folder = [&](const char* name) {
    return state.ProgramPath + name + platform.Separator();
  };
  state.ProgramPath = platform.ProgramFolder();
  state.QBDataPath = folder("qbdata");
  state.KVDataPath = folder("kvdata");
  state.ZDDataPath = folder("zddata");
  state.CourseDataPath = state.KVDataPath;
}

}  // namespace golf
