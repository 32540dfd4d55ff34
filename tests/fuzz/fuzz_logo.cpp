#include "require.h"
#include "support/imagefile.h"

#include <QLoggingCategory>

#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

using namespace vardeno::testcharttools;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

/// What is decoded is no larger than a logo may be, and has been looked at before.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const int file = memfd_create("logo", 0);
    require(write(file, data, size) == ssize_t(size), "there is memory for the file");
    const QString path = QStringLiteral("/proc/self/fd/%1").arg(file);
    const PictureFile verdict = examinePicture(path);
    const QImage picture = readPicture(path);
    CachedPicture cached;
    const QImage& logo = cached.load(path);
    close(file);
    require(picture.width() <= largestPicture && picture.height() <= largestPicture, "no logo is larger");
    if (verdict == PictureFile::TooLarge)
        require(picture.isNull(), "what is too large is not decoded");
    if (verdict == PictureFile::Readable)
        require(logo == picture, "the same is read twice");
    else
        require(logo.isNull(), "what is none is not shown");
    return 0;
}
