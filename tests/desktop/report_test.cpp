// Needs pdftotext and pdffonts, which read what is printed from outside.
#include <QLocale>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include "desktop/report_window.h"
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

  QString Run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is missing";
    return QString::fromUtf8(process.readAllStandardOutput());
  }
  QString Pdf() { return QString::fromStdString((folder.Path() / "report.pdf").string()); }
  /// Without blanks, of which a reader of printed letters can only guess where they were.
  static QString Bare(const QString& text) {
    return QString(text).remove(QRegularExpression("\\s"));
  }
  /// What the report says.
  QString Printed() {
    EXPECT_EQ(Window_Or_None()->Save_As(Pdf()).toStdString(), "");
    return Bare(Run("pdftotext", {"-layout", Pdf(), "-"}));
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
  const QStringList fonts = Run("pdffonts", {Pdf()}).trimmed().split('\n').mid(2);
  EXPECT_FALSE(fonts.isEmpty());
  for (const QString& font : fonts) {
    // The columns emb, sub and uni are followed by an object of two numbers.
    const QStringList columns = font.simplified().split(' ');
    EXPECT_EQ(columns[columns.size() - 5], "yes") << font.toStdString();
  }
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

TEST_F(Reporting, Of_A_Table_Goes_Over_Pages_With_Headings_Numbers_And_Sums) {
  TableReport table{"Schedule", {"Name", "kWh"}, {}, {"Total", "4711"}};
  for (int i = 1; i <= 200; ++i) table.rows << QStringList{QString("row %1").arg(i), "1"};
  QPdfWriter pdf(Pdf());
  pdf.setPageSize(QPageSize(QPageSize::A4));
  ReportPages(desktop, table, {"House", "1/2/26"}).Paint(pdf);
  const QStringList pages = Run("pdftotext", {"-layout", Pdf(), "-"}).split('\f');
  const auto count = pages.size() - 1;  // behind the last one there is nothing
  ASSERT_GT(count, 2);
  for (qsizetype page = 0; page < count; ++page) {
    EXPECT_TRUE(Bare(pages[page]).contains(QString("%1/%2").arg(page + 1).arg(count)));
    EXPECT_TRUE(pages[page].contains("kWh")) << "no headings on page " << page + 1;
  }
  EXPECT_TRUE(pages[0].contains("row 1 "));
  EXPECT_TRUE(pages[count - 1].contains("row 200 "));
  EXPECT_TRUE(pages[count - 1].contains("4711"));
}

}  // namespace
}  // namespace norvane
