// The configuration file reader: scans the appliance's files for lines that begin with a
// key, either fresh from disk or through the streams cached in FileList.
#ifndef ZEPH_CONFIGREADER_H
#define ZEPH_CONFIGREADER_H

#include <cstdio>
#include <string>

#include "Zeph_CachedConfigFile.h"

// The configuration files kept open for the cached reads.
extern ras::CachedConfigFile FileList[ras::kFileListSize];
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

#endif  // ZEPH_CONFIGREADER_H
