#!/bin/sh
# cases.sh: the module inside a real OpenWBEM CIMOM, driven by wbemcli, inside the simulated
# appliance. Every case checks what wbemcli prints and, for changes, the appliance's journal
# and files. Prints one "ok"/"not ok" line per check and a count; exits 1 on any failure.
# Run by run.sh, which starts the sandbox.
set -u
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=scripts/cimom.sh
. "$here/../../scripts/cimom.sh"
# shellcheck source=tests/integration/load.sh
. "$here/load.sh"
# shellcheck source=tests/integration/checks.sh
. "$here/checks.sh"
# shellcheck source=tests/integration/hostile.sh
. "$here/hostile.sh"

# The paths wbemcli prints: the CIMOM's host and port, then the namespace and the model path.
HOST=127.0.0.1:$CIMOM_PORT/$CIMOM_NS
CALLIN='Zeph_CallInSettingData.InstanceID="Velmar:Zeph_CallInSettingData"'
DIALOUT='Zeph_DialOutSettingData.InstanceID="Velmar:Zeph_DialOutSettingData"'
SERVICE_KEYS='SystemCreationClassName="Zeph_System",SystemName="Zeph",CreationClassName="Zeph_RASService",Name="RASService"'
SERVICE="Zeph_RASService.$SERVICE_KEYS"
PPP_KEYS='SystemCreationClassName="Zeph_System",SystemName="Zeph",CreationClassName="Zeph_PPPProtocolEndpoint"'
PPP_IN="Zeph_PPPProtocolEndpoint.$PPP_KEYS,Name=\"DialInEndpoint\""
PPP_OUT="Zeph_PPPProtocolEndpoint.$PPP_KEYS,Name=\"DialOutEndpoint\""
MODEM_KEYS='SystemCreationClassName="Zeph_System",SystemName="Zeph",CreationClassName="Zeph_SoftModem"'
MODEM_IN="Zeph_SoftModem.$MODEM_KEYS,DeviceID=\"SoftModemIn\""
MODEM_OUT="Zeph_SoftModem.$MODEM_KEYS,DeviceID=\"SoftModemOut\""
PORT_KEYS='SystemCreationClassName="Zeph_System",SystemName="Zeph",CreationClassName="Zeph_SerialPort"'
PORT_IN="Zeph_SerialPort.$PORT_KEYS,DeviceId=\"DialInSerialPort\""
PORT_OUT="Zeph_SerialPort.$PORT_KEYS,DeviceId=\"DialOutSerialPort\""
POOL_IN='Zeph_RASStaticIPAddressPool.InstanceID="Velmar:DialInRASStaticIPAddressPool"'
POOL_OUT='Zeph_RASStaticIPAddressPool.InstanceID="Velmar:DialOutRASStaticIPAddressPool"'
IP_KEYS='SystemCreationClassName="Zeph_System",SystemName="Zeph",CreationClassName="Zeph_RASIPProtocolEndpoint"'
IP_IN="Zeph_RASIPProtocolEndpoint.$IP_KEYS,Name=\"DialInEndpoint\""
IP_OUT="Zeph_RASIPProtocolEndpoint.$IP_KEYS,Name=\"DialOutEndpoint\""
CALLIN_VALUES='InstanceID="Velmar:Zeph_CallInSettingData",ElementName="Dial-In Configuration",LineToAnswer=1,RingsBeforeAnswer=2,AutoDisableTimer=10,AutoDisableFlag=false,DNNumber="5550142"'
DIALOUT_VALUES='InstanceID="Velmar:Zeph_DialOutSettingData",ElementName="Dial-Out Settings",DialOutNumber="5550199",DialRetries=3,DialInterval=30,DialOutUserName="0",DialOutPassword=""'

# The CIM error line wbemcli prints for a refused request (its exit status is 16).
cim_error() {
  wbem "$@" 2>&1 | sed -n 's/^\* wbemcli: Cim: //p'
}

declare_line() {
  grep "^declare.* $1=" "$2"
}

journal_clear() {
  : >"$JOURNAL"
}

journal() {
  cat "$JOURNAL"
}

