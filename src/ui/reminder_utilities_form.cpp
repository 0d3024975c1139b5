#include "ui/reminder_utilities_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "shell/print_settings.h"
#include "ui/main_window.h"
#include "ui/output_box.h"

namespace mc::ui {

namespace {

constexpr const char* kActionCaptions[] = {"Print reminder structures", "Compact reminders file",
                                           "Import reminders", "Export reminders"};
constexpr const char* kActionNames[] = {"optPrintStructures", "optCompact", "optImport",
                                        "optExport"};

}  // namespace

ReminderUtilitiesForm::ReminderUtilitiesForm(Desktop& desktop)
    : ReminderForm(desktop, 21, "Reminder Utilities"), model_(desktop.ctx()) {
  auto* layout = new QVBoxLayout(this);

  auto* switches = new QGroupBox("Reminder switches", this);
  auto* sw = new QVBoxLayout(switches);
  audio_ = new QCheckBox("Sound the reminder audio signal", switches);
  audio_->setObjectName("chkAudio");
  fields_ = new QCheckBox("Process fields such as <1990!> in reminder messages", switches);
  fields_->setObjectName("chkProcessFields");
  sw->addWidget(audio_);
  sw->addWidget(fields_);
  layout->addWidget(switches);

  auto* format = new QGroupBox("Import and export file format", this);
  auto* fg = new QGridLayout(format);
  order_ = new QComboBox(format);
  order_->setObjectName("cboFieldOrder");
  for (auto o : kFieldOrders) order_->addItem(ToQ(o));
  separator_ = new QComboBox(format);
  separator_->setObjectName("cboSeparator");
  separator_->setPlaceholderText("Choose field separator");
  for (auto s : kSeparators) separator_->addItem(ToQ(s));
  userSeparator_ = new QLineEdit(format);
  userSeparator_->setObjectName("txtUserSeparator");
  userSeparator_->setFixedWidth(50);
  fg->addWidget(new QLabel("Field order", format), 0, 0);
  fg->addWidget(order_, 0, 1);
  fg->addWidget(new QLabel("Field separator", format), 1, 0);
  fg->addWidget(separator_, 1, 1);
  fg->addWidget(new QLabel("User specified separator", format), 1, 2);
  fg->addWidget(userSeparator_, 1, 3);
  fg->setColumnStretch(4, 1);
  layout->addWidget(format);

  auto* action = new QGroupBox("Action", this);
  auto* ag = new QVBoxLayout(action);
  for (int i = 0; i < 4; ++i) {
    actions_[i] = new QRadioButton(kActionCaptions[i], action);
    actions_[i]->setObjectName(kActionNames[i]);
    ag->addWidget(actions_[i]);
    connect(actions_[i], &QRadioButton::toggled, this, [this, i](bool on) {
      if (on) model_.action = static_cast<UtilityAction>(i);
    });
  }
  layout->addWidget(action);

  auto* buttons = new QHBoxLayout;
  auto* execute = new QPushButton("&Execute", this);
  execute->setObjectName("cmdExecute");
  buttons->addWidget(execute);
  buttons->addStretch();
  buttons->addWidget(MakeMainScreenButton());
  layout->addLayout(buttons);
  layout->addStretch();

  connect(audio_, &QCheckBox::toggled, this, [this](bool on) { model_.SetAudioSignal(on); });
  connect(fields_, &QCheckBox::toggled, this, [this](bool on) {
    auto* main = qobject_cast<MainWindow*>(this->desktop().MainWindow());
    model_.SetProcessFields(on, main ? main->Output()->Report() : std::string());
  });
  connect(order_, &QComboBox::currentTextChanged, this,
          [this](const QString& t) { model_.format.order = t.toStdString(); });
  connect(separator_, &QComboBox::currentTextChanged, this, [this](const QString& t) {
    model_.format.separator = t.toStdString();
    userSeparator_->setEnabled(t == "User Specified");
  });
  connect(userSeparator_, &QLineEdit::textChanged, this,
          [this](const QString& t) { model_.format.userSeparator = t.toStdString(); });
  connect(execute, &QPushButton::clicked, this, &ReminderUtilitiesForm::Execute);

  ShowModel();
  resize(520, 0);
}

void ReminderUtilitiesForm::Activated() {
  ShowModel();
}

void ReminderUtilitiesForm::ShowModel() {
  auto check = [](QCheckBox* box, bool on) {
    QSignalBlocker b(box);
    box->setChecked(on);
  };
  check(audio_, model_.AudioSignal());
  check(fields_, model_.ProcessFields());
  {
    QSignalBlocker b(order_);
    order_->setCurrentIndex(std::max(0, order_->findText(ToQ(model_.format.order))));
  }
  {
    QSignalBlocker b(separator_);
    separator_->setCurrentIndex(separator_->findText(ToQ(model_.format.separator)));
  }
  {
    QSignalBlocker b(userSeparator_);
    userSeparator_->setText(ToQ(model_.format.userSeparator));
  }
  userSeparator_->setEnabled(model_.format.separator == "User Specified");
  for (int i = 0; i < 4; ++i) {
    QSignalBlocker b(actions_[i]);
    actions_[i]->setChecked(static_cast<int>(model_.action) == i);
  }
}

QString ReminderUtilitiesForm::ChooseFile(bool import) {
  const QString offered =
      ToQ((import ? DefaultImportFile(ctx()) : DefaultExportFile(ctx())).string());
  if (fileChooser) return fileChooser(import, offered);
  const QString filter = "Text files (*.txt);;All files (*)";
  return import ? QFileDialog::getOpenFileName(this, "Import Reminders", offered, filter)
                : QFileDialog::getSaveFileName(this, "Export Reminders", offered, filter);
}

void ReminderUtilitiesForm::Execute() {
  model_.file.clear();
  const bool import = model_.action == UtilityAction::Import;
  if (import || model_.action == UtilityAction::Export) {
    // The format is checked before the file is asked for.
    if (!CheckFieldFormat(ctx(), model_.format)) return;
    const QString file = ChooseFile(import);
    if (file.isEmpty()) return;  // cancelled
    model_.file = file.toStdString();
  }
  model_.Run();
  if (!model_.PrintText().empty())
    desktop().PrintListing(this, model_.PrintText(), PrintFont{"Courier New", 9});
}

}  // namespace mc::ui
