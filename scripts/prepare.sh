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

# apt_get ARGUMENTS... runs apt-get as root. While another program holds a lock of apt or dpkg, it
# tries again for ten minutes. The option DPkg::Lock::Timeout of apt-get waits only for the lock of
# dpkg, not for those of the lists and the downloads.
apt_get() {
  local problems waiting='' end=$((SECONDS + 600))
  until problems=$(as_root env LC_ALL=C DEBIAN_FRONTEND=noninteractive \
    apt-get -qq "$@" 2>&1 >/dev/null); do
    if ((SECONDS >= end)) || ! grep -q '^E: Could not get lock' <<<"$problems"; then
      printf '%s\n' "$problems" >&2
      return 1
    fi
    [[ $waiting ]] || say "Another program installs packages here: waiting for it, ten minutes at most"
    waiting=yes
    sleep 3
  done
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
  apt_get update
  apt_get install -y --no-install-recommends "${missing[@]}"
}

# build_preset NAME TARGETS... configures build/NAME and builds the targets, or everything.
build_preset() {
  say "Building ${2:+$2 of }the $1 preset in build/$1"
  cmake --preset "$1" >/dev/null
  cmake --build --preset "$1" --parallel "$(nproc)" ${2:+--target "${@:2}"} -- --quiet
}
