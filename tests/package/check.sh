#!/usr/bin/env bash
# Packs a release build and looks at the package as a person gets it.
#
# usage: check.sh BUILD VERSION MIME_TYPE
set -euo pipefail
build=$(realpath "$1")
version=$2
mime_type=$(realpath "$3")
here=$(cd "$(dirname "$0")" && pwd)
source=$(cd "$here/../.." && pwd)
folder=$(mktemp -d)
started=
finish() {
  if [ -n "$started" ]; then kill -KILL "$started" 2>/dev/null || true; fi
  rm -rf "$folder"
}
trap finish EXIT
export LC_ALL=C.UTF-8 TZ=UTC
failures=0
fail() {
  echo "FAILED: $*"
  failures=$((failures + 1))
}

# equal WHAT EXPECTED ACTUAL
equal() { [ "$2" = "$3" ] || fail "$1: expected \"$2\", got \"$3\""; }

# try COMMAND ...: one that is installed has to succeed.
try() {
  if command -v "$1" >/dev/null; then
    "$@" >"$folder/words" 2>&1 || fail "$*: $(cat "$folder/words")"
  else
    echo "skipped, not installed: $1"
  fi
}

# ---- packing ----
(cd "$folder" && cpack -G DEB --config "$build/CPackConfig.cmake" -B "$folder/packed") >"$folder/cpack.log" 2>&1 ||
  { cat "$folder/cpack.log" && exit 1; }
deb=$folder/packed/zefirondo_${version}_$(dpkg --print-architecture).deb
[ -f "$deb" ] || { echo "FAILED: no $deb" && exit 1; }
dpkg-deb -x "$deb" "$folder/root"
usr=$folder/root/usr

