#include "pngencoder.h"

#include <png.h>

#include <csetjmp>
#include <new>

namespace {

constexpr int chunkSize = 256 * 1024; ///< bytes

bool append(QByteArray& file, const char* bytes, int count) noexcept
{
    try {
        file.append(bytes, count);
        return true;
    } catch (const std::bad_alloc&) { // which libpng's frames do not let through
        return false;
    }
}

void appendBytes(png_structp png, png_bytep bytes, png_size_t count)
{
    auto& file = *static_cast<QByteArray*>(png_get_io_ptr(png));
    if (!append(file, reinterpret_cast<const char*>(bytes), int(count)))
        png_error(png, "not enough memory");
}

/// What is written into `file`. A function of its own, for libpng leaves it by `longjmp` on an error.
bool encode(png_structp png, png_infop info, const QImage& image, int compression, QByteArray& file)
{
    if (setjmp(png_jmpbuf(png)) != 0) // NOLINT(cert-err52-cpp): the way in which libpng reports errors
        return false;
    png_set_write_fn(png, &file, appendBytes, nullptr);
    png_set_compression_buffer_size(png, chunkSize);
    png_set_compression_level(png, compression);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_IHDR(png, info, png_uint_32(image.width()), png_uint_32(image.height()), 8, PNG_COLOR_TYPE_RGB,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_set_filler(png, 0, Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? PNG_FILLER_AFTER : PNG_FILLER_BEFORE);
    if (Q_BYTE_ORDER == Q_LITTLE_ENDIAN)
        png_set_bgr(png);
    for (int row = 0; row < image.height(); ++row)
        png_write_row(png, image.constScanLine(row));
    png_write_end(png, nullptr);
    return true;
}

} // namespace

QByteArray encodePng(const QImage& image, int compression)
{
    const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
    QByteArray file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    const bool written = info && !pixels.isNull() && encode(png, info, pixels, compression, file);
    png_destroy_write_struct(&png, &info);
    return written ? file : QByteArray();
}
