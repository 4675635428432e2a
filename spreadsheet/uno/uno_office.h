#pragma once

#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

#include "spreadsheet/office.h"

namespace norvane {

/// LibreOffice over UNO, its own way of being called from outside.
class UnoOffice : public Office {
 public:
  UnoOffice() = default;
  ~UnoOffice() override;
  UnoOffice(const UnoOffice&) = delete;
  UnoOffice& operator=(const UnoOffice&) = delete;

  bool Runs() override;
  bool Connect(const std::string& pipe) override;
  void Open(const std::string& path) override;
  void Show() override;
  void Select(int sheet) override;
  void Clear(const CellRange& range) override;
  void Write(const CellBlock& block) override;
  void Bold(const CellRange& range) override;
  void Leave() override;

 private:
  css::uno::Reference<css::lang::XComponent> Load(const std::string& path, bool as_copy) const;
  void Close_Unseen();
  css::uno::Reference<css::frame::XController> Controller() const;
  css::uno::Reference<css::sheet::XSpreadsheet> Sheet(int number) const;
  css::uno::Reference<css::table::XCellRange> Cells(const CellRange& range) const;

  css::uno::Reference<css::uno::XComponentContext> local_;   ///< on this side of the pipe
  css::uno::Reference<css::uno::XComponentContext> office_;  ///< on the office's side
  css::uno::Reference<css::lang::XComponent> book_;
  bool shown_ = false;
};

}  // namespace norvane
