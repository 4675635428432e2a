#pragma once

#include "catalogue/address_form.h"
#include "desktop/form_view.h"

namespace norvane {

/// The list of addresses.
class AddressView : public FormView {
  Q_OBJECT

 public:
  AddressView(Desktop& desktop, Address& address);
};

}  // namespace norvane