# Instance names: every implemented class lists its instances with their keys, and ei names
# each instance by the same path.
case_names() {
  check "ein call-in" "$HOST:$CALLIN" "$(wbem ein Zeph_CallInSettingData)"
  check "ein dial-out" "$HOST:$DIALOUT" "$(wbem ein Zeph_DialOutSettingData)"
  check "ein RAS service" "$HOST:$SERVICE" "$(wbem ein Zeph_RASService)"
  for class in Zeph_CallInSettingData Zeph_DialOutSettingData Zeph_RASService; do
    check "ei $class named as ein" "$(wbem ein $class)" "$(wbem ei $class | cut -d' ' -f1)"
  done
}

# Reads: values from the appliance's files and registry; the account list as qualifiers.
case_reads() {
  check "gi call-in" "$HOST:$CALLIN $CALLIN_VALUES" "$(wbem gi "$CALLIN")"
  check "gi dial-out" "$HOST:$DIALOUT $DIALOUT_VALUES" "$(wbem gi "$DIALOUT")"
  check "gi dial-out again" "$HOST:$DIALOUT $DIALOUT_VALUES" "$(wbem gi "$DIALOUT")"
  check "gi RAS service" \
    "$HOST:$SERVICE $SERVICE_KEYS,ElementName=\"\",modemStatus=true" \
    "$(wbem gi "$SERVICE")"
  xml=$(wbem gi -dx "$DIALOUT" 2>&1 | tr -d '\n')
  check "dial-out users offered" "dialerbackup" \
    "$(echo "$xml" | sed -n 's/.*QUALIFIER NAME="Values"[^>]*><VALUE.ARRAY>\(.*\)<\/VALUE.ARRAY>.*/\1/p' |
      sed 's/<[^>]*>//g')"
  check "unknown instance" "(6) CIM_ERR_NOT_FOUND: " \
    "$(cim_error gi 'Zeph_CallInSettingData.InstanceID="nope"')"
}

# Changes: a valid value edits the file with the expected command line; refused values
# (out of range, too long, wrongly typed) change nothing and report the module's or the
# CIMOM's error; the next change after a refusal works.
case_changes() {
  journal_clear
  wbem mi "$CALLIN" RingsBeforeAnswer=7
  check "mi rings: file" 'declare -r NUMBER_OF_RINGS="7"' \
    "$(declare_line NUMBER_OF_RINGS /qv/etc/ppp/mgetty_v2k)"
  check "mi rings: journal" \
    "$(printf '%s\n' "/bin/sed -i '/^declare -r NUMBER_OF_RINGS/ c declare -r NUMBER_OF_RINGS=\"7\"' /qv/etc/ppp/mgetty_v2k" 'killall -9 mgetty' 'init q')" \
    "$(journal | grep -v '^grep ')"
  check "mi rings: read back" "RingsBeforeAnswer=7" \
    "$(wbem gi "$CALLIN" | tr ',' '\n' | grep RingsBeforeAnswer)"

  before=$(cat /qv/etc/ppp/mgetty_v2k /qv/etc/ppp/ppp_call_v2k /qv/etc/ppp/callback_v2k)
  check "mi above maximum" \
    "(4) CIM_ERR_INVALID_PARAMETER: The value of RingsBeforeAnswer must be <= 20&#10;#CFG_000_0003,MOF_Props_Zeph_CallInSettingData_RingsBeforeAnswer,20#" \
    "$(cim_error mi "$CALLIN" RingsBeforeAnswer=21)"
  check "mi below minimum" \
    "(4) CIM_ERR_INVALID_PARAMETER: The value of RingsBeforeAnswer must be >= 1&#10;#CFG_000_0002,MOF_Props_Zeph_CallInSettingData_RingsBeforeAnswer,1#" \
    "$(cim_error mi "$CALLIN" RingsBeforeAnswer=0)"
  check "mi too long" \
    "(4) CIM_ERR_INVALID_PARAMETER: The length of DialOutNumber must be <= 32&#10;#CFG_000_0004,MOF_Props_Zeph_DialOutSettingData_DialOutNumber,32#" \
    "$(cim_error mi "$DIALOUT" DialOutNumber=123456789012345678901234567890123)"
  check "mi setter refusal" "(1) CIM_ERR_FAILED: #RAS_MODEM_16#" \
    "$(cim_error mi "$DIALOUT" DialOutNumber=12a)"
  check "mi wrongly typed" '(4) CIM_ERR_INVALID_PARAMETER: Unable to convert "abc" into UInt16' \
    "$(cim_error mi "$CALLIN" RingsBeforeAnswer=abc)"
  check "mi overflow" '(4) CIM_ERR_INVALID_PARAMETER: Unable to convert "70000" into UInt16' \
    "$(cim_error mi "$CALLIN" RingsBeforeAnswer=70000)"
  check "refusals change no file" "$before" \
    "$(cat /qv/etc/ppp/mgetty_v2k /qv/etc/ppp/ppp_call_v2k /qv/etc/ppp/callback_v2k)"

  wbem mi "$DIALOUT" DialRetries=4
  check "mi after refusals" 'declare CALLBACK_RETRY="4"' \
    "$(declare_line CALLBACK_RETRY /qv/etc/ppp/callback_v2k)"
  wbem mi "$DIALOUT" DialOutNumber=5550123
  check "mi number" 'declare TELEPHONE_NUMBER="5550123"' \
    "$(declare_line TELEPHONE_NUMBER /qv/etc/ppp/ppp_call_v2k)"
  wbem mi "$SERVICE" modemStatus=false
  check "mi service off" "DISABLED" "$(appliance-ctl reg get ModemStatus)"
  wbem mi "$SERVICE" modemStatus=true
  check "mi service on" "ENABLED" "$(appliance-ctl reg get ModemStatus)"
}

