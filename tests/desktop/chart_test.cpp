#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <cmath>

#include "catalogue/settings_form.h"
#include "desktop/chart_view.h"
#include "desktop/enter.h"
#include "window_test.h"

namespace norvane {
namespace {

/// The chart of the main screen, looked at and used by the mouse.
class Charting : public WindowTest {
 protected:
  ChartView& View_Of_Chart() { return *Main_View().findChild<ChartView*>("chart"); }
  const Chart& Shown_Chart() {
    Settle();
    return View_Of_Chart().Shown_Chart();
  }
  std::string At_Present(std::size_t line) {
    const Chart& chart = Shown_Chart();
    return Chart_Value(chart.lines.at(line).at_present, chart.locale).toStdString();
  }
  /// Where the mouse is for a place of the chart, in the window.
  QPoint Over(double across) {
    const ChartLayout layout = View_Of_Chart().Laid_Out();
    const QPointF at(layout.X(across), layout.Plot().center().y());
    return View_Of_Chart().mapTo(&Main_View(), at.toPoint());
  }
  QStringList Texts() {
    QStringList texts;
    const ChartLayout layout = View_Of_Chart().Laid_Out();
    for (const ChartText& text : layout.Texts()) texts << text.text;
    return texts;
  }
  QImage Picture() {
    Settle();
    return View_Of_Chart().grab().toImage();
  }
};

TEST_F(Charting, Shows_The_Present_Calculation) {
  Paste(Screen().txtT(3), "21");
  Paste(Screen().txtT(2), "13");
  ASSERT_EQ(Shown_Chart().lines.size(), 2U);
  EXPECT_EQ(Shown_Chart().present, 13.0F);
  EXPECT_EQ(At_Present(0), Shown(Screen().Label4(4)));
  EXPECT_EQ(At_Present(1), Shown(Screen().Label4(2)));
  EXPECT_EQ(Shown_Chart().lines[0].name, "Heat loss with insulation, W/m");
  EXPECT_EQ(Shown_Chart().stops, (std::vector<float>{6, 9, 13, 15, 20, 25, 30}));
  EXPECT_TRUE(Texts().contains("17.0"));
  EXPECT_TRUE(Texts().contains("24.2"));
}

TEST_F(Charting, Follows_Each_Change_Of_What_It_Is_Calculated_Of) {
  Paste(Screen().txtT(3), "21");
  const auto changes = [this](const std::string& what, const auto& act) {
    const QImage before = Picture();
    act();
    EXPECT_NE(before, Picture()) << what;
  };
  changes("thickness", [this] { Step_Up(Screen().SpinButton1(2)); });
  changes("medium", [this] { Paste(Screen().txtT(0), "-20"); });
  changes("ambient", [this] { Step_Up(Screen().SpinButton1(1)); });
  changes("diameter", [this] { Step_Up(Screen().SpinButton1(3)); });
  changes("kind", [this] { Click(Screen().cmdToolBar1(3)); });
  changes("mode", [this] { Click(Screen().cmdToolBarC); });
  changes("humidity", [this] { Step_Up(Screen().SpinButton1(4)); });
}

TEST_F(Charting, Is_Calculated_Anew_Only_For_A_Change_Of_Its_Own) {
  Settle();
  const float* const values = Shown_Chart().lines[0].values.data();
  Paste(Screen().txtmtrs, "25");
  Hover(Screen().cmdToolBarC);
  Settle();
  EXPECT_EQ(Shown_Chart().lines[0].values.data(), values);
}

TEST_F(Charting, Goes_Through_What_The_Screen_Shows_At_Each_Stop) {
  for (const int kind : {0, 1, 2, 3}) {
    Click(Screen().cmdToolBar1(kind));
    Paste(Screen().txtT(2), "0");
    const std::vector<float> stops = Shown_Chart().stops;
    const ChartLine flow = Shown_Chart().lines[0];
    const ChartLine surface = Shown_Chart().lines[1];
    for (const float stop : stops) {
      Step_Up(Screen().SpinButton1(2));
      const auto at = static_cast<std::size_t>(stop);
      EXPECT_EQ(Chart_Value(flow.values[at], Locale{}).toStdString(), Shown(Screen().Label4(4)));
      EXPECT_EQ(Chart_Value(surface.values[at], Locale{}).toStdString(), Shown(Screen().Label4(2)));
    }
  }
}

TEST_F(Charting, The_Mouse_Over_It_Reads_Values_And_Leaves_None_Behind) {
  Paste(Screen().txtT(3), "21");
  Paste(Screen().txtT(2), "13");
  const QImage before = Picture();
  Hover(Main_View(), Over(50));
  const QStringList read = Texts();
  const ChartLine& flow = Shown_Chart().lines[0];
  EXPECT_TRUE(read.contains("50"));
  EXPECT_TRUE(read.contains(Chart_Value(flow.values[50], Locale{})));
  EXPECT_FALSE(read.contains("17.0"));
  EXPECT_NE(Picture(), before);
  EXPECT_EQ(Shown(Screen().txtT(2)), "13") << "to look changes nothing";
  Hover(Main_View(), {3, Main_View().height() / 2});
  EXPECT_EQ(Picture(), before);
}

TEST_F(Charting, A_Click_Enters_The_Thickness_That_Is_Read) {
  Paste(Screen().txtT(3), "21");
  Hover(Main_View(), Over(40));
  Click(Main_View(), Over(40));
  EXPECT_EQ(Shown(Screen().txtT(2)), "40");
  EXPECT_EQ(Shown_Chart().present, 40.0F);
  EXPECT_TRUE(Edit(Screen().txtT(2)).hasFocus());
}

TEST_F(Charting, A_Click_In_Condensation_Steps_To_The_Humidity) {
  Click(Screen().cmdToolBarC);
  ASSERT_EQ(Shown_Chart().lines.size(), 3U);
  EXPECT_EQ(At_Present(0), Shown(Screen().txtC(2)));
  EXPECT_EQ(At_Present(1), Shown(Screen().Label4(2)));
  for (const int humidity : {80, 35}) {
    Click(Main_View(), Over(humidity));
    EXPECT_EQ(Shown(Screen().txtC(4)), std::to_string(humidity));
    EXPECT_EQ(Shown_Chart().present, static_cast<float>(humidity));
    EXPECT_EQ(At_Present(0), Shown(Screen().txtC(2)));
  }
}

TEST_F(Charting, Shows_Nothing_While_There_Is_Nothing_To_Calculate) {
  Click(Screen().cmdToolBarC);
  Mark(Screen().txtC(3));
  Type("4");
  EXPECT_TRUE(Shown_Chart().lines.empty());
  Hover(Main_View(), Middle(View_Of_Chart()));
  Click(Main_View(), Middle(View_Of_Chart()));
  EXPECT_EQ(Shown(Screen().txtC(4)), "60");
  Paste(Screen().txtC(3), "42");
  EXPECT_FALSE(Shown_Chart().lines.empty());
}

TEST_F(Charting, Stands_Beside_The_Answer_In_Large_Letters) {
  const auto label = [this](const char* name) {
    return Main_View().findChild<QLabel*>(name)->text();
  };
  Paste(Screen().txtT(3), "21");
  Paste(Screen().txtT(2), "13");
  EXPECT_EQ(label("answer"), "17.0 W/m");
  EXPECT_EQ(label("answer_remark"), "Saving 68%");
  EXPECT_FALSE(Main_View().findChild<QLabel*>("dew_point")->isVisible());
  Click(Screen().cmdToolBar1(1));
  Paste(Screen().txtT(2), "1");
  EXPECT_EQ(label("answer_remark"), "No saving");
  Click(Screen().cmdToolBar1(0));
  Click(Screen().cmdToolBarC);
  EXPECT_EQ(label("answer"), "1.7 mm");
  EXPECT_EQ(label("answer_remark"), "Next size: 6 mm");
  EXPECT_EQ(label("dew_point"), "15.8");
  EXPECT_EQ(label("above_dew_point"), "0.0");
  EXPECT_TRUE(Main_View().findChild<QWidget*>("wall_section")->isVisible());
  Mark(Screen().txtC(3));
  Type("4");
  EXPECT_EQ(label("answer"), "");
  EXPECT_EQ(label("answer_remark"), "");
  EXPECT_FALSE(Main_View().findChild<QLabel*>("dew_point")->isVisible());
}

TEST_F(Charting, Speaks_The_Language_That_Is_Chosen) {
  Click(Screen().lblMenu(1));
  Wait_Until_Active(*State().forms.lang);
  const auto& codes = State().languages.Lang_Code;
  const auto german = std::find(codes.begin(), codes.end(), "de") - codes.begin();
  Click(State().forms.lang->Label2(static_cast<int>(german)));
  EXPECT_EQ(Shown_Chart().lines[0].name, QString::fromUtf8("W\u00e4rmeabgabe ged\u00e4mmt, W/m"));
  EXPECT_EQ(View_Of_Chart().accessibleName(), "Diagramm");
}

TEST_F(Charting, A_Screen_Reader_Is_Told_What_It_Shows) {
  Paste(Screen().txtT(3), "21");
  Paste(Screen().txtT(2), "13");
  Settle();
  EXPECT_EQ(View_Of_Chart().accessibleName(), "Chart");
  EXPECT_EQ(View_Of_Chart().accessibleDescription(),
            QString::fromUtf8("Heat loss with insulation, W/m: 17.0; "
                              "Surface temperature, \u00b0C: 24.2"));
}

TEST_F(Charting, Uses_The_Room_Of_A_Larger_Window) {
  const QSize natural = View_Of_Chart().size();
  Main_View().resize(Main_View().size() + QSize(200, 100));
  Settle();
  EXPECT_EQ(View_Of_Chart().width(), natural.width() + 200);
  EXPECT_EQ(View_Of_Chart().height(), natural.height() + 100);
}

TEST_F(Charting, Stands_As_If_Laid_Out_Anew_After_Each_Change) {
  const auto texts_of = [](const ChartLayout& layout) {
    QStringList texts;
    for (const ChartText& text : layout.Texts()) {
      const QRectF& room = text.room;
      texts << QString("%1 %2 %3 %4").arg(text.text).arg(room.x()).arg(room.y()).arg(room.width());
    }
    return texts;
  };
  const auto check = [&](const char* what) {
    Settle();
    ChartView& view = View_Of_Chart();
    const ChartLayout anew(view.Shown_Chart(), QRectF(view.contentsRect()), view.font());
    EXPECT_EQ(texts_of(view.Laid_Out()), texts_of(anew)) << what;
  };
  Paste(Screen().txtT(3), "21");
  check("values");
  Paste(Screen().txtT(0), "-40");
  check("axes");
  Click(Screen().cmdToolBar1(3));
  check("names");
  Main_View().resize(Main_View().size() + QSize(200, 100));
  check("size");
  QFont larger = View_Of_Chart().font();
  larger.setPointSizeF(larger.pointSizeF() * 1.5);
  View_Of_Chart().setFont(larger);
  check("font");
  Click(Screen().cmdToolBarC);
  check("curves");
}

/// The same on a system that writes decimals with a comma.
class ChartingWithCommas : public Charting {
 protected:
  ChartingWithCommas() { QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands)); }
  ~ChartingWithCommas() override {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
  }
};

