// Reads mutated pictures: reliability_pictures COUNT [SEED] FILE …
//
// Each mutation of one of the files is read as a logo and as a picture to compare. Tells the longest time and
// the most memory that one of them took; ends with 1 where one took more than a second of the processor or
// 150 MiB.

#include "exitcode.h"
#include "imagefile.h"
#include "wantedchart.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>

#include <cstdio>
#include <ctime>
#include <vector>

#include <zlib.h>

namespace {

constexpr qint64 mostPixels = 16LL * 1000 * 1000; ///< as many as a chart of 4000 x 4000 has
constexpr qint64 mostMemory = 150LL * 1024;       ///< KiB
constexpr double mostSeconds = 1;

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// With right checksums, without which a PNG file is refused before anything else of it is looked at.
void mendPng(QByteArray& png)
{
    int at = 8;
    while (png.startsWith("\x89PNG") && at + 12 <= png.size()) {
        const qint64 length = qFromBigEndian<quint32>(png.constData() + at);
        if (at + 12 + length > png.size())
            break;
        const auto* data = reinterpret_cast<const Bytef*>(png.constData() + at + 4);
        qToBigEndian(quint32(crc32(0, data, uInt(length + 4))), png.data() + at + 8 + length);
        at += int(length) + 12;
    }
}

/// One byte, or a number of two or four at an end of its range.
void changeBytes(QByteArray& bytes, QRandomGenerator& random)
{
    static const QByteArray values[] = {QByteArray(4, '\xff'),          QByteArray(4, '\0'),
                                        QByteArray("\x7f\xff\xff\xff"), QByteArray("\xff\xff\xff\x7f"),
                                        QByteArray("\x0f\0", 2),        QByteArray("\x0f\0\x0f\0", 4)};
    // The head of a file decides the most.
    const int end = random.bounded(2) == 0 ? qMin(64, int(bytes.size())) : int(bytes.size());
    const int at = random.bounded(end);
    if (random.bounded(2) == 0)
        bytes[at] = char(random.generate());
    else
        bytes.replace(at, random.bounded(1, 5), values[random.bounded(6)]);
}

void mutate(QByteArray& bytes, QRandomGenerator& random)
{
    if (bytes.isEmpty())
        return;
    const int at = random.bounded(bytes.size());
    const int count = random.bounded(1, 200);
    switch (random.bounded(8)) {
    case 0:
        bytes.truncate(at);
        return;
    case 1:
        bytes.remove(at, count);
        return;
    case 2:
        bytes.insert(at, bytes.mid(random.bounded(bytes.size()), count).repeated(random.bounded(1, 50)));
        return;
    default:
        changeBytes(bytes, random);
    }
}

QByteArray mutated(const std::vector<QByteArray>& seeds, QRandomGenerator& random)
{
    QByteArray bytes = seeds.at(std::size_t(random.bounded(int(seeds.size()))));
    for (int i = random.bounded(1, 6); i > 0; --i)
        mutate(bytes, random);
    if (random.bounded(4) != 0)
        mendPng(bytes);
    return bytes;
}

double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

/// KiB at the most since `forgetMemory`.
qint64 mostMemoryTaken()
{
    for (const QByteArray& line : contentsOf(QStringLiteral("/proc/self/status")).split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return 0;
}

void forgetMemory()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

void store(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("no room for a picture");
}

/// Whether it could be read.
bool read(const QString& path)
{
    vardeno::testcharttools::examinePicture(path);
    vardeno::testcharttools::readPicture(path);
    try {
        return !readPicture(path, mostPixels).isNull();
    } catch (const Failure&) {
        return false;
    }
}

struct Worst
{
    double seconds = 0;
    qint64 memory = 0; ///< KiB
};

/// A mutation that takes too much is kept.
void keepIfWrong(const QByteArray& bytes, double seconds, qint64 memory, int number)
{
    if (seconds <= mostSeconds && memory <= mostMemory)
        return;
    const QString name = QStringLiteral("mutation-%1").arg(number);
    store(name, bytes);
    std::printf("WRONG %s: %.2f s, %lld KiB\n", qPrintable(name), seconds, static_cast<long long>(memory));
}

} // namespace

int main(int count, char** arguments)
{
    const QGuiApplication application(count, arguments);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    if (!std::freopen("/dev/null", "w", stderr)) // where the decoders complain themselves
        return 2;
    const QStringList words = QCoreApplication::arguments();
    const int wanted = words.value(1).toInt();
    QRandomGenerator random(words.value(2).toUInt());
    std::vector<QByteArray> seeds;
    for (const QString& file : words.mid(3))
        seeds.push_back(contentsOf(file));
    if (wanted <= 0 || seeds.empty())
        return 2;
    const QTemporaryDir folder;
    Worst worst;
    int readable = 0;
    for (int i = 0; i < wanted; ++i) {
        const QByteArray bytes = mutated(seeds, random);
        const QString path = folder.filePath(QStringLiteral("picture"));
        store(path, bytes);
        forgetMemory();
        const double begin = processorTime();
        readable += read(path) ? 1 : 0;
        const double seconds = processorTime() - begin;
        const qint64 memory = mostMemoryTaken();
        keepIfWrong(bytes, seconds, memory, i);
        worst = {qMax(worst.seconds, seconds), qMax(worst.memory, memory)};
    }
    std::printf("%d mutations, of which %d were pictures: at the most %.2f s and %lld KiB\n", wanted,
                readable, worst.seconds, static_cast<long long>(worst.memory));
    return worst.seconds > mostSeconds || worst.memory > mostMemory ? 1 : 0;
}
