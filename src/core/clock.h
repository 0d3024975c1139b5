// The program's clock: local civil date and time, injectable so that nothing
// depends on the machine's own "now" in tests.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace mc {

struct LocalDateTime {
  int year = 2000;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
  int millisecond = 0;

  friend bool operator==(const LocalDateTime&, const LocalDateTime&) = default;
};

// Adds a signed number of milliseconds, carrying through days, months and years.
LocalDateTime AddMilliseconds(const LocalDateTime& t, std::int64_t ms);

// "YYYY-MM-DDTHH:MM" or "YYYY-MM-DDTHH:MM:SS" (also with a blank for the T).
std::optional<LocalDateTime> ParseIsoDateTime(const std::string& text);

class Clock {
 public:
  virtual ~Clock() = default;
  virtual LocalDateTime Now() = 0;
};

// The machine's local time.
class SystemClock final : public Clock {
 public:
  LocalDateTime Now() override;
};

// Always the same moment until told otherwise.
class FixedClock final : public Clock {
 public:
  explicit FixedClock(LocalDateTime t) : now_(t) {}
  LocalDateTime Now() override { return now_; }
  void Set(LocalDateTime t) { now_ = t; }
  void Advance(std::int64_t ms) { now_ = AddMilliseconds(now_, ms); }

 private:
  LocalDateTime now_;
};

// Each reading moves the clock on by a fixed step, as a ticking timer sees it.
class SteppedClock final : public Clock {
 public:
  SteppedClock(LocalDateTime start, std::int64_t stepMs) : next_(start), step_(stepMs) {}
  LocalDateTime Now() override {
    LocalDateTime t = next_;
    next_ = AddMilliseconds(next_, step_);
    return t;
  }

 private:
  LocalDateTime next_;
  std::int64_t step_;
};

}  // namespace mc
