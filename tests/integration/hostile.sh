#!/bin/sh
# hostile.sh: hostile values and malformed requests through the real CIMOM, sourced by
# cases.sh (which defines the instance paths and the wbem helpers used here).

# Hostile values and malformed requests through the real CIMOM: nothing of a payload runs,
# refused values change no file, and each malformed request is a CIM error with its code.
case_hostile() {
  marker=/tmp/pwned
  rm -f "$marker"
  files="/qv/etc/ppp/ppp_call_v2k /qv/etc/ppp/options_dialout /qv/etc/ppp/mgetty_v2k
    /opt/etc/mgetty+sendfax/mgetty.config /etc/ppp/pap-secrets /etc/ppp/chap-secrets"
  # shellcheck disable=SC2086
  before=$(cat $files)
  check "hostile number refused" "(1) CIM_ERR_FAILED: #RAS_MODEM_16#" \
    "$(cim_error mi "$DIALOUT" "DialOutNumber=;touch $marker")"
  check "hostile port name refused" \
    '(4) CIM_ERR_INVALID_PARAMETER: The value of $prop.getName() is invalid.&#10;#CFG_000_0000,MOF_Props_Zeph_SerialPort_$prop.getName()#' \
    "$(cim_error mi "$PORT_IN" "Name=\$(touch $marker)")"
  check "password with a carriage return refused" "(4) CIM_ERR_INVALID_PARAMETER" \
    "$(cim_error mi "$DIALOUT" "DialOutPassword=$(printf 'x\rtouch %s' $marker)" | cut -d: -f1)"
  check "10 KB number refused" "(4) CIM_ERR_INVALID_PARAMETER" \
    "$(cim_error mi "$DIALOUT" "DialOutNumber=$(printf '%010240d' 7)" | cut -d: -f1)"
  # shellcheck disable=SC2086
  check "refused hostile values change no file" "$before" "$(cat $files)"
  journal_clear
  wbem mi "$DIALOUT" "DialOutPassword=\`touch $marker\`;reboot"
  check "hostile password stored as text" 1 \
    "$(grep -c -F "	\"\`touch $marker\`;reboot\"	" /etc/ppp/pap-secrets)"
  check "hostile password passed as one word" 1 \
    "$(journal | grep -c "addPassword [^ ]* [^ ]* '\`touch $marker\`;reboot' /etc/ppp/pap-secrets")"
  wbem mi "$DIALOUT" DialOutPassword=dialpass
  check "no payload ran" "no" "$(test -e "$marker" && echo yes || echo no)"
  check "alive after hostile requests" "yes" "$(cimom_alive && echo yes)"
}

# Values that would become code where they come to rest. A payload after a mask that
# inet_aton takes is refused on create and on modify, nothing run and the route file as it
# was; a trailing blank is inert there and is written. Afterwards bash runs the route file
# and sources the dial scripts' declarations, as the appliance does, and no payload runs.
case_resting() {
  marker=/tmp/pwned
  rm -f "$marker"
  route_file=/qv/etc/ppp/ip_up_add_v2k
  routes=$(cat "$route_file")
  new_route='Zeph_NextHopIPRoute.InstanceID="10.8.11.0"'
  newline='
'
  for payload in "\$(touch $marker)" "\`touch $marker\`" "\";touch $marker;\"" \
    "${newline}touch $marker"; do
    journal_clear
    check "ci: mask with a payload refused" "(1) CIM_ERR_FAILED" "$(cim_error ci "$new_route" \
      "InstanceID=\"10.8.11.0\",DestinationAddress=\"10.8.11.0\",DestinationMask=\"255.255.0.0 $payload\",RouteMetric=1" |
      cut -d: -f1)"
    check "mi: mask with a payload refused" "(1) CIM_ERR_FAILED" \
      "$(cim_error mi "$ROUTE1" "DestinationMask=255.255.0.0 $payload" | cut -d: -f1)"
    # The getters a modify starts with read the interfaces; nothing edits or installs.
    check "refused masks ran nothing" 0 \
      "$(journal | grep -c -e 'sed ' -e RasProviderScripts -e pwned)"
    check "refused masks left the route file" "$routes" "$(cat "$route_file")"
  done
  wbem mi "$ROUTE1" "DestinationMask=255.255.255.0 " >/dev/null
  check "mi: a trailing blank is written" 1 \
    "$(grep -c -F "	NETMASK[0]=\"255.255.255.0 \" \\" "$route_file")"
  wbem mi "$ROUTE1" "DestinationMask=255.255.0.0" >/dev/null
  for script in "$route_file" /qv/etc/ppp/ppp_call_v2k /qv/etc/ppp/callback_v2k \
    /qv/etc/ppp/mgetty_v2k /qv/etc/ppp/ppp_add_v2k /qv/etc/ppp/pppd_addo_v2k; do
    check "declarations of $script run cleanly" "" \
      "$(bash -c "eval \"\$(grep -E '^[[:space:]]*(declare|	[A-Z]+\[)' $script)\"" 2>&1)"
  done
  bash "$route_file" >/dev/null 2>&1
  check "no payload ran later" "no" "$(test -e "$marker" && echo yes || echo no)"
}

