#include "ui/quick_notes_form.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextDocument>
#include <QVBoxLayout>

#include "shell/main_screen.h"
#include "ui/fonts.h"
#include "ui/screen_colours.h"

namespace mc::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

QLineEdit* ReadOnlyBox(QWidget* parent, const char* name, int width) {
  auto* b = new QLineEdit(parent);
  b->setObjectName(name);
  b->setReadOnly(true);
  b->setFocusPolicy(Qt::NoFocus);
  b->setFixedWidth(width);
  return b;
}

}  // namespace

QuickNotesForm::QuickNotesForm(Desktop& desktop)
    : ScreenForm(desktop, 25, "Quick Notes"), model_(desktop.ctx()) {
  auto* layout = new QVBoxLayout(this);
  auto* top = new QHBoxLayout;
  date_ = ReadOnlyBox(this, "txtDate", 150);
  clock_ = ReadOnlyBox(this, "txtClock", 110);
  top->addWidget(date_);
  top->addWidget(clock_);
  top->addStretch();
  auto* hint = new QLabel("Double-click a tab to rename it. Ctrl+F finds and replaces text.", this);
  top->addWidget(hint);
  layout->addLayout(top);

  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("tabSheets");
  tabs_->setUsesScrollButtons(true);
  // Narrow tabs, so that all fifteen are in view; the chosen one stands out.
  tabs_->tabBar()->setStyleSheet(
      "QTabBar::tab { padding: 4px 8px; border: 1px solid palette(mid); border-bottom: none; }"
      "QTabBar::tab:selected { background: palette(base); }"
      "QTabBar::tab:!selected { background: palette(button); margin-top: 3px; }");
  for (int i = 0; i < kSheetCount; ++i) {
    auto* sheet = new QPlainTextEdit(tabs_);
    sheet->setObjectName(QString("txtSheet%1").arg(i + 1));
    sheet->setTabChangesFocus(false);
    sheet->installEventFilter(this);
    sheets_[static_cast<std::size_t>(i)] = sheet;
    tabs_->addTab(sheet, QString());
    connect(sheet, &QPlainTextEdit::textChanged, this, [this, i] {
      if (loading_) return;
      model_.SetText(i + 1, sheets_[static_cast<std::size_t>(i)]->toPlainText().toStdString());
    });
  }
  layout->addWidget(tabs_, 1);
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) {
    if (!loading_ && index >= 0) model_.ChooseSheet(index + 1);
  });
  connect(tabs_, &QTabWidget::tabBarDoubleClicked, this, &QuickNotesForm::RenameTab);

  auto* row = new QHBoxLayout;
  auto* save = new QPushButton("&Save", this);
  save->setObjectName("cmdSave");
  save->setToolTip("Save all sheets.");
  auto* find = new QPushButton("&Find and Replace", this);
  find->setObjectName("cmdFindReplace");
  row->addWidget(save);
  row->addWidget(find);
  row->addStretch();
  row->addWidget(MakeMainScreenButton());
  layout->addLayout(row);
  connect(save, &QPushButton::clicked, this, &QuickNotesForm::Save);
  connect(find, &QPushButton::clicked, this, &QuickNotesForm::OpenFindReplace);

  Reload();
  resize(1100, 600);
}

void QuickNotesForm::Reload() {
  model_.Load();
  ShowSheets();
}

void QuickNotesForm::ShowSheets() {
  loading_ = true;
  const QFont font = FontOf(ctx().settings.userPropFont);
  for (int i = 0; i < kSheetCount; ++i) {
    const auto k = static_cast<std::size_t>(i);
    tabs_->setTabText(i, Q(model_.TabNames()[k]));
    sheets_[k]->setFont(font);
    const QString text = Q(model_.Texts()[k]);
    if (sheets_[k]->toPlainText() != text) sheets_[k]->setPlainText(text);
  }
  tabs_->setCurrentIndex(model_.CurrentSheet() - 1);
  loading_ = false;
}

void QuickNotesForm::Tick(const LocalDateTime& now) {
  clock_->setText(Q(CurrentTimeText(ctx().settings, now)));
  const QString date = Q(DateBoxText(now, ctx().settings.showYear == "Yes"));
  if (date_->text() != date) date_->setText(date);
}

bool QuickNotesForm::Save() {
  const bool written = model_.Save();
  if (written) ShowSheets();  // a sheet over the limit was cut
  return written;
}

bool QuickNotesForm::SaveIfChanged() {
  return model_.Changed() && Save();
}

void QuickNotesForm::RenameTab(int index) {
  if (index < 0) return;
  if (model_.RenameTab(index + 1))
    tabs_->setTabText(index, Q(model_.TabNames()[static_cast<std::size_t>(index)]));
}

QPlainTextEdit* QuickNotesForm::CurrentSheet() const {
  const int i = tabs_->currentIndex();
  return i >= 0 ? sheets_[static_cast<std::size_t>(i)] : nullptr;
}

FindReplaceForm* QuickNotesForm::OpenFindReplace() {
  if (!findReplace_) findReplace_ = new FindReplaceForm(desktop(), this);
  findReplace_->show();
  findReplace_->raise();
  findReplace_->activateWindow();
  findReplace_->FindText()->setFocus();
  return findReplace_;
}

void QuickNotesForm::showEvent(QShowEvent* event) {
  ScreenForm::showEvent(event);
  Tick(ctx().Now());  // the date and clock without waiting for the timer
}

void QuickNotesForm::hideEvent(QHideEvent* event) {
  // Leaving the screen saves what changed; minimising does not.
  if (!event->spontaneous()) {
    if (findReplace_) findReplace_->hide();
    SaveIfChanged();
  }
  ScreenForm::hideEvent(event);
}

