/* Aligned memory blocks: the public face of libkfmcore, the companion of libkfmgenw7. Both calls
 * may be made from any number of threads at once. */
#ifndef KFMCORE_H
#define KFMCORE_H

#if defined(__GNUC__)
#define KFMCORE_API __attribute__((visibility("default")))
#else
#define KFMCORE_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* A block of `size` bytes that starts at a multiple of 64; a block of its own also for size 0.
 * Null when size is negative or memory is exhausted. Give it back with kfmFree. */
KFMCORE_API void* kfmMalloc(int size);

/* Releases a block that kfmMalloc returned. Null does nothing. */
KFMCORE_API void kfmFree(void* block);

#ifdef __cplusplus
}
#endif

#endif
