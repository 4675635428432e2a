#include "screen/model/carry_out.h"

int main() {
  auto* volatile call = &norvane::Carry_Out;
  return call == nullptr ? 1 : 0;
}
