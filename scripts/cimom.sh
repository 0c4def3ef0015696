# cimom.sh: a private OpenWBEM CIMOM inside the simulated appliance, with the module and the
# project's schema loaded, and the wbemcli calls that reach it. Sourced by scripts/serve, the
# integration stage and the CIMOM benchmarks; everything lives under $CIMOM_DIR (in the
# appliance's /tmp).
#
# Needs: OW_PREFIX (the OpenWBEM installation), RAS_MODULE (libZeph_RASProvider.so built
# against it), RAS_MOF_DIR (the project's mof/), RAS_PLATFORM_LIBDIR (where libQvlShared.so
# and libTORapi.so are).

CIMOM_DIR=${CIMOM_DIR:-/tmp/cimom}
CIMOM_PORT=${CIMOM_PORT:-5988}
CIMOM_USER=ras
CIMOM_PASSWORD=ras-test
CIMOM_NS=root/cimv2
# simple: user and password (the appliance's way); none: anonymous access, which avoids the
# 5-second stall the simple authentication module shows on about one request in 47.
CIMOM_AUTH=${CIMOM_AUTH:-simple}

# CIMOM_PROVIDER_DIR: the C++ provider directory (default: one under $CIMOM_DIR holding a link
# to RAS_MODULE); one given from outside is used as it is. A caller may also define
# cimom_load_schema itself after sourcing this file.
# CIMOM_PRELOAD: libraries to preload into the CIMOM (a platform library that stays loaded
# when the module is unloaded). CIMOM_PROV_TTL: idle minutes before a provider is unloaded
# (-1: never). CIMOM_EXTRA_PROVIDERS: more provider libraries for the provider directory.
cimom_env() {
  env LD_LIBRARY_PATH="$OW_PREFIX/lib:$RAS_PLATFORM_LIBDIR" \
    ${CIMOM_PRELOAD:+"LD_PRELOAD=$CIMOM_PRELOAD"} "$@"
}

# The configuration: loopback only, simple authentication (or none, by CIMOM_AUTH), no
# indications, the module the only library of the provider directory and never unloaded
# (unless the variables above say otherwise).
cimom_write_config() {
  lib=$OW_PREFIX/lib
  # An empty module name means the default (PAM), which this installation lacks: anonymous
  # access keeps the simple module loaded but never asks it.
  anonymous=false
  if [ "$CIMOM_AUTH" = none ]; then
    anonymous=true
  fi
  cat >"$CIMOM_DIR/openwbem.conf" <<CONF
http_server.http_port = $CIMOM_PORT
http_server.https_port = -1
http_server.listen_addresses = 127.0.0.1
http_server.use_UDS = false
http_server.use_digest = false
owcimomd.authentication_module = $lib/openwbem/authentication/libsimpleauthentication.so
simple_auth.password_file = $CIMOM_DIR/passwords
owcimomd.allow_anonymous = $anonymous
owcimomd.allowed_users = *
owcimomd.datadir = $CIMOM_DIR/repository
owcimomd.pidfile = $CIMOM_DIR/owcimomd.pid
owcimomd.services_path = $lib/openwbem/services
owcimomd.provider_ifc_libs = $lib/openwbem/provifcs
owcimomd.owlibdir = $lib/openwbem
owcimomd.request_handler_path = $lib/openwbem/requesthandlers
owcimomd.wql_lib = $lib/libowwql.so
owcimomd.libexecdir = $OW_PREFIX/libexec/openwbem
owcimomd.drop_root_privileges = false
owcimomd.disable_indications = true
cppprovifc.prov_location = ${CIMOM_PROVIDER_DIR:-$CIMOM_DIR/providers}
cppprovifc.prov_TTL = ${CIMOM_PROV_TTL:--1}
log.main.type = file
log.main.location = $CIMOM_DIR/owcimomd.log
log.main.level = ${CIMOM_LOG_LEVEL:-ERROR}
CONF
  echo "$CIMOM_USER:$CIMOM_PASSWORD" >"$CIMOM_DIR/passwords"
}

# The appliance's accounts ("NAME TEXTUALUSERID" lines) as Zeph_Account instances, which
# the repository serves as the appliance's CIMOM does.
cimom_account_instances() {
  echo '#pragma namespace("root/cimv2")'
  grep -v '^#' /var/lib/appliance/accounts | while read -r name user; do
    [ -n "$name" ] || continue
    printf 'instance of Zeph_Account { Name = "%s"; TextualUserID = "%s"; };\n' "$name" "$user"
  done
}