# PPP endpoints: both listed; the dial-out options read from its file; an option set through
# the dial-out setLine script; refused values; ConnectLink on a link that is up.
case_ppp() {
  check "ein PPP endpoints" "$(printf '%s\n' "$HOST:$PPP_IN" "$HOST:$PPP_OUT")" \
    "$(wbem ein Zeph_PPPProtocolEndpoint)"
  check "gi PPP dial-out" \
    "$HOST:$PPP_OUT $PPP_KEYS,Name=\"DialOutEndpoint\",ElementName=\"PPP Configuration\",IfName=\"\",IfStatus=true,ConnectionStatus=1,ConnectButton=true,DisconnectButton=false,IPHeaderComp=false,SoftwareComp=false,IdleTimeout=300,MRU=1500,MTU=1500,PapStatus=false,chapStatus=false,MschapStatus=false,Mschapv2Status=false,authLevel=0,csAuth=false,maxConfigureNak=5,maxConfigureRequest=10,maxTerminateReq=3" \
    "$(wbem gi "$PPP_OUT")"
  wbem mi "$PPP_OUT" MTU=1400
  check "mi MTU: file" "mtu 1400" "$(grep '^mtu' /qv/etc/ppp/options_dialout)"
  before=$(cat /qv/etc/ppp/options_dialout)
  check "mi MTU below range" "(1) CIM_ERR_FAILED: #RAS_MODEM_11#" "$(cim_error mi "$PPP_OUT" MTU=100)"
  check "refused options change no option" "$before" "$(cat /qv/etc/ppp/options_dialout)"
  appliance-ctl link up dialout ppp1 10.0.0.1 10.0.0.2
  check "cm ConnectLink" "$HOST:$PPP_OUT ConnectLink: 1" "$(wbem cm "$PPP_OUT" ConnectLink)"
  check "cm unknown method" "(17) CIM_ERR_METHOD_NOT_FOUND: Frobnicate" \
    "$(cim_error cm "$PPP_OUT" Frobnicate)"
  appliance-ctl link down ppp1
}

