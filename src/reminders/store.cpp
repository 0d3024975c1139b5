#include "reminders/store.h"

#include <algorithm>

#include "calendars/gregorian.h"
#include "core/errors.h"
#include "core/ini_file.h"
#include "core/safe_file.h"
#include "core/text_util.h"
#include "reminders/reminder_text.h"
#include "reminders/store_files.h"

namespace mc {

namespace {

constexpr std::string_view kPerson = "person.dat";
constexpr std::string_view kMercod = "mercod.dat";
constexpr std::string_view kPurged = "purged.dat";
constexpr std::string_view kPeyr = "PEYR.dat";

int GetInt16(std::string_view b, std::size_t at) {
  auto lo = static_cast<unsigned char>(b[at]);
  auto hi = static_cast<unsigned char>(b[at + 1]);
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(lo | (hi << 8)));
}

void PutInt16(std::string& b, int v) {
  auto u = static_cast<std::uint16_t>(static_cast<std::int16_t>(v));
  b += static_cast<char>(u & 0xFF);
  b += static_cast<char>(u >> 8);
}

std::string Blanks(std::size_t n) {
  return std::string(n, ' ');
}

// What a raw reading of the two files gives, before any interpretation.
struct RawStore {
  bool exists = false;
  std::string person;
  std::optional<StoreHeader> header;
};

bool ReadRaw(Context& ctx, RawStore& raw) {
  auto path = ctx.FilePath(kPerson);
  raw.exists = std::filesystem::exists(path);
  if (!raw.exists) return true;
  ctx.settings.lastFileOpened = std::string(kPerson);
  auto content = ReadWholeFile(path);
  if (!content) {
    ShowRunTimeError(ctx, kPathFileAccess);
    return false;
  }
  raw.person = std::move(*content);
  if (raw.person.empty()) return true;
  if (auto text = ReadWholeFile(ctx.FilePath(kMercod))) raw.header = ParseHeader(*text);
  return true;
}

// The slot size of a file whose header is known: 68, 48 for the old layout,
// or 0 when its length fits neither.
int LayoutOf(const RawStore& raw) {
  if (!raw.header) return 0;
  auto max = static_cast<std::size_t>(raw.header->maxRemNum);
  if (raw.person.size() == max * kSlotSize) return kSlotSize;
  if (raw.person.size() == max * kOldSlotSize) return kOldSlotSize;
  return 0;
}

std::vector<ReminderSlot> DecodeAll(const RawStore& raw, int slotSize) {
  std::vector<ReminderSlot> slots(1);
  for (std::size_t at = 0; at + slotSize <= raw.person.size(); at += slotSize)
    slots.push_back(DecodeSlot(std::string_view(raw.person).substr(at, slotSize), slotSize));
  return slots;
}

bool AllFree(const std::vector<ReminderSlot>& slots) {
  return std::all_of(slots.begin() + 1, slots.end(),
                     [](const ReminderSlot& s) { return s.monthDay == 0; });
}

// The active slots from `head`, stopping at a slot out of range or seen before.
std::vector<int> WalkFrom(const std::vector<ReminderSlot>& slots, int start) {
  std::vector<int> order;
  std::vector<bool> seen(slots.size(), false);
  for (int curr = start; curr > 0 && curr < static_cast<int>(slots.size()) && !seen[curr];
       curr = slots[curr].rLink) {
    seen[curr] = true;
    order.push_back(curr);
  }
  return order;
}

}  // namespace

std::string ReminderSlot::Text() const {
  return TrimCopy(message);
}

bool ReminderSlot::IsBlank() const {
  return monthDay == 0 && year == 0 && lLink == 0 && Trim(message).empty();
}

std::string EncodeSlot(const ReminderSlot& slot, int slotSize) {
  const std::size_t width = slotSize == kOldSlotSize ? kOldMessageWidth : kMessageWidth;
  std::string b;
  b.reserve(slotSize);
  PutInt16(b, slot.monthDay);
  std::string msg = slot.message.substr(0, width);
  msg.resize(width, ' ');
  b += msg;
  PutInt16(b, slot.year);
  PutInt16(b, slot.lLink);
  PutInt16(b, slot.rLink);
  return b;
}

ReminderSlot DecodeSlot(std::string_view bytes, int slotSize) {
  const std::size_t width = slotSize == kOldSlotSize ? kOldMessageWidth : kMessageWidth;
  ReminderSlot s;
  s.monthDay = GetInt16(bytes, 0);
  s.message = std::string(bytes.substr(2, width));
  s.message.resize(kMessageWidth, ' ');
  s.year = GetInt16(bytes, 2 + width);
  s.lLink = GetInt16(bytes, 4 + width);
  s.rLink = GetInt16(bytes, 6 + width);
  return s;
}

