#!/bin/sh
# Builds Norvane and packs its folder with all libraries it needs, to be run on any machine without
# installing anything: build/norvane-VERSION-linux-MACHINE.tar.gz. docs/packaging.md tells what is in it.
set -eu
cd "$(dirname "$0")"

. packaging/install_packages.sh
install_packages "to build and pack Norvane" \
  g++ cmake ninja-build binutils qt6-base-dev libqt6svg6 libxlsxwriter-dev libminizip-dev \
  libexpat1-dev libreoffice-dev \
  libreoffice-calc fonts-liberation python3

build=build/package
# An old-style search path holds for the libraries of the libraries and for plugins too, so that none
# of them has to be changed.
cmake -S . -B $build -G Ninja -DCMAKE_BUILD_TYPE=Release -DNORVANE_TESTS=OFF \
  -DNORVANE_HARDENED=ON -DNORVANE_OFFICE=ON -DNORVANE_XLSX=ON -DNORVANE_FOLDER="$PWD/$build/norvane" \
  -DCMAKE_BUILD_WITH_INSTALL_RPATH=ON -DCMAKE_INSTALL_RPATH='$ORIGIN/lib' \
  -DCMAKE_EXE_LINKER_FLAGS=-Wl,--disable-new-dtags -DCMAKE_MODULE_LINKER_FLAGS=-Wl,--disable-new-dtags >$build.log 2>&1 ||
  { cat $build.log; exit 1; }
cmake --build $build

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' $build/CMakeCache.txt)
machine=$(uname -m)
name=norvane-$version-linux-$machine
folder=$build/$name
rm -rf "$folder"
mkdir -p "$folder/lib" "$folder/plugins" "$folder/licences" "$folder/fonts"

cp -R $build/norvane/. "$folder"
rm -f "$folder/norvane.ini"
cp LICENSE packaging/norvane.desktop packaging/portable/add-to-menu "$folder"
QT_QPA_PLATFORM=offscreen $build/desktop/norvane-artwork "$PWD/$build/artwork" >/dev/null
cp -R $build/artwork/icons "$folder/icons"
cp $build/artwork/norvane.svg "$folder/icons"
printf '[Paths]\nPlugins = plugins\n' >"$folder/qt.conf"
cp /usr/share/fonts/truetype/liberation/LiberationSans-*.ttf "$folder/fonts"

plugins=$(qtpaths6 --query QT_INSTALL_PLUGINS)
for plugin in platforms/libqxcb.so platforms/libqoffscreen.so \
  platforminputcontexts/libcomposeplatforminputcontextplugin.so \
  platforminputcontexts/libibusplatforminputcontextplugin.so; do
  mkdir -p "$folder/plugins/$(dirname $plugin)"
  cp "$plugins/$plugin" "$folder/plugins/$plugin"
done

# The machine's own are used: the C library belongs to its loader, and the compiler's run-time libraries
# must not be older than what a library of the machine (the office's) was built with.
left_out='(linux-vdso|ld-linux.*|libc|libm|libdl|librt|libpthread|libresolv|libstdc\+\+|libgcc_s)\.so'
# norvane_office.so is left out of the search: its libraries are those of the machine's office. The writer
# of workbooks may be loaded at need only, so that the program doesn't name it.
workbooks=$(readlink -f "$(sed -n 's/^XLSXWRITER_LIBRARY:FILEPATH=//p' $build/CMakeCache.txt)")
{
  find "$folder" \( -name '*.so' -o -name norvane \) -type f ! -name norvane_office.so -exec ldd {} +
  ldd "$workbooks"
  echo "workbooks => $workbooks"
} |
  awk '$2 == "=>" && $3 ~ /^\// {print $3} /not found/ {print}' | sort -u |
  grep -Ev "/$left_out" >$build/libraries
if grep 'not found' $build/libraries; then exit 1; fi
while read -r library; do cp -L "$library" "$folder/lib"; done <$build/libraries
strip --strip-unneeded "$folder/norvane" "$folder"/*.so

# Which package each library came from, with its licence.
package_of() {
  real=$(readlink -f "$1")
  dpkg-query -S "$real" 2>/dev/null || dpkg-query -S "${real#/usr}"
}
{
  cat $build/libraries
  (cd "$folder/plugins" && find . -name '*.so') | sed "s|^\.|$plugins|"
  ls /usr/share/fonts/truetype/liberation/LiberationSans-*.ttf
} | while read -r file; do
  package=$(package_of "$file" | sed 's/:.*//')
  echo "$(basename "$file") $package $(dpkg-query -W -f '${Version} ${Architecture}' "$package")"
done >$build/origins
sed -e "s/@VERSION@/$version/" -e "s/@MACHINE@/$machine/" packaging/portable/README.txt \
  >"$folder/README.txt"
{
  cat $build/libraries
  find "$plugins" -name libqxcb.so
  echo /usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf
} | while read -r file; do package_of "$file"; done | sed 's/:.*//' | sort -u |
  while read -r package; do
    cp -L "/usr/share/doc/$package/copyright" "$folder/licences/$package.txt"
    dpkg-query -W -f '  ${binary:Package} ${Version}\n' "$package"
  done >>"$folder/README.txt"
cp /usr/share/common-licenses/LGPL-3 /usr/share/common-licenses/LGPL-2.1 \
  /usr/share/common-licenses/GPL-3 "$folder/licences"

packaging/make_sbom.py "$folder" "$version" <$build/origins
tests/packaging/look_at_folder "$folder"

tar --create --directory $build --sort=name --owner=0 --group=0 --numeric-owner --mode=u+w,go=rX,a+rX "$name" |
  gzip -9n >"build/$name.tar.gz"
echo "build/$name.tar.gz: $(du -h "build/$name.tar.gz" | cut -f 1), unpacked $(du -sh "$folder" | cut -f 1)"
