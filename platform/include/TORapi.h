/* TORapi.h: string utility of libTORapi.so. */
#ifndef TOR_API_H
#define TOR_API_H

#ifdef __cplusplus
extern "C" {
#endif

/* Upper-cases the ASCII letters of text in place and returns text. */
char* osStrUpr(char* text);

#ifdef __cplusplus
}
#endif

#endif /* TOR_API_H */
