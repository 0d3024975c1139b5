// Showing errors: catalogue entries and run-time failures, through the sink.
#pragma once

#include <string>
#include <string_view>

#include "core/context.h"
#include "core/error_catalogue.h"

namespace mc {

// Entry n of the catalogue in a box captioned "Error Detected!".
void ShowError(Context& ctx, int n);
// A message composed by the caller (the catalogue holds it too) in the same box.
void ShowErrorText(Context& ctx, std::string_view text);

// Run-time failures by their numbers, as the run-time error box names them.
enum RunTimeError : int {
  kIllegalFunctionCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kFileNotFound = 53,
  kFileAlreadyOpen = 55,
  kDeviceIO = 57,
  kFileAlreadyExists = 58,
  kBadRecordLength = 59,
  kInputPastEnd = 62,
  kBadFileName = 64,
  kPermissionDenied = 70,
  kPathFileAccess = 75,
};

// The text of run-time error n, naming lastFile where the error concerns a file.
std::string RunTimeErrorText(int n, std::string_view lastFile, int procNum);
// The run-time error box, naming the settings block's LastFileOpened.
void ShowRunTimeError(Context& ctx, int n, int procNum = 0);

}  // namespace mc
