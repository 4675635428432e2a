#include "desktop/schedule/schedule_window.h"

#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/accessible.h"
#include "desktop/desktop.h"
#include "desktop/letters.h"
#include "desktop/own_texts.h"
#include "desktop/report_window.h"
#include "desktop/schedule/present_line.h"
#include "desktop/schedule/schedule_model.h"
#include "desktop/schedule/schedule_report.h"
#include "desktop/schedule/schedule_table_view.h"
#include "desktop/schedule/schedule_texts.h"

namespace norvane {
namespace {

constexpr int kUntilKept = 2000;  // milliseconds, at most, from a change to the disk

}  // namespace

ScheduleWindow::ScheduleWindow(Desktop& desktop, const std::filesystem::path& folder)
    : desktop_(desktop),
      session_(folder, desktop.Decimal_Separator()),
      model_(new ScheduleModel(desktop, session_.Document())),
      table_(new ScheduleTableView(*model_)),
      notice_(new QLabel),
      sums_(new QLabel),
      remark_(new QLabel) {
  model_->setParent(this);
  table_->setItemDelegate(new ScheduleDelegate(desktop, *model_, table_));
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(8, 8, 8, 8);
  Make_Rows_Of_Commands(*page);
  page->addWidget(notice_);
  page->addWidget(table_, 1);
  Make_Foot(*page);
  keeping_.setSingleShot(true);
  keeping_.callOnTimeout([this] {
    outlives_a_crash_ = session_.Keep();
    Show_Notice();
  });
  connect(model_, &ScheduleModel::Rows_Changed, this, &ScheduleWindow::Note_Changes);
  connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &ScheduleWindow::Show_Remark);
  Exchange_Document([this] { session_.Recover(); });
  constexpr QSize kWanted(1080, 600);
  resize(kWanted.boundedTo(screen()->availableSize() * 9 / 10));
}

ScheduleWindow::~ScheduleWindow() {
  // The rows go before the widgets that show them.
  model_->Let_Go();
}

void ScheduleWindow::Add_Command(QBoxLayout& row, TextId text, const char* sign,
                                 const QKeySequence& key, Action action) {
  auto* button = new QPushButton;
  row.addWidget(button);
  const auto carry_out = [this, action] {
    table_->Finish_Editing();
    (this->*action)();
  };
  connect(button, &QPushButton::clicked, this, carry_out);
  auto* shortcut = key == QKeySequence(Qt::Key_Delete)
                       ? new QShortcut(key, table_, nullptr, nullptr, Qt::WidgetShortcut)
                       : new QShortcut(key, this);
  connect(shortcut, &QShortcut::activated, this, carry_out);
  commands_.push_back({text, sign, button, key.toString(QKeySequence::NativeText)});
}

void ScheduleWindow::Make_Rows_Of_Commands(QBoxLayout& page) {
  auto* file = new QHBoxLayout;
  Add_Command(*file, TextId::kNew, "", Qt::CTRL | Qt::Key_N, &ScheduleWindow::Begin_New);
  Add_Command(*file, TextId::kOpen, "\u2026", Qt::CTRL | Qt::Key_O, &ScheduleWindow::Open);
  Add_Command(*file, TextId::kSave, "", Qt::CTRL | Qt::Key_S, &ScheduleWindow::Save);
  Add_Command(*file, TextId::kSave, "\u2026", Qt::CTRL | Qt::SHIFT | Qt::Key_S,
              &ScheduleWindow::Save_As);
  file->addSpacing(16);
  Add_Command(*file, TextId::kUndo, "", Qt::CTRL | Qt::Key_Z, &ScheduleWindow::Undo);
  Add_Command(*file, TextId::kRedo, "", Qt::CTRL | Qt::Key_Y, &ScheduleWindow::Redo);
  file->addSpacing(16);
  Add_Command(*file, TextId::kReport, "", QKeySequence("Ctrl+P"), &ScheduleWindow::Report);
  file->addStretch();
  page.addLayout(file);
  auto* rows = new QHBoxLayout;
  Add_Command(*rows, TextId::kAddPresent, "", Qt::CTRL | Qt::Key_Return,
              &ScheduleWindow::Add_Present);
  Add_Command(*rows, TextId::kDuplicate, "", Qt::CTRL | Qt::Key_D, &ScheduleWindow::Duplicate);
  Add_Command(*rows, TextId::kDelete, "", Qt::Key_Delete, &ScheduleWindow::Delete);
  Add_Command(*rows, TextId::kMove, " \u25B2", Qt::ALT | Qt::Key_Up, &ScheduleWindow::Move_Up);
  Add_Command(*rows, TextId::kMove, " \u25BC", Qt::ALT | Qt::Key_Down, &ScheduleWindow::Move_Down);
  rows->addStretch();
  page.addLayout(rows);
  connect(new QShortcut(Qt::Key_Insert, table_, nullptr, nullptr, Qt::WidgetShortcut),
          &QShortcut::activated, this, &ScheduleWindow::Add_Empty);
}

void ScheduleWindow::Make_Foot(QBoxLayout& page) {
  for (QLabel* line : {sums_, remark_}) {
    line->setTextFormat(Qt::PlainText);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    page.addWidget(line);
  }
}

void ScheduleWindow::Come_Forward() {
  Follow_Language();
  show();
  raise();
  activateWindow();
  table_->setFocus(Qt::OtherFocusReason);
}

