#include "charttags.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace ChartTags {

namespace {

QString pathOf(const QString& imagePath)
{
    return QFileInfo(imagePath).path() + QLatin1Char('/') + fileName();
}

} // namespace

QString fileName()
{
    return QStringLiteral("tags.txt");
}

QStringList fromText(const QString& text)
{
    QStringList tags;
    const QStringList parts =
        QString(text).replace(QLatin1Char('\n'), QLatin1Char(',')).split(QLatin1Char(','));
    for (const QString& part : parts) {
        if (!part.trimmed().isEmpty())
            tags.append(part.trimmed());
    }
    tags.removeDuplicates();
    return tags;
}

QStringList of(const QString& imagePath)
{
    QFile file(pathOf(imagePath));
    return file.open(QIODevice::ReadOnly) ? fromText(QString::fromUtf8(file.readAll())) : QStringList();
}

QString set(const QString& imagePath, const QStringList& tags)
{
    if (tags.isEmpty()) {
        QFile::remove(pathOf(imagePath));
        return {};
    }
    QSaveFile file(pathOf(imagePath));
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.write(tags.join(QLatin1Char('\n')).toUtf8() + '\n') > 0 && file.flush() &&
                           file.commit();
    return isWritten ? QString() : file.fileName() + QLatin1String(": ") + file.errorString();
}

} // namespace ChartTags
