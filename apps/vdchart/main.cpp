#include "commandline.h"

#include <QtGlobal>

#include <csignal>
#include <cstdio>
#include <iostream>
#include <new>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// The editor's log is for its developers: what matters to a user of this program, the commands say
/// themselves.
void printMessage(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::cerr << "vdchart: " << message.toStdString() << '\n';
}

/// The place of a closed stream would go to what is opened next, which would then be read or written in its
/// stead.
void holdClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY); // so that its use still fails
    }
}

/// A full disk, a file size limit and a closed pipe are errors of the write that meets them, with a message.
void prepareProcess()
{
    holdClosedStreams();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    qInstallMessageHandler(printMessage);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // another one has other fonts, and may need a display
}

/// What was printed may still wait for its write, which may fail.
ExitCode flushed(ExitCode code)
{
    std::cout.flush();
    if (std::cout)
        return code;
    throw Failure{ExitCode::NotWritten, QStringLiteral("standard output: it could not be written")};
}

} // namespace

int main(int argc, char** argv)
{
    prepareProcess();
    try {
        CommandLine commandLine;
        return int(flushed(commandLine.run(argc, argv)));
    } catch (const Failure& failure) {
        std::cerr << "vdchart: " << failure.message.toStdString() << '\n';
        return int(failure.code);
    } catch (const std::bad_alloc&) {
        std::cerr << "vdchart: out of memory\n";
        return int(ExitCode::NotWritten);
    }
}
