# Installs the Debian packages that are missing. Sourced by ./run, ./test and .ci/run.

say() { printf '%s\n' "$*" >&2; }

die() {
  say "$@"
  exit 1
}

# require_packages NAME...
require_packages() {
  command -v dpkg-query >/dev/null 2>&1 ||
    die "This script installs what it needs with apt, which this system does not have." \
        "Please install a C++20 compiler, CMake, Ninja, Qt 6 (Widgets) and GoogleTest," \
        "and build by hand as the README tells."
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null 2>&1 ||
      die "These packages are missing: ${missing[*]}" \
          "Please install them as root, or install sudo: apt-get install ${missing[*]}"
    as_root=(sudo)
  fi
  say "Installing: ${missing[*]}"
  local log
  log=$(mktemp)
  if ! { "${as_root[@]}" apt-get update -qq &&
         "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
           apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    rm -f "$log"
    die "apt could not install: ${missing[*]}" \
        "Its last words stand above. Is the network there, and is the package list current?"
  fi
  rm -f "$log"
}

BUILD_PACKAGES=(g++ cmake ninja-build qt6-base-dev libgl-dev)
DISPLAY_PACKAGES=(xvfb xauth fonts-dejavu-core)
TEST_PACKAGES=(libgtest-dev libgmock-dev locales poppler-utils dbus desktop-file-utils appstream
  man-db shared-mime-info)
PACKAGE_PACKAGES=(dpkg-dev file lintian)
ROOT_PACKAGES=(debootstrap xvfb x11-utils)
LINT_PACKAGES=(clang-format clang-tidy)
