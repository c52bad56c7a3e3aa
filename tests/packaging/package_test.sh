#!/usr/bin/env bash
# Installs the build into a folder and lets the desktop's own tools look at what is there.
#   package_test.sh SOURCE_FOLDER BUILD_FOLDER CMAKE
set -uo pipefail
export LC_ALL=C.UTF-8
source_folder=$1
build_folder=$2
cmake=$3
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
failed=0
fail() {
  printf 'FAILED: %s\n' "$*"
  failed=1
}

"$cmake" --install "$build_folder" --prefix "$root/usr" >"$root/log" 2>&1 ||
  { cat "$root/log"; fail "the program cannot be installed"; exit 1; }

# What comes and goes with the screens is compared as folders.
(cd "$root" && find usr -type f | grep -v -E '^usr/share/veldox/(handbook/handbook|samples)/' |
  sort) >"$root/list"
diff -r "$source_folder/samples" "$root/usr/share/veldox/samples" || fail "the samples"
diff -r "$source_folder/docs/handbook" "$root/usr/share/veldox/handbook/handbook" ||
  fail "the pictures of the handbook"
diff "$source_folder/tests/packaging/files.txt" "$root/list" ||
  fail "other files are installed than files.txt lists"

desktop=$root/usr/share/applications/veldox.desktop
desktop-file-validate "$desktop" || fail "the desktop entry"
program=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$desktop")
[ -x "$root/usr/bin/$program" ] || fail "the desktop entry starts $program, which is not there"
grep -q "^Icon=veldox$" "$desktop" || fail "the desktop entry's icon"

appstreamcli validate --no-net "$root/usr/share/metainfo/org.veldox.veldox.metainfo.xml" ||
  fail "the metainfo"

for page in veldox veldox-script; do
  warnings=$(MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z \
    "$root/usr/share/man/man1/$page.1.gz" 2>&1 >/dev/null)
  [ -z "$warnings" ] || fail "the manual page of $page: $warnings"
  [ -x "$root/usr/bin/$page" ] || fail "$page is not installed"
done
# A page tells every option that the program's own usage line tells.
page=$(man -l "$root/usr/share/man/man1/veldox-script.1.gz" 2>/dev/null | sed 's/.\x08//g')
for option in $("$root/usr/bin/veldox-script" --help 2>&1 | grep -o -- '--[a-z-]*' | sort -u); do
  [ "$option" = --help ] && continue
  grep -q -- "$option" <<<"$page" || fail "the manual page of veldox-script lacks $option"
done

update-mime-database "$root/usr/share/mime" 2>"$root/log" || { cat "$root/log"; fail "the file type"; }
grep -q 'application/x-veldox-parameters:\*.prm' "$root/usr/share/mime/globs2" ||
  fail "files *.prm have not the type"
for size in 16 24 32 48 64 128 256; do
  for icon in apps/veldox mimetypes/application-x-veldox-parameters; do
    file=$root/usr/share/icons/hicolor/${size}x$size/$icon.png
    # Bytes 16 to 23 of a PNG are its width and height.
    shown=$(od -A n -t u1 -j 16 -N 8 "$file" | awk '{print $3 * 256 + $4, $7 * 256 + $8}')
    [ "$shown" = "$size $size" ] || fail "$icon.png of size $size is $shown"
  done
done

# What is no argument is told, and ends the program with 2; nothing of the desktop is needed.
for arguments in "--help" "no-such.prm" "/" "a b"; do
  # shellcheck disable=SC2086
  "$root/usr/bin/veldox" $arguments >"$root/out" 2>"$root/err"
  status=$?
  [ "$status" -eq 2 ] || fail "veldox $arguments ended with $status"
  grep -q '^veldox: ' "$root/err" || fail "veldox $arguments told nothing"
  [ -s "$root/out" ] && fail "veldox $arguments wrote to standard output"
done

printf 'menu CubicInch\nclick Form1.Command1\nget Form1.Text6\n' >"$root/a.vs"
for windows in "" --windows; do
  # shellcheck disable=SC2086
  answer=$(QT_QPA_PLATFORM=offscreen "$root/usr/bin/veldox-script" $windows "$root/a.vs")
  [ "$answer" = "Form1.Text6 = 326.7256" ] || fail "veldox-script $windows answered: $answer"
done
exit $failed
