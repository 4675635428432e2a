#pragma once

#include <cstdint>
#include <string>

namespace norvane {

struct Module1;

/// An insulation product. Lambda is the declared conductivity at 40 degrees Celsius in W/mK, as
/// text with a point.
class ClsProduct {
 public:
  void Set_Name(const std::string& prmName) { name_ = prmName; }
  const std::string& Name() const { return name_; }
  void Set_Lambda(const std::string& prmLambda) { lambda_ = prmLambda; }
  const std::string& Lambda() const { return lambda_; }
  void Set_DataGroupID(std::int16_t prmDataGroupID) { data_group_id_ = prmDataGroupID; }
  /// 1 for pipe insulation, 2 for sheet insulation.
  std::int16_t DataGroupID() const { return data_group_id_; }

 private:
  std::string name_;
  std::string lambda_;
  std::int16_t data_group_id_ = 0;
};

/// Reads how many products each group has.
void Fill_Group_Sizes(Module1& module1);

/// Adds the products of a group to the catalogue. Throws `RuntimeError` 5 for a name that is there
/// already, and 9 for a text that the string table doesn't hold.
void Load_Product_Group(Module1& module1, std::int16_t DataGroupID);

/// Shows the products of a group in the main screen's list and chooses the first.
void Fill_Product_Combo(Module1& module1, std::int16_t DataGroupID);

/// The product of that name. Throws `RuntimeError` 5 when there is none.
const ClsProduct& Product_Of(const Module1& module1, const std::string& name);

}  // namespace norvane
