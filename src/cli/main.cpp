#include "cli/command_line.h"
#include "core/platform.h"

int main(int argc, char** argv) {
  golf::TakeStandardStreams();
  return golf::RunCommandLine(argc, argv);
}
