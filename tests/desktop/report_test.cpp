#include <QApplication>
#include <QLocale>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPushButton>
#include <QTest>

#include "desktop/report_window.h"
#include "desktop/table_pages.h"
#include "printed.h"
#include "report/kept_prices.h"
#include "window_test.h"

namespace norvane {
namespace {

/// The report of the present calculation, as it is printed.
class Reporting : public WindowTest {
 protected:
  void Open() {
    Press(Qt::Key_P, Qt::ControlModifier);
    ASSERT_NE(Window_Or_None(), nullptr);
    ASSERT_TRUE(Comes_To_Front(*Window_Or_None()));
  }
  ReportWindow* Window_Or_None() { return Main_View().findChild<ReportWindow*>(); }

  QString Pdf() { return QString::fromStdString((folder.Path() / "report.pdf").string()); }
  /// What the report says.
  QString Printed() {
    EXPECT_EQ(Window_Or_None()->Save_As(Pdf()).toStdString(), "");
    return Printed_Text(Pdf());
  }
  void Choose_Language(const std::string& code) {
    const auto& codes = State().languages.Lang_Code;
    const auto slot = std::find(codes.begin(), codes.end(), code) - codes.begin();
    Click(Screen().lblMenu(1));
    Lang& languages = *State().forms.lang;
    Wait_Until_Active(languages);
    Click(languages.Label2(static_cast<int>(slot)));
    Click(languages.OK);
    Wait_Until_Active(Screen());
  }
  void Fill_In_The_Pipe_Of_The_Guide() {
    Paste(Screen().txtT(3), "21");
    Paste(Screen().txtT(2), "13");
  }
};

TEST_F(Reporting, Has_The_Inputs_The_Results_And_The_Steps_Of_The_Screen) {
  Fill_In_The_Pipe_Of_The_Guide();
  Open();
  const QString text = Printed();
  for (const CaptionField& value : Screen().Label4) {
    EXPECT_TRUE(text.contains(Bare(QString::fromStdString(value.Caption()))))
        << value.Caption() << " is missing in " << text.toStdString();
  }
  for (const char* words : {"Medium temperature T 80", "Pipe diameter d 21 mm", "Steel pipe",
                            "D = d + 2 \u00B7 s", "1 / 1", "Formulas"}) {
    EXPECT_TRUE(text.contains(Bare(words))) << words << " is missing in " << text.toStdString();
  }
  EXPECT_TRUE(
      text.contains(QString::fromStdString("=" + Number("0.021") + "+2\u00B7" + Number("0.013"))))
      << text.toStdString();
}

TEST_F(Reporting, Is_In_The_Current_Language) {
  Choose_Language("de");
  Fill_In_The_Pipe_Of_The_Guide();
  Open();
  const QString german = Printed();
  EXPECT_TRUE(german.contains("MediumtemperaturT80")) << german.toStdString();
  EXPECT_TRUE(german.contains("Formeln"));
  Window_Or_None()->close();
  Wait_Until_Active(Screen());
  Choose_Language("el");
  Open();
  const QString greek = Printed();
  EXPECT_TRUE(greek.contains(Bare(desktop.Text(TextId::kMediumTemperature))))
      << greek.toStdString();
  EXPECT_TRUE(greek.contains(QString::fromStdString(Screen().Label4(4).Caption())));
}

TEST_F(Reporting, Of_Condensation_Has_Its_Thickness) {
  Click(Screen().cmdToolBarC);
  Paste(Screen().txtC(0), "6");
  Open();
  const QString text = Printed();
  EXPECT_TRUE(text.contains(QString::fromStdString("s" + Screen().txtC(2).Text() + "mm")))
      << text.toStdString();
  EXPECT_TRUE(text.contains("Td=f(Ta,"));
}

TEST_F(Reporting, Follows_The_Main_Screen_While_It_Is_Open) {
  Open();
  Paste(Screen().txtT(0), "110");
  EXPECT_TRUE(Printed().contains("MediumtemperatureT110"));
}

TEST_F(Reporting, Embeds_Its_Fonts) {
  Open();
  Printed();
  Expect_Embedded_Fonts(Pdf());
}

TEST_F(Reporting, Bears_The_Projects_Name_And_Keeps_It) {
  Open();
  Type("Boiler house 4");
  Press(Qt::Key_Tab);
  EXPECT_TRUE(Printed().contains("Project:Boilerhouse4"));
  EXPECT_EQ(Kept_Prices(desktop.files()).project, "Boiler house 4");
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Window_Or_None()->isVisible());
}

TEST_F(Reporting, Says_Why_It_Cannot_Be_Saved) {
  Open();
  EXPECT_NE(Window_Or_None()->Save_As(Pdf() + "/in/no/folder.pdf"), "");
}

TEST_F(Reporting, Has_The_Chart_Of_The_Screen) {
  Fill_In_The_Pipe_Of_The_Guide();
  Open();
  const QString of_heat_loss = Printed();
  EXPECT_TRUE(of_heat_loss.contains("Heatlosswithinsulation,W/m")) << of_heat_loss.toStdString();
  EXPECT_TRUE(of_heat_loss.contains("Insulationthickness,mm"));
  Click(Screen().cmdToolBarC);
  Paste(Screen().txtC(0), "6");
  EXPECT_TRUE(Printed().contains("Relativehumidity,%"));
}

TEST_F(Reporting, Has_No_Chart_Where_There_Is_Nothing_To_Calculate) {
  Click(Screen().cmdToolBarC);
  Mark(Screen().txtC(3));
  Type("4");
  Open();
  const QString text = Printed();
  EXPECT_TRUE(text.contains("Steelpipe"));
  EXPECT_FALSE(text.contains("Relativehumidity,%")) << text.toStdString();
}

TEST_F(Reporting, Takes_One_Page_In_Every_Language) {
  watchdog.Set_Patience(60000);
  Fill_In_The_Pipe_Of_The_Guide();
  for (std::size_t slot = 0; slot < State().languages.Lang_Code.size(); ++slot) {
    const auto& code = State().languages.Lang_Code[slot];
    if (!code) continue;
    State().Lang_Index = static_cast<std::int16_t>(slot);
    for (const Field* mode : {&Screen().cmdToolBarT, &Screen().cmdToolBarC}) {
      Click(*mode);
      Open();
      Printed();
      EXPECT_EQ(Texts_Of_Pages(Pdf()).size(), 1) << *code;
      Window_Or_None()->close();
      Wait_Until_Active(Screen());
    }
  }
  State().Lang_Index = 0;
}

TEST_F(Reporting, Is_The_Same_On_Paper_Under_A_Dark_Theme) {
  Open();
  Printed();
  const QImage light = Printed_Page(Pdf());
  ASSERT_FALSE(light.isNull());
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2A, 0x2A, 0x2A)));
  Settle();
  Printed();
  EXPECT_EQ(Printed_Page(Pdf()), light);
  QApplication::setPalette(before);
  Settle();
}