TEST_F(ChartingWithCommas, Reads_As_The_Results_Do) {
  Paste(Screen().txtT(3), "21");
  Paste(Screen().txtT(2), "13");
  EXPECT_EQ(At_Present(0), "17,0");
  EXPECT_EQ(At_Present(0), Shown(Screen().Label4(4)));
  EXPECT_TRUE(Texts().contains("17,0"));
}

Chart Small_Chart() {
  Chart chart;
  chart.name = "x";
  chart.across = {0, 10, 5};
  chart.left = {0, 4, 1};
  chart.right = {0, 4, 1};
  chart.places = {0, 5, 10};
  chart.lines = {{"y", false, {4, 2, 0}, 0}};
  return chart;
}

TEST(AChart, IsPaintedWithoutAWidgetInTheColoursOfPaper) {
  QImage paper(400, 300, QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  const ChartColours colours = Chart_Colours(QPalette(Qt::white));
  const Chart chart = Small_Chart();
  const QRectF area(20, 10, 360, 280);
  Paint_Chart(painter, area, chart, colours);
  const ChartLayout layout(chart, area, painter.font());
  painter.end();
  const QPointF middle = layout.Plot().center();
  EXPECT_EQ(paper.pixelColor(middle.toPoint()), colours.lines[0]);
  for (int x = 0; x < paper.width(); ++x) EXPECT_EQ(paper.pixelColor(x, 5), QColor(Qt::white));
}

TEST(AChart, HasFewStraightPartsInACurveAndNoneTheEyeCouldTell) {
  Chart chart = Small_Chart();
  chart.places.clear();
  ChartLine& line = chart.lines[0];
  line.values.clear();
  for (int i = 0; i <= 100; ++i) {
    chart.places.push_back(static_cast<float>(i) / 10);
    line.values.push_back(4.0F / (1.0F + static_cast<float>(i) / 10));
  }
  const ChartLayout layout(chart, QRectF(0, 0, 400, 300), QFont());
  const QList<QLineF> parts = layout.Curve(line);
  EXPECT_LT(parts.size(), 40);
  EXPECT_EQ(parts.front().p1(), layout.Point(line, chart.places.front(), line.values.front()));
  EXPECT_EQ(parts.back().p2(), layout.Point(line, chart.places.back(), line.values.back()));
  for (int i = 1; i < parts.size(); ++i) EXPECT_EQ(parts[i].p1(), parts[i - 1].p2());
  for (std::size_t i = 0; i < chart.places.size(); ++i) {
    const QPointF point = layout.Point(line, chart.places[i], line.values[i]);
    const auto part = std::find_if(parts.begin(), parts.end(), [&](const QLineF& it) {
      return it.p1().x() <= point.x() && point.x() <= it.p2().x();
    });
    ASSERT_NE(part, parts.end());
    const qreal y = part->pointAt((point.x() - part->p1().x()) / part->dx()).y();
    EXPECT_NEAR(y, point.y(), 0.101);
  }
}

TEST(AChart, FindsTheNearestPlace) {
  const Chart chart = Small_Chart();
  const ChartLayout layout(chart, QRectF(0, 0, 400, 300), QFont());
  EXPECT_EQ(layout.Nearest(layout.X(0) - 100), 0U);
  EXPECT_EQ(layout.Nearest(layout.X(2.4)), 0U);
  EXPECT_EQ(layout.Nearest(layout.X(2.6)), 1U);
  EXPECT_EQ(layout.Nearest(layout.X(10) + 100), 2U);
}

TEST(AnAxis, HoldsBothEndsInRoundSteps) {
  const auto expect = [](double least, double most, ChartAxis wanted) {
    const ChartAxis axis = Round_Axis(least, most, 4);
    EXPECT_DOUBLE_EQ(axis.least, wanted.least) << least << " to " << most;
    EXPECT_DOUBLE_EQ(axis.most, wanted.most) << least << " to " << most;
    EXPECT_DOUBLE_EQ(axis.step, wanted.step) << least << " to " << most;
  };
  expect(0, 53.6, {0, 80, 20});
  expect(0, 80, {0, 80, 20});
  expect(-25.5, 0, {-30, 10, 10});
  expect(15, 80, {0, 80, 20});
  expect(0, 0.7, {0, 0.8, 0.2});
  expect(0, 0, {0, 1, 0.25});
  expect(-9, 31, {-20, 60, 20});
}

TEST(AnAxis, HoldsWhateverItIsAskedFor) {
  for (double least = -117; least < 100; least += 3.7) {
    for (double range = 0.001; range < 1e6; range *= 1.7) {
      const ChartAxis axis = Round_Axis(least, least + range, 4);
      EXPECT_LE(axis.least, least + 1e-9);
      EXPECT_GE(axis.most, least + range);
      EXPECT_DOUBLE_EQ(axis.most, axis.least + 4 * axis.step);
      EXPECT_LT(axis.most - axis.least, 10 * std::max(range, 1.0));
    }
  }
}

}  // namespace
}  // namespace norvane
