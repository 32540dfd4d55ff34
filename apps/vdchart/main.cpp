#include "commandline.h"

#include <QtGlobal>

#include <csignal>
#include <cstdio>
#include <iostream>
#include <new>

namespace {

/// The editor's log is for its developers: what matters to a user of this program, the commands say
/// themselves.
void printMessage(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::cerr << "vdchart: " << message.toStdString() << '\n';
}

/// A full disk, a file size limit and a closed pipe are errors of the write that meets them, with a message.
void prepareProcess()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    qInstallMessageHandler(printMessage);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
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
