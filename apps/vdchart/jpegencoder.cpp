#include "jpegencoder.h"

#include <array>
#include <csetjmp>
#include <cstdio>
#include <exception>
#include <new>

#include <jpeglib.h>

using namespace vardeno::testcharttools;

namespace {

constexpr int quality = 100;
constexpr int rowsAtOnce = 64;

/// The library leaves by `longjmp` where it fails, so that no frame between may hold what is to be destroyed;
/// and lets nothing that is thrown through.
class JpegFile
{
public:
    explicit JpegFile(const ByteSink& sink);
    ~JpegFile() { jpeg_destroy_compress(&m_jpeg); }
    JpegFile(const JpegFile&) = delete;
    JpegFile& operator=(const JpegFile&) = delete;

    void begin(const QSize& size);
    void addRows(const QImage& rows);
    void end();

private:
    using Step = void (*)(JpegFile& file, const QImage& rows);
    void run(Step step, const QImage& rows = {});
    void empty(std::size_t count) noexcept;

    static JpegFile& of(j_common_ptr jpeg) { return *static_cast<JpegFile*>(jpeg->client_data); }
    static JpegFile& of(j_compress_ptr jpeg) { return *static_cast<JpegFile*>(jpeg->client_data); }

    const ByteSink& m_sink;
    jpeg_compress_struct m_jpeg{};
    jpeg_error_mgr m_errors{};
    jpeg_destination_mgr m_destination{};
    std::jmp_buf m_failed{};
    std::array<JOCTET, 65536> m_buffer{};
    std::exception_ptr m_thrown; ///< by the sink
};

JpegFile::JpegFile(const ByteSink& sink)
    : m_sink(sink)
{
    m_jpeg.err = jpeg_std_error(&m_errors);
    m_jpeg.client_data = this;
    m_errors.error_exit = [](j_common_ptr jpeg) { std::longjmp(of(jpeg).m_failed, 1); };
    m_errors.output_message = [](j_common_ptr) {};
    m_destination.init_destination = [](j_compress_ptr jpeg) {
        JpegFile& file = of(jpeg);
        file.m_destination.next_output_byte = file.m_buffer.data();
        file.m_destination.free_in_buffer = file.m_buffer.size();
    };
    m_destination.empty_output_buffer = [](j_compress_ptr jpeg) -> boolean {
        of(jpeg).empty(of(jpeg).m_buffer.size());
        return TRUE;
    };
    m_destination.term_destination = [](j_compress_ptr jpeg) {
        of(jpeg).empty(of(jpeg).m_buffer.size() - of(jpeg).m_destination.free_in_buffer);
    };
}

/// Hands over the first bytes of the buffer.
void JpegFile::empty(std::size_t count) noexcept
{
    try {
        if (!m_thrown)
            m_sink(reinterpret_cast<const char*>(m_buffer.data()), qint64(count));
    } catch (...) {
        m_thrown = std::current_exception();
    }
    m_destination.next_output_byte = m_buffer.data();
    m_destination.free_in_buffer = m_buffer.size();
}

void JpegFile::run(Step step, const QImage& rows)
{
    if (setjmp(m_failed) != 0)  // NOLINT(cert-err52-cpp): the way in which the library reports errors
        throw std::bad_alloc(); // the only one that is left for a picture of a chart's size
    step(*this, rows);
    if (m_thrown)
        std::rethrow_exception(m_thrown);
}

void JpegFile::begin(const QSize& size)
{
    run([](JpegFile& file, const QImage&) {
        jpeg_create_compress(&file.m_jpeg);
        file.m_jpeg.dest = &file.m_destination;
    });
    m_jpeg.image_width = JDIMENSION(size.width());
    m_jpeg.image_height = JDIMENSION(size.height());
    m_jpeg.input_components = 3;
    m_jpeg.in_color_space = JCS_RGB;
    run([](JpegFile& file, const QImage&) {
        jpeg_compress_struct& jpeg = file.m_jpeg;
        jpeg_set_defaults(&jpeg);
        jpeg_set_quality(&jpeg, quality, TRUE);
        jpeg.comp_info[0].h_samp_factor = jpeg.comp_info[0].v_samp_factor = 1; // as the colours have it
        jpeg.density_unit = 1;                                                 // inches
        jpeg.X_density = jpeg.Y_density = dotsPerInch;
        jpeg_start_compress(&jpeg, TRUE);
    });
}

void JpegFile::addRows(const QImage& rows)
{
    run(
        [](JpegFile& file, const QImage& image) {
            for (int y = 0; y < image.height(); ++y) {
                auto* row = const_cast<JSAMPROW>(image.constScanLine(y));
                jpeg_write_scanlines(&file.m_jpeg, &row, 1);
            }
        },
        rows);
}

void JpegFile::end()
{
    run([](JpegFile& file, const QImage&) { jpeg_finish_compress(&file.m_jpeg); });
}

} // namespace

void encodeJpeg(const PictureRows& picture, const ByteSink& sink)
{
    JpegFile file(sink);
    file.begin(picture.size);
    const int height = picture.stripHeight();
    for (int top = 0; top < picture.size.height(); top += height) {
        const QImage strip = picture.rows(top, qMin(height, picture.size.height() - top));
        for (int y = 0; y < strip.height(); y += rowsAtOnce)
            file.addRows(strip.copy(0, y, strip.width(), qMin(rowsAtOnce, strip.height() - y))
                             .convertToFormat(QImage::Format_RGB32)
                             .convertToFormat(QImage::Format_RGB888));
    }
    file.end();
}
