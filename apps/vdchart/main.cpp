#include "commandline.h"
#include "standardstreams.h"

#include <QtGlobal>

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

void prepareProcess()
{
    prepareStreams();
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
