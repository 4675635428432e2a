#!/bin/sh
# Builds Norvane, lays out its folder in build/norvane and starts it. Without a display it plays a
# guided tour instead and leaves pictures of the screens in build/tour.
set -eu
cd "$(dirname "$0")"

. packaging/install_packages.sh
# The way into LibreOffice is built only where LibreOffice is.
office=
command -v soffice >/dev/null && office=libreoffice-dev
install_packages "to build and run Norvane" \
  g++ cmake ninja-build qt6-base-dev libxlsxwriter-dev libminizip-dev libexpat1-dev fonts-liberation $office

mkdir -p build
cmake -S . -B build/run -G Ninja -DCMAKE_BUILD_TYPE=Release -DNORVANE_TESTS=OFF \
  -DNORVANE_HARDENED=ON -DNORVANE_FOLDER="$PWD/build/norvane" >build/run.log 2>&1 || { cat build/run.log; exit 1; }
cmake --build build/run

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/norvane/norvane
fi
echo "There is no display: playing the guided tour instead."
rm -rf build/tour
QT_QPA_PLATFORM=offscreen exec build/run/desktop/norvane-tour build/norvane build/tour
