# shellcheck shell=bash disable=SC2034
# What ./run and ./test share: telling, installing, building. To be sourced from the checkout's root.

PYTHON=/usr/bin/python3
WINDOWS_COMPILERS=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix)
STAGE_PACKAGES=(wine wine64 xvfb xdotool x11-xkb-utils locales fonts-wine fonts-liberation2 python3)
BUILD_PACKAGES=(build-essential cmake ninja-build ccache)

say() { printf '%s\n' "$*"; }

# timed TITLE COMMAND...: tells what is done, and how long it took; passes on the command's result.
timed() {
  local title=$1 began=$SECONDS result=0
  shift
  say "== $title"
  "$@" || result=$?
  say "   $((SECONDS - began)) s"
  return "$result"
}

# The packages of the arguments that dpkg does not hold for installed.
missing_packages() {
  local package
  for package in "$@"; do
    dpkg -s "$package" 2>/dev/null | grep -q '^Status: install ok installed' || printf '%s\n' "$package"
  done
}

install_missing() {
  local missing as=()
  mapfile -t missing < <(missing_packages "$@")
  ((${#missing[@]})) || return 0
  if ((EUID != 0)); then
    command -v sudo >/dev/null || {
      say "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2
      return 1
    }
    as=(sudo)
  fi
  say "== Installing with ${as[*]:+sudo }apt-get: ${missing[*]}"
  mkdir -p build/logs
  "${as[@]}" env DEBIAN_FRONTEND=noninteractive sh -c \
    'apt-get update -q && exec apt-get install -q -y --no-install-recommends "$@"' sh "${missing[@]}" \
    >build/logs/install.log 2>&1 || {
    tail -n 30 build/logs/install.log >&2
    return 1
  }
}

# build PRESET TARGET...: builds all that can be built; on a fault it shows the log's faults and fails.
build() {
  local preset=$1 log=build/logs/$1.log
  shift
  mkdir -p build/logs
  if cmake --preset "$preset" >"$log" 2>&1 &&
    cmake --build "build/$preset" --target "$@" -- -k 0 >>"$log" 2>&1; then
    return 0
  fi
  grep -E -A 6 '(error|FAILED|Error)' "$log" | head -n 60 >&2
  say "   the build \"$preset\" failed: $log" >&2
  return 1
}

# The word size whose programs this machine can start: what is shipped is i686, but Wine's 32-bit part
# cannot be installed beside the other packages on every machine.
startable_word_size() {
  if [[ -x /usr/lib/wine/wine ]]; then echo i686; else echo x86_64; fi
}