std::string EncodeHeader(const StoreHeader& h) {
  return std::to_string(h.maxRemNum) + "," + std::to_string(h.head) + "," +
         std::to_string(h.freeHead) + "\r\n";
}

std::optional<StoreHeader> ParseHeader(std::string_view text) {
  auto lines = SplitLines(text);
  if (lines.empty()) return std::nullopt;
  int values[3];
  std::string_view rest = lines[0];
  for (int i = 0; i < 3; ++i) {
    auto comma = rest.find(',');
    if ((i < 2) != (comma != std::string_view::npos)) return std::nullopt;
    long long v = 0;
    if (!ParseInt(rest.substr(0, comma), v) || v < 0 || v > kMaxSlots) return std::nullopt;
    values[i] = static_cast<int>(v);
    if (comma != std::string_view::npos) rest = rest.substr(comma + 1);
  }
  return StoreHeader{values[0], values[1], values[2]};
}

std::string FitMessage(std::string_view message, std::size_t width) {
  std::string_view t = Trim(message);
  if (t.size() <= width) return std::string(t);
  std::size_t cut = width;
  // Back off from the middle of a UTF-8 character.
  while (cut > 0 && (static_cast<unsigned char>(t[cut]) & 0xC0) == 0x80) --cut;
  return TrimCopy(t.substr(0, cut));
}

ReminderStore::ReminderStore(Context& ctx) : ctx_(ctx) {}

bool ReminderStore::Open() {
  noRecord_ = true;
  header_ = {};
  slots_.assign(1, ReminderSlot{});
  headerValid_ = sizeValid_ = true;
  dirty_ = insertedAny_ = removeStore_ = removePerson_ = removePeyr_ = false;
  purgedLines_.clear();
  peyr_.reset();
  peyrRead_.reset();
  if (!RecoverReminderFiles(ctx_)) return false;
  RawStore raw;
  if (!ReadRaw(ctx_, raw)) return false;
  noRecord_ = raw.person.empty();
  if (noRecord_) return true;
  headerValid_ = raw.header.has_value();
  if (headerValid_) header_ = *raw.header;
  sizeValid_ = headerValid_ && LayoutOf(raw) == kSlotSize;
  slots_ = DecodeAll(raw, kSlotSize);
  return true;
}

ReminderSlot& ReminderStore::MutableSlot(int n) {
  dirty_ = true;
  return slots_[static_cast<std::size_t>(n)];
}

bool ReminderStore::IsActive(int n) const {
  if (n < 1 || n > header_.maxRemNum) return false;
  for (int s : ActiveSlots())
    if (s == n) return true;
  return false;
}

std::vector<int> ReminderStore::ActiveSlots() const {
  if (noRecord_) return {};
  return WalkFrom(slots_, header_.head);
}

std::vector<int> ReminderStore::FreeSlots() const {
  if (noRecord_) return {};
  return WalkFrom(slots_, header_.freeHead);
}

int ReminderStore::Finding() const {
  if (noRecord_) return 0;
  if (!headerValid_ || !sizeValid_)
    return Err("Maximum slot number does not agree with MaxRemNum.");
  const int max = header_.maxRemNum;
  std::vector<int> count(static_cast<std::size_t>(max) + 1, 0);
  int maxSeen = 0;
  auto walk = [&](int start) {
    for (int curr = start; curr > 0;) {
      maxSeen = std::max(maxSeen, curr);
      if (curr > max || ++count[curr] > 1) break;
      curr = slots_[curr].rLink;
    }
  };
  walk(header_.head);
  walk(header_.freeHead);
  for (int s = 1; s <= max; ++s) {
    if (count[s] == 0) return Err("Unlinked active or deleted reminder slot.");
    if (count[s] > 1) return Err("Active or deleted reminder slot linked in more than once.");
  }
  if (maxSeen != max) return Err("Maximum slot number does not agree with MaxRemNum.");
  for (int s : FreeSlots())
    if (!slots_[s].IsBlank()) return Err("Deleted reminder slot has not been re-initialised.");
  // The back links must retrace the list, or unlinking would go astray.
  int prev = 0;
  for (int s : ActiveSlots()) {
    if (slots_[s].lLink != prev) return Err("Unlinked active or deleted reminder slot.");
    prev = s;
  }
  return 0;
}

bool ReminderStore::Check() {
  int n = Finding();
  if (n != 0) ShowError(ctx_, n);
  return n == 0;
}

