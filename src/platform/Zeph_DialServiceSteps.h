// The steps the dial-service restarts are made of: marker-file tests, finding interfaces,
// the gate edits of the start scripts and the kill, hang-up and signal commands.
#ifndef ZEPH_DIALSERVICESTEPS_H
#define ZEPH_DIALSERVICESTEPS_H

#include <string>

#include "Zeph_CommandRunner.h"

namespace ras {

// A direction's start script, the process name it runs under and its resume log line.
struct DialDirection {
  const char* script;
  const char* process;
  const char* resumedLog;
};
extern const DialDirection kDialInDirection;

// Logged before the interface of each direction.
extern const char* const kLogDialInInterface;
extern const char* const kLogDialOutInterface;
extern const DialDirection kDialOutDirection;

// The marker file's "ADDO" and "DIN" tests: -1 no marker file, 1 the line is there, else 0.
int dialOutRecorded();
int dialInRecorded();

// "ppp" and the unit of the marker file's "ppp" line.
std::string interfaceInMarker();

// The dial-out interface for the result `addo` of dialOutRecorded(): the marker's interface
// when it is the dial-out one, else the first ppp interface that ifconfig lists and that is
// not the recorded one; "ppp" alone when there is none.
std::string dialOutInterfaceFor(int addo);

// The gate line commented out: the direction may run.
extern const char* const kOpenGateLine;

// The first word of the open gate line of `script` ("" when it has none).
std::string gateState(const char* script);

// Uncomments the gate line of `script`, which keeps the direction from running.
void closeGate(const char* script);

// Comments the gate line of `script` out, so that the direction may run again.
void openGate(const char* script);

// Sends `process` (by name) the signal that resumes it.
void continueProcess(const char* process);

// Opens the gate and wakes the script when its marker says "#ENABLED"; closes the gate when
// it says "#DISABLED".
void resumeDirection(const DialDirection& direction);

ShellCommand hangupCommand(const std::string& interface);
ShellCommand killMgettyCommand();
void killChat();
// Kills chat with the output appended to the chat log.
void killChatIntoLog();
// Logs and runs the hang-up of `interface`.
void hangUp(const std::string& interface);
// Logs and runs the kill of mgetty that follows a dial-in hang-up.
void killMgettyAfterHangUp();
void reloadInit();

// Logs `label` and the command line, then runs it.
void logAndRun(const char* label, const ShellCommand& command);

}  // namespace ras

#endif  // ZEPH_DIALSERVICESTEPS_H
