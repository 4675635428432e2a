#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "report/comparison_table.h"
#include "report/kept_prices.h"
#include "window_test.h"

namespace norvane {
namespace {

using Table = ComparisonTable;

/// The window that compares thicknesses, beside the main screen.
class Comparing : public WindowTest {
 protected:
  void Open() {
    Press(Qt::Key_T, Qt::ControlModifier);
    ASSERT_TRUE(Comes_To_Front(Window()));
    Settle();
  }
  QWidget& Window() { return *Main_View().findChild<QWidget*>("compare"); }
  QTableView& Rows() { return *Window().findChild<QTableView*>("compare_table"); }
  QString At(int row, Table::Column column) {
    return Rows().model()->index(row, column).data().toString();
  }
  int Row_Of(const QString& thickness) {
    for (int row = 0; row < Rows().model()->rowCount(); ++row) {
      if (At(row, Table::kThickness) == thickness) return row;
    }
    ADD_FAILURE() << "no row of " << thickness.toStdString();
    return 0;
  }
  QPoint Place_Of(const QString& thickness, Table::Column column) {
    const QModelIndex cell = Rows().model()->index(Row_Of(thickness), column);
    Rows().scrollTo(cell);
    return Rows().viewport()->mapTo(&Window(), Rows().visualRect(cell).center());
  }
  void Click_Row(const QString& thickness) {
    Click(Window(), Place_Of(thickness, Table::kSurface));
    Settle();
  }
  void Enter(const QString& name, const QString& text) {
    auto& edit = *Window().findChild<QLineEdit*>(name);
    edit.setFocus();
    edit.selectAll();
    Type(text);
    Press(Qt::Key_Tab);
    Settle();
  }
  void Enter_Cost(const QString& thickness, const QString& text) {
    Click(Window(), Place_Of(thickness, Table::kCost));
    Type(text);
    Press(Qt::Key_Return);
    Settle();
  }
  Prices Kept() { return Kept_Prices(desktop.files()); }
};

TEST_F(Comparing, Opens_By_Its_Word_And_By_Its_Key) {
  QWidget* word = nullptr;
  for (auto* button : Main_View().findChildren<QAbstractButton*>()) {
    if (button->text() == "Compare") word = button;
  }
  ASSERT_NE(word, nullptr);
  Click(*word);
  ASSERT_TRUE(Comes_To_Front(Window()));
  EXPECT_EQ(Window().windowTitle(), "Compare");
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Window().isVisible());
  Wait_Until_Active(Screen());
  Open();
}

TEST_F(Comparing, Has_The_Numbers_Of_The_Main_Screen_At_Each_Thickness) {
  Paste(Screen().txtT(0), "90");
  Paste(Screen().txtT(2), "13");
  Open();
  const int rows = Rows().model()->rowCount();
  EXPECT_EQ(rows, 14);
  for (int row = 0; row < rows; ++row) {
    Click_Row(At(row, Table::kThickness));
    EXPECT_EQ(At(row, Table::kThickness).toStdString(), Shown(Screen().txtT(2)));
    EXPECT_EQ(At(row, Table::kSurface).toStdString(), Shown(Screen().Label4(2)));
    EXPECT_EQ(At(row, Table::kHeatFlow).toStdString(), Shown(Screen().Label4(4)));
    EXPECT_EQ(At(row, Table::kSavingPercent).toStdString() + "%", Shown(Screen().Label4(5)));
    EXPECT_EQ(At(row, Table::kGas).toStdString(), Shown(Screen().Label4(7)));
    EXPECT_EQ(At(row, Table::kOil).toStdString(), Shown(Screen().Label4(8)));
    EXPECT_EQ(At(row, Table::kElectricity).toStdString(), Shown(Screen().Label4(9)));
  }
}

TEST_F(Comparing, Follows_The_Main_Screen_While_It_Is_Open) {
  Open();
  Click_Row("20");
  EXPECT_EQ(At(Row_Of("20"), Table::kMarks), "current");
  const QString before = At(Row_Of("50"), Table::kHeatFlow);
  Paste(Screen().txtT(0), "110");
  EXPECT_NE(At(Row_Of("50"), Table::kHeatFlow), before);
  Click(Screen().cmdToolBar1(3));
  EXPECT_TRUE(Rows()
                  .model()
                  ->headerData(Table::kCost, Qt::Horizontal)
                  .toString()
                  .contains(QString("1 m\u00B2")));
}

TEST_F(Comparing, A_Row_Is_Taken_Over_By_Enter_And_By_The_Button) {
  Open();
  Click_Row("13");
  Open();
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(Screen().txtT(2)), "15");
  Press(Qt::Key_Down);
  QPushButton* use = nullptr;
  for (auto* button : Window().findChildren<QPushButton*>()) {
    if (button->text() == "Use this thickness") use = button;
  }
  ASSERT_NE(use, nullptr);
  Click(*use);
  EXPECT_EQ(Shown(Screen().txtT(2)), "20");
}

