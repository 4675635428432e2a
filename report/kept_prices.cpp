#include "report/kept_prices.h"

#include "platform/files.h"

namespace norvane {

Prices Kept_Prices(const Files& files) { return Read_Prices(files.Read(kPricesFile).value_or("")); }

void Change_Prices(Files& files, const std::function<void(Prices&)>& change) {
  files.Rewrite(kPricesFile, [&](const std::string& file) {
    Prices prices = Read_Prices(file);
    change(prices);
    return Write_Prices(file, prices);
  });
}

}  // namespace norvane
