# Shared state of the simulated appliance, sourced by appliance-ctl and the stand-ins.
# Everything is a small text file under /var/lib/appliance (see appliance/README.md).

SIM_DIR=/var/lib/appliance
SIM_LINKS=$SIM_DIR/links
SIM_PROCESSES=$SIM_DIR/processes
SIM_MODEM=$SIM_DIR/modem
SIM_ROUTES=$SIM_DIR/routes
SIM_ACCOUNTS=$SIM_DIR/accounts
SIM_CALLS=$SIM_DIR/calls
SIM_JOURNAL=$SIM_DIR/journal
SIM_MARKER=/qv/etc/ppp/ppp_active_if_file
SIM_REGISTRY=${QVL_REGISTRY:-/var/lib/qvl/registry}
SIM_DEFAULT_GROUP=SoftModem/ModemCC

sim_die() {
  echo "${0##*/}: $*" >&2
  exit 2
}

# Appends one line "NAME ARG..." to the log of what the stand-ins were asked.
sim_record() {
  printf '%s\n' "$*" >>"$SIM_CALLS"
}

# Replaces FILE by the output of the rest of the command line run on FILE, keeping its
# inode and mode (a bind mount or an executable script stays what it was).
sim_rewrite() {
  _file=$1
  shift
  _tmp=$(mktemp "${_file}.XXXXXX")
  if "$@" "$_file" >"$_tmp"; then
    cat "$_tmp" >"$_file"
    rm -f "$_tmp"
  else
    rm -f "$_tmp"
    return 1
  fi
}

sim_touch() {
  [ -f "$1" ] || : >"$1"
}

# --- processes: one line "NAME STATE", STATE running or stopped ---


sim_process_state() {
  [ -f "$SIM_PROCESSES" ] || return 1
  awk -v n="$1" '$1 == n { print $2; found = 1; exit } END { exit !found }' "$SIM_PROCESSES"
}

# Kept sorted by name, so that a process that ends and starts again leaves the file as
# it was.
sim_process_set() {
  sim_touch "$SIM_PROCESSES"
  sim_rewrite "$SIM_PROCESSES" awk -v n="$1" -v s="$2" '
    $1 == n { if (!done) print n, s; done = 1; next } { print }
    END { if (!done) print n, s }'
  sim_rewrite "$SIM_PROCESSES" sort
}

sim_process_remove() {
  sim_touch "$SIM_PROCESSES"
  sim_rewrite "$SIM_PROCESSES" awk -v n="$1" '$1 != n'
}

# --- links: one line "IFACE DIRECTION LOCAL PEER STATE", STATE up or idle ---

sim_link_field() {
  [ -f "$SIM_LINKS" ] || return 1
  awk -v i="$1" -v f="$2" '$1 == i { print $f; found = 1; exit } END { exit !found }' \
    "$SIM_LINKS"
}

sim_link_set() {
  sim_touch "$SIM_LINKS"
  sim_rewrite "$SIM_LINKS" awk -v i="$1" -v line="$1 $2 $3 $4 $5" '
    $1 == i { if (!done) print line; done = 1; next } { print }
    END { if (!done) print line }'
  sim_marker_update
}

# A link that goes down takes its interface and the routes through it along.
sim_link_remove() {
  sim_touch "$SIM_LINKS"
  sim_rewrite "$SIM_LINKS" awk -v i="$1" '$1 != i'
  sim_touch "$SIM_ROUTES"
  sim_rewrite "$SIM_ROUTES" awk -v i="$1" '$4 != i'
  sim_marker_update
}

# The PPP scripts record the active link in the marker file: "DIN" or "ADDO" and the
# line pppN. A dial-in call takes precedence; with no connected link there is no file.
sim_marker_update() {
  _rec=$(awk '$5 == "up" && $2 == "dialin" { print "DIN", $1; exit }' "$SIM_LINKS")
  [ -n "$_rec" ] ||
    _rec=$(awk '$5 == "up" && $2 == "dialout" { print "ADDO", $1; exit }' "$SIM_LINKS")
  if [ -n "$_rec" ]; then
    printf '%s\n%s\n' ${_rec} >"$SIM_MARKER"
  else
    rm -f "$SIM_MARKER"
  fi
}

# --- registry: "[Section/Group]" headers, "Name=Value" entries, "[privileges]" ---

# Splits NAME or Section/Group/Name into $_group and $_name.
sim_reg_key() {
  case $1 in
    */*/*) _group=${1%/*}; _name=${1##*/} ;;
    */*) sim_die "registry name must be NAME or SECTION/GROUP/NAME: $1" ;;
    *) _group=$SIM_DEFAULT_GROUP; _name=$1 ;;
  esac
}

sim_reg_get() {
  sim_reg_key "$1"
  [ -f "$SIM_REGISTRY" ] || return 1
  awk -v g="[$_group]" -v n="$_name" '
    /^[ \t]*(#|$)/ { next }
    /^\[/ { in_group = ($0 == g); next }
    in_group && index($0, n "=") == 1 { print substr($0, length(n) + 2); found = 1; exit }
    END { exit !found }' "$SIM_REGISTRY"
}

# Sets (VALUE given) or deletes (no VALUE) one entry; writes through a temporary file
# and a rename so that a reader never sees half a registry.
sim_reg_put() {
  sim_reg_key "$1"
  _dir=$(dirname "$SIM_REGISTRY")
  mkdir -p "$_dir"
  sim_touch "$SIM_REGISTRY"
  # The platform library serialises writers with an flock on this file; so do we.
  (
  flock 9
  _tmp=$(mktemp "$_dir/.registry.XXXXXX")
  # The value goes through the environment: awk -v would interpret backslashes.
  REG_VALUE=${2-} awk -v g="[$_group]" -v n="$_name" -v set="$#" '
    BEGIN { v = ENVIRON["REG_VALUE"] }
    function flush() { if (in_group && set == 2 && !done) { print n "=" v; done = 1 } }
    /^\[/ { flush(); in_group = ($0 == g); seen = seen || in_group; print; next }
    in_group && index($0, n "=") == 1 { if (set == 2 && !done) print n "=" v; done = 1; next }
    { print }
    END { flush(); if (set == 2 && !seen) { print g; print n "=" v } }' \
    "$SIM_REGISTRY" >"$_tmp" && mv "$_tmp" "$SIM_REGISTRY"
  ) 9>"$SIM_REGISTRY.lock"
}

# Grants (1) or revokes (0) privilege PRIV of KIND to USERID.
sim_priv_put() {
  (
  flock 9
  _tmp=$(mktemp "$(dirname "$SIM_REGISTRY")/.registry.XXXXXX")
  awk -v on="$1" -v line="$4 $2 $3" '
    function flush() { if (in_priv && on && !done) { print line; done = 1 } }
    /^\[/ { flush(); in_priv = ($0 == "[privileges]"); seen = seen || in_priv; print; next }
    in_priv && $1 " " $2 " " $3 == line { if (on && !done) print; done = done || on; next }
    { print }
    END { flush(); if (on && !seen) { print "[privileges]"; print line } }' \
    "$SIM_REGISTRY" >"$_tmp" && mv "$_tmp" "$SIM_REGISTRY"
  ) 9>"$SIM_REGISTRY.lock"
}
