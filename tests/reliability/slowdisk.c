// Preloaded, makes a disk slow: below the folder VD_SLOW every opening, syncing and renaming takes 300 ms longer. Tells on
// the standard error which of them the main thread, and with it the interface, has waited for.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <fcntl.h>
#include <limits.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

static void delay(const char* what, const char* path)
{
    const char* slow = getenv("VD_SLOW");
    if (!slow || !path || strncmp(path, slow, strlen(slow)) != 0)
        return;
    const struct timespec time = {0, 300 * 1000 * 1000};
    nanosleep(&time, NULL);
    if (syscall(SYS_gettid) == getpid())
        fprintf(stderr, "waited: %s %s\n", what, path + strlen(slow));
}

static void delay_open_file(const char* what, int file)
{
    char link[64];
    char path[PATH_MAX + 1];
    snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    const ssize_t length = readlink(link, path, PATH_MAX);
    path[length > 0 ? length : 0] = 0;
    delay(what, path);
}

static void* next(const char* name)
{
    return dlsym(RTLD_NEXT, name);
}

static mode_t mode_of(int flags, va_list arguments)
{
    return flags & (O_CREAT | O_TMPFILE) ? va_arg(arguments, mode_t) : 0;
}

#define VD_OPEN(name)                                                                                        \
    int name(const char* path, int flags, ...)                                                               \
    {                                                                                                        \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = mode_of(flags, arguments);                                                       \
        va_end(arguments);                                                                                   \
        delay("open", path);                                                                                 \
        return ((int (*)(const char*, int, ...))next(#name))(path, flags, mode);                             \
    }

#define VD_OPENAT(name)                                                                                      \
    int name(int folder, const char* path, int flags, ...)                                                   \
    {                                                                                                        \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = mode_of(flags, arguments);                                                       \
        va_end(arguments);                                                                                   \
        delay("open", path);                                                                                 \
        return ((int (*)(int, const char*, int, ...))next(#name))(folder, path, flags, mode);                \
    }

VD_OPEN(open)
VD_OPEN(open64)
VD_OPENAT(openat)
VD_OPENAT(openat64)

int fsync(int file)
{
    delay_open_file("fsync", file);
    return ((int (*)(int))next("fsync"))(file);
}

int fdatasync(int file)
{
    delay_open_file("fsync", file);
    return ((int (*)(int))next("fdatasync"))(file);
}

int rename(const char* from, const char* to)
{
    delay("rename", to);
    return ((int (*)(const char*, const char*))next("rename"))(from, to);
}

int renameat2(int from_folder, const char* from, int to_folder, const char* to, unsigned int flags)
{
    delay("rename", to);
    return ((int (*)(int, const char*, int, const char*, unsigned int))next("renameat2"))(from_folder, from,
                                                                                           to_folder, to, flags);
}
