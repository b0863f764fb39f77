#!/usr/bin/env bash
# Runs kestrova-calc on a request file. Every non-blank request line must get
# one answer line and the exit code must be 0; when an expected file is given
# the answers must match it line for line.
set -u
calc=$1 requests=$2 expected=${3:-}
answers=$("$calc" < "$requests")
status=$?
if [ "$status" -ne 0 ]; then
  echo "kestrova-calc exited with $status"; exit 1
fi
request_count=$(grep -c '[^[:space:]]' "$requests")
answer_count=$(printf '%s\n' "$answers" | grep -c '')
if [ "$request_count" -ne "$answer_count" ]; then
  echo "$request_count requests but $answer_count answers:"; printf '%s\n' "$answers"; exit 1
fi
if [ -n "$expected" ] && ! diff <(printf '%s\n' "$answers") "$expected"; then
  echo "answers differ from $expected"; exit 1
fi
echo "$answer_count answers"
