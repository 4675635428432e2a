#!/bin/sh
# Builds and runs the tests; the last lines are those of ctest.
#   ./test.sh        everything: g++ and clang++, sanitizers, the real window, checks of the sources
#   ./test.sh quick  unit tests and scripts alone
set -eu
cd "$(dirname "$0")"

. packaging/install_packages.sh
install_packages "to build and test Norvane" \
  g++ cmake ninja-build qt6-base-dev libqt6svg6 libgtest-dev fonts-liberation

if [ "${1:-}" = quick ]; then
  cmake --preset release -DNORVANE_WERROR=ON >/dev/null
  cmake --build --preset release --target quick_tests
  exec ctest --test-dir build/release --output-on-failure -L quick -j 2
fi

install_packages "to run all tests of Norvane" \
  clang clang-tidy clang-format doxygen libclang-rt-dev llvm ccache xvfb openbox \
  libreoffice-calc libreoffice-dev libxlsxwriter-dev libminizip-dev libexpat1-dev locales python3-openpyxl \
  python3-uno xdotool \
  exfat-fuse exfatprogs at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi python3-xlib libxres-dev git \
  python3 parallel groff pkg-config poppler-utils

echo "== release"
cmake --preset release -DNORVANE_WERROR=ON -DNORVANE_JOINED_TESTS=ON >/dev/null
cmake --build --preset release

echo "== clang"
# The programs whole, for clang-tidy too, and of the tests those that it plays.
cmake --preset clang -DNORVANE_WERROR=ON >/dev/null
cmake --build --preset clang --target \
  quick_tests norvane norvane-tour norvane-artwork norvane_office norvane-batch norvane_c

echo "== sanitize"
cmake --preset sanitize -DNORVANE_WERROR=ON >/dev/null
cmake --build --preset sanitize --target quick_tests sanitized_tests

echo "== tsan"
cmake --preset tsan -DNORVANE_WERROR=ON >/dev/null
cmake --build --preset tsan --target spreadsheet_tests norvane-batch interrupts_at_creation

echo "== fuzz"
cmake --preset fuzz -DNORVANE_WERROR=ON >/dev/null
cmake --build --preset fuzz

echo "== windows"
tests/windows/build

# CMake leaves out the tests of what it doesn't find.
for label in quick batch library desktop accessibility mirror office packaging faults soak worlds; do
  ctest --test-dir build/release -N -L "^$label\$" | grep -q "Test *#" ||
    { echo "There are no tests of $label" >&2; exit 1; }
done

tests/check_sources build/clang
ctest --test-dir build/clang --output-on-failure -L quick -j 2
ctest --test-dir build/sanitize --output-on-failure -L 'quick|sanitized' -j 2
build/tsan/tests/spreadsheet/spreadsheet_tests --gtest_brief=1
ctest --test-dir build/tsan --output-on-failure -L '^batch$'
ctest --test-dir build/fuzz --output-on-failure -j 2
tests/windows/run
ctest --test-dir build/release --output-on-failure -j 2