TEST_F(Reporting, Is_Printed_By_The_Dialog_Of_The_System) {
  Fill_In_The_Pipe_Of_The_Guide();
  Open();
  const QString as_saved = Printed();
  const QString out = Pdf() + ".printed";
  watchdog.Expect([&](QWidget& dialog) {
    auto& print = dynamic_cast<QPrintDialog&>(dialog);
    print.printer()->setOutputFileName(out);
    for (auto* line : dialog.findChildren<QLineEdit*>("filename")) line->setText(out);
    print.accept();
  });
  Press(Qt::Key_P, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return watchdog.Content() && QFile::exists(out); }, 10000));
  EXPECT_EQ(Printed_Text(out).toStdString(), as_saved.toStdString());
  Expect_Embedded_Fonts(out);
}

/// A table on paper, without a window.
class PrintedTable : public Reporting {
 protected:
  /// A number column behind the names, with a sum.
  static TableReport Of_Rows(int rows) {
    TableReport table{"Schedule", {{"Name", true}, {"Heat\nkWh", false}}, {}, {"Total", "4711"}};
    for (int i = 1; i <= rows; ++i) table.rows << QStringList{QString("row %1").arg(i), "1"};
    return table;
  }
  QStringList Print(const TableReport& table) {
    QPdfWriter pdf(Pdf());
    pdf.setPageSize(QPageSize(QPageSize::A4));
    TablePages(desktop, table, {"House", "1/2/26"}).Paint(pdf);
    return Texts_Of_Pages(Pdf());
  }
};

TEST_F(PrintedTable, Goes_Over_Pages_With_Headings_Numbers_And_Sums) {
  const QStringList pages = Print(Of_Rows(200));
  const auto count = pages.size();
  ASSERT_GT(count, 2);
  for (qsizetype page = 0; page < count; ++page) {
    EXPECT_TRUE(Bare(pages[page]).contains(QString("%1/%2").arg(page + 1).arg(count)));
    EXPECT_TRUE(pages[page].contains("Name")) << "no headings on page " << page + 1;
  }
  EXPECT_TRUE(pages[0].contains("row 1 "));
  EXPECT_TRUE(pages[count - 1].contains("row 200 "));
  EXPECT_TRUE(pages[count - 1].contains("4711"));
  const QString all = Printed_Text(Pdf());
  for (int i = 1; i <= 200; ++i) EXPECT_TRUE(all.contains(QString("row%11").arg(i)));
}

TEST_F(PrintedTable, Has_Its_Sums_Behind_A_Row_Wherever_The_Page_Ends) {
  for (int rows = 40; rows < 90; ++rows) {
    const QStringList pages = Print(Of_Rows(rows));
    EXPECT_TRUE(pages.last().contains("4711")) << rows;
    EXPECT_TRUE(pages.last().contains(QString("row %1").arg(rows))) << rows;
  }
}

TEST_F(PrintedTable, Is_As_Wide_As_The_Page_At_Most_And_Loses_No_Letter) {
  TableReport table{"Schedule", {}, {{}}, {}};
  for (int i = 0; i < 40; ++i) {
    table.columns.append({QString("heading of column %1").arg(i), i % 10 == 0});
    table.rows[0] << (i % 10 == 0 ? QString("long words of cell %1 and others").arg(i)
                                  : QString("%1.25").arg(1000 + i));
  }
  const QStringList pages = Print(table);
  ASSERT_EQ(pages.size(), 1);
  const QString text = Bare(pages[0]);
  for (int i = 0; i < 40; ++i) {
    if (i % 10 == 0) continue;
    EXPECT_TRUE(text.contains(QString("%1.25").arg(1000 + i))) << i;
  }
  const QImage page = Printed_Page(Pdf());
  for (int y = 0; y < page.height(); ++y) {
    ASSERT_EQ(page.pixelColor(page.width() - 2, y), QColor(Qt::white)) << "at the right edge";
  }
}

}  // namespace
}  // namespace norvane
