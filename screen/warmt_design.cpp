#include <iterator>

#include "frame/shared_state.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr double kWidth = 12000;  // twips
constexpr double kHeight = 9000;

constexpr double kToolButtonWidth = 480;
constexpr double kToolButtonHeight = 360;
constexpr double kToolButtonTop = 20;
constexpr double kToolGroupGap = 180;

template <std::size_t N>
void Set_Captions(FieldArray<CaptionField>& array, const char* const (&captions)[N]) {
  for (std::size_t i = 0; i < N; ++i) array(static_cast<int>(i)).Set_Caption(captions[i]);
}

}  // namespace

Warmt::Warmt(Module1& module1) : Form(module1.desk, "Warmt", kWidth, kHeight), module1_(module1) {
  Design_Captions();
  Design_Visibility();
  Design_Toolbar();
  Connect_Fields();
  Connect_Toolbar();
}

void Warmt::Design_Captions() {
  // Degree sign, superscript two and three are bytes of the Western code page.
  Set_Captions(Label1,
               {"Mediumtemperatuur in leiding", "Omgevingstemperatuur", "Dikte isolatie materiaal",
                "Diameter van de leiding", "Relatieve vochtigheid", "aantal meters"});
  Set_Captions(Label7, {"\xB0"
                        "C",
                        "\xB0"
                        "C",
                        "mm", "mm", ""});
  Set_Captions(Label8, {"\xB0"
                        "F",
                        "\xB0"
                        "F",
                        "inch", "inch"});
  Set_Captions(Label2, {"l", "a"});
  Set_Captions(Label3, {"Warmtegeleidingscoefficient ", "Warmte-overdrachtscoeficient",
                        "Oppervlaktetemperatuur", "Warmte-afgifte onge-isoleerd",
                        "Warmte-afgifte ge-isoleerd", "Besparing", "Besparing in aardgas",
                        "Besparing in huisbrandolie", "Besparing in electriciteit"});
  Set_Captions(Label9, {"W/mK", "W/m\xB2K",
                        "\xB0"
                        "C",
                        "W/m", "W/m", "W/m", "m\xB3", "ltr", "kWh"});
  Set_Captions(lblMenu, {"Menuitem0", "Menuitem1", "Menuitem2", "Menuitem3"});
  Label6.Set_Caption("Label6");
  Label0.Set_Caption("Buis (Cu)");
  Label10.Set_Caption("Language");
  cmdAdd.Set_Caption("Add to Total");

  for (CaptionField& letter : Label2) letter.Set_Font({"Symbol", 9, false, kSymbolCharset});
}

void Warmt::Design_Visibility() {
  txtmtrs.Set_Text("0");
  txtC(4).Set_Locked(true);
  Text4(1).Set_Visible(false);
  cmdToolBar4(2).Set_Visible(false);
  picToolTip.Set_Visible(false);
  for (CaptionField& conversion : Text2) conversion.Set_BackStyle(BackStyle::kOpaque);
  Label5.Set_BackStyle(BackStyle::kOpaque);
  Label5.Set_BackColor({105, 176, 17});
}

void Warmt::Design_Toolbar() {
  double left = 0;
  const auto place = [&](Button& button) {
    button.panel = &picToolbar;
    button.Set_Place({left, kToolButtonTop, kToolButtonWidth, kToolButtonHeight});
    left += kToolButtonWidth;
  };
  const auto place_group = [&](FieldArray<Button>& buttons) {
    for (Button& button : buttons) place(button);
    left += kToolGroupGap;
  };
  place_group(cmdToolBar0);
  place_group(cmdToolBar1);
  place(cmdToolBarT);
  place(cmdToolBarC);
  left += kToolGroupGap;
  place_group(cmdToolBar3);
  place_group(cmdToolBar4);
  place_group(cmdToolBar5);
  picToolbar.Set_Place({1150, 1020, left, 385});
  LblTooltip.panel = &picToolTip;
  LblTooltip.Set_Place({0, 0, 3000, 255});
}

void Warmt::Connect_Fields() {
  for (auto* F : {&txtT, &txtC}) {
    for (TextField& field : *F) {
      field.On_Change = [this, F, index = field.Index()] { Change(*F, index); };
    }
  }
  txtmtrs.On_Change = [this] { Change_txtmtrs(); };
  Text4(1).On_Change = [this] { Change_Text4(); };
  for (SpinPair& pair : SpinButton1) {
    pair.On_Down = [this, index = pair.Index()] { DownClick(index); };
    pair.On_Up = [this, index = pair.Index()] { UpClick(index); };
  }
  Combo1.On_Click = [this] { Click_Combo1(); };
  cmdAdd.On_Click = [this] { Click_cmdAdd(); };
}

}  // namespace norvane
