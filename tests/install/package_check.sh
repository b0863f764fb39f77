#!/usr/bin/env bash
# The Debian package made by CPack from the build folder: the programs, their
# files, the menu entry, the icon and the *.ksv type, and the dependencies
# that dpkg-shlibdeps found for the Qt libraries, with Qt Sql's SQLite driver.
set -u
build=$1
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }

(cd "$build" && cpack -G DEB -B "$out" >"$out/cpack.log" 2>&1) || { cat "$out/cpack.log"; echo "FAIL: cpack"; exit 1; }
deb=$(ls "$out"/kestrova_*.deb 2>/dev/null | head -1)
[ -n "$deb" ] || { echo "FAIL: no package"; exit 1; }
contents=$(dpkg-deb -c "$deb" | awk '{print $6}')
for f in ./usr/bin/kestrova ./usr/bin/kestrova-calc ./usr/share/kestrova/compounds.sqlite ./usr/share/kestrova/kestrova.qch \
         ./usr/share/kestrova/pipeastm.sqlite ./usr/share/kestrova/pdliquid.rpt ./usr/share/kestrova/examples/liquid-water-6in.ksv \
         ./usr/share/applications/org.kestrova.Kestrova.desktop ./usr/share/icons/hicolor/scalable/apps/kestrova.svg \
         ./usr/share/mime/packages/kestrova.xml; do
  printf '%s\n' "$contents" | grep -qx "$f" || fail "$f not in the package"
done
depends=$(dpkg-deb -f "$deb" Depends)
for d in libqt6widgets6 libqt6help6 libqt6sql6-sqlite libstdc++6; do
  case "$depends" in *"$d"*) ;; *) fail "no dependency on $d: $depends" ;; esac
done
[ "$failures" -eq 0 ] && echo "package $(basename "$deb") holds what it should"
exit "$failures"
