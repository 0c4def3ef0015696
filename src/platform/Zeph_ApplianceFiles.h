// The appliance's configuration files and dial scripts that more than one part of the module
// reads or edits, each path written once.
#ifndef ZEPH_APPLIANCEFILES_H
#define ZEPH_APPLIANCEFILES_H

namespace ras {

inline constexpr char kDialInScript[] = "/qv/etc/ppp/mgetty_v2k";
inline constexpr char kDialOutScript[] = "/qv/etc/ppp/ppp_add_v2k";
inline constexpr char kDialOutPppdScript[] = "/qv/etc/ppp/pppd_dialout_v2k";
inline constexpr char kCallScript[] = "/qv/etc/ppp/ppp_call_v2k";
inline constexpr char kRouteScript[] = "/qv/etc/ppp/ip_up_add_v2k";
inline constexpr char kDialInOptions[] = "/qv/etc/ppp/options_dialin";
inline constexpr char kDialOutOptions[] = "/qv/etc/ppp/options_dialout";
// The pppd options of the call-back link, which follows the dial-in link's settings.
inline constexpr char kCallbackOptions[] = "/qv/etc/ppp/options_callback";
inline constexpr char kCallbackConfig[] = "/opt/etc/mgetty+sendfax/callback.config";
// Which dial link is up, and on which ppp unit.
inline constexpr char kMarkerFile[] = "/qv/etc/ppp/ppp_active_if_file";

}  // namespace ras

#endif  // ZEPH_APPLIANCEFILES_H