void QuickNotesForm::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F && (event->modifiers() & Qt::ControlModifier)) {
    OpenFindReplace();
    return;
  }
  if (event->key() == Qt::Key_F3) {
    if (findReplace_ && !findReplace_->FindText()->text().isEmpty()) findReplace_->FindNext();
    return;
  }
  ScreenForm::keyPressEvent(event);
}

bool QuickNotesForm::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    const bool ctrlF = key->key() == Qt::Key_F && (key->modifiers() & Qt::ControlModifier);
    if (ctrlF || key->key() == Qt::Key_F3 || key->key() == Qt::Key_F11 ||
        key->key() == Qt::Key_F1) {
      keyPressEvent(key);
      return true;
    }
  }
  return ScreenForm::eventFilter(watched, event);
}

// ---------------------------------------------------------------------------
// Find and Replace (form 28)

FindReplaceForm::FindReplaceForm(Desktop& desktop, QuickNotesForm* notes)
    : QDialog(notes, Qt::Tool), desktop_(desktop), notes_(notes) {
  setObjectName("Form28");
  setWindowTitle("Find and Replace Text");
  setModal(false);
  auto* layout = new QVBoxLayout(this);
  auto* grid = new QGridLayout;
  find_ = new QLineEdit(this);
  find_->setObjectName("txtFind");
  replace_ = new QLineEdit(this);
  replace_->setObjectName("txtReplace");
  grid->addWidget(new QLabel("Find what", this), 0, 0);
  grid->addWidget(find_, 0, 1);
  grid->addWidget(new QLabel("Replace with", this), 1, 0);
  grid->addWidget(replace_, 1, 1);
  layout->addLayout(grid);
  matchCase_ = new QCheckBox("Match case", this);
  matchCase_->setObjectName("chkMatchCase");
  layout->addWidget(matchCase_);
  auto* row = new QHBoxLayout;
  auto* next = new QPushButton("&Find Next", this);
  next->setObjectName("cmdFindNext");
  next->setDefault(true);
  auto* one = new QPushButton("&Replace", this);
  one->setObjectName("cmdReplace");
  auto* all = new QPushButton("Replace &All", this);
  all->setObjectName("cmdReplaceAll");
  auto* close = new QPushButton("&Close", this);
  close->setObjectName("cmdClose");
  for (QPushButton* b : {next, one, all, close}) row->addWidget(b);
  layout->addLayout(row);
  connect(next, &QPushButton::clicked, this, &FindReplaceForm::FindNext);
  connect(one, &QPushButton::clicked, this, &FindReplaceForm::Replace);
  connect(all, &QPushButton::clicked, this, &FindReplaceForm::ReplaceAll);
  connect(close, &QPushButton::clicked, this, &QDialog::hide);
  // A new search text or sheet starts again from the top.
  connect(find_, &QLineEdit::textChanged, this, [this] { searched_ = false; });
  connect(matchCase_, &QCheckBox::toggled, this, [this] { searched_ = false; });
  connect(notes_->Tabs(), &QTabWidget::currentChanged, this, [this] { searched_ = false; });
  ApplyScreenColours(desktop_.ctx(), this, 28);
}

bool FindReplaceForm::FindNext() {
  const QString text = find_->text();
  QPlainTextEdit* sheet = notes_->CurrentSheet();
  if (text.trimmed().isEmpty() || !sheet) {
    find_->setFocus();
    return false;
  }
  const QTextDocument::FindFlags flags =
      matchCase_->isChecked() ? QTextDocument::FindCaseSensitively : QTextDocument::FindFlags();
  const bool first = !searched_;
  if (first) sheet->moveCursor(QTextCursor::Start);
  searched_ = true;
  if (sheet->find(text, flags)) return true;
  desktop_.ctx().sink().Show(kSorry, first ? "Text not found." : "No more occurrences of text.");
  return false;
}

bool FindReplaceForm::SelectionMatches(QPlainTextEdit* sheet) const {
  const QString selected = sheet->textCursor().selectedText();
  return !selected.isEmpty() &&
         selected.compare(find_->text(),
                          matchCase_->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive) == 0;
}

void FindReplaceForm::Replace() {
  QPlainTextEdit* sheet = notes_->CurrentSheet();
  if (!sheet || find_->text().trimmed().isEmpty()) {
    find_->setFocus();
    return;
  }
  if (searched_ && SelectionMatches(sheet)) sheet->textCursor().insertText(replace_->text());
  FindNext();
}

int FindReplaceForm::ReplaceAll() {
  const QString text = find_->text();
  QPlainTextEdit* sheet = notes_->CurrentSheet();
  if (text.trimmed().isEmpty() || !sheet) {
    find_->setFocus();
    return 0;
  }
  const QTextDocument::FindFlags flags =
      matchCase_->isChecked() ? QTextDocument::FindCaseSensitively : QTextDocument::FindFlags();
  QTextDocument* doc = sheet->document();
  QTextCursor edit(doc);
  edit.beginEditBlock();
  int count = 0;
  QTextCursor hit = doc->find(text, 0, flags);
  while (!hit.isNull()) {
    hit.insertText(replace_->text());
    ++count;
    hit = doc->find(text, hit.position(), flags);
  }
  edit.endEditBlock();
  searched_ = false;
  if (count == 0)
    desktop_.ctx().sink().Show(kSorry, "Text not found.");
  else
    desktop_.ctx().sink().Show(
        kInformation, count == 1 ? "1 occurrence of the text replaced."
                                 : std::to_string(count) + " occurrences of the text replaced.");
  return count;
}

void FindReplaceForm::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F3) {
    FindNext();
    return;
  }
  QDialog::keyPressEvent(event);
}

}  // namespace mc::ui
