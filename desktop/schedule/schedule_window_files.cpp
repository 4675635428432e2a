// The files of the schedule's window: what is asked about them, and what is told.

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include "desktop/desktop.h"
#include "desktop/own_texts.h"
#include "desktop/schedule/schedule_model.h"
#include "desktop/schedule/schedule_table_view.h"
#include "desktop/schedule/schedule_window.h"
#include "host/folder.h"

namespace norvane {
namespace {

QString Shown_Path(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

void ScheduleWindow::Begin_New() {
  if (!Let_Go_Of_Changes()) return;
  Exchange_Document([this] { session_.Begin_New(); });
}

void ScheduleWindow::Open() {
  if (!Let_Go_Of_Changes()) return;
  const QString file = Chosen_File(false);
  if (file.isEmpty()) return;
  std::optional<ScheduleFileProblem> problem;
  Exchange_Document([&] { problem = session_.Open(To_Path(file.toStdString())); });
  if (!problem) return;
  const QString words = QString::fromStdString(problem->words);
  Tell_Unusable(file, problem->line == 0 ? words : QString::number(problem->line) + ": " + words);
}

void ScheduleWindow::Save() { Saved(); }

void ScheduleWindow::Save_As() { Saved_Elsewhere(); }

bool ScheduleWindow::Saved() {
  if (!session_.Place()) return Saved_Elsewhere();
  const Saving saving = session_.Save();
  Show_State();
  // What somebody else has written meanwhile stays; the user gives this one another name.
  if (saving == Saving::kChangedMeanwhile) return Saved_Elsewhere();
  if (saving == Saving::kFailed) Tell_Unusable(Shown_Path(session_.Place()->path), {});
  return saving == Saving::kDone;
}

bool ScheduleWindow::Saved_Elsewhere() {
  const QString file = Chosen_File(true);
  if (file.isEmpty()) return false;
  const bool done = session_.Save_As(To_Path(file.toStdString())) == Saving::kDone;
  Show_State();
  if (!done) Tell_Unusable(file, {});
  return done;
}

QString ScheduleWindow::Chosen_File(bool to_save) {
  const TextId accept = to_save ? TextId::kSave : TextId::kOpen;
  QFileDialog dialog(this, Own_Text(desktop_, accept));
  dialog.setAcceptMode(to_save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(to_save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setNameFilters({"CSV (*.csv)", "*"});
  dialog.setDefaultSuffix("csv");
  dialog.setLabelText(QFileDialog::Accept, Own_Text(desktop_, accept));
  dialog.setLabelText(QFileDialog::Reject, desktop_.Text(TextId::kCancel));
  dialog.setLabelText(QFileDialog::FileName, Own_Text(desktop_, TextId::kName));
  if (session_.Place()) {
    dialog.setDirectory(Shown_Path(session_.Place()->path.parent_path()));
    if (to_save) dialog.selectFile(Name_Of_File());
  } else {
    dialog.setDirectory(QDir::home());
  }
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

void ScheduleWindow::Tell_Unusable(const QString& file, const QString& why) {
  QMessageBox box(QMessageBox::Warning, Own_Text(desktop_, TextId::kSchedule),
                  Own_Text(desktop_, TextId::kUnusableFile), QMessageBox::NoButton, this);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(why.isEmpty() ? file : file + '\n' + why);
  box.addButton(desktop_.Text(TextId::kOk), QMessageBox::AcceptRole);
  box.exec();
}

ScheduleWindow::Answer ScheduleWindow::Ask_About_Changes() {
  QMessageBox box(QMessageBox::Question, Own_Text(desktop_, TextId::kSchedule),
                  Own_Text(desktop_, TextId::kKeepChanges), QMessageBox::NoButton, this);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(Name_Of_File());
  const auto* save = box.addButton(Own_Text(desktop_, TextId::kSave), QMessageBox::AcceptRole);
  const auto* discard =
      box.addButton(Own_Text(desktop_, TextId::kDiscard), QMessageBox::DestructiveRole);
  auto* cancel = box.addButton(desktop_.Text(TextId::kCancel), QMessageBox::RejectRole);
  box.setEscapeButton(cancel);
  box.exec();
  if (box.clickedButton() == save) return Answer::kSave;
  return box.clickedButton() == discard ? Answer::kDiscard : Answer::kCancel;
}

bool ScheduleWindow::Let_Go_Of_Changes() {
  table_->Finish_Editing();
  if (!session_.Document().Changed()) return true;
  switch (Ask_About_Changes()) {
    case Answer::kSave:
      return Saved();
    case Answer::kDiscard:
      Exchange_Document([this] { session_.Begin_New(); });
      return true;
    case Answer::kCancel:
      break;
  }
  return false;
}

}  // namespace norvane