void ReminderStore::BlankSlot(int n) {
  ReminderSlot& s = MutableSlot(n);
  s.monthDay = 0;
  s.message = Blanks(kMessageWidth);
  s.year = 0;
  s.lLink = 0;
}

InsertOutcome ReminderStore::Insert(int key, int year, std::string_view message) {
  const std::string text = FitMessage(message);
  if (noRecord_) {
    noRecord_ = false;
    header_ = {};
    slots_.assign(1, ReminderSlot{});
  }
  int prev = 0, curr = header_.head;
  int guard = header_.maxRemNum;
  while (curr >= 1 && curr < static_cast<int>(slots_.size()) && guard-- >= 0) {
    const ReminderSlot& r = slots_[curr];
    if (r.monthDay == key && r.Text() == text) {
      if (r.year == year || r.year == kEveryYear) return InsertOutcome::AlreadyCovered;
      if (year == kEveryYear) {
        // A dated reminder becomes an every-year one in place; the first later
        // duplicate of the same day goes. The walk then runs on along the free
        // chain, where nothing can match.
        MutableSlot(curr).year = kEveryYear;
        prev = curr;
        curr = r.rLink;
        int guard2 = header_.maxRemNum;
        while (curr > 0 && curr < static_cast<int>(slots_.size()) && guard2-- >= 0) {
          ReminderSlot& c = slots_[curr];
          if (c.monthDay == key && c.Text() == text) {
            MutableSlot(prev).rLink = c.rLink;
            if (c.rLink > 0) MutableSlot(c.rLink).lLink = prev;
            BlankSlot(curr);
            c.rLink = header_.freeHead;
            header_.freeHead = curr;
          } else if (c.monthDay > key) {
            break;
          }
          prev = curr;
          curr = c.rLink;
        }
        return InsertOutcome::Widened;
      }
    }
    if (r.monthDay > key) break;
    prev = curr;
    curr = r.rLink;
  }
  int slot;
  if (header_.freeHead < 1) {
    if (header_.maxRemNum >= kMaxSlots) return InsertOutcome::StoreFull;
    slot = ++header_.maxRemNum;
    slots_.emplace_back();
  } else {
    slot = header_.freeHead;
    header_.freeHead = slots_[slot].rLink;
  }
  ReminderSlot& s = MutableSlot(slot);
  s.monthDay = key;
  s.message = text;
  s.message.resize(kMessageWidth, ' ');
  s.year = year;
  s.lLink = prev;
  s.rLink = curr;
  if (prev > 0) slots_[prev].rLink = slot;
  if (curr > 0) slots_[curr].lLink = slot;
  if (curr == header_.head) header_.head = slot;
  insertedAny_ = true;
  return InsertOutcome::Inserted;
}

void ReminderStore::Unlink(int slot) {
  const int prev = slots_[slot].lLink;
  const int next = slots_[slot].rLink;
  if (prev > 0) MutableSlot(prev).rLink = next;
  if (next > 0) MutableSlot(next).lLink = prev;
  if (slot == header_.head) header_.head = next;
  BlankSlot(slot);
  slots_[slot].rLink = header_.freeHead;
  header_.freeHead = slot;
}

void ReminderStore::SwapContents(int a, int b) {
  ReminderSlot& x = MutableSlot(a);
  ReminderSlot& y = MutableSlot(b);
  std::swap(x.message, y.message);
  std::swap(x.year, y.year);
}

void ReminderStore::AppendPurged(const std::string& line) {
  purgedLines_.push_back(line);
}

std::string ReminderStore::PeyrList() {
  if (peyr_) return *peyr_;
  if (!peyrRead_) {
    peyrRead_ = "";
    if (auto text = ReadWholeFile(ctx_.FilePath(kPeyr))) {
      auto lines = SplitLines(*text);
      if (!lines.empty()) peyrRead_ = lines[0];
    }
  }
  return *peyrRead_;
}

void ReminderStore::SetPeyrList(std::string list) {
  peyr_ = std::move(list);
  removePeyr_ = false;
}

void ReminderStore::RemovePeyr() {
  peyr_.reset();
  removePeyr_ = true;
}

void ReminderStore::RemoveStoreFiles() {
  removeStore_ = true;
  dirty_ = true;
}

void ReminderStore::RemovePersonFile() {
  removePerson_ = true;
  dirty_ = true;
}

void ReminderStore::DropEmptyPersonFile() {
  if (!std::filesystem::exists(ctx_.FilePath(kPerson))) return;
  RemovePersonFile();
  Commit();
}

