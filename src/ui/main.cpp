// The desktop program: one instance per program folder, the start-up
// sequence, then the main screen and its timer.
#include <QApplication>
#include <QElapsedTimer>
#include <QStyleFactory>
#include <QTimer>
#include <cstdio>
#include <fstream>

#include "core/instance_lock.h"
#include "core/locale_facts.h"
#include "core/program_folder.h"
#include "shell/startup.h"
#include "ui/desktop.h"
#include "ui/main_window.h"
#include "ui/qt_message_sink.h"
#include "ui/screenshots.h"

namespace {

long ResidentKilobytes() {
  std::ifstream status("/proc/self/status");
  std::string key;
  long value = 0;
  while (status >> key) {
    if (key == "VmRSS:") {
      status >> value;
      return value;
    }
    status.ignore(1 << 10, '\n');
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  QElapsedTimer started;
  started.start();
  QApplication app(argc, argv);
  app.setApplicationName("Meridian Codex");
  app.setStyle(QStyleFactory::create("Fusion"));
  mc::AdoptUserLocale();

  std::filesystem::path folder = mc::GetExeFolder();
  QString screenshots;
  bool reportStartup = false;
  const QStringList args = app.arguments();
  for (int i = 1; i < args.size(); ++i) {
    if (args[i] == "--folder" && i + 1 < args.size()) folder = args[++i].toStdString();
    if (args[i] == "--screenshots" && i + 1 < args.size()) screenshots = args[++i];
    if (args[i] == "--startup-report") reportStartup = true;
  }

  mc::ui::QtMessageSink sink;
  mc::SystemClock clock;
  mc::Context ctx(folder, clock, sink);
  mc::InstanceLock lock(ctx.ExeFolder());
  if (!ctx.ExeFolder().empty() && !lock.Acquired()) {
    sink.Show(mc::kInformation, "Meridian Codex is already running.");
    return 0;
  }
  mc::StartOptions options;
  options.checkPassword = true;
  switch (mc::StartProgram(ctx, options)) {
    case mc::StartOutcome::Ready:
      break;
    case mc::StartOutcome::PasswordRefused:
      return 0;
    default:
      return 2;
  }
  ctx.SetEventPump([] { QCoreApplication::processEvents(); });

  mc::ui::Desktop desktop(ctx);
  mc::ui::MainWindow window(desktop);
  window.Load();
  window.show();
  if (reportStartup) {
    QTimer::singleShot(0, [&] {
      std::printf("startup %lld ms, resident %ld kB\n", static_cast<long long>(started.elapsed()),
                  ResidentKilobytes());
      std::fflush(stdout);
      app.quit();
    });
  }
  if (!screenshots.isEmpty()) {
    QTimer::singleShot(200, [&] {
      mc::ui::SaveScreenshots(desktop, window, screenshots);
      app.quit();
    });
  }
  return app.exec();
}
