#!/bin/sh
# serve.sh: scripts/serve from the host, as a user runs it. Started in the background, it
# prints a URL that wbemcli on the host reaches; SIGTERM stops it, and every process it
# started (the launcher, bwrap, owcimomd) is gone afterwards; a change made through it stays
# in its --state directory, and a second run with --for serves it and ends by itself; then
# scripts/demo, the tour through it.
# Prints "ok"/"not ok" lines and a count; exits 1 on a failure. Needs OPENWBEM_PREFIX and
# RAS_BUILD_DIR (a build against it).
set -u
here=$(cd "$(dirname "$0")" && pwd)
project=$(cd "$here/../.." && pwd)
# shellcheck source=tests/integration/checks.sh
. "$here/checks.sh"

work=$(mktemp -d "${TMPDIR:-/tmp}/serve-test.XXXXXX")
serve_pid=
cleanup() {
  [ -z "$serve_pid" ] || kill "$serve_pid" 2>/dev/null
  rm -rf "$work"
}
trap cleanup EXIT

CALLIN='Zeph_CallInSettingData.InstanceID="Velmar:Zeph_CallInSettingData"'

# start_serve LOG ARGS...: scripts/serve in the background; waits (up to 60 s) for its URL.
start_serve() {
  log=$1
  shift
  "$project/scripts/serve" --no-build "$@" >"$log" 2>&1 &
  serve_pid=$!
  tries=0
  until grep -q '^URL: ' "$log"; do
    tries=$((tries + 1))
    if [ "$tries" -gt 600 ] || ! kill -0 "$serve_pid" 2>/dev/null; then
      echo "serve printed no URL:" >&2
      cat "$log" >&2
      return 1
    fi
    sleep 0.1
  done
  URL=$(sed -n 's/^URL: //p' "$log")
}

# The pids and names of every process below PID (host view: the sandbox's processes too).
descendants() {
  ps -e -o pid=,ppid=,comm= | awk -v root="$1" '
    { parent[$1] = $2; name[$1] = $3 }
    END {
      for (pid in parent) {
        for (p = parent[pid]; p != "" && p > 1; p = parent[p]) {
          if (p == root) { print pid, name[pid]; break }
        }
      }
    }'
}

# Those of the given "PID NAME" lines that still run (a zombie has ended).
still_running() {
  while read -r pid name; do
    state=$(sed -n 's/^State:[[:space:]]*\([A-Z]\).*/\1/p' "/proc/$pid/status" 2>/dev/null)
    [ -z "$state" ] || [ "$state" = Z ] || echo "$pid $name"
  done
}

wbem_count() {
  wbemcli ein "$URL:$1" 2>&1 | grep -c "/root/cimv2:$1\."
}

# First run: the URL from the host, two classes listed, a change, then SIGTERM.
started=$(date +%s)
if start_serve "$work/first.log" --state "$work/state"; then
  check "URL printed within a minute" "yes" "$([ $(($(date +%s) - started)) -le 60 ] && echo yes)"
  check "URL" "http://127.0.0.1:" "$(echo "$URL" | cut -c1-17)"
  check "ein soft modems" "2" "$(wbem_count Zeph_SoftModem)"
  check "ein accounts" "3" "$(wbem_count Zeph_Account)"
  wbemcli mi "$URL:$CALLIN" RingsBeforeAnswer=9 >/dev/null 2>&1
  started_procs=$(descendants "$serve_pid")
  check "owcimomd and bwrap started" "owcimomd bwrap" \
    "$(echo "$started_procs" | awk '$2 == "owcimomd" { o = 1 } $2 == "bwrap" { b = 1 }
      END { print (o ? "owcimomd" : "none"), (b ? "bwrap" : "none") }')"
  kill -TERM "$serve_pid"
  wait "$serve_pid"
  check "exit status after SIGTERM" "143" "$?"
  serve_pid=
  check "nothing left after SIGTERM" "" "$(echo "$started_procs" | still_running)"
  check "change kept in the state" 'declare -r NUMBER_OF_RINGS="9"' \
    "$(grep '^declare -r NUMBER_OF_RINGS=' "$work/state/rootfs/qv/etc/ppp/mgetty_v2k")"
else
  check "first run printed its URL" "yes" "no"
fi

# Second run on the kept state, for a few seconds: it serves the changed value and ends itself.
if start_serve "$work/second.log" --state "$work/state" --for 4; then
  check "state served" "RingsBeforeAnswer=9" \
    "$(wbemcli gi "$URL:$CALLIN" 2>&1 | tr ',' '\n' | grep RingsBeforeAnswer)"
  started_procs=$(descendants "$serve_pid")
  wait "$serve_pid"
  check "exit status after --for" "0" "$?"
  serve_pid=
  check "nothing left after --for" "" "$(echo "$started_procs" | still_running)"
else
  check "second run printed its URL" "yes" "no"
fi

# The tour through serve: every class listed and read, the change made, its command lines.
demo=$("$project/scripts/demo" --no-build 2>&1)
check "demo exit status" "0" "$?"
check "demo reads every class" "10" "$(echo "$demo" | grep -c '^=== wbemcli ein, then gi of each: ')"
check "demo change" '8:declare -r NUMBER_OF_RINGS="7"' \
  "$(echo "$demo" | sed -n '/^=== after the change/{n;p;}')"
check "demo journal" \
  "$(printf '%s\n' "/bin/sed -i '/^declare -r NUMBER_OF_RINGS/ c declare -r NUMBER_OF_RINGS=\"7\"' /qv/etc/ppp/mgetty_v2k" 'killall -9 mgetty' 'init q')" \
  "$(echo "$demo" | sed '1,/^=== journal/d')"

checks_report
