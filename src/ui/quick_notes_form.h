// Quick Notes (form 25): fifteen tabbed sheets with the date and clock, Find
// and Replace (form 28) over the sheet in front, saved on "&Save", on leaving
// the screen and when the program closes.
#pragma once

#include <QDialog>
#include <QPointer>
#include <array>

#include "shell/quick_notes.h"
#include "ui/screen_form.h"

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class QTabWidget;

namespace mc::ui {

class FindReplaceForm;

class QuickNotesForm : public ScreenForm {
  Q_OBJECT
 public:
  explicit QuickNotesForm(Desktop& desktop);

  void Tick(const LocalDateTime& now) override;

  // Reads mynotes.txt and the tab names again (after a restore).
  void Reload();
  // Saves when something changed; true when the file was written.
  bool SaveIfChanged();
  // "&Save".
  bool Save();
  // Double click on tab `index` (0-based).
  void RenameTab(int index);

  QPlainTextEdit* CurrentSheet() const;
  QTabWidget* Tabs() const { return tabs_; }
  const QuickNotesScreen& Model() const { return model_; }
  // Ctrl+F: Find and Replace over the sheet in front.
  FindReplaceForm* OpenFindReplace();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowSheets();

  QuickNotesScreen model_;
  QLineEdit *date_, *clock_;
  QTabWidget* tabs_;
  std::array<QPlainTextEdit*, kSheetCount> sheets_{};
  QPointer<FindReplaceForm> findReplace_;
  bool loading_ = false;
};

// Find and Replace (form 28): finds and replaces text in the sheet in front.
class FindReplaceForm : public QDialog {
  Q_OBJECT
 public:
  FindReplaceForm(Desktop& desktop, QuickNotesForm* notes);

  // "&Find Next": from the cursor on; a hit is selected.
  bool FindNext();
  // "&Replace": replaces the selected hit, then finds the next one.
  void Replace();
  // "Replace &All": every occurrence in the sheet; returns how many.
  int ReplaceAll();

  QLineEdit* FindText() const { return find_; }
  QLineEdit* ReplaceText() const { return replace_; }
  QCheckBox* MatchCase() const { return matchCase_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool SelectionMatches(QPlainTextEdit* sheet) const;

  Desktop& desktop_;
  QuickNotesForm* notes_;
  QLineEdit *find_, *replace_;
  QCheckBox* matchCase_;
  bool searched_ = false;
};

}  // namespace mc::ui
