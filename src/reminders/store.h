// The reminder store: fixed-size slots in person.dat chained into one doubly
// linked list sorted by month and day, with a singly linked chain of free
// slots; mercod.dat holds the highest slot taken, the list's head and the free
// chain's head. Slots keep their numbers for life, so a reminder's number is
// its slot, until a compaction renumbers them.
//
// person.dat, 68 bytes a slot, little-endian, slot n at byte (n - 1) * 68:
//   0  int16  MonthDay  month * 100 + day; 0 in a free slot
//   2  60     Message   padded with blanks; all blanks in a free slot
//   62 int16  Year      Gregorian year, or 10000 for every year; 0 when free
//   64 int16  LLink     previous active slot, 0 for none; 0 when free
//   66 int16  RLink     next active slot, 0 for none; next free slot when free
// Older stores have 48-byte slots with a 40-byte message.
//
// A ReminderStore is one opening of the files: it reads them whole, walks and
// changes the slots in memory, and Commit() writes every changed file in one
// step (see store_files.h). Nothing stays open between operations.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendars/cal_type.h"
#include "core/context.h"

namespace mc {

inline constexpr int kSlotSize = 68;
inline constexpr int kOldSlotSize = 48;
inline constexpr int kMessageWidth = 60;
inline constexpr int kOldMessageWidth = 40;
inline constexpr int kEveryYear = 10000;
inline constexpr int kMaxSlots = 32767;

struct ReminderSlot {
  int monthDay = 0;
  std::string message;  // as stored, blanks included
  int year = 0;
  int lLink = 0;
  int rLink = 0;

  // The message without its padding.
  std::string Text() const;
  int Day() const { return monthDay % 100; }
  int Month() const { return monthDay / 100; }
  // A free slot as it must be: no date, no year, no back link, blank message.
  bool IsBlank() const;
};

struct StoreHeader {
  int maxRemNum = 0;
  int head = 0;
  int freeHead = 0;
  friend bool operator==(const StoreHeader&, const StoreHeader&) = default;
};

// Slot encoding, for the store and for tests that build files by hand.
std::string EncodeSlot(const ReminderSlot& slot, int slotSize = kSlotSize);
ReminderSlot DecodeSlot(std::string_view bytes, int slotSize = kSlotSize);
std::string EncodeHeader(const StoreHeader& h);
std::optional<StoreHeader> ParseHeader(std::string_view text);

// The message as the store keeps it: trimmed and cut to the field's 60 bytes
// (never inside a character).
std::string FitMessage(std::string_view message, std::size_t width = kMessageWidth);

enum class InsertOutcome {
  Inserted,        // a new slot holds it
  AlreadyCovered,  // the same reminder, or an every-year one with its text, exists
  Widened,         // a dated reminder with its text became an every-year one
  StoreFull,       // no slot number is left
  Failed,          // the store is damaged or could not be written (after the message)
};

class ReminderStore {
 public:
  explicit ReminderStore(Context& ctx);

  // Finishes any interrupted commit and reads the files. False after a
  // message when they can't be read; consistency findings are not shown here
  // (see Finding and Check).
  bool Open();

  // person.dat absent or without a record: the store holds no reminders.
  bool NoRecord() const { return noRecord_; }
  const StoreHeader& Header() const { return header_; }
  const ReminderSlot& Slot(int n) const { return slots_[static_cast<std::size_t>(n)]; }
  ReminderSlot& MutableSlot(int n);
  bool IsActive(int n) const;
  // The active slots in list order.
  std::vector<int> ActiveSlots() const;
  std::vector<int> FreeSlots() const;

  // The catalogue number of the first consistency finding, or 0 when the
  // store is consistent. An empty store is consistent.
  int Finding() const;
  // Finding() shown through ShowError; true when there is none.
  bool Check();

  // The store's changes, in memory until Commit().
  InsertOutcome Insert(int monthDay, int year, std::string_view message);
  // Unlinks an active slot and chains it at the head of the free slots.
  void Unlink(int slot);
  // Swaps the messages and years of two slots, leaving the links.
  void SwapContents(int a, int b);
  // Lines appended to purged.dat at the commit.
  void AppendPurged(const std::string& line);
  // PEYR.dat's list: its first line now, and the list it will hold.
  std::string PeyrList();
  void SetPeyrList(std::string list);
  void RemovePeyr();
  // The whole store goes: person.dat, then mercod.dat.
  void RemoveStoreFiles();
  // Only person.dat goes (it has no record).
  void RemovePersonFile();
  // With no record, a person.dat left behind goes at once (a commit of its own).
  void DropEmptyPersonFile();

  bool Dirty() const { return dirty_ || !purgedLines_.empty() || peyr_ || removePeyr_; }
  bool InsertedAny() const { return insertedAny_; }

  // Writes every changed file in one commit. True when nothing needed writing.
  bool Commit();

 private:
  void BlankSlot(int n);

  Context& ctx_;
  bool noRecord_ = true;
  StoreHeader header_;
  std::vector<ReminderSlot> slots_;  // [0] unused
  bool headerValid_ = true;
  bool sizeValid_ = true;
  bool dirty_ = false;
  bool insertedAny_ = false;
  bool removeStore_ = false;
  bool removePerson_ = false;
  std::vector<std::string> purgedLines_;
  std::optional<std::string> peyr_;
  std::optional<std::string> peyrRead_;
  bool removePeyr_ = false;
};

// The single writer of new reminders, one commit per call. Sets
// RemindersChanged when a slot was added.
InsertOutcome InsertReminder(Context& ctx, int monthDay, int year, std::string_view message);

// True when consistent; on a finding shows it and returns false. An empty
// person.dat is deleted.
bool CheckReminderStore(Context& ctx);

// Rewrites the store without gaps, in list order; Head 1, no free slots.
bool CompactReminders(Context& ctx);

// The diagnostic listing of the slots, or "" when a file is missing.
std::string PrintReminderStructures(Context& ctx);

// The one-time widening of 48-byte slots to 68 bytes, when
// "Rem Message Length Updated" is "No".
void WidenReminderMessages(Context& ctx);

// The one-time build of PEYR.dat at the settings file's step to version 179.
void BuildPeyrFile(Context& ctx);

}  // namespace mc
