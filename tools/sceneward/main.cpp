// sceneward: builds scenes through the library and shows what the graphics
// database holds.
#include <clocale>
#include <cstdio>
#include <cstring>

#include "host/reference_host.h"
#include "platform/thread_id.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "tools/sceneward/demo_scene.h"
#include "tools/sceneward/scene_printer.h"

namespace {

void PrintUsage(std::FILE* out) {
  std::fputs(
      "usage: sceneward <command>\n"
      "\n"
      "commands:\n"
      "  demo    build the built-in demo scene and print it as the database holds it\n"
      "  help    show this text\n",
      out);
}

// Text is converted under the process's locale; the tool wants UTF-8.
void ChooseUtf8Locale() {
  if (std::setlocale(LC_ALL, "") == nullptr || std::strstr(std::setlocale(LC_CTYPE, nullptr), "UTF-8") == nullptr) {
    std::setlocale(LC_ALL, "C.UTF-8");
  }
}

int RunDemo() {
  host::ReferenceHost host;
  host::HostThreadEntry& entry = host.RegisterThread(platform::CurrentThreadId());
  host.LoadAddIn();
  CurrentManager()->SetErrorHandler();

  tool::PrintSegmentTree(tool::BuildDemoScene(), stdout);

  const std::vector<host::ReportedMessage> errors = entry.MessageSink().Messages();
  for (const host::ReportedMessage& error : errors) std::fprintf(stderr, "%s\n", error.text.GetAsMBCS());
  return errors.empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  ChooseUtf8Locale();
  if (argc == 2 && std::strcmp(argv[1], "demo") == 0) return RunDemo();
  if (argc == 2 && (std::strcmp(argv[1], "help") == 0 || std::strcmp(argv[1], "--help") == 0)) {
    PrintUsage(stdout);
    return 0;
  }
  PrintUsage(stderr);
  return 2;
}
