#pragma once

#include <QTimer>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <vector>

#include "frame/text_id.h"
#include "schedule/schedule_session.h"

class QBoxLayout;
class QLabel;
class QPushButton;

namespace norvane {

class Desktop;
class ReportWindow;
class ScheduleModel;
class ScheduleTableView;

/// The window of a schedule: its rows, what is done with them, and their sums.
class ScheduleWindow : public QWidget {
  Q_OBJECT

 public:
  /// @param folder where unsaved changes are kept
  ScheduleWindow(Desktop& desktop, const std::filesystem::path& folder);
  ~ScheduleWindow() override;

  /// Shows the window, or brings it to the front.
  void Come_Forward();
  /// Shows all texts in the current language, if that is another one.
  void Follow_Language();
  /// Asks about changes that aren't saved, and saves them or gives them up. False when the user
  /// wants to go on.
  bool Let_Go_Of_Changes();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  using Action = void (ScheduleWindow::*)();
  struct Command {
    TextId text;
    const char* sign;  ///< behind the text
    QPushButton* button;
    QString key;
  };

  void Add_Command(QBoxLayout& row, TextId text, const char* sign, const QKeySequence& key,
                   Action action);
  void Make_Rows_Of_Commands(QBoxLayout& page);
  void Make_Foot(QBoxLayout& page);

  void Begin_New();
  void Open();
  void Save();
  void Save_As();
  void Undo();
  void Redo();
  void Add_Present();
  void Add_Empty();
  void Duplicate();
  void Delete();
  void Move_Up();
  void Move_Down();
  void Report();

  enum class Answer { kSave, kDiscard, kCancel };
  Answer Ask_About_Changes();
  /// Whether all changes are in a file now.
  bool Saved();
  bool Saved_Elsewhere();
  QString Chosen_File(bool to_save);
  void Tell_Unusable(const QString& file, const QString& why);
  /// The rows are to be those of another document, which `change` brings.
  void Exchange_Document(const std::function<void()>& change);
  void Mark(const std::optional<RowChange>& change);
  QString Name_Of_File() const;
  QString Title() const;
  void Show_State();
  /// That the rows come from a session that broke off, or that they wouldn't outlive a crash.
  void Show_Notice();
  void Show_Remark();
  void Note_Changes();

  Desktop& desktop_;
  ScheduleSession session_;
  ScheduleModel* model_;
  ScheduleTableView* table_;
  QLabel* notice_;
  QLabel* sums_;
  QLabel* remark_;
  ReportWindow* report_ = nullptr;  ///< once it was asked for
  std::vector<Command> commands_;
  QTimer keeping_;
  bool outlives_a_crash_ = true;  ///< what was changed last
  QString language_;
};

}  // namespace norvane
