#pragma once

#include "catalogue/address_form.h"
#include "desktop/bare_view.h"

namespace norvane {

/// The list of addresses.
class AddressView : public BareView {
  Q_OBJECT

 public:
  AddressView(Desktop& desktop, Address& address);
};

}  // namespace norvane
