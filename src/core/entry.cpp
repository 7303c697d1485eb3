#include "core/entry.h"

#include "core/data_folders.h"

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
  state.ProgramPath = platform.ProgramFolder();
  state.QBDataPath = DataFolder(platform, "qbdata");
  state.KVDataPath = DataFolder(platform, "kvdata");
  state.ZDDataPath = DataFolder(platform, "zddata");
  state.CourseDataPath = state.KVDataPath;
}

}  // namespace golf
