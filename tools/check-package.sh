#!/usr/bin/env bash
# Validates the desktop entry and the AppStream metadata with Debian's own
# validators, builds the .deb with CPack from an existing build folder and
# unpacks it into a scratch root, checking that every installed file is there
# and that the installed qel-check runs.
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR=${BUILD_DIR:-build-test}

desktop-file-validate packaging/org.qel.qelsetup.desktop
appstreamcli validate --no-net --pedantic packaging/org.qel.qelsetup.metainfo.xml >/dev/null

rm -f "$BUILD_DIR"/qelsetup_*.deb
(cd "$BUILD_DIR" && cpack -G DEB >cpack.log 2>&1) || { cat "$BUILD_DIR/cpack.log"; exit 1; }
deb=$(ls "$BUILD_DIR"/qelsetup_*.deb)
depends=$(dpkg-deb -f "$deb" Depends)
for package in libqt6core6 libqt6gui6 libqt6widgets6 libqt6network6 libqt6serialport6 libqt6printsupport6; do
  grep -q "$package" <<<"$depends" || { echo "$deb: no dependency on $package"; exit 1; }
done

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
dpkg -x "$deb" "$root"
files=(usr/bin/qelsetup usr/bin/qel-check
       usr/share/applications/org.qel.qelsetup.desktop
       usr/share/icons/hicolor/scalable/apps/org.qel.qelsetup.svg
       usr/share/metainfo/org.qel.qelsetup.metainfo.xml)
if ninja -C "$BUILD_DIR" -t targets all 2>/dev/null | grep -q '^qel-suit-sim:'; then
  files+=(usr/bin/qel-suit-sim)
fi
for f in "${files[@]}"; do
  [ -f "$root/$f" ] || { echo "$deb: $f is missing"; exit 1; }
done
desktop-file-validate "$root/usr/share/applications/org.qel.qelsetup.desktop"
status=0
"$root/usr/bin/qel-check" "$root/none.qel" 2>/dev/null || status=$?
[ "$status" = 2 ] || { echo "installed qel-check: exit $status for a missing file, expected 2"; exit 1; }
echo "package: $(basename "$deb"), ${#files[@]} files in place"
