// The free functions through which every class reads the appliance's configuration files,
// checks and formats values, reaches the platform registry and restarts the dial services.
#ifndef ZEPH_PLATFORMACCESS_H
#define ZEPH_PLATFORMACCESS_H

#include <cstdio>
#include <string>

// ---- Configuration file reader ----

// One configuration file kept open for the cached reads.
struct CachedConfigFile {
  const char* path;
  int count;  // uses left before CloseFile closes the stream
  FILE* stream;
};

constexpr int kFileListSize = 8;
extern CachedConfigFile FileList[kFileListSize];

// Stream of the last file that IsOpen opened outside FileList.
extern FILE* file_tmp;

// Scans `path` for lines that begin with the text of `format` before its first "%". Each such
// line is scanned with `format` into one output: an int* when `format` contains "%d", else a
// std::string* when it contains "%s", none otherwise. Returns -1 when the file cannot be
// opened, 1 when a line equals that text exactly, else 0. A file under /tmp is deleted after.
int getConfigParameter(const char* path, const char* format, ...);

// The same scan through the streams cached in FileList; 1 when any line begins with the text.
int getConfigParameterEx(const char* path, const char* format, ...);

FILE* IsOpen(const char* path);
void OpenFirstTime();
void CloseFile(const char* path);

// Scans every line that begins with `prefix` with `format` (one text conversion) into `value`;
// the last such line wins. 0 when the file was read, -1 when it cannot be opened.
int getParameterFromFile(const char* path, const char* format, const char* prefix,
                         std::string& value);

// Reads the local:remote address line of a pppd options file; `second` keeps the line's
// newline. `reserved` is not used. 0 when the file was read, -1 when it cannot be opened.
int getIPFromFile(const char* path, const char* reserved, const char* delimiters,
                  std::string& first, std::string& second);

// 1 when the first non-blank character of `line` is "#".
int IsComment(char* line);

// ---- Value checks and formatting ----

int IsIPValid(char* address);
int IsMaskValid(char* mask);
int IsLineNumberValid(int line);
void timeTodatetimeFormat(std::string& out, int seconds);
int itoa(int value, char* text);
int reverse(char* text);

// ---- Registry ----

extern const char* const kRegSection;  // "SoftModem"
extern const char* const kRegGroup;    // "ModemCC"
extern const char* const kRegModemStatus;
extern const char* const kRegMinLine;
extern const char* const kRegMaxLine;
extern const char* const kRegLineToAnswer;
extern const char* const kRegAutoDisableTimer;
extern const char* const kRegAutoDisableFlag;
extern const char* const kRegModemDn;
extern const char* const kRegEnabled;   // "ENABLED"
extern const char* const kRegDisabled;  // "DISABLED"
extern const char* const kRegOn;        // "ON"
extern const char* const kRegOff;       // "OFF"

// The two registry failure texts, each kept by its callers.
extern const char* const kQvlErrorLog;       // "Error in QVL Operation\n"
extern const char* const kQvlErrorLogUpper;  // "Error IN QVL Operation\n"

constexpr int kRegValueSize = 60;

// Notification handle of the "ModemStatus" subscription; -1 while there is none.
extern int handle;

// Reads a value of the modem group into `value`, upper-cased. False when the platform call
// fails (`value` is then untouched); the caller logs its own failure text.
bool readModemRegistry(const char* name, std::string& value);

// The same for a value that is only shown, never compared or converted: kept as stored.
bool readModemRegistryAsStored(const char* name, std::string& value);

// Stores a value of the modem group. False when the platform call fails.
bool writeModemRegistry(const char* name, const char* value);

// Subscribes remove_ppp_link to changes of "ModemStatus"; the platform's result.
int startModemStatusNotify();

// Ends the subscription if there is one.
void stopModemStatusNotify();

// ---- Dial service process control ----

void Restart_ppp_add_v2k();
void RestartMgetty();
void remove_ppp_link(unsigned long);

// Steps that remove_ppp_link and the RAS service share.
void stopDialOut();
void stopDialIn();
void resumeDialOut();
void resumeDialIn();

// The dial-out interface, "ppp" followed by its unit ("ppp" alone when none is found).
std::string findDialOutInterface();

// The interface recorded in the marker file, "ppp" followed by its unit.
std::string readActiveInterface();

#endif  // ZEPH_PLATFORMACCESS_H
