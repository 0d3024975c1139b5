#include "core/errors.h"

namespace mc {

void ShowError(Context& ctx, int n) {
  ctx.sink().Show(kErrorDetected, ErrorText(n, ctx.Now().year));
}

void ShowErrorText(Context& ctx, std::string_view text) {
  ctx.sink().Show(kErrorDetected, text);
}

std::string RunTimeErrorText(int n, std::string_view lastFile, int procNum) {
  std::string file(lastFile);
  std::string text;
  switch (n) {
    case 5:
      text = "Illegal function call error";
      break;
    case 6:
      text = "Overflow error";
      break;
    case 7:
      text = "Out of memory error";
      break;
    case 9:
      text = "Subscript out of range error";
      break;
    case 11:
      text = "Division by zero error";
      break;
    case 13:
      text = "Type mismatch error";
      break;
    case 14:
      text = "Out of string space error";
      break;
    case 28:
      text = "Out of stack space error";
      break;
    case 51:
      text = "Internal error";
      break;
    case 52:
      text = "Bad file name or number error";
      break;
    case 53:
      text = "File " + file + " not found error";
      break;
    case 55:
      text = "File " + file + " already open error";
      break;
    case 57:
      text = "Device I/O error";
      break;
    case 58:
      text = "File already exists error";
      break;
    case 59:
      text = "Bad record length error";
      break;
    case 62:
      text = "Input past end of file error";
      break;
    case 63:
      text = "Bad record number error";
      break;
    case 64:
      text = "Bad file name error";
      break;
    case 70:
      text = "File " + file + " already in use error";
      break;
    case 75:
      text = "Path/file access error";
      break;
    case 380:
      text = "Invalid property value error";
      break;
    case 383:
      text = "Property value is read-only";
      break;
    case 430:
      text = "Class doesn't support Automation";
      break;
    case 520:
      text = "Can't empty Clipboard";
      break;
    case 521:
      text = "Can't open Clipboard";
      break;
    default:
      text = "Error  " + std::to_string(n);
      break;
  }
  return text + " (ProcNum = " + std::to_string(procNum) + ").";
}

void ShowRunTimeError(Context& ctx, int n, int procNum) {
  ctx.sink().Show(kErrorDetected, RunTimeErrorText(n, ctx.settings.lastFileOpened, procNum));
}

}  // namespace mc
