#!/usr/bin/env bash
# An install to a prefix of its own: the programs in bin/, their files in
# share/kestrova/, nothing else needed from the build folder. The installed
# companion recalculates an installed example, and the installed program
# starts (offscreen, its disclaimer already agreed) with that example on its
# command line and stays up.
set -u
build=$1
prefix=$(mktemp -d) home=$(mktemp -d)
trap 'rm -rf "$prefix" "$home"' EXIT
failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }

cmake --install "$build" --prefix "$prefix" >/dev/null || { echo "FAIL: cmake --install"; exit 1; }
share=$prefix/share/kestrova
for f in bin/kestrova bin/kestrova-calc; do [ -x "$prefix/$f" ] || fail "$f missing"; done
for f in pipeastm.sqlite pipedin.sqlite compounds.sqlite ASTMM.dat DINT.dat disclaimer.txt kestrova.qch \
         pdliquid.rpt pumpnetwork.rpt examples/liquid-water-6in.ksv; do
  [ -f "$share/$f" ] || fail "share/kestrova/$f missing"
done

out=$("$prefix/bin/kestrova-calc" --open "$share/examples/liquid-water-6in.ksv")
case "$out" in *'"ok": true, "kind": 2'*'"txtData(10)": "6.59"'*) ;; *) fail "installed kestrova-calc: $out" ;; esac

touch "$home/installed"
mkdir -p "$home/.config/Kestrova"
printf '[Settings]\nDisclaimer%%20Show=False\n' > "$home/.config/Kestrova/Kestrova.ini"
HOME=$home TMPDIR=$home XDG_CONFIG_HOME=$home/.config QT_QPA_PLATFORM=offscreen \
  "$prefix/bin/kestrova" "$share/examples/liquid-water-6in.ksv" >"$home/run.log" 2>&1 &
pid=$!
sleep 8
if kill -0 "$pid" 2>/dev/null; then kill "$pid"; wait "$pid" 2>/dev/null; else fail "the installed program ended: $(cat "$home/run.log")"; fi
if find "$prefix" -newer "$home/installed" | grep -q .; then fail "the program wrote into the install folder"; fi

[ "$failures" -eq 0 ] && echo "installed and started"
exit "$failures"
