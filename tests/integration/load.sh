#!/bin/sh
# load.sh: sequential and parallel request load against the CIMOM, sourced by cases.sh.

# One request of a mixed sequence: gi, ei or mi on one of the three classes.
mixed_request() {
  case $(($1 % 10)) in
    0) wbem gi "$CALLIN" ;;
    1) wbem ei Zeph_DialOutSettingData ;;
    2) wbem mi "$SERVICE" modemStatus=true ;;
    3) wbem gi "$DIALOUT" ;;
    4) wbem ei Zeph_RASService ;;
    5) wbem mi "$CALLIN" "RingsBeforeAnswer=$(($1 % 20 + 1))" ;;
    6) wbem gi "$SERVICE" ;;
    7) wbem ei Zeph_CallInSettingData ;;
    8) wbem mi "$DIALOUT" "DialRetries=$(($1 % 10 + 1))" ;;
    9) wbem gi "$PPP_OUT" ;;
  esac
}

# mixed_requests FIRST COUNT: prints the number of failed requests.
mixed_requests() {
  failures=0
  i=$1
  while [ "$i" -lt $(($1 + $2)) ]; do
    mixed_request "$i" >/dev/null 2>&1 || failures=$((failures + 1))
    i=$((i + 1))
  done
  echo "$failures"
}

# The edited files' shape: every line with what follows its "=" left out, so that changed
# values pass and a torn, doubled or lost line does not.
file_shapes() {
  for file in /qv/etc/ppp/* /opt/etc/mgetty+sendfax/* /var/lib/qvl/registry; do
    echo "$file $(sed 's/=.*//' "$file" | cksum)"
  done
}

case_load() {
  shapes=$(file_shapes)
  check "300 requests in a row" "0" "$(mixed_requests 0 300)"
  check "alive after 300 requests" "yes" "$(cimom_alive && echo yes)"
  pids=
  for client in 1 2 3 4 5 6 7 8; do
    mixed_requests $((client * 1000)) 40 >"$CIMOM_DIR/client.$client" &
    pids="$pids $!"
  done
  # shellcheck disable=SC2086
  wait $pids
  check "8 parallel clients, 320 requests" "0 0 0 0 0 0 0 0" \
    "$(cat "$CIMOM_DIR"/client.* | tr '\n' ' ' | sed 's/ $//')"
  check "alive after parallel clients" "yes" "$(cimom_alive && echo yes)"
  check "no file torn by parallel clients" "$shapes" "$(file_shapes)"
  check "rings line intact" "yes" \
    "$(declare_line NUMBER_OF_RINGS /qv/etc/ppp/mgetty_v2k | grep -qx 'declare -r NUMBER_OF_RINGS="[0-9]*"' && echo yes)"
  check "dial-out readable after load" "$HOST:$DIALOUT" "$(wbem gi "$DIALOUT" | cut -d' ' -f1)"
}

