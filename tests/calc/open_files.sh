#!/usr/bin/env bash
# kestrova-calc --open on the example files and on files that must be refused,
# and the example files written again by the program, byte for byte.
set -u
calc=$1 make_examples=$2 examples=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
fail() { echo "FAIL: $*"; failures=$((failures + 1)); }

"$make_examples" "$work" > /dev/null || fail "the examples could not be written"
for f in "$examples"/*.ksv; do
  cmp -s "$f" "$work/$(basename "$f")" || fail "$(basename "$f") differs from the program's own save"
  out=$("$calc" --open "$f"); status=$?
  [ "$status" -eq 0 ] || fail "--open $(basename "$f") exited $status"
  case "$(basename "$f"):$out" in
    orifice-*'"ok": true, "kind": 1'*'"txtErrorLiquid": ""'*) ;;
    orifice-*) fail "--open $(basename "$f"): $out" ;;
    pump-network-*'"ok": true, "kind": 3'*'"PumpHead": 115.0'*'"txtData(27)": "115.03"'*'"grid"'*) ;;
    pump-network-*) fail "--open $(basename "$f"): $out" ;;
    *'"ok": true, "kind": 2'*'"failed": false'*) ;;
    *) fail "--open $(basename "$f"): $out" ;;
  esac
done

refused() { # file, expected message
  out=$("$calc" --open "$1"); status=$?
  [ "$status" -eq 1 ] || fail "--open $1 exited $status"
  case "$out" in *"\"ok\": false"*"$2"*) ;; *) fail "--open $1: $out" ;; esac
}
refused "$work/missing.ksv" "File does not exist."
: > "$work/empty.ksv"; refused "$work/empty.ksv" "This is not a Kestrova data file."
printf '\004\000' > "$work/four.ksv"; refused "$work/four.ksv" "This is not a Kestrova data file."
printf '\001\000rest' > "$work/orifice.ksv"; refused "$work/orifice.ksv" "This Orifice Plates data file is damaged or incomplete"
printf '\003\000rest' > "$work/network.ksv"; refused "$work/network.ksv" "This Pump System data file is damaged or incomplete"
head -c 300 "$examples/liquid-water-6in.ksv" > "$work/short.ksv"; refused "$work/short.ksv" "damaged or incomplete"
refused "$work" "File does not exist."

# Several files: one answer per file in order, each naming its file; a damaged
# file among good ones fails the exit status only after every file is answered.
out=$("$calc" --open "$examples/liquid-water-6in.ksv" "$work/short.ksv" "$examples/orifice-water-4in.ksv"); status=$?
[ "$status" -eq 1 ] || fail "--open of three files with one damaged exited $status"
[ "$(printf '%s\n' "$out" | wc -l)" -eq 3 ] || fail "--open of three files: $(printf '%s\n' "$out" | wc -l) answers"
first=$(printf '%s\n' "$out" | sed -n 1p) second=$(printf '%s\n' "$out" | sed -n 2p) third=$(printf '%s\n' "$out" | sed -n 3p)
case "$first" in '{"file": "'*'liquid-water-6in.ksv", "ok": true, "kind": 2'*'"txtData(10)": "6.59"'*) ;; *) fail "first of three: $first" ;; esac
case "$second" in '{"file": "'*'short.ksv", "ok": false, "error": '*'damaged or incomplete'*) ;; *) fail "second of three: $second" ;; esac
case "$third" in '{"file": "'*'orifice-water-4in.ksv", "ok": true, "kind": 1'*) ;; *) fail "third of three: $third" ;; esac
out=$("$calc" --open "$examples/liquid-water-6in.ksv" "$examples/gas-steam-4in.ksv"); status=$?
[ "$status" -eq 0 ] || fail "--open of two good files exited $status"

[ "$failures" -eq 0 ] && echo "all files answered as expected"
exit "$failures"
