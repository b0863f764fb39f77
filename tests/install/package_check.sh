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
         ./usr/share/icons/hicolor/16x16/apps/kestrova.png ./usr/share/icons/hicolor/48x48/apps/kestrova.png \
         ./usr/share/icons/hicolor/256x256/apps/kestrova.png ./usr/share/mime/packages/kestrova.xml; do
  printf '%s\n' "$contents" | grep -qx "$f" || fail "$f not in the package"
done
# Each picture of the icon is a PNG of its folder's size.
pictures=$(mktemp -d)
dpkg-deb -x "$deb" "$pictures"
for size in 16 22 24 32 48 64 128 256; do
  picture="$pictures/usr/share/icons/hicolor/${size}x${size}/apps/kestrova.png"
  # The PNG signature, then the width and height in the header chunk, each four bytes big-endian.
  signature=$(od -An -tx1 -N8 "$picture" 2>/dev/null | tr -d ' \n')
  read -r w h < <(od -An -tu1 -j16 -N8 "$picture" 2>/dev/null |
                  awk '{print $1*16777216+$2*65536+$3*256+$4, $5*16777216+$6*65536+$7*256+$8}')
  [ "$signature" = 89504e470d0a1a0a ] && [ "${w:-0}" = "$size" ] && [ "${h:-0}" = "$size" ] ||
    fail "no ${size}x${size} PNG icon (${signature:-none} ${w:-?}x${h:-?})"
done
rm -rf "$pictures"
depends=$(dpkg-deb -f "$deb" Depends)
for d in libqt6widgets6 libqt6help6 libqt6sql6-sqlite libstdc++6; do
  case "$depends" in *"$d"*) ;; *) fail "no dependency on $d: $depends" ;; esac
done
[ "$failures" -eq 0 ] && echo "package $(basename "$deb") holds what it should"
exit "$failures"
