#pragma once

#include "support/writefault.h"
#include "vdchartcore_export.h"

#include <QByteArray>
#include <QDateTime>
#include <QImage>
#include <QSize>
#include <QString>

namespace vardeno::testcharttools {

/// Writes `image` whole or not at all; a write that fails leaves what was there before. `format` and
/// `quality` as for `QImage::save`. A write that fails tells `fault`, where there is one, why.
VDCHARTCORE_EXPORT bool writeImageWhole(const QImage& image, const QString& path, const char* format,
                                        int quality = -1, WriteFault* fault = nullptr);

/// The same with a file's bytes.
VDCHARTCORE_EXPORT bool writeBytesWhole(const QByteArray& bytes, const QString& path,
                                        WriteFault* fault = nullptr);

/// The longest side of a picture that is read, in pixels.
constexpr int largestPicture = 3840;

/// What the header of a picture file says; invalid for a file that is none, that has more text than is read
/// (`mostPngText`), or of a format that does not tell.
VDCHARTCORE_EXPORT QSize pictureSize(const QString& path);

/// Whether the file is a picture of at most `largestPicture` in each direction, from its header alone.
enum class PictureFile
{
    Readable,
    TooLarge,
    Unreadable
};
VDCHARTCORE_EXPORT PictureFile examinePicture(const QString& path);

/// The picture in `path`, upright where the file says how the camera was held; null for a file that is too
/// large, which is not decoded, or that cannot be read.
VDCHARTCORE_EXPORT QImage readPicture(const QString& path);

/// A picture file that is decoded again only when the file has changed.
class VDCHARTCORE_EXPORT CachedPicture
{
public:
    /// The picture in `path` as it is now; null for a file that is missing, unreadable or too large, which is
    /// not decoded.
    const QImage& load(const QString& path);

    /// Whether `load` would read the file anew.
    bool isOutdated(const QString& path) const;

private:
    struct State
    {
        QString path;
        qint64 size = -1;
        QDateTime modified;
        bool operator==(const State& other) const;
    };
    static State stateOf(const QString& path);

    State m_state;
    QImage m_image;
};

} // namespace vardeno::testcharttools
