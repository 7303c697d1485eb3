# Provides the tools and libraries for the Windows programs. The scripts of this folder source it in
# the folder of the checkout, after scripts/prepare.sh. Libraries that take long to build are stored
# in a cache outside the checkout. The name of the cache folder contains a hash of everything from
# which they are built.

windows_packages=(g++ g++-mingw-w64-x86-64-posix cmake ninja-build xz-utils zip googletest
                  libwxgtk3.2-dev libcli11-dev nlohmann-json3-dev libz-mingw-w64-dev)
toolchain=$PWD/cmake/windows.cmake
cache=${XDG_CACHE_HOME:-$HOME/.cache}/golf-transfer

version_of() { dpkg-query -W -f='${source:Version}' "$1"; }

# fetch_wxwidgets FOLDER downloads the source of wxWidgets from Debian's archive, in the same
# release that the Linux program uses, and checks its signature. It does not change the machine's
# list of package sources.
fetch_wxwidgets() {
  local apt=$1/apt file
  mkdir -p "$apt/sources.list.d" "$apt/lists/partial"
  : >"$apt/sources.list"
  if [[ -e /etc/apt/sources.list ]]; then
    sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$apt/sources.list"
  fi
  for file in /etc/apt/sources.list.d/*; do
    case $file in
      *.sources) sed 's/^Types:.*/Types: deb-src/' "$file" ;;
      *.list) sed -n 's/^deb /deb-src /p' "$file" ;;
    esac >"$apt/sources.list.d/${file##*/}"
  done
  local options=(-qq -o "Dir::Etc::SourceList=$apt/sources.list" -o APT::Sandbox::User=root
                 -o "Dir::Etc::SourceParts=$apt/sources.list.d" -o "Dir::State::Lists=$apt/lists"
                 -o "Dir::Cache::srcpkgcache=" -o "Dir::Cache::pkgcache=")
  apt-get "${options[@]}" update
  (cd "$apt" && apt-get "${options[@]}" source --download-only \
    "wxwidgets3.2=$(version_of libwxgtk3.2-dev)" >/dev/null)
  mkdir "$1/wxwidgets"
  tar -C "$1/wxwidgets" --strip-components=1 -xf "$apt"/wxwidgets3.2_*.orig.tar.*
}

# build_for_windows SOURCE FOLDER PREFIX OPTIONS... builds the library in SOURCE with CMake in
# FOLDER and installs it into PREFIX.
build_for_windows() {
  cmake -G Ninja -S "$1" -B "$2" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_INSTALL_PREFIX="$3" "${@:4}" >"$2.log"
  nice -n 10 cmake --build "$2" -- --quiet >>"$2.log"
  cmake --install "$2" >>"$2.log"
}

# make_libraries sets `libraries` to the folder of all libraries for Windows. It builds them if the
# folder does not exist.
make_libraries() {
  local recipe
  recipe=$(
    cat "$toolchain" packaging/windows/wxwidgets.cmake
    declare -f fetch_wxwidgets build_for_windows make_libraries
    for package in g++-mingw-w64-x86-64-posix libwxgtk3.2-dev googletest libcli11-dev \
      nlohmann-json3-dev; do version_of "$package"; done
  )
  libraries=$cache/windows-libraries-$(sha256sum <<<"$recipe" | head -c 16)
  [[ -e $libraries ]] && return
  say "Building wxWidgets and GoogleTest for Windows, once on this machine: some minutes"
  mkdir -p "$cache"
  local work=$libraries.making-$$
  trap "rm -rf '$work'" EXIT
  mkdir "$work"
  fetch_wxwidgets "$work"
  build_for_windows "$work/wxwidgets" "$work/build-wxwidgets" "$work/made" \
    -C "$PWD/packaging/windows/wxwidgets.cmake"
  build_for_windows /usr/src/googletest "$work/build-googletest" "$work/made" \
    -DCMAKE_BUILD_TYPE=Release -DBUILD_GMOCK=OFF
  # Copies the header-only libraries and their files for CMake.
  mkdir -p "$work/made/share/cmake"
  cp -r /usr/include/CLI /usr/include/nlohmann "$work/made/include"
  cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$work/made/share/cmake"
  mv -T "$work/made" "$libraries"
  rm -rf "$work"
  trap - EXIT
}

configure_windows() {
  cmake --preset windows -DCMAKE_PREFIX_PATH="$libraries" >/dev/null
}
