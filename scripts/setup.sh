#!/bin/sh
# Installs the Debian packages that building, testing and running need, where any is missing; with
# the word "windows" also those for building for Windows, with "windows-core" those of them that the
# core and its tests need.
# Works on Debian 12 and 13, as root or through sudo, and asks nothing.
set -eu

wanted=${1-}

# One a line; of several names on a line the first that the system knows is taken.
packages() {
  cat <<'END'
build-essential
cmake
ninja-build
qt6-base-dev
qt6-serialport-dev libqt6serialport6-dev
libqt6sql6-sqlite
qt6-tools-dev
qt6-l10n-tools
libgl-dev libgl1-mesa-dev
libqcustomplot-dev
libcli11-dev
nlohmann-json3-dev
libgtest-dev
libgmock-dev
libbenchmark-dev
dpkg-dev
END
  [ "${wanted%-core}" != windows ] || cat <<'END'
g++-mingw-w64-x86-64-posix
wine
wine64
googletest
END
  [ "$wanted" != windows ] || cat <<'END'
nsis
tcl
END
}

is_installed() {
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

any_installed() {
  for name in "$@"; do
    is_installed "$name" && return 0
  done
  return 1
}

first_known() {
  for name in "$@"; do
    if apt-cache show "$name" >/dev/null 2>&1; then
      echo "$name"
      return 0
    fi
  done
  echo "$1"
}

as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    echo "setup: packages are missing and there is no sudo: run this as root" >&2
    exit 1
  fi
}

if ! command -v dpkg-query >/dev/null; then
  echo "setup: no Debian system; the packages of $0 have to be there" >&2
  exit 0
fi

missing=$(packages | while read -r names; do
  # shellcheck disable=SC2086
  any_installed $names || echo "$names"
done)
[ -n "$missing" ] || exit 0

log=$(mktemp)
trap 'rm -f "$log"' EXIT
echo "setup: installing $(echo "$missing" | tr '\n' ' ')" >&2
if ! as_root apt-get update -qq >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
chosen=$(echo "$missing" | while read -r names; do
  # shellcheck disable=SC2086
  first_known $names
done)
# shellcheck disable=SC2086
if ! as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
  $chosen >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
