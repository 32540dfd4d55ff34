#include "standardstreams.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// The place of a closed stream would go to what is opened next, which would then be read or written in its
/// stead.
void holdClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY); // so that its use still fails
    }
}

#ifdef __GLIBC__
/// Takes the lines that libpng prints of a picture that it cannot read: the commands say it in a sentence.
ssize_t passOn(void*, const char* text, std::size_t size)
{
    constexpr char libpng[] = "libpng ";
    const bool isNoise = size > std::strlen(libpng) && std::strncmp(text, libpng, std::strlen(libpng)) == 0;
    return isNoise ? ssize_t(size) : write(STDERR_FILENO, text, size);
}

/// For the libraries' C functions; the program's own messages take another way.
void filterLibraries()
{
    std::FILE* filter = fopencookie(nullptr, "w", {nullptr, &passOn, nullptr, nullptr});
    if (!filter)
        return;
    std::setvbuf(filter, nullptr, _IOLBF, 0);
    stderr = filter;
}
#else
void filterLibraries() {}
#endif

} // namespace

/// A full disk, a file size limit and a closed pipe are errors of the write that meets them, with a message.
void prepareStreams()
{
    holdClosedStreams();
    filterLibraries();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}
