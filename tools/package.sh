#!/usr/bin/env bash
# Builds the Debian package of VELDOX and lets lintian look at it. Its name is the last line.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/packages.sh

require_packages "${BUILD_PACKAGES[@]}" "${PACKAGE_PACKAGES[@]}"
mkdir -p build
say "Building (the first time takes some minutes) ..."
cmake --preset release >build/package.log 2>&1 || { cat build/package.log >&2; die "CMake found something missing."; }
cmake --build --preset release >build/package.log 2>&1 || { tail -n 40 build/package.log >&2; die "The build failed."; }
rm -f build/release/*.deb
# Whatever this user's files are for others to read, those of the package are.
(umask 022 && cd build/release && cpack >>../package.log 2>&1) || { tail -n 40 build/package.log >&2; die "The package could not be made."; }
package=$(ls "$PWD"/build/release/*.deb)
say "== lintian"
as_user=()
[ "$(id -u)" -ne 0 ] || as_user=(--allow-root)
lintian "${as_user[@]}" --fail-on error "$package" >&2
printf '%s\n' "$package"
