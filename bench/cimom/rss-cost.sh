#!/bin/sh
# rss-cost.sh: the resident memory a private OpenWBEM CIMOM (scripts/cimom.sh)
# gains by serving the module. Two runs inside the simulated appliance, same schema and
# accounts in the repository: one with an empty provider directory, one with the module;
# each answers "wbemcli ein" and a "gi" of the first instance of every class of
# mof/Zeph_RAS.mof, then the CIMOM's VmRSS (and its largest, VmHWM) is read from
# /proc/PID/status. Prints kB for both runs and the difference.
#
# Needs what cimom.sh needs (OW_PREFIX, RAS_MODULE, RAS_MOF_DIR, RAS_PLATFORM_LIBDIR).
set -eu
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=scripts/cimom.sh
. "$here/../../scripts/cimom.sh"
# shellcheck disable=SC2034 # read by cimom.sh
CIMOM_AUTH=none

classes=$(sed -n 's/^class \(Zeph_[A-Za-z0-9_]*\).*/\1/p' "$RAS_MOF_DIR/Zeph_RAS.mof")

# One request of each kind per class, then the CIMOM's resident set: "RSS HWM MODULE" in kB,
# MODULE being the resident pages of the module's own mappings (/proc/PID/smaps).
serve_and_measure() {
  rm -rf "$CIMOM_DIR"
  mkdir -p "$CIMOM_DIR"
  cimom_start >/dev/null
  for class in $classes; do
    first=$(wbem ein "$class" 2>/dev/null | head -1)
    [ -z "$first" ] || wbem gi "${first#*/"$CIMOM_NS":}" >/dev/null 2>&1 || true
  done
  module_kb=$(awk '/^[0-9a-f]+-[0-9a-f]+ / { mine = ($6 ~ /libZeph_RASProvider/) }
                   mine && /^Rss:/ { kb += $2 } END { print kb + 0 }' "/proc/$CIMOM_PID/smaps")
  awk -v module="$module_kb" '/^VmRSS:/ { rss = $2 } /^VmHWM:/ { hwm = $2 }
    END { print rss, hwm, module }' "/proc/$CIMOM_PID/status"
  cimom_stop
}

empty=$(mktemp -d /tmp/providers.XXXXXX)
without=$(CIMOM_PROVIDER_DIR=$empty serve_and_measure)
with=$(serve_and_measure)
echo "$without" "$with" | awk -v module="$RAS_MODULE" '{
  printf "module: %s\n", module
  printf "owcimomd VmRSS without the module: %d kB (peak %d kB)\n", $1, $2
  printf "owcimomd VmRSS with the module:    %d kB (peak %d kB)\n", $4, $5
  printf "gain: %d kB resident (peak %d kB), of which the module'"'"'s own mappings %d kB\n", $4 - $1, $5 - $2, $6
}'
