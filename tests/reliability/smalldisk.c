// Preloaded, makes the disk full: after VD_ROOM bytes every write to a file answers "no space left on device".
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

static long room(void)
{
    static long left = -1;
    if (left < 0)
        left = getenv("VD_ROOM") ? atol(getenv("VD_ROOM")) : 0;
    return left;
}

static _Atomic long used;

/// How many of `size` bytes still fit; all of them where `file` is none of the disk's.
static size_t granted(int file, size_t size)
{
    struct stat status;
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode))
        return size;
    const long before = used;
    const long left = room() - before;
    const size_t fits = left <= 0 ? 0 : (size_t)left < size ? (size_t)left : size;
    used = before + (long)fits;
    return fits;
}

ssize_t write(int file, const void* data, size_t size)
{
    static ssize_t (*next)(int, const void*, size_t);
    if (!next)
        next = (ssize_t(*)(int, const void*, size_t))dlsym(RTLD_NEXT, "write");
    const size_t fits = granted(file, size);
    if (fits == 0 && size > 0) {
        errno = ENOSPC;
        return -1;
    }
    return next(file, data, fits);
}

ssize_t writev(int file, const struct iovec* parts, int count)
{
    ssize_t all = 0;
    for (int i = 0; i < count; ++i) {
        const ssize_t written = write(file, parts[i].iov_base, parts[i].iov_len);
        if (written < 0)
            return all > 0 ? all : written;
        all += written;
        if ((size_t)written < parts[i].iov_len)
            break;
    }
    return all;
}
