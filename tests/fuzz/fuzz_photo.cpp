#include "carriedchart.h"
#include "exitcode.h"
#include "require.h"
#include "wantedchart.h"

#include <QLoggingCategory>

#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr qint64 mostPixels = 4LL * 1000 * 1000;

QImage read(const QString& path)
{
    try {
        return readPicture(path, mostPixels);
    } catch (const Failure& failure) {
        require(failure.message.startsWith(path), "a message names the file");
        return {};
    }
}

/// What a picture carries is read or refused with a reason.
void checkCarried(const QString& path)
{
    if (!CarriedChart::isPng(path))
        return;
    try {
        const CarriedChart::Texts texts = CarriedChart::textsOf(path);
        if (CarriedChart::isIn(texts))
            CarriedChart::read(texts, QStringLiteral("/folder"));
    } catch (const Failure& failure) {
        require(failure.message.startsWith(path), "a message names the file");
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const int file = memfd_create("photo", 0);
    require(write(file, data, size) == ssize_t(size), "there is memory for the file");
    const QString path = QStringLiteral("/proc/self/fd/%1").arg(file);
    const QImage picture = read(path);
    require(qint64(picture.width()) * picture.height() <= mostPixels, "no picture is larger than allowed");
    checkCarried(path);
    close(file);
    return 0;
}
