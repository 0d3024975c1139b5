// The message sink of the desktop: modal message boxes with the program's six
// captions and their icons, Yes/No questions, and the Data Input box.
#pragma once

#include <QWidget>

#include "core/message_sink.h"

namespace mc::ui {

class QtMessageSink final : public MessageSink {
 public:
  void Show(std::string_view caption, std::string_view text) override;
  bool Ask(std::string_view caption, std::string_view text) override;
  std::optional<std::string> Input(std::string_view caption, std::string_view prompt, bool masked,
                                   std::string_view defaultReply) override;
};

// The window the boxes belong to: the active one.
QWidget* DialogParent();

}  // namespace mc::ui
