#!/bin/sh
# appliance/run from outside: a kept state directory, the journal, the appliance's own
# processes, and a temporary state that disappears afterwards.
set -eu
project=$(cd "$(dirname "$0")/../.." && pwd -P)
run=$project/appliance/run
work=$(mktemp -d)
# From /, so that the launcher binds no working directory into the state it compares.
cd /
host_pid=""
cleanup() {
  [ -z "$host_pid" ] || kill "$host_pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT
fail() {
  echo "FAIL: $*" >&2
  exit 1
}

# A host process named like the appliance's dial-in daemon.
mkdir "$work/host"
cp /bin/sleep "$work/host/mgetty"
"$work/host/mgetty" 300 &
host_pid=$!

command="/bin/sed -i 's/^mtu .*/mtu 1400/' /qv/etc/ppp/options_dialout; killall -9 mgetty; init q"
"$run" --state "$work/state" -- sh -c "$command" || fail "the command failed"

changes=$(diff -rq "$project/appliance/rootfs" "$work/state/rootfs" || true)
[ "$changes" = "Files $project/appliance/rootfs/qv/etc/ppp/options_dialout and $work/state/rootfs/qv/etc/ppp/options_dialout differ" ] ||
  fail "unexpected changes: $changes"
grep -qx 'mtu 1400' "$work/state/rootfs/qv/etc/ppp/options_dialout" || fail "mtu not edited"
[ "$(cat "$work/state/journal")" = "$command" ] || fail "journal: $(cat "$work/state/journal")"
kill -0 "$host_pid" 2>/dev/null || fail "the host's mgetty was killed"

# The kept state is reused: the second run sees the first one's edit and journal.
"$run" --state "$work/state" -- grep -qx 'mtu 1400' /qv/etc/ppp/options_dialout ||
  fail "the state was not kept"
[ "$("$run" --state "$work/state" -- appliance-ctl journal)" = "$command" ] ||
  fail "journal not visible inside"

# Without --state the appliance is fresh and leaves nothing behind.
mkdir "$work/tmp"
TMPDIR=$work/tmp "$run" -- grep -qx 'mtu 1500' /qv/etc/ppp/options_dialout ||
  fail "a fresh appliance is not pristine"
[ -z "$(ls -A "$work/tmp")" ] || fail "temporary state left behind"
[ "$("$run" -- hostname)" = appliance ] || fail "not in its own UTS namespace"
"$run" -- appliance-ctl show | grep -q '^journal: 0 command lines$' || fail "show"
# A host directory bound inside one of the state's trees (as a checkout under /var/tmp is)
# is visible, and its mount point does not stay in the state.
outside=$(mktemp -d /var/tmp/launcher.XXXXXX)
echo seen >"$outside/file"
"$run" --state "$work/state" --host-ro "$outside" -- grep -qx seen "$outside/file" ||
  { rm -rf "$outside"; fail "a host directory under /var is not visible"; }
rm -rf "$outside"
[ ! -e "$work/state/rootfs/var/tmp" ] || fail "mount point left in the state"
# Its own network unless --share-net (for a server inside that host clients reach).
host_net=$(readlink /proc/self/ns/net)
[ "$("$run" -- readlink /proc/self/ns/net)" != "$host_net" ] || fail "the host's network is shared"
[ "$("$run" --share-net -- readlink /proc/self/ns/net)" = "$host_net" ] ||
  fail "--share-net did not share the host's network"
status=0
"$run" -- sh -c 'exit 7' || status=$?
[ "$status" = 7 ] || fail "exit status not passed on: $status"
echo "launcher: 1 passed, 0 failed"
