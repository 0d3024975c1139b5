// The store under stress: random operations against a model of the list, and
// writes interrupted at every step.
#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "core/safe_file.h"
#include "reminder_test_util.h"
#include "reminders/edit_screen.h"
#include "reminders/report.h"
#include "reminders/utilities_screen.h"

namespace mc::test {
namespace {

// The list as the store's rules say it must be after an insertion.
void ModelInsert(std::vector<Entry>& list, int key, int year, const std::string& text) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    Entry& e = list[i];
    if (e.monthDay == key && e.text == text) {
      if (e.year == year || e.year == kEveryYear) return;
      if (year == kEveryYear) {
        e.year = kEveryYear;
        for (std::size_t j = i + 1; j < list.size() && list[j].monthDay <= key; ++j) {
          if (list[j].monthDay == key && list[j].text == text) {
            list.erase(list.begin() + static_cast<long>(j));
            break;  // only the first later duplicate goes
          }
        }
        return;
      }
    }
    if (e.monthDay > key) {
      list.insert(list.begin() + static_cast<long>(i), Entry{key, year, text});
      return;
    }
  }
  list.push_back({key, year, text});
}

TEST(ReminderRobustness, RandomOperationsAgreeWithAModelOfTheList) {
  TestProgram p;
  p.Start();
  UseTestWriter(p.ctx);
  std::mt19937 rng(20261123);
  auto pick = [&](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
  const std::vector<std::string> texts = {"Dentist", "Gym", "Call Mum", "<1980> years", "Bins"};
  const int keys[] = {101, 229, 315, 315, 701, 1123, 1124, 1231};
  std::vector<Entry> model;
  int today = 0;
  std::size_t longest = 0;
  for (int op = 0; op < 3000; ++op) {
    const int kind = pick(100);
    if (kind < 55) {
      int key = keys[pick(8)];
      int year = std::vector<int>{2026, 2027, kEveryYear}[pick(3)];
      std::string text = texts[pick(5)];
      InsertReminder(p.ctx, key, year, text);
      ModelInsert(model, key, year, text);
    } else if (kind < 85 && !model.empty()) {
      ReminderStore s(p.ctx);
      ASSERT_TRUE(s.Open());
      auto active = s.ActiveSlots();
      int at = pick(static_cast<int>(active.size()));
      if (kind < 80) {
        s.Unlink(active[at]);
        model.erase(model.begin() + at);
      } else if (at + 1 < static_cast<int>(active.size()) &&
                 model[at].monthDay == model[at + 1].monthDay) {
        s.SwapContents(active[at], active[at + 1]);
        std::swap(model[at].year, model[at + 1].year);
        std::swap(model[at].text, model[at + 1].text);
      }
      ASSERT_TRUE(s.Commit());
    } else if (kind < 88) {
      if (!model.empty()) CompactReminders(p.ctx);
    } else if (kind < 91) {
      // A few days pass and the list is built: gone reminders are purged.
      today += pick(4);
      int month = 11 + today / 30 > 12 ? 12 : 11 + today / 30;
      int day = today % 30 + 1;
      SetDate(p, 2026, month, day);
      BuildReminderReport(p.ctx);
      const int key = month * 100 + day;
      std::erase_if(model, [&](const Entry& e) {
        return e.year < 2026 || (e.year == 2026 && e.monthDay < key);
      });
    } else if (!model.empty()) {
      // Edit: a reminder gets a new date.
      EditRemindersScreen edit(p.ctx);
      ASSERT_TRUE(edit.SelectLine(4));
      Entry old = model[0];
      if (old.year == kEveryYear) continue;
      edit.dateField = "31/12";
      if (!edit.Update()) continue;
      model.erase(model.begin());
      ModelInsert(model, 1231, old.year, old.text);
    }
    ASSERT_TRUE(CheckReminderStore(p.ctx)) << "after operation " << op << ": " << p.sink.Last();
    ASSERT_EQ(ListOf(p.ctx), model) << "after operation " << op;
    longest = std::max(longest, model.size());
  }
  EXPECT_GT(longest, 20u);
}

// The four store files, as bytes ("-" for an absent file).
using Files = std::vector<std::string>;
Files Snapshot(const std::filesystem::path& folder) {
  Files f;
  for (const char* name : {"person.dat", "mercod.dat", "purged.dat", "PEYR.dat"})
    f.push_back(ReadWholeFile(folder / name).value_or("-"));
  return f;
}

void CopyFolder(const std::filesystem::path& from, const std::filesystem::path& to) {
  for (const auto& e : std::filesystem::directory_iterator(from))
    std::filesystem::copy(e.path(), to / e.path().filename(),
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::overwrite_existing);
}

// Runs `op` on a copy of the base folder with call k of the writer failing,
// for every k until the operation no longer reaches it; after each the store
// (read afresh, as at the next start) must hold the state before or the state
// after the operation, and be consistent.
void InterruptEverywhere(const std::function<void(TestProgram&)>& setUp,
                         const std::function<void(Context&)>& op, const std::string& what) {
  TestProgram base;
  base.Start();
  setUp(base);
  const Files before = Snapshot(base.folder.path());
  Files after;
  {
    TestProgram clean(false, base.clock.Now());
    CopyFolder(base.folder.path(), clean.folder.path());
    clean.ctx.settings = base.ctx.settings;
    UseTestWriter(clean.ctx);
    op(clean.ctx);
    after = Snapshot(clean.folder.path());
  }
  ASSERT_NE(before, after) << what << " changes nothing";
  for (bool crash : {true, false}) {
    for (int k = 0;; ++k) {
      TestProgram run(false, base.clock.Now());
      CopyFolder(base.folder.path(), run.folder.path());
      run.ctx.settings = base.ctx.settings;
      auto writer = UseTestWriter(run.ctx, k, crash);
      op(run.ctx);
      if (!writer->failed) {
        EXPECT_GE(k, 6) << what << ": too few writes to be one commit";
        break;  // the operation finished before call k
      }
      // The next start: a fresh context over the same folder.
      test::RecordingSink sink;
      Context next(run.folder.path(), run.clock, sink);
      next.settings = base.ctx.settings;
      UseTestWriter(next);
      EXPECT_TRUE(CheckReminderStore(next)) << what << ", call " << k << ": " << sink.Last();
      Files now = Snapshot(run.folder.path());
      EXPECT_TRUE(now == before || now == after)
          << what << (crash ? ", crash" : ", failure") << " at call " << k;
      for (const char* work : {"person.dat.new", "mercod.dat.new", "newfile.dat", "remcommit.dat"})
        EXPECT_FALSE(std::filesystem::exists(run.File(work))) << what << ", call " << k;
    }
  }
}

void SomeReminders(TestProgram& p) {
  InsertReminder(p.ctx, 1120, 2026, "Gone by");
  InsertReminder(p.ctx, 315, kEveryYear, "<1990> years of Ann");
  InsertReminder(p.ctx, 1125, 2026, "Dentist");
  InsertReminder(p.ctx, 1125, 2027, "Dentist");
  InsertReminder(p.ctx, 1201, 2026, "Party");
  ReminderStore s(p.ctx);
  s.Open();
  s.Unlink(5);
  s.Commit();
}

TEST(ReminderRobustness, InterruptedWritesLoseAndDuplicateNothing) {
  InterruptEverywhere(
      SomeReminders, [](Context& c) { InsertReminder(c, 1124, 2026, "New one"); }, "insert");
  InterruptEverywhere(
      SomeReminders, [](Context& c) { InsertReminder(c, 1125, kEveryYear, "Dentist"); },
      "widening");
  InterruptEverywhere(
      SomeReminders, [](Context& c) { CompactReminders(c); }, "compaction");
  InterruptEverywhere(
      SomeReminders, [](Context& c) { BuildReminderReport(c); }, "report with purge and PEYR.dat");
  InterruptEverywhere(
      [](TestProgram& p) {
        InsertReminder(p.ctx, 1225, 2026, "Xmas");
        p.Write("newrems.txt", "1/1/every/New Year\r\n2/2/2027/Groundhog\r\n");
      },
      [](Context& c) {
        FieldFormat f{"day month year message", "Forward Slash /", ""};
        static_cast<test::RecordingSink&>(c.sink()).answers = {true};
        ImportReminders(c, f);
      },
      "import");
  InterruptEverywhere(
      [](TestProgram& p) {
        InsertReminder(p.ctx, 1125, 2026, "Dentist");
        InsertReminder(p.ctx, 1126, 2026, "Other");
      },
      [](Context& c) {
        EditRemindersScreen edit(c);
        edit.SelectLine(4);
        edit.dateField = "30/12";
        edit.Update();
      },
      "edit");
  InterruptEverywhere(
      [](TestProgram& p) {
        InsertReminder(p.ctx, 101, kEveryYear, "a");
        ReminderStore s(p.ctx);
        s.Open();
        s.Unlink(1);
        s.Commit();
      },
      [](Context& c) { BuildReminderReport(c); }, "removal of an emptied store");
}

}  // namespace
}  // namespace mc::test
