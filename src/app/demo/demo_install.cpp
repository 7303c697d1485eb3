#include "app/demo/demo_install.h"

#include "app/demo/demo_courses.h"
#include "app/demo/demo_kelvane.h"
#include "app/demo/demo_quenby.h"
#include "app/demo/demo_zandel.h"

namespace golf {

void MakeDemoInstall(SharedState& state) {
  for (const std::string* folder : {&state.KVDataPath, &state.QBDataPath, &state.ZDDataPath}) {
    state.files.gate().CreateFolder(folder->substr(0, folder->size() - 1));
  }
  MakeDemoCourses(state);
  MakeDemoKelvaneRosters(state);
  MakeDemoQuenby(state);
  MakeDemoLeagues(state);
}

}  // namespace golf