# The code part of the CIM error wbemcli prints, "(6) CIM_ERR_NOT_FOUND"; "served" when the
# request succeeded.
error_code() {
  out=$(wbem "$@" 2>&1) && { echo served; return; }
  printf '%s\n' "$out" | sed -n 's/^\* wbemcli: Cim: \(([0-9]*) [A-Z_]*\).*/\1/p'
}

# Malformed requests on every class: each is a CIM error with the code the module or the
# CIMOM gives it, and changes no file. wbemcli sends the whole instance on mi, so the valid
# properties before a refused one are set again to the values they have. Requests that
# wbemcli refuses itself (an unknown property, a path without keys) never reach the CIMOM;
# the dispatcher tests cover those. The CIMOM drops a key the class does not have before the
# module sees the path, so such a path names the instance.
case_malformed() {
  # NAME|PATH|NUMBER|TEXT: NUMBER and TEXT name a writable property of that type ("-" where
  # the class has none).
  classes="call-in|$CALLIN|RingsBeforeAnswer|-
dial-out|$DIALOUT|DialRetries|DialOutNumber
RAS service|$SERVICE|-|-
PPP endpoint|$PPP_OUT|MRU|-
soft modem|$MODEM_OUT|CallSpeed|-
serial port|$PORT_IN|FlowControl|Name
address pool|$POOL_OUT|-|ipAddr
IP endpoint|$IP_IN|-|IPv4Address
route|Zeph_NextHopIPRoute.InstanceID=\"10.1.0.0\"|RouteMetric|DestinationMask"
  files="/qv/etc/ppp/ppp_call_v2k /qv/etc/ppp/callback_v2k /qv/etc/ppp/options_dialout
    /qv/etc/ppp/options_dialin /qv/etc/ppp/options_callback /qv/etc/ppp/mgetty_v2k
    /qv/etc/ppp/ip_up_add_v2k /etc/ppp/pap-secrets /etc/ppp/chap-secrets
    /opt/etc/mgetty+sendfax/mgetty.config /var/lib/appliance/modem"
  # shellcheck disable=SC2086
  before=$(cat $files)
  long=$(printf '%010240d' 7)
  journal_clear
  while IFS='|' read -r name path number text; do
    keyless=${path%\"*\"}
    if [ "${path%,*}" != "$path" ]; then
      check "$name gi without its last key" "(6) CIM_ERR_NOT_FOUND" "$(error_code gi "${path%,*}")"
    fi
    check "$name gi with an extra key" served "$(error_code gi "$path,Bogus=\"x\"")"
    check "$name gi with an empty key" "(6) CIM_ERR_NOT_FOUND" "$(error_code gi "$keyless\"\"")"
    check "$name gi with a 10 KB key" "(6) CIM_ERR_NOT_FOUND" \
      "$(error_code gi "$keyless\"$long\"")"
    check "$name cm unknown method" "(17) CIM_ERR_METHOD_NOT_FOUND" \
      "$(error_code cm "$path" Reboot)"
    if [ "$number" != - ]; then
      check "$name mi $number as text" "(4) CIM_ERR_INVALID_PARAMETER" \
        "$(error_code mi "$path" "$number=abc")"
    fi
    if [ "$text" != - ]; then
      check "$name mi $text 10 KB" "(4) CIM_ERR_INVALID_PARAMETER" \
        "$(error_code mi "$path" "$text=$long")"
    fi
  done <<ROWS
$classes
ROWS
  check "ei unknown class" "(5) CIM_ERR_INVALID_CLASS" "$(error_code ei Zeph_Bogus)"
  check "ci route with a hostile address" "(1) CIM_ERR_FAILED" \
    "$(error_code ci 'Zeph_NextHopIPRoute.InstanceID="10.5.0.0;reboot"' \
      'InstanceID="10.5.0.0;reboot",DestinationAddress="10.5.0.0;reboot"')"
  check "ci route without an address" "(1) CIM_ERR_FAILED" \
    "$(error_code ci 'Zeph_NextHopIPRoute.InstanceID="10.5.0.0"' 'InstanceID="10.5.0.0"')"
  # A creation under a taken key replaces the instance with one on the same configuration.
  check "ci under a taken key" served \
    "$(error_code ci "$CALLIN" 'InstanceID="Velmar:Zeph_CallInSettingData"')"
  check "gi association by text keys" "(4) CIM_ERR_INVALID_PARAMETER" \
    "$(error_code gi 'Zeph_DialOutRoutes.Antecedent="x",Dependent="10.1.0.0"')"
  # shellcheck disable=SC2086
  check "malformed requests change no file" "$before" "$(cat $files)"
  check "no refused value reaches a command line" 0 "$(journal | grep -c 7777777777)"
  check "alive after malformed requests" "yes" "$(cimom_alive && echo yes)"
}
