// How the engine talks to the user: a box with a caption, a Yes/No question,
// and a one-line input. The desktop shows dialogs, the command line writes to
// stderr, tests record and script the answers.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mc {

// The six captions of the program's message boxes.
inline constexpr std::string_view kErrorDetected = "Error Detected!";
inline constexpr std::string_view kInformation = "Information!";
inline constexpr std::string_view kSuccess = "Success!";
inline constexpr std::string_view kFailure = "Failure!";
inline constexpr std::string_view kWarning = "Warning!";
inline constexpr std::string_view kSorry = "Sorry!";

class MessageSink {
 public:
  virtual ~MessageSink() = default;
  virtual void Show(std::string_view caption, std::string_view text) = 0;
  // A Yes/No question: true for Yes.
  virtual bool Ask(std::string_view caption, std::string_view text) = 0;
  // A one-line reply, or nothing when the user cancels.
  virtual std::optional<std::string> Input(std::string_view caption, std::string_view prompt,
                                           bool masked, std::string_view defaultReply) = 0;
};

}  // namespace mc
