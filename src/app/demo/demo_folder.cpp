#include "app/demo/demo_folder.h"

#include "app/application.h"
#include "app/demo/demo_install.h"
#include "core/new_target.h"

namespace golf {

void CreateDemoFolder(const std::string& utf8_folder, DateValue now) {
  NewTarget target(utf8_folder);
  const std::string written = target.Prepare(true);
  {
    Application application(MakePlatform(written));
    application.Start(now, {});
    MakeDemoInstall(application.state());
    application.state().InitSharedObjects();  // closes all files
  }
  target.Publish();
}

}  // namespace golf
