// The appliance's configuration files and dial scripts that more than one part of the module
// reads or edits, each path written once, and the folder of the helper scripts from which
// every helper script's path is made.
#ifndef ZEPH_APPLIANCEFILES_H
#define ZEPH_APPLIANCEFILES_H

#include <cstddef>

namespace ras {

// The path of one helper script, made at compile time; `text` is the whole path.
template <std::size_t N>
struct ScriptPath {
  char text[N];
  constexpr operator const char*() const { return text; }
};

inline constexpr char kHelperScripts[] = "/opt/etc/RasProviderScripts/";

// kHelperScripts followed by `name`.
template <std::size_t M>
constexpr ScriptPath<sizeof(kHelperScripts) + M - 1> helperScript(const char (&name)[M]) {
  ScriptPath<sizeof(kHelperScripts) + M - 1> path{};
  std::size_t i = 0;
  for (; i + 1 < sizeof(kHelperScripts); ++i) path.text[i] = kHelperScripts[i];
  for (std::size_t j = 0; j < M; ++j) path.text[i + j] = name[j];
  return path;
}

// The setLine script of the pppd options files, followed by the options' suffix.
inline constexpr auto kSetLineScript = helperScript("setLine");

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
