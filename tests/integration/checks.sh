#!/bin/sh
# checks.sh: the "ok"/"not ok" lines of the integration scripts and their closing count.
# Sourced by cases.sh and unload.sh.

passed=0
failed=0
JOURNAL=/var/lib/appliance/journal

# check WHAT EXPECTED ACTUAL
check() {
  if [ "$2" = "$3" ]; then
    passed=$((passed + 1))
    echo "ok - $1"
  else
    failed=$((failed + 1))
    printf 'not ok - %s\n  expected: %s\n  actual:   %s\n' "$1" "$2" "$3"
  fi
}

# Prints the count; fails when any check failed.
checks_report() {
  echo "integration: $passed passed, $failed failed"
  [ "$failed" -eq 0 ]
}
