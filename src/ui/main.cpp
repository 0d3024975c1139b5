// The desktop program. Until its windows are built it starts the program as
// the desktop will (single instance, settings, start-up checks) and says so.
#include <iostream>

#include "core/context.h"
#include "core/instance_lock.h"
#include "core/locale_facts.h"
#include "core/program_folder.h"
#include "shell/startup.h"

namespace {

class ConsoleSink final : public mc::MessageSink {
 public:
  void Show(std::string_view caption, std::string_view text) override {
    std::cerr << caption << ": " << text << '\n';
  }
  bool Ask(std::string_view caption, std::string_view text) override {
    Show(caption, text);
    return false;
  }
  std::optional<std::string> Input(std::string_view, std::string_view, bool,
                                   std::string_view) override {
    return std::nullopt;
  }
};

}  // namespace

int main() {
  mc::AdoptUserLocale();
  ConsoleSink sink;
  mc::SystemClock clock;
  mc::Context ctx(mc::GetExeFolder(), clock, sink);
  mc::InstanceLock lock(ctx.ExeFolder());
  if (!lock.Acquired()) {
    sink.Show(mc::kInformation, "Meridian Codex is already running.");
    return 0;
  }
  if (mc::StartProgram(ctx) != mc::StartOutcome::Ready) return 2;
  std::cout << "Meridian Codex started from " << ctx.ExeFolder().string()
            << "; the desktop windows are not built yet: use codex-cli.\n";
  return 0;
}
