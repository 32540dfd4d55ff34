#include "outputfile.h"

#include "exitcode.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

using namespace vardeno::testcharttools;

namespace {

Failure notWritten(const QString& name, const QString& reason)
{
    return {ExitCode::NotWritten, QStringLiteral("%1: %2").arg(name, reason)};
}

using Producer = std::function<void(const ByteSink&)>;

/// Pipes take what they have room for. Returns the system's error number, 0 where all went well.
int writeAll(int stream, const char* from, qint64 count)
{
    while (count > 0) {
        const ssize_t written = write(stream, from, std::size_t(count));
        if (written < 0 && errno != EINTR)
            return errno;
        const ssize_t taken = written < 0 ? 0 : written;
        from += taken;
        count -= taken;
    }
    return 0;
}

void requireWritten(int error, const QString& name)
{
    if (error != 0)
        throw notWritten(name, writeProblem(error));
}

ByteSink sinkOf(int stream, const QString& name)
{
    return [stream, name](const char* bytes, qint64 count) {
        requireWritten(writeAll(stream, bytes, count), name);
    };
}

/// A device or a named pipe, which a new file would replace.
void writeSpecial(const QString& path, const Producer& produce)
{
    QFile file(path);
    const int stream = open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
    requireWritten(stream < 0 ? errno : 0, path);
    file.open(stream, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
    produce(sinkOf(stream, path));
}

/// The file is written past the toolkit, which does not tell every reason.
void writeWhole(const QString& path, const Producer& produce)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw notWritten(path, file.errorString());
    produce(sinkOf(file.handle(), path));
    if (!file.commit())
        throw notWritten(path, file.errorString());
}

} // namespace

QString writeProblem(int error)
{
    if (error == EPIPE)
        return QStringLiteral("its reader went away");
    return QString::fromLocal8Bit(std::strerror(error));
}

void writeOutput(const QString& path, const Producer& produce)
{
    const QFileInfo info(path);
    if (path == QLatin1String("-"))
        produce(sinkOf(STDOUT_FILENO, QStringLiteral("standard output")));
    else if (info.exists() && !info.isFile() && !info.isDir())
        writeSpecial(path, produce);
    else
        writeWhole(path, produce);
}

void writeOutput(const QString& path, const QByteArray& bytes)
{
    writeOutput(path, [&bytes](const ByteSink& sink) { sink(bytes.constData(), bytes.size()); });
}

void requireNoTerminal(const QString& path)
{
    if (path == QLatin1String("-") && isatty(STDOUT_FILENO) == 1)
        throw Failure{ExitCode::Usage,
                      QStringLiteral("standard output: it is a terminal; -o wants a file, or "
                                     "a pipe behind the command")};
}
