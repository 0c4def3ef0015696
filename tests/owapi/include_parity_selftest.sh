#!/bin/sh
# Cases for include_parity.sh on small header sets: each case lays out a stand-in and a
# reference directory and states the exit status and an output line it expects.
set -u
check=$(dirname "$0")/include_parity.sh
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

# header DIR NAME [INCLUDED...]
header() {
  dir=$work/$1 name=$2
  shift 2
  mkdir -p "$dir"
  : >"$dir/$name"
  for inc in "$@"; do printf '#include "%s"\n' "$inc" >>"$dir/$name"; done
}

# expect NAME STATUS TEXT: runs the check on the case's directories
expect() {
  out=$(sh "$check" "$work/$1/standin" "$work/$1/real" 2>&1)
  status=$?
  if [ "$status" -ne "$2" ] || ! printf '%s\n' "$out" | grep -qxF "$3"; then
    printf 'FAIL %s: status %s, wanted %s and the line "%s"; output:\n%s\n' \
      "$1" "$status" "$2" "$3" "$out"
    failed=1
  fi
}

c=same
header $c/real OW_A.hpp OW_B.hpp
header $c/real OW_B.hpp
header $c/standin OW_A.hpp OW_B.hpp
header $c/standin OW_B.hpp
expect $c 0 "0 of 2 stand-in headers include more than their real counterparts"

c=direct_extra
header $c/real OW_A.hpp OW_B.hpp
header $c/real OW_B.hpp
header $c/real OW_C.hpp
header $c/standin OW_A.hpp OW_B.hpp OW_C.hpp
header $c/standin OW_B.hpp
header $c/standin OW_C.hpp
expect $c 1 "OW_A.hpp: includes OW_C.hpp, the real one does not"

c=indirect_extra
header $c/real OW_A.hpp OW_B.hpp
header $c/real OW_B.hpp
header $c/real OW_C.hpp
header $c/standin OW_A.hpp OW_B.hpp
header $c/standin OW_B.hpp OW_C.hpp
header $c/standin OW_C.hpp
expect $c 1 "OW_A.hpp: includes OW_C.hpp (OW_B.hpp>OW_C.hpp), the real one does not"

c=reached_indirectly_by_real
header $c/real OW_A.hpp OW_B.hpp
header $c/real OW_B.hpp OW_C.hpp
header $c/real OW_C.hpp
header $c/standin OW_A.hpp OW_C.hpp
header $c/standin OW_C.hpp
expect $c 0 "0 of 2 stand-in headers include more than their real counterparts"

c=own_header_and_cycle
header $c/real OW_A.hpp OW_B.hpp
header $c/real OW_B.hpp OW_A.hpp
header $c/standin OW_A.hpp OW_B.hpp
header $c/standin OW_B.hpp OW_A.hpp
header $c/standin OW_Extra.hpp OW_A.hpp
expect $c 0 "0 of 2 stand-in headers include more than their real counterparts"

c=nothing_compared
header $c/real OW_A.hpp
header $c/standin OW_Other.hpp
expect $c 1 "0 of 0 stand-in headers include more than their real counterparts"

exit $failed
