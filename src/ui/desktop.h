// What every form of the desktop shares: the context, navigation between the
// numbered screens, and the output services (save, print, find, help).
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <map>
#include <string>

#include "core/context.h"
#include "shell/save_output.h"

class QWidget;

namespace mc {
struct PrintFont;
}

namespace mc::ui {

class ScreenForm;
class OutputBox;

class Desktop : public QObject {
  Q_OBJECT
 public:
  explicit Desktop(Context& ctx);
  // The screens it loaded go with it.
  ~Desktop() override;
  Context& ctx() { return ctx_; }

  using Factory = std::function<ScreenForm*(Desktop&)>;
  // The screens that are built, by form number.
  static const std::map<int, Factory>& Screens();
  static bool IsBuilt(int formNumber) { return Screens().count(formNumber) > 0; }

  void SetMainWindow(QWidget* main) { main_ = main; }
  QWidget* MainWindow() const { return main_; }

  // Opens a screen as its menu entry does: loads it if need be, shows it and
  // hides the caller (the main screen goes on running behind). `caller` is
  // what "&Previous Screen" returns to. Nothing when the screen isn't built.
  ScreenForm* Open(int formNumber, const QString& caller = "Form1");
  ScreenForm* Loaded(int formNumber) const;
  void ShowMain(QWidget* from);
  void ShowPrevious(ScreenForm* from);
  // The visible screen on top, or nothing when the main screen is.
  ScreenForm* ActiveScreen() const;

  // "&Save" / "Save Output": a file dialog, then the save.
  void SaveOutput(QWidget* parent, const std::string& text, SaveStyle style);
  // "&Print": the Print Settings screen with the text.
  void PrintOutput(QWidget* parent, const std::string& text);
  // A listing with a font of its own (the reminder slots in Courier New 9):
  // printed whole, without a title line, leaving the stored body font alone.
  void PrintListing(QWidget* parent, const std::string& text, const PrintFont& body);
  // Ctrl+F: the Find screen over an output box.
  void OpenFind(QWidget* parent, OutputBox* box);
  // F1 and the help menu: a PDF of the program folder with the desktop's viewer.
  void OpenHelpFile(const QString& pdfName);

  // For tests: answers the Save dialog with this file instead of asking.
  std::function<QString()> saveFileChooser;

 private:
  Context& ctx_;
  QWidget* main_ = nullptr;
  std::map<int, QPointer<ScreenForm>> loaded_;
};

}  // namespace mc::ui
