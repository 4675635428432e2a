#include "uno_office.h"

#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/awt/XWindow.hpp>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XSheetOperation.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/util/XCloseable.hpp>

#include "gate.h"
#include "local_office.h"

namespace norvane {
namespace {

using css::uno::Any;
using css::uno::Reference;
using css::uno::Sequence;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

constexpr sal_Int32 kContents = css::sheet::CellFlags::VALUE | css::sheet::CellFlags::DATETIME |
                                css::sheet::CellFlags::STRING | css::sheet::CellFlags::FORMULA;

/// Carries out what talks to the office; its failures become the program's.
template <class Step>
auto Asking(Step step) -> decltype(step()) {
  try {
    Pass_Gate();
    return step();
  } catch (const css::uno::Exception&) {
    throw SpreadsheetFailure();
  }
}

css::beans::PropertyValue Named(const char* name, Any value) {
  css::beans::PropertyValue named;
  named.Name = OUString::createFromAscii(name);
  named.Value = std::move(value);
  return named;
}

Any To_Any(const CellValue& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return Any(From_Utf8(*text));
  return Any(std::get<double>(value));
}

Sequence<Sequence<Any>> To_Sequences(const std::vector<std::vector<CellValue>>& rows) {
  Sequence<Sequence<Any>> all(static_cast<sal_Int32>(rows.size()));
  Sequence<Any>* next_row = all.getArray();
  for (const auto& values : rows) {
    Sequence<Any> row(static_cast<sal_Int32>(values.size()));
    Any* next = row.getArray();
    for (const CellValue& value : values) *next++ = To_Any(value);
    *next_row++ = row;
  }
  return all;
}

}  // namespace

UnoOffice::~UnoOffice() {
  try {
    Leave();
  } catch (const SpreadsheetFailure&) {
    // The office is gone already.
  }
}

bool UnoOffice::Runs() {
  return Asking([] { return Local_Office_Runs(); });
}

bool UnoOffice::Connect(const std::string& pipe) {
  return Asking([&] {
    if (!local_.is()) local_ = Local_Context();
    const auto resolver = css::bridge::UnoUrlResolver::create(local_);
    const OUString address =
        "uno:pipe,name=" + From_Utf8(pipe) + ";urp;StarOffice.ComponentContext";
    try {
      office_.set(resolver->resolve(address), UNO_QUERY);
    } catch (const css::uno::Exception&) {
      // Nobody listens there, or somebody who is about to end.
    }
    return office_.is();
  });
}

void UnoOffice::Open(const std::string& path) {
  Asking([&] {
    if (!office_.is()) throw SpreadsheetFailure();
    book_ = Load(path, false);
    shown_ = false;
    Pass_Gate();
    const Reference<css::frame::XStorable> storable(book_, UNO_QUERY_THROW);
    if (!storable->isReadonly()) return;
    // The office refuses to fill what it can't write back, but not a copy without a name.
    Close_Unseen();
    book_ = Load(path, true);
  });
}

/// Never asks the user anything, since nobody sees it.
Reference<css::lang::XComponent> UnoOffice::Load(const std::string& path, bool as_copy) const {
  const css::beans::PropertyValue how[] = {Named("Hidden", Any(true)),
                                           Named("FilterName", Any(OUString("MS Excel 97"))),
                                           Named("AsTemplate", Any(as_copy))};
  const auto desktop = css::frame::Desktop::create(office_);
  return {desktop->loadComponentFromURL(To_Url(path), "_blank", 0, {how, 3}), UNO_QUERY_THROW};
}

void UnoOffice::Close_Unseen() {
  const Reference<css::util::XCloseable> unseen(book_, UNO_QUERY);
  book_.clear();
  if (unseen.is()) unseen->close(true);
}

void UnoOffice::Show() {
  Asking([&] {
    const Reference<css::awt::XWindow> window = Controller()->getFrame()->getContainerWindow();
    Pass_Gate();
    window->setVisible(true);
    Pass_Gate();
    shown_ = true;
    const Reference<css::awt::XTopWindow> top(window, UNO_QUERY_THROW);
    top->toFront();
  });
}

Reference<css::frame::XController> UnoOffice::Controller() const {
  const Reference<css::frame::XModel> model(book_, UNO_QUERY_THROW);
  return Reference<css::frame::XController>(model->getCurrentController(), UNO_QUERY_THROW);
}

Reference<css::sheet::XSpreadsheet> UnoOffice::Sheet(int number) const {
  const Reference<css::sheet::XSpreadsheetDocument> document(book_, UNO_QUERY_THROW);
  const Reference<css::container::XIndexAccess> sheets(document->getSheets(), UNO_QUERY_THROW);
  return Reference<css::sheet::XSpreadsheet>(sheets->getByIndex(number - 1), UNO_QUERY_THROW);
}

Reference<css::table::XCellRange> UnoOffice::Cells(const CellRange& range) const {
  return Sheet(1)->getCellRangeByPosition(range.first_column, range.first_row, range.last_column,
                                          range.last_row);
}

void UnoOffice::Select(int sheet) {
  Asking([&] {
    const Reference<css::sheet::XSpreadsheetView> view(Controller(), UNO_QUERY_THROW);
    view->setActiveSheet(Sheet(sheet));
  });
}

void UnoOffice::Clear(const CellRange& range) {
  Asking([&] {
    const Reference<css::sheet::XSheetOperation> cells(Cells(range), UNO_QUERY_THROW);
    cells->clearContents(kContents);
  });
}

void UnoOffice::Write(const CellBlock& block) {
  Asking([&] {
    const CellRange range{block.first_column, block.first_row,
                          block.first_column + static_cast<int>(block.rows.front().size()) - 1,
                          block.first_row + static_cast<int>(block.rows.size()) - 1};
    const Reference<css::sheet::XCellRangeData> cells(Cells(range), UNO_QUERY_THROW);
    Pass_Gate();
    cells->setDataArray(To_Sequences(block.rows));
  });
}

void UnoOffice::Bold(const CellRange& range) {
  Asking([&] {
    const Reference<css::beans::XPropertySet> cells(Cells(range), UNO_QUERY_THROW);
    for (const char* weight : {"CharWeight", "CharWeightAsian", "CharWeightComplex"}) {
      cells->setPropertyValue(OUString::createFromAscii(weight), Any(css::awt::FontWeight::BOLD));
    }
  });
}

void UnoOffice::Leave() {
  try {
    if (!shown_) Close_Unseen();
  } catch (const css::uno::Exception&) {
    // Closed already.
  }
  // What came from the office has to be let go of before the bridge that it came over.
  book_.clear();
  office_.clear();
  Asking([&] {
    const Reference<css::lang::XComponent> local(local_, UNO_QUERY);
    local_.clear();
    if (local.is()) local->dispose();
  });
}

}  // namespace norvane

extern "C" __attribute__((visibility("default"))) norvane::Office* norvane_make_office_1() {
  return new norvane::UnoOffice;
}
