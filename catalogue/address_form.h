#pragma once

#include <string>
#include <vector>

#include "screen/model/form.h"

namespace norvane {

struct Module1;

/// The list of addresses.
class Address : public Form {
 public:
  explicit Address(Module1& module1);

  void Load() override;
  void Close_Box() override;

  /// Fills the list from `Address_Table`: a block of lines an address, up to the first gap in the
  /// numbers, and the web site.
  void Fill_Address_List();

  ListField List1{*this, "List1"};
  CaptionField Label1{*this, "Label1"};
  Button OK{*this, "OK"};
  PictureField imgExit{*this, "imgExit"};

 private:
  /// The lines of an address; those that may be left out are empty when they are.
  std::vector<std::string> Composed_Lines(int address) const;

  Module1& module1_;
};

/// Shows the list in the middle of the screen.
void Show_Address_Dialog(Module1& module1);

}  // namespace norvane
