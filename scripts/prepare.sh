# Defines the packages that the project needs, and functions that install them and build the
# project. The scripts run and test source it in the folder of the checkout.

build_packages=(g++ cmake ninja-build pkg-config libwxgtk3.2-dev libgtk-3-dev libcli11-dev
                nlohmann-json3-dev zlib1g-dev libsqlite3-dev)
test_packages=(libgtest-dev librapidcheck-dev libgumbo-dev xvfb xauth)
window_manager_packages=(openbox icewm x11-utils xdotool)
fuzz_packages=(clang libclang-rt-14-dev)
bench_packages=(jq sqlite3)
formats_packages=(nodejs npm)
pages_packages=(nodejs npm chromium default-jre-headless)

say() { printf '== %s\n' "$*"; }

as_root() {
  if [[ $(id -u) == 0 ]]; then "$@"; else sudo "$@"; fi
}

# need_packages NAMES... installs the packages that are missing. It uses the network only if there
# are any.
need_packages() {
  local package missing=()
  if ! command -v apt-get >/dev/null; then
    say "No apt-get here. The project needs what these packages of Debian hold: $*"
    return
  fi
  for package in "$@"; do
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
      missing+=("$package")
  done
  ((${#missing[@]})) || return 0
  say "Installing ${missing[*]}"
  as_root apt-get -qq update
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get -qq install -y --no-install-recommends "${missing[@]}" >/dev/null
}

# build_preset NAME configures and builds build/NAME.
build_preset() {
  say "Building the $1 preset in build/$1"
  cmake --preset "$1" >/dev/null
  cmake --build --preset "$1" --parallel "$(nproc)" -- --quiet
}