void ScheduleWindow::Follow_Language() {
  const QString language = desktop_.Text(TextId::kLanguageName);
  if (language == language_) return;
  language_ = language;
  for (const Command& command : commands_) {
    const QString text = Own_Text(desktop_, command.text) + QString::fromUtf8(command.sign);
    command.button->setText(With_Letter(text, {}));
    command.button->setToolTip(text + " (" + command.key + ')');
    Tell(*command.button, text, command.key);
  }
  Exchange_Document([] {});
  if (report_ != nullptr) report_->Follow();
}

void ScheduleWindow::Exchange_Document(const std::function<void()>& change) {
  const auto [first, count] = table_->Marked_Rows();
  model_->Let_Go();
  change();
  model_->Show(session_.Document());
  table_->Size_Columns();
  table_->Mark_Rows(first, count);
  keeping_.stop();
  Show_State();
}

void ScheduleWindow::Note_Changes() {
  if (!keeping_.isActive()) keeping_.start(kUntilKept);
  Show_State();
}

QString ScheduleWindow::Name_Of_File() const {
  if (!session_.Place()) return {};
  const std::u8string name = session_.Place()->path.filename().u8string();
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

QString ScheduleWindow::Title() const {
  const QString title = Own_Text(desktop_, TextId::kSchedule);
  const QString file = Name_Of_File();
  return file.isEmpty() ? title : file + " \u2013 " + title;
}

void ScheduleWindow::Show_State() {
  ScheduleDocument& document = session_.Document();
  // "[*]" in a file's name is no mark of changes.
  setWindowTitle(Title().replace("[*]", "[*][*]") + " [*]");
  setWindowModified(document.Changed());
  Tell(*table_, Own_Text(desktop_, TextId::kSchedule));
  if (!document.Changed()) outlives_a_crash_ = true;
  Show_Notice();
  const QString sums = Words_For(desktop_, document.Table().Sums());
  sums_->setText(sums);
  Tell(*sums_, sums);
  Show_Remark();
}

void ScheduleWindow::Show_Notice() {
  QString notice;
  if (!outlives_a_crash_) {
    notice =
        QStringLiteral("schedule-\u2026.recovery: ") + Own_Text(desktop_, TextId::kUnusableFile);
  } else if (session_.Recovered()) {
    notice = Own_Text(desktop_, TextId::kRecovered);
  }
  notice_->setVisible(!notice.isEmpty());
  if (notice_->text() == notice) return;
  notice_->setText(notice);
  Tell(*notice_, notice);
}

void ScheduleWindow::Show_Remark() {
  const int row = table_->currentIndex().row();
  QString remark;
  if (row >= 0 && row < model_->rowCount()) {
    remark = Remark_On(desktop_, session_.Document().Table().Result(static_cast<std::size_t>(row)));
    if (!remark.isEmpty()) remark = QString::number(row + 1) + ": " + remark;
  }
  remark_->setText(remark);
  Tell(*remark_, remark);
}

void ScheduleWindow::Mark(const std::optional<RowChange>& change) {
  if (!change) return;
  table_->Mark_Rows(static_cast<int>(change->first), static_cast<int>(change->inserted));
}

void ScheduleWindow::Undo() { Mark(session_.Document().Undo()); }

void ScheduleWindow::Redo() { Mark(session_.Document().Redo()); }

void ScheduleWindow::Add_Present() {
  ScheduleDocument& document = session_.Document();
  const std::size_t end = document.Table().Rows();
  document.Insert(end, {Present_Line(desktop_, document.Table())});
  Mark(RowChange{end, 0, 1});
}

void ScheduleWindow::Add_Empty() {
  ScheduleDocument& document = session_.Document();
  const auto [first, count] = table_->Marked_Rows();
  const auto at = static_cast<std::size_t>(first) + static_cast<std::size_t>(count);
  document.Insert(at, {document.Table().Empty_Line()});
  Mark(RowChange{at, 0, 1});
}

void ScheduleWindow::Duplicate() {
  const auto [first, count] = table_->Marked_Rows();
  session_.Document().Duplicate(static_cast<std::size_t>(first), static_cast<std::size_t>(count));
  Mark(RowChange{static_cast<std::size_t>(first + count), 0, static_cast<std::size_t>(count)});
}

void ScheduleWindow::Delete() {
  const auto [first, count] = table_->Marked_Rows();
  session_.Document().Delete(static_cast<std::size_t>(first), static_cast<std::size_t>(count));
  table_->Mark_Rows(first, 1);
}

void ScheduleWindow::Move_Up() {
  const auto [first, count] = table_->Marked_Rows();
  session_.Document().Move_Up(static_cast<std::size_t>(first), static_cast<std::size_t>(count));
  table_->Mark_Rows(std::max(first - 1, 0), count);
}

void ScheduleWindow::Move_Down() {
  const auto [first, count] = table_->Marked_Rows();
  session_.Document().Move_Down(static_cast<std::size_t>(first), static_cast<std::size_t>(count));
  table_->Mark_Rows(std::min(first + 1, std::max(model_->rowCount() - count, 0)), count);
}

void ScheduleWindow::Report() {
  if (report_ == nullptr) {
    const auto make = [this](const ReportFrame& frame) -> std::unique_ptr<ReportPages> {
      return std::make_unique<TablePages>(
          desktop_, Report_Of(desktop_, Title(), *model_, session_.Document().Table().Sums()),
          frame);
    };
    report_ = new ReportWindow(*this, desktop_, QPageLayout::Landscape, make);
  }
  report_->Open();
}

void ScheduleWindow::closeEvent(QCloseEvent* event) {
  table_->Finish_Editing();
  event->setAccepted(Let_Go_Of_Changes());
  if (event->isAccepted() && report_ != nullptr) report_->hide();
}

}  // namespace norvane