# ---- what is in it ----
{
  cat "$here/files.txt"
  cd "$source"
  find manual -name '*.html' -o -name '*.css' -o -name '*.png' | sed 's#^#./usr/share/zefirondo/#'
  find examples -type f | sed 's#^#./usr/share/doc/zefirondo/#'
} | sort >"$folder/expected"
(cd "$folder/root" && find . -not -type d | sort) >"$folder/actual"
diff -u "$folder/expected" "$folder/actual" || fail "the list of files"
dpkg-deb -c "$deb" | awk '
  { wanted = /^d/ ? "drwxr-xr-x" : $6 ~ /^.\/usr\/bin\// ? "-rwxr-xr-x" : "-rw-r--r--" }
  $1 != wanted || $2 != "root/root" { print }' >"$folder/modes"
[ ! -s "$folder/modes" ] || fail "modes: $(cat "$folder/modes")"
for language in en it; do
  [ -f "$usr/share/zefirondo/manual/$language/index.html" ] || fail "no manual for $language"
done
for size in 16 22 24 32 48 64 128 256; do
  for picture in "$usr/share/icons/hicolor/${size}x$size"/*/*.png; do
    # Width and height stand at byte 16 of a PNG file, four bytes each, the highest first.
    equal "$picture" "$size $size" \
      "$(od -An -tu1 -j16 -N8 "$picture" | awk '{ print (($1*256+$2)*256+$3)*256+$4, (($5*256+$6)*256+$7)*256+$8 }')"
  done
done
for program in zefirondo zefirondo-run; do
  # A stripped program has no table of symbols, and so no section of that name.
  if grep -qa '\.symtab' "$usr/bin/$program"; then fail "$program is not stripped"; fi
done

# ---- what it says of itself ----
equal "the version" "$version" "$(dpkg-deb -f "$deb" Version)"
equal "the version of the changelog" "zefirondo ($version) unstable; urgency=medium" \
  "$(zcat "$usr/share/doc/zefirondo/changelog.gz" | head -n 1)"
grep -q "<release version=\"$version\"" "$usr/share/metainfo/"*.metainfo.xml || fail "the release of the metainfo"
for page in "$usr"/share/man/man1/*.gz "$usr"/share/man/it/man1/*.gz; do
  zcat "$page" | grep -q "^\.TH .*\"Zefirondo $version\"" || fail "the version of $page"
done
depends=$(dpkg-deb -f "$deb" Depends)
for library in libc6 libstdc++6 libqt6core6 libqt6gui6 libqt6widgets6 libqt6printsupport6; do
  [[ ", $depends" == *", $library "* ]] || fail "$library is not in: $depends"
done
[[ $depends != *test* ]] || fail "depends on what only tests need: $depends"
equal "recommends" "qt6-translations-l10n, fonts-liberation" "$(dpkg-deb -f "$deb" Recommends)"
[ "$(dpkg-deb --ctrl-tarfile "$deb" | tar -t | grep -Ec 'inst$|rm$')" = 0 ] || fail "scripts of the maintainer"

# ---- the programs at work ----
export HOME=$folder/home XDG_RUNTIME_DIR=$folder/runtime XDG_DATA_HOME=$folder/home/share
mkdir -p "$HOME" -m 755
mkdir -p "$XDG_RUNTIME_DIR" -m 700
cd "$HOME"
examples=$usr/share/doc/zefirondo/examples
"$usr/bin/zefirondo-run" --language en --folder "$HOME" "$examples/design.zef" >"$folder/design" ||
  fail "zefirondo-run with design.zef"
equal "the last line of design.zef" ended "$(tail -n 1 "$folder/design")"
equal "the model of the packed project" "txtmodello = \"$(sed -n 's/^Model=\(.*\)\r$/\1/p' "$examples/maestrale-22.pro")\"" \
  "$(printf 'start "%s"\nget txtmodello\n' "$examples/maestrale-22.pro" | "$usr/bin/zefirondo-run" --language en)"

# A screen wide enough for the program, which on a narrower one says so and ends.
cat >"$folder/screen.json" <<'SCREEN'
{"screens": [{"name": "one", "x": 0, "y": 0, "width": 1920, "height": 1080, "logicalDpi": 96, "dpr": 1}]}
SCREEN
# Starts the program for so long as it takes to open a project, and a second more. That it has opened it is seen by
# the last thing that a start does: a program that is not installed ties the project files to itself.
QT_QPA_PLATFORM="offscreen:configfile=$folder/screen.json" "$usr/bin/zefirondo" "$examples/maestrale-22.pro" \
  2>"$folder/errors" &
started=$!
entry=$XDG_DATA_HOME/applications/io.github.zefirondo.Zefirondo.desktop
for _ in $(seq 50); do
  [ -f "$entry" ] && break
  sleep 0.1
done
[ -f "$entry" ] || fail "zefirondo did not come to the end of its start: $(cat "$folder/errors")"
sleep 1
kill -TERM "$started" || fail "zefirondo is no more"
status=0
wait "$started" || status=$?
started=
equal "how zefirondo ended, stopped by SIGTERM" 143 "$status"

# ---- what a desktop takes the files for ----
# A trace as the program writes it.
printf '%s\n' "start \"$examples/ponente-17.pro\"" 'choose frmgrafcassa.mnuspl' 'click frmspl.cmdset1' \
  'file red.trc' 'choose frmspl.mnusalvasplRosso' | "$usr/bin/zefirondo-run" >"$folder/saving" ||
  fail "saving a trace: $(cat "$folder/saving")"
if command -v update-mime-database >/dev/null; then
  update-mime-database "$usr/share/mime" 2>"$folder/words" || fail "update-mime-database: $(cat "$folder/words")"
else
  echo "skipped, not installed: update-mime-database"
fi
project='application/x-zefirondo-project application-x-zefirondo-project'
trace='application/x-zefirondo-trace application-x-zefirondo-trace'
takes() { XDG_DATA_HOME=$folder/none XDG_DATA_DIRS=$usr/share LANGUAGE=$1 LC_ALL=$1.UTF-8 "$mime_type" "$2" 2>/dev/null; }
for file in "$examples"/*.pro; do
  cp "$file" by_content
  equal "a project by its name" "$project \"Loudspeaker box project\"" "$(takes en_US "$file")"
  equal "a project by its content" "$project \"Loudspeaker box project\"" "$(takes en_US by_content)"
done
cp red.trc by_content
equal "a trace by its name" "$trace \"Response of a loudspeaker box\"" "$(takes en_US red.trc)"
equal "a trace by its content" "$trace \"Response of a loudspeaker box\"" "$(takes en_US by_content)"
equal "in Italian" "$trace \"Risposta di una cassa acustica\"" "$(takes it_IT red.trc)"
# What begins like one and is another thing: a list, a maker's name alone.
printf ' 1. wood\r\n 2. glue\r\n' >by_content
[[ $(takes en_US by_content) != *zefirondo* ]] || fail "a list is taken for a trace"
printf 'Manufacturer=somebody\n[other]\n' >by_content
[[ $(takes en_US by_content) != *zefirondo* ]] || fail "a file of others is taken for a project"

# ---- what the judges of packages say ----
try desktop-file-validate "$usr/share/applications/io.github.zefirondo.Zefirondo.desktop"
try appstreamcli validate --no-net "$usr/share/metainfo/io.github.zefirondo.Zefirondo.metainfo.xml"
try xmllint --noout --nonet "$usr/share/mime/packages/zefirondo.xml" "$usr/share/metainfo/"*.xml \
  "$usr/share/icons/hicolor/scalable"/*/*.svg
if [ "$(id -u)" -eq 0 ]; then root=(--allow-root); else root=(); fi
try lintian "${root[@]}" --fail-on error,warning "$deb"

[ "$failures" -eq 0 ]
