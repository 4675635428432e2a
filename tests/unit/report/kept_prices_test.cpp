#include "report/kept_prices.h"

#include <gtest/gtest.h>

#include "../support/test_folder.h"
#include "host/disk_files.h"

namespace norvane {
namespace {

TEST(KeptPrices, AreNoneWithoutTheirFile) {
  const TestFolder folder;
  EXPECT_EQ(Kept_Prices(DiskFiles(folder.Path())), Prices());
}

TEST(KeptPrices, StayWhenTheProgramIsLeft) {
  const TestFolder folder;
  DiskFiles files(folder.Path());
  Change_Prices(files, [](Prices& prices) { prices.of_pipe[13] = 4.2; });
  EXPECT_EQ(Kept_Prices(DiskFiles(folder.Path())).of_pipe.at(13), 4.2);
}

TEST(KeptPrices, OfTwoProgramsAreChangedOneByOne) {
  const TestFolder folder;
  DiskFiles files(folder.Path());
  DiskFiles others(folder.Path());
  Change_Prices(files, [](Prices& prices) { prices.project = "Here"; });
  Change_Prices(others, [](Prices& prices) { prices.years = 5; });
  EXPECT_EQ(Kept_Prices(files).project, "Here");
  EXPECT_EQ(Kept_Prices(files).years, 5);
}

}  // namespace
}  // namespace norvane