bool ReminderStore::Commit() {
  std::vector<FileChange> changes;
  if (removeStore_) {
    changes.push_back({std::string(kPerson), std::nullopt, ""});
    changes.push_back({std::string(kMercod), std::nullopt, ""});
  } else if (removePerson_) {
    changes.push_back({std::string(kPerson), std::nullopt, ""});
  } else if (dirty_) {
    std::string person;
    person.reserve(static_cast<std::size_t>(header_.maxRemNum) * kSlotSize);
    for (int s = 1; s <= header_.maxRemNum; ++s) person += EncodeSlot(slots_[s]);
    changes.push_back({std::string(kPerson), std::move(person), ""});
    changes.push_back({std::string(kMercod), EncodeHeader(header_), ""});
  }
  if (!purgedLines_.empty()) {
    std::string purged = ReadWholeFile(ctx_.FilePath(kPurged)).value_or("");
    if (!purged.empty() && purged.back() != '\n') purged += "\r\n";
    for (const auto& l : purgedLines_) purged += l + "\r\n";
    changes.push_back({std::string(kPurged), std::move(purged), ""});
  }
  if (removePeyr_)
    changes.push_back({std::string(kPeyr), std::nullopt, ""});
  else if (peyr_)
    changes.push_back({std::string(kPeyr), *peyr_ + "\r\n", ""});
  if (changes.empty()) return true;
  if (!CommitReminderFiles(ctx_, changes)) return false;
  if (insertedAny_) Reminders(ctx_).remindersChanged = true;
  dirty_ = insertedAny_ = removeStore_ = removePerson_ = removePeyr_ = false;
  purgedLines_.clear();
  if (peyr_) peyrRead_ = peyr_;
  peyr_.reset();
  return true;
}

InsertOutcome InsertReminder(Context& ctx, int monthDay, int year, std::string_view message) {
  ReminderStore store(ctx);
  if (!store.Open() || (!store.NoRecord() && !store.Check())) return InsertOutcome::Failed;
  InsertOutcome r = store.Insert(monthDay, year, message);
  if (r == InsertOutcome::StoreFull) ShowRunTimeError(ctx, kOverflow);
  if (!store.Commit()) return InsertOutcome::Failed;
  return r;
}

bool CheckReminderStore(Context& ctx) {
  ReminderStore store(ctx);
  if (!store.Open()) return false;
  if (store.NoRecord()) {
    store.DropEmptyPersonFile();
    return true;
  }
  return store.Check();
}

bool CompactReminders(Context& ctx) {
  if (!CheckReminderStore(ctx)) return false;
  ReminderStore store(ctx);
  if (!store.Open()) return false;
  if (store.NoRecord()) {
    store.DropEmptyPersonFile();
    ctx.sink().Show(kInformation, "No reminders have yet been defined.");
    return false;
  }
  std::vector<int> order = store.ActiveSlots();
  std::vector<FileChange> changes;
  if (order.empty()) {
    // Nothing but free slots: the store is empty.
    changes.push_back({std::string(kPerson), std::nullopt, ""});
    changes.push_back({std::string(kMercod), std::nullopt, ""});
  } else {
    std::string person;
    const int n = static_cast<int>(order.size());
    for (int i = 1; i <= n; ++i) {
      ReminderSlot s = store.Slot(order[i - 1]);
      s.lLink = i - 1;
      s.rLink = s.rLink == 0 ? 0 : i + 1;
      person += EncodeSlot(s);
    }
    changes.push_back({std::string(kPerson), std::move(person), "newfile.dat"});
    changes.push_back({std::string(kMercod), EncodeHeader({n, 1, 0}), ""});
  }
  if (!CommitReminderFiles(ctx, changes)) return false;
  ctx.sink().Show(kSuccess, "Reminders file successfully compacted.");
  return true;
}

namespace {

// A line printed field by field at fixed columns, numbers with the blank
// before and after that a printed number has.
class PrintLine {
 public:
  PrintLine& Tab(std::size_t column) {
    if (text_.size() < column - 1) text_.resize(column - 1, ' ');
    return *this;
  }
  PrintLine& Num(int v) {
    text_ += (v >= 0 ? " " : "") + std::to_string(v) + " ";
    return *this;
  }
  PrintLine& Str(std::string_view s) {
    text_ += s;
    return *this;
  }
  std::string Done() const {
    auto end = text_.find_last_not_of(' ');
    return end == std::string::npos ? "" : text_.substr(0, end + 1);
  }

