// The program context: one object passed to everything. It holds the program
// folder, the clock, the message sink, the trace, the settings block and the
// module tables that subsystems build once per run. Nothing else is global.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "core/clock.h"
#include "core/message_sink.h"
#include "core/module_set.h"
#include "core/settings_block.h"

namespace mc {

class Context {
 public:
  Context(std::filesystem::path exeFolder, Clock& clock, MessageSink& sink)
      : exeFolder_(std::move(exeFolder)), clock_(&clock), sink_(&sink) {}
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;

  // The folder that holds the program and all its files.
  const std::filesystem::path& ExeFolder() const { return exeFolder_; }
  void SetExeFolder(std::filesystem::path folder) { exeFolder_ = std::move(folder); }
  // A file of the program folder, by its name.
  std::filesystem::path FilePath(std::string_view name) const { return exeFolder_ / name; }

  Clock& clock() { return *clock_; }
  MessageSink& sink() { return *sink_; }
  void SetSink(MessageSink& sink) { sink_ = &sink; }
  LocalDateTime Now() { return clock_->Now(); }

  // Appends one line to debug.txt. Callers test settings.debugOn first, except
  // for the first lines of the load, which every run writes.
  void TraceLine(std::string_view text);
  // TraceLine when tracing is on.
  void Trace(std::string_view text) {
    if (settings.debugOn) TraceLine(text);
  }

  SettingsBlock settings;

  // Long loops call YieldToEvents now and then, so that the interface stays
  // alive, and stop when CancelRequested() (Ctrl+T) with "Calculation
  // terminated by user.". The desktop installs the event pump; elsewhere it
  // does nothing.
  void SetEventPump(std::function<void()> pump) { pump_ = std::move(pump); }
  void YieldToEvents() {
    if (pump_) pump_();
  }
  bool CancelRequested() const { return cancel_; }
  void RequestCancel() { cancel_ = true; }
  void ClearCancel() { cancel_ = false; }

  // The module table of type T, built from this context on first use.
  template <class T>
  T& Module() {
    return modules_.Get<T>([this] { return new T(*this); });
  }
  template <class T>
  void ResetModule() {
    modules_.Reset<T>();
  }

 private:
  std::filesystem::path exeFolder_;
  Clock* clock_;
  MessageSink* sink_;
  ModuleSet modules_;
  std::function<void()> pump_;
  bool cancel_ = false;
};

}  // namespace mc