TEST_F(Comparing, Takes_Nothing_Over_Where_The_Thickness_Is_A_Result) {
  Click(Screen().cmdToolBarC);
  const std::string before = Shown(Screen().txtC(2));
  const std::string heat_loss = Screen().txtT(2).Text();
  Open();
  Click_Row("50");
  EXPECT_EQ(Shown(Screen().txtC(2)), before);
  EXPECT_EQ(Screen().txtT(2).Text(), heat_loss);
  EXPECT_EQ(At(Row_Of(QString::fromStdString(Number(before))), Table::kMarks), "current");
}

TEST_F(Comparing, Prices_Are_Entered_Counted_And_Kept) {
  Open();
  Enter("compare_price", "1.2");
  EXPECT_EQ(Kept().energy[0], 1.2);
  Enter("compare_years", "20");
  EXPECT_EQ(Kept().years, 20);
  Enter_Cost("13", "4,2");
  EXPECT_EQ(Kept().of_pipe.at(13), 4.2);
  EXPECT_EQ(At(Row_Of("13"), Table::kCost), QString::fromStdString(Number("4.2")));
  EXPECT_EQ(At(Row_Of("13"), Table::kMarks), "economic");
  EXPECT_NE(At(Row_Of("13"), Table::kPayback), "");
  Enter_Cost("13", "cheap");
  EXPECT_EQ(Kept().of_pipe.at(13), 4.2) << "that is no amount";
  const auto settings = desktop.files().Read("norvane.ini").value_or("");
  EXPECT_EQ(settings.find("4.2"), std::string::npos);
}

TEST_F(Comparing, Another_Programs_Prices_Show_When_The_Window_Comes_To_The_Front) {
  Open();
  Change_Prices(desktop.files(), [](Prices& prices) { prices.energy[0] = 0.75; });
  Main_View().activateWindow();
  ASSERT_TRUE(Comes_To_Front(Main_View()));
  Open();
  EXPECT_EQ(Window().findChild<QLineEdit*>("compare_price")->text().toStdString(), Number("0.75"));
}

TEST_F(Comparing, Is_Copied_With_Headings_In_The_Users_Signs) {
  Open();
  Click_Row("13");
  Open();
  Press(Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QApplication::clipboard()->text().split('\n');
  ASSERT_EQ(lines.size(), 16);
  EXPECT_TRUE(lines[0].startsWith("Insulation thickness (mm)\t")) << lines[0].toStdString();
  const QStringList cells = lines[3].split('\t');
  EXPECT_EQ(cells[0], "13");
  EXPECT_EQ(cells[2].toStdString(), Number("11.0"));
}

TEST_F(Comparing, Closes_With_The_Main_Screen) {
  Open();
  EXPECT_TRUE(Window().isVisible());
  Main_View().close();
  Settle();
  EXPECT_TRUE(desktop.program().Ended());
}

}  // namespace
}  // namespace norvane
