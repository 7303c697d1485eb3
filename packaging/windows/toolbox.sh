# Provides the tools and libraries for the Windows programs. The scripts of this folder source it in
# the folder of the checkout, after scripts/prepare.sh. Libraries that take long to build are stored
# in a cache outside the checkout. The name of the cache folder contains a hash of everything from
# which they are built.

windows_packages=(g++ g++-mingw-w64-x86-64-posix cmake ninja-build dpkg-dev tcl zip git googletest
                  libwxgtk3.2-dev libcli11-dev nlohmann-json3-dev libz-mingw-w64-dev libsqlite3-dev
                  zlib1g-dev)
toolchain=$PWD/cmake/windows.cmake
cache=${XDG_CACHE_HOME:-$HOME/.cache}/golf-transfer

version_of() { dpkg-query -W -f='${source:Version}' "$1"; }

# fetch_sources FOLDER NAME=VERSION... downloads source packages from Debian's archive, checks their
# signatures, and unpacks each one with Debian's patches into FOLDER/NAME. It does not change the
# machine's list of package sources.
fetch_sources() {
  local apt=$1/apt file source
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
  (cd "$apt" && apt-get "${options[@]}" source "${@:2}" >/dev/null)
  for source in "${@:2}"; do
    mv -T "$apt/${source%%=*}"-*/ "$1/${source%%=*}"
  done
}

# build_for_windows SOURCE FOLDER PREFIX OPTIONS... builds the library in SOURCE with CMake in
# FOLDER and installs it into PREFIX. The configuration does not contain PREFIX, since wxWidgets would
# store this path in the programs.
build_for_windows() {
  cmake -G Ninja -S "$1" -B "$2" -DCMAKE_TOOLCHAIN_FILE="$toolchain" "${@:4}" >"$2.log"
  nice -n 10 cmake --build "$2" -- --quiet >>"$2.log"
  cmake --install "$2" --prefix "$3" >>"$2.log"
}

# build_sqlite SOURCE PREFIX builds SQLite as a static library and installs it into PREFIX. The
# library may be used in one thread only. SQLITE_SECURE_DELETE is an option of Debian's library too,
# so databases of both systems have the same bytes.
build_sqlite() {
  make -C "$1" -f main.mk TOP=. BCC=gcc sqlite3.c >"$1.log"
  nice -n 10 x86_64-w64-mingw32-gcc-posix -O2 -c "$1/sqlite3.c" -o "$1/sqlite3.o" \
    -DSQLITE_THREADSAFE=0 -DSQLITE_OMIT_LOAD_EXTENSION -DSQLITE_DQS=0 -DSQLITE_SECURE_DELETE
  x86_64-w64-mingw32-ar rcs "$2/lib/libsqlite3.a" "$1/sqlite3.o"
  cp "$1/sqlite3.h" "$2/include"
}

# make_libraries sets `libraries` to the folder of all libraries for Windows. It builds them if the
# folder does not exist.
make_libraries() {
  local recipe
  recipe=$(
    cat "$toolchain" packaging/windows/wxwidgets.cmake
    declare -f fetch_sources build_for_windows build_sqlite make_libraries
    for package in g++-mingw-w64-x86-64-posix libwxgtk3.2-dev libsqlite3-dev googletest \
      libcli11-dev nlohmann-json3-dev; do version_of "$package"; done
  )
  libraries=$cache/windows-libraries-$(sha256sum <<<"$recipe" | head -c 16)
  [[ -e $libraries ]] && return
  say "Building wxWidgets, SQLite and GoogleTest for Windows, once on this machine: some minutes"
  mkdir -p "$cache"
  local work=$libraries.making-$$
  trap "rm -rf '$work'" EXIT
  mkdir "$work"
  # Messages of wxWidgets name the source file, without the path of this folder.
  local -x CFLAGS="-ffile-prefix-map=$work/=" CXXFLAGS="-ffile-prefix-map=$work/="
  fetch_sources "$work" "wxwidgets3.2=$(version_of libwxgtk3.2-dev)" \
    "sqlite3=$(version_of libsqlite3-dev)"
  build_for_windows "$work/wxwidgets3.2" "$work/build-wxwidgets" "$work/made" \
    -C "$PWD/packaging/windows/wxwidgets.cmake"
  build_for_windows /usr/src/googletest "$work/build-googletest" "$work/made" \
    -DCMAKE_BUILD_TYPE=Release -DBUILD_GMOCK=OFF
  build_sqlite "$work/sqlite3" "$work/made"
  # Copies the header-only libraries and their files for CMake.
  mkdir -p "$work/made/share/cmake"
  cp -r /usr/include/CLI /usr/include/nlohmann "$work/made/include"
  cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$work/made/share/cmake"
  mv -T "$work/made" "$libraries"
  rm -rf "$work"
  trap - EXIT
}

# configure_windows configures build/windows with the libraries in `libraries`. --fresh removes the
# paths that CMake has stored, since a change of the recipe changes the folder.
configure_windows() {
  cmake --preset windows --fresh -DCMAKE_PREFIX_PATH="$libraries" >/dev/null
}

# sources_date prints the date of the sources, in seconds since 1970: that of the last commit, unless
# the environment names another one.
sources_date() {
  if [[ ${SOURCE_DATE_EPOCH:-} ]]; then
    echo "$SOURCE_DATE_EPOCH"
  elif ! git log -1 --format=%ct 2>/dev/null; then
    say "There is no commit here: the files in the zip file get the earliest date of the format" >&2
    date -u -d 1980-01-01 +%s
  fi
}

# make_zip FOLDER ZIP adds a zip file of all files in the folder to the folder. The zip file depends
# only on the names, the bytes and the date of the sources.
make_zip() {
  local date
  date=$(sources_date)
  chmod -R u=rwX,go=rX "$1"
  find "$1" -exec touch -d "@$date" {} +
  (cd "$1" && find . -type f -printf '%P\n' | LC_ALL=C sort | TZ=UTC zip -q -X "$2" -@)
}
