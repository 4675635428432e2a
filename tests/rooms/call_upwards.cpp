namespace norvane {

struct Module1;

// As totals/calculation_list.h declares it, which can't be included here.
void setHeaders(Module1& module1);

}  // namespace norvane

int main() {
  auto* volatile call = &norvane::setHeaders;
  return call == nullptr ? 1 : 0;
}
