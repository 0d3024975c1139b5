// The command line's message sink: boxes become "Caption: text" lines on
// stderr, questions are answered by --yes or --no, input boxes are cancelled.
#pragma once

#include <ostream>

#include "core/message_sink.h"

namespace mc {

class CliSink final : public MessageSink {
 public:
  CliSink(std::ostream& err, bool answerYes) : err_(err), answerYes_(answerYes) {}
  void Show(std::string_view caption, std::string_view text) override {
    err_ << caption << ": " << text << '\n';
  }
  bool Ask(std::string_view caption, std::string_view text) override {
    err_ << caption << ": " << text << (answerYes_ ? " Yes" : " No") << '\n';
    return answerYes_;
  }
  std::optional<std::string> Input(std::string_view caption, std::string_view prompt, bool,
                                   std::string_view) override {
    err_ << caption << ": " << prompt << " (cancelled)\n";
    return std::nullopt;
  }

 private:
  std::ostream& err_;
  bool answerYes_;
};

}  // namespace mc
