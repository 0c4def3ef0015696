#!/bin/sh
# unload.sh: the module unloaded by a stock CIMOM's idle-provider unloader (TTL 1 minute)
# while the platform library stays loaded in the CIMOM; a "ModemStatus" change made on the
# appliance after that must reach no unmapped code, and the next request brings the module
# back to follow later changes. Prints "ok"/"not ok" lines and a count; exits 1 on a failure.
set -u
here=$(cd "$(dirname "$0")" && pwd)
CIMOM_PROV_TTL=1
CIMOM_LOG_LEVEL=DEBUG
CIMOM_EXTRA_PROVIDERS=$OW_PREFIX/lib/openwbem/c++providers/libowprovpollUnloader.so
# Preloaded, the platform library (and its notification thread) outlives the module, as a
# system library used by other parts of the CIMOM would.
CIMOM_PRELOAD=$RAS_PLATFORM_LIBDIR/libQvlShared.so
# shellcheck source=scripts/cimom.sh
. "$here/../../scripts/cimom.sh"
# shellcheck source=tests/integration/checks.sh
. "$here/checks.sh"

SERVICE='Zeph_RASService.SystemCreationClassName="Zeph_System",SystemName="Zeph",CreationClassName="Zeph_RASService",Name="RASService"'
UNLOADED="Unloading Provider Zeph_RASProvider"

unloads() {
  grep -c "$UNLOADED" "$CIMOM_DIR/owcimomd.log"
}

# wait_for SECONDS COMMAND...: polls COMMAND every second until it succeeds.
wait_for() {
  limit=$1
  shift
  while [ "$limit" -gt 0 ]; do
    "$@" && return 0
    sleep 1
    limit=$((limit - 1))
  done
  return 1
}

modem_status() {
  wbem gi "$SERVICE" | tr ',' '\n' | sed -n 's/^modemStatus=//p'
}

gates() {
  grep -h 'IF_ENABLE_CMD$' /qv/etc/ppp/mgetty_v2k /qv/etc/ppp/ppp_add_v2k | tr '\n' ' '
}

module_unloaded() {
  [ "$(unloads)" -ge 1 ]
}

# continued N: the journal holds N processes continued by the module. A shell function, not
# a "sh -c": the appliance's sh journals its own command line, which would be counted too.
continued() {
  [ "$(grep -c '^/usr/bin/killall -s CONT ' "$JOURNAL")" -eq "$1" ]
}

mkdir -p "$CIMOM_DIR"
cimom_start || exit 1
started=$(date +%s)
check "loaded: the service reads ENABLED" "true" "$(modem_status)"

# The unloader polls once a minute and unloads what has been idle for a minute.
wait_for 150 module_unloaded
check "the idle module is unloaded" "1" "$(unloads)"
echo "# unloaded after $(($(date +%s) - started)) s"

: >"$JOURNAL"
appliance-ctl reg set ModemStatus DISABLED
sleep 2
check "a change after the unload runs nothing" "" "$(cat "$JOURNAL")"
check "alive after the change" "yes" "$(cimom_alive && echo yes)"

check "the next request loads the module again" "false" "$(modem_status)"
: >"$JOURNAL"
appliance-ctl reg set ModemStatus ENABLED
wait_for 10 continued 2
check "the reloaded module follows a later change" \
  "#\$IF_ENABLE_CMD #\$IF_ENABLE_CMD " "$(gates)"
check "alive at the end" "yes" "$(cimom_alive && echo yes)"
cimom_stop
checks_report
