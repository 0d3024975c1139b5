// A message sink for tests: records every box and answers from a script.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "core/message_sink.h"

namespace mc::test {

struct Message {
  std::string caption;
  std::string text;
  bool operator==(const Message&) const = default;
};

class RecordingSink final : public MessageSink {
 public:
  void Show(std::string_view caption, std::string_view text) override {
    messages.push_back({std::string(caption), std::string(text)});
  }
  bool Ask(std::string_view caption, std::string_view text) override {
    messages.push_back({std::string(caption), std::string(text)});
    if (answers.empty()) return false;
    bool a = answers.front();
    answers.pop_front();
    return a;
  }
  std::optional<std::string> Input(std::string_view caption, std::string_view prompt, bool,
                                   std::string_view) override {
    messages.push_back({std::string(caption), std::string(prompt)});
    if (replies.empty()) return std::nullopt;
    auto r = replies.front();
    replies.pop_front();
    return r;
  }

  // The text of the last box, or "" when none was shown.
  std::string Last() const { return messages.empty() ? "" : messages.back().text; }
  void Clear() { messages.clear(); }

  std::vector<Message> messages;
  std::deque<bool> answers;
  std::deque<std::optional<std::string>> replies;
};

}  // namespace mc::test
