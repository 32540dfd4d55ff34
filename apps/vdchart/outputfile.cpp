#include "outputfile.h"

#include "exitcode.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace {

Failure notWritten(const QString& name, const QString& reason)
{
    return {ExitCode::NotWritten, QStringLiteral("%1: %2").arg(name, reason)};
}

/// Pipes take what they have room for. Returns the system's error number, 0 where all went well.
int writeAll(int stream, const QByteArray& bytes)
{
    const char* from = bytes.constData();
    for (auto left = std::size_t(bytes.size()); left > 0;) {
        const ssize_t written = write(stream, from, left);
        if (written < 0 && errno != EINTR)
            return errno;
        const std::size_t taken = written < 0 ? 0 : std::size_t(written);
        from += taken;
        left -= taken;
    }
    return 0;
}

void requireWritten(int error, const QString& name)
{
    if (error != 0)
        throw notWritten(name, writeProblem(error));
}

/// A device or a named pipe, which a new file would replace.
void writeSpecial(const QString& path, const QByteArray& bytes)
{
    const int stream = open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
    requireWritten(stream < 0 ? errno : 0, path);
    const int error = writeAll(stream, bytes);
    close(stream);
    requireWritten(error, path);
}

/// The file is written past the toolkit, which does not tell every reason.
void writeWhole(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw notWritten(path, file.errorString());
    requireWritten(writeAll(file.handle(), bytes), path);
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

void writeOutput(const QString& path, const QByteArray& bytes)
{
    const QFileInfo info(path);
    if (path == QLatin1String("-"))
        requireWritten(writeAll(STDOUT_FILENO, bytes), QStringLiteral("standard output"));
    else if (info.exists() && !info.isFile() && !info.isDir())
        writeSpecial(path, bytes);
    else
        writeWhole(path, bytes);
}

void requireNoTerminal(const QString& path)
{
    if (path == QLatin1String("-") && isatty(STDOUT_FILENO) == 1)
        throw Failure{ExitCode::Usage,
                      QStringLiteral("standard output: it is a terminal; -o wants a file, or "
                                     "a pipe behind the command")};
}
