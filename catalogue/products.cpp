#include "catalogue/products.h"

#include <algorithm>

#include "calc/conversions.h"
#include "data/runtime_error.h"
#include "data/string_table.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

std::int16_t Number_In(int id) { return To_Int16(Val(String_Table(id))); }

/// Ids are put together as text: group, two digits of the row, and what is asked for.
int Product_Id(std::int16_t group, std::int16_t row, const char* part) {
  return std::stoi(std::to_string(group) + (row < 10 ? "0" : "") + std::to_string(row) + part);
}

auto Find_Product(const Module1& module1, const std::string& name) {
  return std::find_if(module1.Products.begin(), module1.Products.end(),
                      [&](const ClsProduct& product) { return product.Name() == name; });
}

}  // namespace

void Fill_Group_Sizes(Module1& module1) {
  const std::int16_t groups = Number_In(200);
  module1.arrGroupSizes.assign(static_cast<std::size_t>(groups) + 1, 0);
  for (std::int16_t group = 1; group <= groups; ++group) {
    module1.arrGroupSizes[static_cast<std::size_t>(group)] = Number_In(200 + group);
  }
}

void Load_Product_Group(Module1& module1, std::int16_t DataGroupID) {
  module1.forms.warmt->Combo1.Clear();
  const std::int16_t size = module1.arrGroupSizes.at(static_cast<std::size_t>(DataGroupID));
  for (std::int16_t row = 1; row <= size; ++row) {
    ClsProduct product;
    product.Set_DataGroupID(DataGroupID);
    product.Set_Name(std::string(String_Table(Product_Id(DataGroupID, row, "0"))));
    product.Set_Lambda(std::string(String_Table(Product_Id(DataGroupID, row, "1"))));
    if (Find_Product(module1, product.Name()) != module1.Products.end()) {
      throw RuntimeError(RuntimeError::kInvalidProcedureCall);
    }
    module1.Products.push_back(product);
  }
}

void Fill_Product_Combo(Module1& module1, std::int16_t DataGroupID) {
  ListField& Combo1 = module1.forms.warmt->Combo1;
  Combo1.Clear();
  for (const ClsProduct& product : module1.Products) {
    if (product.DataGroupID() == DataGroupID) Combo1.Add_Item(product.Name());
  }
  Combo1.Set_ListIndex(0);
}

const ClsProduct& Product_Of(const Module1& module1, const std::string& name) {
  const auto product = Find_Product(module1, name);
  if (product == module1.Products.end()) {
    throw RuntimeError(RuntimeError::kInvalidProcedureCall);
  }
  return *product;
}

}  // namespace norvane