 private:
  std::string text_;
};

std::string SlotLine(int n, const ReminderSlot& s) {
  std::string msg = s.Text();
  if (msg.size() > 40) msg = FitMessage(msg, 36) + " ...";
  PrintLine line;
  line.Num(n).Tab(10).Num(s.Month()).Tab(17).Num(s.Day()).Tab(24).Str(msg).Tab(70);
  if (s.year == kEveryYear)
    line.Str("Every");
  else
    line.Num(s.year);
  line.Tab(82).Num(s.lLink).Tab(92).Num(s.rLink);
  return line.Done();
}

}  // namespace

std::string PrintReminderStructures(Context& ctx) {
  if (!std::filesystem::exists(ctx.FilePath(kMercod)) ||
      !std::filesystem::exists(ctx.FilePath(kPerson)))
    return "";
  ReminderStore store(ctx);
  if (!store.Open()) return "";
  const StoreHeader& h = store.Header();
  std::vector<std::string> lines = {
      "Head = " + std::to_string(h.head),
      "MaxRemNum = " + std::to_string(h.maxRemNum),
      "FreeHead = " + std::to_string(h.freeHead),
      "",
      "Active Reminder Slots",
      "",
      "Rem#   Month    Day    Message" + Blanks(40) + "Year        LLink     RLink",
      ""};
  for (int s : store.ActiveSlots()) lines.push_back(SlotLine(s, store.Slot(s)));
  if (h.freeHead > 0) {
    lines.push_back("");
    lines.push_back("Free Slots");
    lines.push_back("");
    for (int s : store.FreeSlots()) lines.push_back(SlotLine(s, store.Slot(s)));
  }
  return JoinCrLf(lines);
}

void WidenReminderMessages(Context& ctx) {
  auto done = [&] {
    UpdateIniFile(ctx, 0, "Rem Message Length Updated", "Yes");
    ctx.settings.remLengthUpdated = "Yes";
  };
  if (!RecoverReminderFiles(ctx)) return;
  RawStore raw;
  if (!ReadRaw(ctx, raw)) return;
  std::vector<FileChange> changes;
  if (raw.exists && raw.person.empty()) {
    changes.push_back({std::string(kPerson), std::nullopt, ""});
  } else if (raw.exists) {
    const int layout = LayoutOf(raw);
    if (layout == 0) {
      ShowError(ctx, Err("Maximum slot number does not agree with MaxRemNum."));
      return;  // left for the user to restore; asked again at the next start
    }
    auto slots = DecodeAll(raw, layout);
    if (raw.header->head == 0 && AllFree(slots)) {
      changes.push_back({std::string(kPerson), std::nullopt, ""});
      changes.push_back({std::string(kMercod), std::nullopt, ""});
    } else if (layout == kOldSlotSize) {
      std::string person;
      for (std::size_t s = 1; s < slots.size(); ++s) person += EncodeSlot(slots[s]);
      changes.push_back({std::string(kPerson), std::move(person), "newperson.dat"});
    }
    // A store already in 68-byte slots was widened by a run that stopped
    // before it could note it.
  }
  if (!changes.empty() && !CommitReminderFiles(ctx, changes)) return;
  RemoveIfExists(ctx.ExeFolder() / "backup" / "person.dat");
  done();
}

void BuildPeyrFile(Context& ctx) {
  if (std::filesystem::exists(ctx.FilePath(kPeyr))) return;
  if (!RecoverReminderFiles(ctx)) return;
  RawStore raw;
  if (!ReadRaw(ctx, raw)) return;
  if (raw.person.empty()) {
    if (raw.exists) CommitReminderFiles(ctx, {{std::string(kPerson), std::nullopt, ""}});
    return;
  }
  const int layout = LayoutOf(raw);
  if (layout == 0) return;  // not a store this step can read; the check will say so
  auto slots = DecodeAll(raw, layout);
  if (raw.header->head == 0) {
    if (AllFree(slots))
      CommitReminderFiles(ctx, {{std::string(kPerson), std::nullopt, ""},
                                {std::string(kMercod), std::nullopt, ""}});
    return;
  }
  LocalDateTime now = ctx.Now();
  const int todayKey = now.month * 100 + now.day;
  std::string list;
  for (int s : WalkFrom(slots, raw.header->head)) {
    const ReminderSlot& r = slots[s];
    if (r.year != kEveryYear || r.monthDay >= todayKey) continue;
    std::string text = ExpandReminderField(ctx, r.message, now.year);
    if (text.empty()) continue;
    if (!list.empty()) list += "; ";
    list += OutOfDateLine(r.Month(), r.Day(), now.year, text);
  }
  CommitReminderFiles(ctx, {{std::string(kPeyr), list + "\r\n", ""}});
}

}  // namespace mc
