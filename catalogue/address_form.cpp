#include "catalogue/address_form.h"

#include "catalogue/addresses.h"
#include "frame/about_form.h"
#include "frame/dialog_size.h"
#include "frame/shared_state.h"

namespace norvane {
namespace {

constexpr Place kListPlace{120, 360, 5715, 3300};
constexpr int kAddressWithPlace = 6;  // its name line ends in field 2

bool Says_Something(const std::string& field) { return field != "-" && !field.empty(); }

}  // namespace

Address::Address(Module1& module1)
    : Form(module1.desk, "Address", kDialogWidth, kDialogHeight), module1_(module1) {
  OK.Set_Caption("OK");
  List1.Set_Place(kListPlace);
  OK.On_Click = [this] { Hide(); };
  imgExit.On_Click = [this] { Hide(); };
}

void Address::Load() {
  Load_Addresses(module1_);
  Fill_Address_List();
  Set_Size(kDialogWidth, kDialogHeight);
  imgExit.Set_Place({Place().width - 280, 25, kDialogExitSize, kDialogExitSize});
  OK.Set_Place({Place().width - kDialogButtonWidth - 50,
                List1.Place().top + List1.Place().height + 250, kDialogButtonWidth,
                kDialogButtonHeight});
}

void Address::Close_Box() { Hide(); }

std::vector<std::string> Address::Composed_Lines(int address) const {
  const auto field = [&](int number) { return Address_Field(module1_, address, number); };
  std::vector<std::string> lines(4);
  if (Says_Something(field(15))) {
    lines[0] = field(15);
    if (address == kAddressWithPlace) lines[0] += ", " + field(2);
  }
  if (Says_Something(field(12))) lines[1] = field(12);
  if (Says_Something(field(18))) {
    lines[2] = field(18) + ", " + field(19) + ", " + field(20) + ", " + field(2);
  }
  // An empty field isn't "-" and leaves its blank or comma behind.
  lines[3] = field(13);
  if (field(14) != "-") lines[3] += " " + field(14);
  if (field(16) != "-") lines[3] += ", " + field(16);
  if (field(17) != "-") lines[3] += ", " + field(17) + ", " + field(2);
  return lines;
}

void Address::Fill_Address_List() {
  List1.Clear();
  for (int i = 1; i <= kLastAddress; ++i) {
    if (Address_Field(module1_, i, 0).empty()) break;
    List1.Add_Item(Address_Field(module1_, i, 1));
    for (const std::string& line : Composed_Lines(i)) {
      if (!line.empty()) List1.Add_Item(line);
    }
    for (const int always : {6, 7, 8}) List1.Add_Item(Address_Field(module1_, i, always));
    List1.Add_Item("");
  }
  List1.Add_Item("Website: " + Address_Field(module1_, 1, 9));
}

void Show_Address_Dialog(Module1& module1) {
  Address& address = *module1.forms.address;
  address.Tag = kNoTimers;
  address.Centre();
  address.Label1.Set_Caption("Addresses");
  address.List1.Set_Visible(true);
  address.imgExit.Set_Visible(true);
  address.OK.Set_Visible(true);
  address.Show();
}

}  // namespace norvane
