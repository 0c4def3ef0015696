/* QvlShared.h: registry, change notification and privilege check of libQvlShared.so. */
#ifndef QVL_SHARED_H
#define QVL_SHARED_H

#ifdef __cplusplus
extern "C" {
#endif

/* Called from the library's own thread after each change of a watched entry. */
typedef void (*QvlRegChangeCallback)(unsigned long);

/* Copies the value, terminated and truncated to bufferSize-1, into buffer. 0 on success. */
int QvlGetRegEntryString(const char* section, const char* group, const char* name, char* buffer,
                         int bufferSize);

/* Stores value, creating the entry and its section as needed. 0 on success. */
int QvlSetRegEntryString(const char* section, const char* group, const char* name,
                         const char* value);

/* Subscribes callback (called with context) to changes of the entry; 0 on success. */
int QvlNotifyRegChangeStart(const char* section, const char* group, const char* name,
                            QvlRegChangeCallback callback, unsigned long context, int* handleOut);

/* Ends a subscription: no callback for it runs once this returns. 0 on success. */
int QvlNotifyRegChangeStop(int handle);

/* 0 when the user holds the privilege, non-zero otherwise. */
int QvlAuthCheckPriv(int kind, int userId, int privilege);

#ifdef __cplusplus
}
#endif

#endif /* QVL_SHARED_H */
