#include "ui/edit_reminders_form.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QVBoxLayout>

#include "ui/output_box.h"

namespace mc::ui {

EditRemindersForm::EditRemindersForm(Desktop& desktop)
    : ReminderForm(desktop, 3, "Edit Reminders"), model_(desktop.ctx()) {
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(MakeDateAndClock());

  listing_ = MakeOutputBox();
  listing_->setObjectName("txtListing");
  listing_->viewport()->installEventFilter(this);
  layout->addWidget(listing_, 1);

  prompt_ = new QLabel(this);
  prompt_->setObjectName("lblPrompt");
  prompt_->setWordWrap(true);
  layout->addWidget(prompt_);

  auto field = [this](const char* name, int width) {
    auto* e = new QLineEdit(this);
    e->setObjectName(name);
    if (width) e->setFixedWidth(width);
    return e;
  };
  numberBox_ = field("txtNumber", 60);
  numberBox_->setReadOnly(true);  // the reminder is chosen by clicking it
  numberBox_->setFocusPolicy(Qt::NoFocus);
  dateBox_ = field("txtReminderDate", 70);
  yearBox_ = field("txtYear", 60);
  messageBox_ = field("txtMessage", 0);
  auto* fields = new QGridLayout;
  fields->addWidget(new QLabel("Reminder number", this), 0, 0);
  fields->addWidget(new QLabel("Date (d/m)", this), 0, 1);
  fields->addWidget(new QLabel("Year", this), 0, 2);
  fields->addWidget(new QLabel("Message (max 60 chars.)", this), 0, 3);
  fields->addWidget(numberBox_, 1, 0);
  fields->addWidget(dateBox_, 1, 1);
  fields->addWidget(yearBox_, 1, 2);
  fields->addWidget(messageBox_, 1, 3);
  fields->setColumnStretch(3, 1);
  layout->addLayout(fields);

  all_ = new QCheckBox("Check to delete all reminders containing the selected message.", this);
  all_->setObjectName("chkAllWithMessage");
  layout->addWidget(all_);

  status_ = new QLineEdit(this);
  status_->setObjectName("txtInformation");
  status_->setReadOnly(true);
  status_->setFocusPolicy(Qt::NoFocus);
  layout->addWidget(status_);

  auto* buttons = new QHBoxLayout;
  auto* update = new QPushButton("&Update Reminder", this);
  update->setObjectName("cmdUpdate");
  delete_ = new QPushButton(this);
  delete_->setObjectName("cmdDelete");
  buttons->addWidget(update);
  buttons->addWidget(delete_);
  buttons->addStretch();
  buttons->addWidget(MakeMainScreenButton());
  layout->addLayout(buttons);

  connect(dateBox_, &QLineEdit::textChanged, this,
          [this](const QString& t) { model_.dateField = t.toStdString(); });
  connect(yearBox_, &QLineEdit::textChanged, this,
          [this](const QString& t) { model_.yearField = t.toStdString(); });
  connect(messageBox_, &QLineEdit::textChanged, this,
          [this](const QString& t) { model_.messageField = t.toStdString(); });
  connect(all_, &QCheckBox::toggled, this, [this](bool on) {
    model_.allWithMessage = on;
    delete_->setText(ToQ(model_.DeleteCaption()));
  });
  connect(update, &QPushButton::clicked, this, &EditRemindersForm::Update);
  connect(delete_, &QPushButton::clicked, this, &EditRemindersForm::Delete);

  ShowFields();  // the listing comes with each activation
  resize(760, 560);
}

void EditRemindersForm::Activated() {
  model_.Refresh();
  ShowListing();
  prompt_->setText(ToQ(model_.Prompt()));
}

void EditRemindersForm::ShowListing() {
  // Keep the reader's place in a long list.
  const int scroll = listing_->verticalScrollBar()->value();
  listing_->SetReport(model_.Listing());
  listing_->verticalScrollBar()->setValue(scroll);
}

void EditRemindersForm::ShowFields() {
  auto show = [](QLineEdit* e, const std::string& text) {
    QSignalBlocker b(e);
    e->setText(ToQ(text));
  };
  show(numberBox_, model_.numberField);
  show(dateBox_, model_.dateField);
  show(yearBox_, model_.yearField);
  show(messageBox_, model_.messageField);
  {
    QSignalBlocker b(all_);
    all_->setChecked(model_.allWithMessage);
  }
  delete_->setText(ToQ(model_.DeleteCaption()));
  prompt_->setText(ToQ(model_.Prompt()));
}

void EditRemindersForm::SelectLine(int line) {
  if (line < 0 || !model_.SelectLine(static_cast<std::size_t>(line))) return;
  ShowFields();
  status_->clear();
}

bool EditRemindersForm::eventFilter(QObject* watched, QEvent* event) {
  if (watched == listing_->viewport() && event->type() == QEvent::MouseButtonRelease) {
    auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() == Qt::LeftButton && !listing_->textCursor().hasSelection())
      SelectLine(listing_->cursorForPosition(mouse->position().toPoint()).blockNumber());
  }
  return ReminderForm::eventFilter(watched, event);
}

void EditRemindersForm::Update() {
  const bool updated = model_.Update();
  status_->setText(ToQ(model_.Status()));
  if (!updated) return;
  ShowListing();
  ShowFields();
}

void EditRemindersForm::Delete() {
  const bool deleted = model_.Delete();
  status_->setText(ToQ(model_.Status()));
  if (!deleted) return;
  ShowListing();
  ShowFields();
}

}  // namespace mc::ui
