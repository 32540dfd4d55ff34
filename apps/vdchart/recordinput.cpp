#include "recordinput.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <iostream>

namespace {

constexpr qint64 partSize = 1024LL * 1024; ///< bytes that are read at once

/// A pipe hands over what has arrived, which may be a part of it.
QByteArray readUpTo(QFile& file, qint64 limit)
{
    QByteArray bytes;
    while (bytes.size() < limit) {
        const QByteArray part = file.read(std::min(limit - bytes.size(), partSize));
        if (part.isEmpty())
            break;
        bytes += part;
    }
    return bytes;
}

bool openInput(QFile& file, const QString& path)
{
    return path == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                      : file.open(QIODevice::ReadOnly);
}

} // namespace

void requireAccepted(const QStringList& problems, const QStringList& unknown, const QString& name)
{
    for (const QString& member : unknown)
        std::cerr << "vdchart: warning: " << name.toStdString() << ": " << member.toStdString() << '\n';
    if (problems.isEmpty())
        return;
    QStringList lines;
    for (const QString& problem : problems)
        lines.append(QStringLiteral("%1: %2").arg(name, problem));
    throw Failure{ExitCode::Unreadable, lines.join(QStringLiteral("\nvdchart: "))};
}

QString inputName(const QString& path)
{
    return path == QLatin1String("-") ? QStringLiteral("standard input") : path;
}

QByteArray readInput(const QString& path, qint64 limit)
{
    QFile file(path);
    if (QFileInfo(path).isDir())
        throw Failure{ExitCode::Unreadable, QStringLiteral("%1: it is a folder").arg(path)};
    if (!openInput(file, path))
        throw Failure{ExitCode::Unreadable,
                      QStringLiteral("%1: %2").arg(inputName(path), file.errorString())};
    const QByteArray bytes = readUpTo(file, limit + 1);
    if (bytes.size() > limit)
        throw Failure{ExitCode::Unreadable,
                      QStringLiteral("%1: more than %2 bytes").arg(inputName(path), QString::number(limit))};
    if (file.error() != QFileDevice::NoError)
        throw Failure{ExitCode::Unreadable,
                      QStringLiteral("%1: %2").arg(inputName(path), file.errorString())};
    return bytes;
}
