/* QvlStandIn.h: extras of the host libQvlShared.so for tests and tools; the module never uses them.
 */
#ifndef QVL_STAND_IN_H
#define QVL_STAND_IN_H

#ifdef __cplusplus
extern "C" {
#endif

/* Blocks until every change made to the store before the call, by any process, has been
   observed and the callbacks it causes have returned. 0 on success; non-zero when called
   from inside a callback. Returns at once when nothing is subscribed. */
int QvlNotifySync(void);

/* Removes an entry. 0 on success, non-zero when it is absent or cannot be removed. */
int QvlDeleteRegEntryString(const char* section, const char* group, const char* name);

/* Adds a privilege grant (no-op if present). 0 on success. */
int QvlGrantPriv(int kind, int userId, int privilege);

/* Removes a privilege grant. 0 on success, non-zero when it was not granted. */
int QvlRevokePriv(int kind, int userId, int privilege);

#ifdef __cplusplus
}
#endif

#endif /* QVL_STAND_IN_H */