# The repository: qualifier types first, then the accounts' class and instances and the
# module's classes.
cimom_load_schema() {
  cimom_account_instances >"$CIMOM_DIR/accounts.mof"
  cimom_env "$OW_PREFIX/bin/owmofc" -c -n "$CIMOM_NS" -d "$CIMOM_DIR/repository" \
    "$RAS_MOF_DIR/qualifiers.mof" "$RAS_MOF_DIR/Zeph_Account.mof" "$CIMOM_DIR/accounts.mof" \
    "$RAS_MOF_DIR/Zeph_RAS.mof" >"$CIMOM_DIR/owmofc.log" 2>&1
}

# The repository is made anew on every start (a kept appliance state keeps $CIMOM_DIR), so
# that it holds the current schema and accounts.
cimom_start() {
  rm -rf "$CIMOM_DIR/repository"
  mkdir -p "$CIMOM_DIR/repository"
  if [ -z "${CIMOM_PROVIDER_DIR:-}" ]; then
    mkdir -p "$CIMOM_DIR/providers"
    ln -sf "$RAS_MODULE" "$CIMOM_DIR/providers/libZeph_RASProvider.so"
    for provider in ${CIMOM_EXTRA_PROVIDERS:-}; do
      ln -sf "$provider" "$CIMOM_DIR/providers/"
    done
  fi
  cimom_write_config
  cimom_load_schema || { cat "$CIMOM_DIR/owmofc.log" >&2; return 1; }
  cimom_env "$OW_PREFIX/sbin/owcimomd" -d -c "$CIMOM_DIR/openwbem.conf" \
    >"$CIMOM_DIR/owcimomd.out" 2>&1 &
  CIMOM_PID=$!
  cimom_wait_ready
}

# Ready once it answers a request (enumerating a class of the repository).
cimom_wait_ready() {
  tries=0
  until wbem ecn >/dev/null 2>&1; do
    tries=$((tries + 1))
    if [ "$tries" -gt 100 ] || ! kill -0 "$CIMOM_PID" 2>/dev/null; then
      echo "owcimomd did not start:" >&2
      tail -20 "$CIMOM_DIR/owcimomd.out" >&2
      return 1
    fi
    sleep 0.1
  done
  # The daemon's own process (the start above ran it from a subshell).
  CIMOM_PID=$(cat "$CIMOM_DIR/owcimomd.pid")
}

cimom_alive() {
  kill -0 "$CIMOM_PID" 2>/dev/null
}

# SIGHUP: the CIMOM shuts down, unloads every provider and starts again in the same process.
cimom_restart() {
  kill -HUP "$CIMOM_PID"
  sleep 0.5
  cimom_wait_ready
}

# Stops the CIMOM and waits (up to 10 s) until its process is gone: the daemon is not
# always a child of this shell, so wait alone does not.
cimom_stop() {
  kill "$CIMOM_PID" 2>/dev/null || true
  wait "$CIMOM_PID" 2>/dev/null || true
  tries=0
  while kill -0 "$CIMOM_PID" 2>/dev/null && [ "$tries" -lt 100 ]; do
    sleep 0.1
    tries=$((tries + 1))
  done
  if kill -0 "$CIMOM_PID" 2>/dev/null; then
    echo "owcimomd did not stop; killing it" >&2
    kill -9 "$CIMOM_PID" 2>/dev/null || true
  fi
}

# The URL of the namespace, with the user and password when authentication is on.
cimom_url() {
  credentials=
  if [ "$CIMOM_AUTH" != none ]; then
    credentials=$CIMOM_USER:$CIMOM_PASSWORD@
  fi
  echo "http://${credentials}127.0.0.1:$CIMOM_PORT/$CIMOM_NS"
}

# wbem VERB [-OPTION...] [PATH-WITHOUT-NAMESPACE] [ARGS...]: wbemcli against the private
# CIMOM; options such as -dx come before the path, as wbemcli wants them.
wbem() {
  verb=$1
  shift
  options=
  while [ $# -gt 0 ] && [ "${1#-}" != "$1" ]; do
    options="$options $1"
    shift
  done
  target=
  if [ $# -gt 0 ]; then
    target=$1
    shift
  fi
  # shellcheck disable=SC2086
  wbemcli "$verb" -noverify $options "$(cimom_url)${target:+:$target}" "$@"
}