# The soft modem and the serial ports: both instances of each listed, the modem's codes read
# from the modem and the connect script, changes written to the modem, the connect script and
# the port files with their restarts, and refused or wrongly typed values changing nothing.
case_modem_serial() {
  check "ein soft modem" "$(printf '%s\n' "$HOST:$MODEM_IN" "$HOST:$MODEM_OUT")" \
    "$(wbem ein Zeph_SoftModem)"
  check "ein serial port" "$(printf '%s\n' "$HOST:$PORT_IN" "$HOST:$PORT_OUT")" \
    "$(wbem ein Zeph_SerialPort)"
  check "gi soft modem in" \
    "$HOST:$MODEM_IN $MODEM_KEYS,DeviceID=\"SoftModemIn\",Name=\" V.42 Modem \",ElementName=\" DSP Soft Modem \",ErrorControl=true,CallSpeed=0,Compression=true" \
    "$(wbem gi "$MODEM_IN")"
  check "gi serial port out" \
    "$HOST:$PORT_OUT $PORT_KEYS,DeviceId=\"DialOutSerialPort\",Name=\"ttyS1\",ElementName=\"SerialPort\",FlowControl=1" \
    "$(wbem gi "$PORT_OUT")"

  # wbemcli sends the whole instance: every writable property's setter runs, in order.
  wbem mi "$MODEM_IN" CallSpeed=0,ErrorControl=false
  check "mi modem in: modem codes" "m0 n0 k2" \
    "$(appliance-ctl modem get 2) $(appliance-ctl modem get 4) $(appliance-ctl modem get 3)"
  wbem mi "$MODEM_OUT" CallSpeed=0
  check "mi modem out: file" 'declare MODEM_OPT_SPEED="&n0"' \
    "$(declare_line MODEM_OPT_SPEED /qv/etc/ppp/ppp_call_v2k)"

  wbem mi "$PORT_IN" Name=ttyS2
  check "mi port name: files" "port ttyS2 declare -r SERIAL_PORT=\"ttyS2\"" \
    "$(grep '^port' /opt/etc/mgetty+sendfax/mgetty.config) $(grep SERIAL_PORT= /qv/etc/ppp/mgetty_v2k)"
  wbem mi "$PORT_OUT" FlowControl=2
  check "mi flow control: options" "#crtscts xonxoff" \
    "$(grep -x '#\?crtscts' /qv/etc/ppp/options_dialout) $(grep -x '#\?xonxoff' /qv/etc/ppp/options_dialout)"

  before=$(cat /qv/etc/ppp/ppp_call_v2k /qv/etc/ppp/mgetty_v2k /qv/etc/ppp/options_dialout \
    /opt/etc/mgetty+sendfax/mgetty.config /var/lib/appliance/modem)
  journal_clear
  check "mi port name refused" \
    '(4) CIM_ERR_INVALID_PARAMETER: The value of $prop.getName() is invalid.&#10;#CFG_000_0000,MOF_Props_Zeph_SerialPort_$prop.getName()#' \
    "$(cim_error mi "$PORT_IN" Name=ttyS-1)"
  check "mi flow control refused" "(1) CIM_ERR_FAILED: #RAS_MODEM_100#" \
    "$(cim_error mi "$PORT_OUT" FlowControl=3)"
  check "mi speed overflow" '(4) CIM_ERR_INVALID_PARAMETER: Unable to convert "256" into UInt8' \
    "$(cim_error mi "$MODEM_IN" CallSpeed=256)"
  check "refusals change nothing" "$before" \
    "$(cat /qv/etc/ppp/ppp_call_v2k /qv/etc/ppp/mgetty_v2k /qv/etc/ppp/options_dialout \
      /opt/etc/mgetty+sendfax/mgetty.config /var/lib/appliance/modem)"
  # Only the valid Name sent ahead of the refused FlowControl was applied.
  check "refusals run nothing else" \
    "/bin/sed -i '/declare -r SERIAL_PORT/ c declare -r SERIAL_PORT=\"ttyS1\"' /qv/etc/ppp/pppd_addo_v2k" \
    "$(journal)"
}

address_line() {
  grep -v '^#' "$1" | grep ':'
}

