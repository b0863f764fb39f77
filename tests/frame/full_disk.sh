#!/usr/bin/env bash
# A save onto a disk that is really full: a tmpfs of its own, mounted in a
# user and mount namespace of this test alone and filled until no byte is
# left, then the project file test that saves onto it. Skipped (77) where the
# machine gives no such namespace.
set -euo pipefail
tests="$1"
if ! unshare -rm true 2>/dev/null; then
  echo "no user and mount namespace on this machine: skipped"
  exit 77
fi
exec unshare -rm bash -c '
  set -euo pipefail
  disk=$(mktemp -d)
  mount -t tmpfs -o size=256k tmpfs "$disk"
  printf "\x02\x00the case as it was" > "$disk/case.ksv"
  mkdir "$disk/fill"
  dd if=/dev/zero of="$disk/fill/filler" bs=4k 2>/dev/null || true
  KESTROVA_FULL_DISK="$disk" "$1" --gtest_filter=ProjectFile.ASaveOntoARealFullDiskFailsAndKeepsTheOldFileWhole
' full_disk "$tests"
