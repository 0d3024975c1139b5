// Helpers of the reminder tests: the store as a plain list, dates on the
// fixed clock, and hand-made store files.
#pragma once

#include <fstream>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "reminders/store.h"
#include "reminders/store_files.h"
#include "support/test_program.h"

namespace mc::test {

struct Entry {
  int monthDay;
  int year;
  std::string text;
  bool operator==(const Entry&) const = default;
};

inline std::ostream& operator<<(std::ostream& os, const Entry& e) {
  return os << e.monthDay << "/" << e.year << "/" << e.text;
}

// The active reminders in list order.
inline std::vector<Entry> ListOf(Context& ctx) {
  ReminderStore store(ctx);
  std::vector<Entry> out;
  if (!store.Open()) return out;
  for (int s : store.ActiveSlots())
    out.push_back({store.Slot(s).monthDay, store.Slot(s).year, store.Slot(s).Text()});
  return out;
}

inline StoreHeader HeaderOf(Context& ctx) {
  ReminderStore store(ctx);
  store.Open();
  return store.Header();
}

inline void SetDate(TestProgram& p, int year, int month, int day, int hour = 10, int minute = 30) {
  p.clock.Set({year, month, day, hour, minute, 0, 0});
}

// A person.dat of the given slots and the mercod.dat for them.
inline void WriteStore(TestProgram& p, const std::vector<ReminderSlot>& slots, StoreHeader h,
                       int slotSize = kSlotSize) {
  std::string person;
  for (const auto& s : slots) person += EncodeSlot(s, slotSize);
  p.Write("person.dat", person);
  p.Write("mercod.dat", EncodeHeader(h));
}

inline ReminderSlot MakeSlot(int monthDay, int year, const std::string& text, int l, int r) {
  ReminderSlot s;
  s.monthDay = monthDay;
  s.year = year;
  s.message = text;
  s.lLink = l;
  s.rLink = r;
  return s;
}

// A writer that skips the flushes (for speed) and can fail on purpose: call
// number `failAt` (counting from 0) fails, a write leaving half its bytes
// behind; with `crash` every later call fails too, as if the program had died
// there.
class TestWriter final : public ReminderFileWriter {
 public:
  explicit TestWriter(int failAt = -1, bool crash = true) : failAt_(failAt), crash_(crash) {}
  bool WriteFile(const std::filesystem::path& file, std::string_view content) override {
    if (Fails()) {
      std::ofstream(file, std::ios::binary | std::ios::trunc)
          .write(content.data(), static_cast<std::streamsize>(content.size() / 2));
      return false;
    }
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    return static_cast<bool>(out);
  }
  bool Rename(const std::filesystem::path& from, const std::filesystem::path& to) override {
    if (Fails()) return false;
    std::error_code ec;
    std::filesystem::rename(from, to, ec);
    return !ec;
  }
  bool Remove(const std::filesystem::path& file) override {
    if (Fails()) return false;
    std::error_code ec;
    std::filesystem::remove(file, ec);
    return !std::filesystem::exists(file);
  }
  bool SyncFolder(const std::filesystem::path&) override { return !Fails(); }

  int calls = 0;
  bool failed = false;

 private:
  bool Fails() {
    const int n = calls++;
    if (failed && crash_) return true;
    if (n == failAt_) {
      failed = true;
      return true;
    }
    return false;
  }
  int failAt_;
  bool crash_;
};

inline std::shared_ptr<TestWriter> UseTestWriter(Context& ctx, int failAt = -1, bool crash = true) {
  auto w = std::make_shared<TestWriter>(failAt, crash);
  Reminders(ctx).writer = w;
  return w;
}

}  // namespace mc::test
