#include "catalogue/products.h"

#include <gtest/gtest.h>

#include "../data/error_of.h"
#include "../support/test_program.h"

namespace norvane {
namespace {

class TheCatalogue : public testing::Test {
 protected:
  TheCatalogue() { program_.Start(); }

  TestProgram program_;
};

TEST_F(TheCatalogue, TakesNoNameTwice) {
  const std::size_t products = program_.State().Products.size();
  EXPECT_EQ(Error_Of([this] { Load_Product_Group(program_.State(), 1); }), 5);
  EXPECT_EQ(program_.State().Products.size(), products);
}

TEST_F(TheCatalogue, KnowsItsOwnNamesAlone) {
  EXPECT_EQ(Product_Of(program_.State(), "Norvane Tube K1").Lambda(), "0.038");
  EXPECT_EQ(Error_Of([this] { Product_Of(program_.State(), "norvane tube k1"); }), 5);
  EXPECT_EQ(Error_Of([this] { Product_Of(program_.State(), ""); }), 5);
}

}  // namespace
}  // namespace norvane
