#pragma once

#include <QLabel>
#include <memory>
#include <vector>

#include "desktop/card.h"
#include "desktop/columns.h"

namespace norvane {

class Announcement;
class CaptionField;
class AnswerLine;
class DewRows;
class FormView;
class ScreenChart;
class Warmt;

/// The main result in large letters, the result rows of the main screen, and the chart beside them.
/// With the focus, Ctrl+C copies those that show as text.
class ResultCard : public Card {
  Q_OBJECT

 public:
  ResultCard(FormView& view, Warmt& warmt);
  ~ResultCard() override;

  /// Shows what there is in the mode, and brings up to date what isn't a field of the screen.
  void Follow_Mode();
  /// Gives each value the words that a screen reader tells when it has changed, and has it say the
  /// main result of the mode when that is a new one.
  void Name_Values(const QString& mode);

  /// The rows that show, in aligned columns, a line each.
  QString As_Text() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  /// The labels of a row; `percent` is there for the saving only.
  struct Row {
    QLabel* heading;
    QLabel* value;
    QLabel* unit;
    QLabel* percent;
  };

  void Add_Chart(QGridLayout& grid, int rows);
  QString Main_Result() const;
  void Add_Letters(QGridLayout& grid, int place);
  void Add_Row(QGridLayout& grid, int place, int heading, int value);
  void Add_Savings_Heading(QGridLayout& grid, int place);
  QLabel* Add_Label(QGridLayout& grid, int place, int column, CaptionField& field);
  QLabel* Add_Number(QGridLayout& grid, int place, CardColumn column, CaptionField& field);

  FormView& view_;
  Warmt& warmt_;
  CardRule* line_ = nullptr;
  QLabel* savings_heading_ = nullptr;
  AnswerLine* answer_;
  std::unique_ptr<DewRows> dew_point_;
  ScreenChart* chart_;
  std::vector<Row> rows_;
  Announcement* announcement_;
};

}  // namespace norvane