# The address pool and the IP endpoints: both instances of each listed, the two parts of the
# dial-out address line read, the setIPEx lines of a new local and remote address (wbemcli
# sends the whole instance, so the boolean setter runs after the address), and refused
# addresses changing no file.
case_ipaddress() {
  check "ein address pool" "$(printf '%s\n' "$HOST:$POOL_IN" "$HOST:$POOL_OUT")" \
    "$(wbem ein Zeph_RASStaticIPAddressPool)"
  check "ein IP endpoint" "$(printf '%s\n' "$HOST:$IP_IN" "$HOST:$IP_OUT")" \
    "$(wbem ein Zeph_RASIPProtocolEndpoint)"
  for class in Zeph_RASStaticIPAddressPool Zeph_RASIPProtocolEndpoint; do
    check "ei $class named as ein" "$(wbem ein $class)" "$(wbem ei $class | cut -d' ' -f1)"
  done
  check "gi address pool out" \
    "$HOST:$POOL_OUT InstanceID=\"Velmar:DialOutRASStaticIPAddressPool\",ElementName=\"IP Address Pool\",ipAddr=\"10.64.0.1\",netMask=\"255.255.255.255\",useStaticPool=true,Caption=\"\",Description=\"\",StartAddress=\"\",EndAddress=\"\",AddressType=0" \
    "$(wbem gi "$POOL_OUT")"
  check "gi IP endpoint out" \
    "$HOST:$IP_OUT $IP_KEYS,Name=\"DialOutEndpoint\",ElementName=\"Local IP Address Configuration\",IPv4Address=\"10.64.0.2\",SubnetMask=\"255.255.255.255\",addrAssignment=false,Forwarding=false,DefaultTTL=00000101000001.000000+000,ReassemblyTimeout=00000101000001.000000+000" \
    "$(wbem gi "$IP_OUT")"

  wbem mi "$IP_OUT" IPv4Address=10.9.9.1
  check "mi local address: file" "10.9.9.1:10.64.0.1" "$(address_line /qv/etc/ppp/options_dialout)"
  wbem mi "$POOL_IN" ipAddr=192.168.200.9
  check "mi remote address: files" "192.168.200.1:192.168.200.9 192.168.200.1:192.168.200.9" \
    "$(address_line /qv/etc/ppp/options_dialin) $(address_line /qv/etc/ppp/options_callback)"

  before=$(cat /qv/etc/ppp/options_dialin /qv/etc/ppp/options_dialout /qv/etc/ppp/options_callback)
  check "mi local address too long" \
    "(4) CIM_ERR_INVALID_PARAMETER: The length of IPv4Address must be <= 32&#10;#CFG_000_0004,MOF_Props_Zeph_RASIPProtocolEndpoint_IPv4Address,32#" \
    "$(cim_error mi "$IP_IN" IPv4Address=192.168.200.111111111111111111111111)"
  check "mi invalid local address dropped silently" "" "$(cim_error mi "$IP_IN" IPv4Address=256.1.1.1)"
  check "refused addresses change no file" "$before" \
    "$(cat /qv/etc/ppp/options_dialin /qv/etc/ppp/options_dialout /qv/etc/ppp/options_callback)"
  wbem mi "$IP_OUT" SubnetMask=255.255.255.0 >/dev/null
  check "mi subnet mask: in memory" "SubnetMask=\"255.255.255.0\"" \
    "$(wbem gi "$IP_OUT" | tr ',' '\n' | grep SubnetMask)"
}

ROUTE1='Zeph_NextHopIPRoute.InstanceID="10.1.0.0"'
ROUTE_NEW='Zeph_NextHopIPRoute.InstanceID="10.9.0.0"'
ROUTE_FILE=/qv/etc/ppp/ip_up_add_v2k

# The count line and the array element lines of the route file.
route_arrays() {
  grep -E '^(declare -r NUMBER_OF_ROUTES=|	(ROUTES|NETMASK|METRIC)\[)' "$ROUTE_FILE"
}

# The InstanceIDs of the paths or instances wbemcli printed, sorted.
instance_ids() {
  sed -n 's/.*[.,]InstanceID="\([^"]*\)".*/\1/p' | sort | tr '\n' ' '
}

