#!/bin/sh
# package.sh: the .deb alone, inside the simulated appliance. Unpacks the package into a fresh
# directory, registers the schema with the package's own zeph-ras-register into a new
# repository, starts a private owcimomd whose provider directory is the package's, and asks
# it, with wbemcli, for every class of the package's schema; then registers again through the
# running CIMOM's URL, which must change nothing, and into a new namespace through the URL.
# Needs RAS_DEB (the package), OW_PREFIX and RAS_PLATFORM_LIBDIR (the appliance's platform
# libraries) as cimom.sh does; prints "ok"/"not ok" lines and a count.
set -u
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=scripts/cimom.sh
. "$here/../../scripts/cimom.sh"
# shellcheck source=tests/integration/checks.sh
. "$here/checks.sh"

root=$(mktemp -d /tmp/package.XXXXXX)
dpkg-deb -x "$RAS_DEB" "$root" || { echo "not ok - dpkg-deb -x $RAS_DEB"; exit 1; }
register=$root/usr/bin/zeph-ras-register
schema=$root/usr/share/zeph-ras/mof/Zeph_RAS.mof
CIMOM_PROVIDER_DIR=$root$OW_PREFIX/lib/openwbem/c++providers
# shellcheck disable=SC2034 # read by cimom.sh
RAS_MODULE=/nonexistent   # nothing from the build tree
# shellcheck disable=SC2034
CIMOM_AUTH=none

check "the provider directory holds the module alone" "libZeph_RASProvider.so" \
  "$(ls "$CIMOM_PROVIDER_DIR")"

# The schema from the package's command, then the appliance's accounts (the data another
# provider serves on the appliance).
cimom_load_schema() {
  "$register" --openwbem "$OW_PREFIX" --repository "$CIMOM_DIR/repository" \
    >"$CIMOM_DIR/register.log" 2>&1 || { cat "$CIMOM_DIR/register.log"; return 1; }
  cimom_account_instances >"$CIMOM_DIR/accounts.mof"
  cimom_env "$OW_PREFIX/bin/owmofc" -n "$CIMOM_NS" -d "$CIMOM_DIR/repository" \
    "$CIMOM_DIR/accounts.mof" >"$CIMOM_DIR/owmofc.log" 2>&1 || return 1
  # A namespace for registering through the URL that declares two of the qualifier types.
  cat >"$CIMOM_DIR/partial.mof" <<'MOF'
Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride, ToSubclass);
Qualifier Description : string = null, Scope(any), Flavor(EnableOverride, ToSubclass, Translatable);
MOF
  cimom_env "$OW_PREFIX/bin/owmofc" -c -n root/zephtest -d "$CIMOM_DIR/repository" \
    "$CIMOM_DIR/partial.mof" >>"$CIMOM_DIR/owmofc.log" 2>&1
}

rm -rf "$CIMOM_DIR"
mkdir -p "$CIMOM_DIR"
if ! cimom_start; then
  echo "not ok - the CIMOM starts with the package's module and schema"
  tail -20 "$CIMOM_DIR/owcimomd.log" 2>/dev/null
  exit 1
fi
trap cimom_stop EXIT
check "registered into the repository" "zeph-ras-register: done" \
  "$(tail -1 "$CIMOM_DIR/register.log")"

# Every class of the package's schema: its instance names, and each instance by gi.
classes=$(sed -n 's/^class \(Zeph_[A-Za-z0-9_]*\).*/\1/p' "$schema")
check "the schema names ten classes" 10 "$(echo "$classes" | wc -l)"
instances=0
for class in $classes; do
  names=$(wbem ein "$class" 2>&1)
  status=$?
  check "ein $class" 0 "$status"
  [ "$status" -eq 0 ] || { echo "$names"; continue; }
  for name in $names; do
    path=${name#*/"$CIMOM_NS":}
    wbem gi "$path" >/dev/null 2>"$CIMOM_DIR/gi.err"
    check "gi $path" "0" "$?$(cat "$CIMOM_DIR/gi.err")"
    instances=$((instances + 1))
  done
done
check "instances served (at least the fixed ones)" true "$([ "$instances" -ge 14 ] && echo true)"

# Registering again through the running CIMOM: it finds everything there.
url=$(cimom_url)
out=$("$register" --openwbem "$OW_PREFIX" --url "$url" 2>&1)
check "second registration through the URL" \
  "zeph-ras-register: root/cimv2 of $url already holds the schema; nothing changed" "$out"

# A namespace with two of the qualifier types: the rest is imported through the URL, once.
other=http://127.0.0.1:$CIMOM_PORT/root/zephtest
"$register" --openwbem "$OW_PREFIX" --url "$other" >"$CIMOM_DIR/other.log" 2>&1
check "registration into another namespace" "0 zeph-ras-register: done" \
  "$? $(tail -1 "$CIMOM_DIR/other.log")"
check "only the qualifier types it lacks" \
  "  qualifier types: Association Provider Write MinValue MaxValue MaxLen Units ValueMap Values ImpactWarning Applicable" \
  "$(grep '^  qualifier types:' "$CIMOM_DIR/other.log")"
check "its classes" "$(echo "$classes" | wc -l)" \
  "$(wbemcli ecn -noverify "$other" 2>/dev/null | grep -c ':Zeph_[A-Za-z]*$' | tr -d ' ' |
     awk '{print $1 - 1}')"
out=$("$register" --openwbem "$OW_PREFIX" --url "$other" 2>&1)
check "and once only" \
  "zeph-ras-register: root/zephtest of $other already holds the schema; nothing changed" "$out"

# A CIMOM that is not there, a namespace that is not there: the command says what failed.
out=$("$register" --openwbem "$OW_PREFIX" --url http://127.0.0.1:1/root/cimv2 2>&1)
check "an unreachable CIMOM is named" "1 cannot enumerate" \
  "$? $(echo "$out" | sed -n 's/^zeph-ras-register: \(cannot enumerate\).*/\1/p')"

out=$("$register" --openwbem "$OW_PREFIX" --url "http://127.0.0.1:$CIMOM_PORT/root/nothere" 2>&1)
check "a missing namespace is named" "1 the namespace root/nothere does not exist" \
  "$? $(echo "$out" | sed -n 's/^zeph-ras-register: \(the namespace [^ ]* does not exist\).*/\1/p')"

checks_report
