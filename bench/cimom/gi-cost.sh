#!/bin/sh
# gi-cost.sh: where the time of a management request goes. For one instance of each class,
# REQUESTS requests of "wbemcli gi" against a private OpenWBEM CIMOM with the module
# loaded (scripts/cimom.sh), inside the simulated appliance; per request: the wall
# time, the CPU of wbemcli, of the CIMOM process (the module's work included) and of the
# commands it spawned, and the module's own CPU for the same get through its dispatcher
# (module_bench, same build) with its share of the wall time.
#
# Needs what cimom.sh needs (OW_PREFIX, RAS_MODULE, RAS_MOF_DIR, RAS_PLATFORM_LIBDIR) and
# MODULE_BENCH, the module_bench of the same build. Run by scripts/bench.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=scripts/cimom.sh
. "$here/../../scripts/cimom.sh"
REQUESTS=${REQUESTS:-20}

SYSTEM='SystemCreationClassName="Zeph_System",SystemName="Zeph"'
INSTANCES="Zeph_CallInSettingData.InstanceID=\"Velmar:Zeph_CallInSettingData\"
Zeph_DialOutSettingData.InstanceID=\"Velmar:Zeph_DialOutSettingData\"
Zeph_RASService.$SYSTEM,CreationClassName=\"Zeph_RASService\",Name=\"RASService\"
Zeph_PPPProtocolEndpoint.$SYSTEM,CreationClassName=\"Zeph_PPPProtocolEndpoint\",Name=\"DialOutEndpoint\"
Zeph_SoftModem.$SYSTEM,CreationClassName=\"Zeph_SoftModem\",DeviceID=\"SoftModemIn\"
Zeph_SerialPort.$SYSTEM,CreationClassName=\"Zeph_SerialPort\",DeviceId=\"DialOutSerialPort\""

# The module's CPU per get, in microseconds, by class: module_bench's gi rows as CSV.
module_cpu=$("$MODULE_BENCH" --benchmark_filter='/gi ' --benchmark_format=csv 2>/dev/null |
  awk -F, '/^name,/ { for (i = 1; i <= NF; i++) if ($i ~ /module_us/) col = i; next }
           col { name = $1; gsub(/"/, "", name); sub(/\/.*/, "", name); print name, $col }')

# Clock ticks of a process: "own children" (utime+stime, cutime+cstime).
ticks() {
  awk '{ print $14 + $15, $16 + $17 }' "/proc/$1/stat"
}
now_us() {
  echo $(($(date +%s%N) / 1000))
}

mkdir -p "$CIMOM_DIR"
cimom_start
trap cimom_stop EXIT
hz=$(getconf CLK_TCK)
per_request_ms() { # TICKS
  awk -v t="$1" -v hz="$hz" -v n="$REQUESTS" 'BEGIN { printf "%.1f", t * 1000 / hz / n }'
}

printf '%-26s %9s %9s %9s %9s %9s %8s\n' "class (gi, $REQUESTS requests)" "wall ms" "wbemcli" \
  "CIMOM" "commands" "module" "module%"
# Read from a here-document, so that the loop and its wbemcli children belong to this shell.
while read -r instance; do
  class=${instance%%.*}
  wbem gi "$instance" >/dev/null
  set -- $(ticks $$) $(ticks "$CIMOM_PID")
  client0=$2 cimom0=$3 commands0=$4
  start=$(now_us)
  i=0
  while [ "$i" -lt "$REQUESTS" ]; do
    wbem gi "$instance" >/dev/null
    i=$((i + 1))
  done
  wall_us=$((($(now_us) - start) / REQUESTS))
  set -- $(ticks $$) $(ticks "$CIMOM_PID")
  module_us=$(echo "$module_cpu" | awk -v c="$class" '$1 == c { print $2 }')
  awk -v c="$class" -v w="$wall_us" -v cl="$(per_request_ms $(($2 - client0)))" \
    -v co="$(per_request_ms $(($3 - cimom0)))" -v cm="$(per_request_ms $(($4 - commands0)))" \
    -v m="${module_us:-0}" 'BEGIN { printf "%-26s %9.1f %9s %9s %9s %9.3f %7.2f%%\n",
      c, w / 1000, cl, co, cm, m / 1000, 100 * m / w }'
done <<LIST
$INSTANCES
LIST
echo "CPU columns in ms per request (clock ticks of 1/$hz s summed over the requests);"
echo "module: the module's own CPU for the same get through its dispatcher (module_bench)."