# Dial-out routes: a route created with its mask and metric appends to the three arrays and
# its association; a changed metric edits its element; a duplicate is refused; associators
# and references from both ends; deleting the route restores the file.
case_routes() {
  before=$(route_arrays)
  check "ein routes" "10.1.0.0 172.16.0.0 " "$(wbem ein Zeph_NextHopIPRoute | instance_ids)"
  wbem ci "$ROUTE_NEW" \
    'InstanceID="10.9.0.0",DestinationAddress="10.9.0.0",DestinationMask="255.255.0.0",RouteMetric=3' \
    >/dev/null
  check "ci route: arrays" "$(printf '%s\n' 'declare -r NUMBER_OF_ROUTES="3"' \
    '	ROUTES[0]="10.1.0.0" \' '	ROUTES[1]="172.16.0.0" \' '	ROUTES[2]="10.9.0.0"' \
    '	NETMASK[0]="255.255.0.0" \' '	NETMASK[1]="255.240.0.0" \' '	NETMASK[2]="255.255.0.0"' \
    '	METRIC[0]="1" \' '	METRIC[1]="5" \' '	METRIC[2]="3"')" "$(route_arrays)"
  check "gi new route" 'DestinationMask="255.255.0.0" RouteMetric=3' \
    "$(wbem gi "$ROUTE_NEW" | tr ',' '\n' | grep -e DestinationMask -e RouteMetric | tr '\n' ' ' |
      sed 's/ $//')"
  wbem mi "$ROUTE_NEW" RouteMetric=9
  check "mi route metric" '	METRIC[2]="9"' "$(grep 'METRIC\[2\]' "$ROUTE_FILE")"
  check "ci duplicate route" \
    "(4) CIM_ERR_INVALID_PARAMETER: Destination Address specified already exists in the table." \
    "$(cim_error ci "$ROUTE1" 'InstanceID="10.1.0.0",DestinationAddress="10.1.0.0"')"

  check "ain from dial-out" "10.1.0.0 10.9.0.0 172.16.0.0 " \
    "$(wbem ain "-ac Zeph_DialOutRoutes" "$DIALOUT" | instance_ids)"
  check "ai from dial-out with roles" "10.1.0.0 10.9.0.0 172.16.0.0 " \
    "$(wbem ai "-ac Zeph_DialOutRoutes" "-ar Antecedent" "-arr Dependent" "$DIALOUT" | instance_ids)"
  check "ain from route" "Velmar:Zeph_DialOutSettingData " \
    "$(wbem ain "-ac Zeph_DialOutRoutes" "$ROUTE_NEW" | instance_ids)"
  check "ai from route" "1" \
    "$(wbem ai "-ac Zeph_DialOutRoutes" "$ROUTE_NEW" | grep -c 'ElementName="Dial-Out Settings"')"
  check "rin from dial-out" "3" \
    "$(wbem rin "-arc Zeph_DialOutRoutes" "-ar Antecedent" "$DIALOUT" | grep -c Dependent)"
  check "ri from route" "1" \
    "$(wbem ri "-arc Zeph_DialOutRoutes" "$ROUTE_NEW" | grep -c '10.9.0.0')"

  wbem di "$ROUTE_NEW"
  check "di route: arrays" "$before" "$(route_arrays)"
  check "di route: ein" "10.1.0.0 172.16.0.0 " "$(wbem ein Zeph_NextHopIPRoute | instance_ids)"
  check "di route: association" "10.1.0.0 172.16.0.0 " \
    "$(wbem ain "-ac Zeph_DialOutRoutes" "$DIALOUT" | instance_ids)"
}

# A restart (SIGHUP) unloads and reloads the module; it reads the changed files anew.
case_restart() {
  cimom_restart
  check "alive after restart" "yes" "$(cimom_alive && echo yes)"
  check "values after restart" "RingsBeforeAnswer=7" \
    "$(wbem gi "$CALLIN" | tr ',' '\n' | grep RingsBeforeAnswer)"
  check "dial-out after restart" "DialRetries=4" \
    "$(wbem gi "$DIALOUT" | tr ',' '\n' | grep DialRetries)"
  check "modem after restart" "ErrorControl=false" \
    "$(wbem gi "$MODEM_IN" | tr ',' '\n' | grep ErrorControl)"
  check "serial port after restart" "FlowControl=2" \
    "$(wbem gi "$PORT_OUT" | tr ',' '\n' | grep FlowControl)"
  check "IP endpoint after restart" "IPv4Address=\"10.9.9.1\" SubnetMask=\"255.255.255.255\"" \
    "$(wbem gi "$IP_OUT" | tr ',' '\n' | grep -e IPv4Address -e SubnetMask | tr '\n' ' ' | sed 's/ $//')"
}

mkdir -p "$CIMOM_DIR"
cimom_start || exit 1
case_names
case_reads
case_changes
case_ppp
case_modem_serial
case_ipaddress
case_routes
case_hostile
case_resting
case_malformed
case_restart
case_load
cimom_stop
checks_report
