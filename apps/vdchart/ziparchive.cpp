#include "ziparchive.h"

#include "exitcode.h"

#include <limits>

#include <sys/stat.h>

namespace {

Failure zipFailure(const QString& name, const QString& why)
{
    return {ExitCode::Unreadable, QStringLiteral("%1: %2").arg(name, why)};
}

Failure noMemoryForZip()
{
    return {ExitCode::NotWritten, QStringLiteral("not enough memory for the pack")};
}

struct CloseFile
{
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

} // namespace

ZipReader::ZipReader(const QByteArray& bytes, const QString& name)
    : m_bytes(bytes)
    , m_name(name)
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source =
        zip_source_buffer_create(m_bytes.constData(), zip_uint64_t(m_bytes.size()), 0, &error);
    m_archive.reset(source ? zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error) : nullptr);
    const QString why = QString::fromUtf8(zip_error_strerror(&error));
    zip_error_fini(&error);
    if (m_archive)
        return;
    zip_source_free(source);
    throw zipFailure(m_name, QStringLiteral("not a pack of a show: ") + why);
}

int ZipReader::count() const
{
    return int(qMin<zip_int64_t>(zip_get_num_entries(m_archive.get(), 0), std::numeric_limits<int>::max()));
}

ZipReader::Entry ZipReader::entry(int index) const
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    const auto at = zip_uint64_t(index);
    const char* path = zip_get_name(m_archive.get(), at, ZIP_FL_ENC_RAW);
    constexpr zip_uint64_t wanted = ZIP_STAT_SIZE | ZIP_STAT_ENCRYPTION_METHOD;
    if (!path || zip_stat_index(m_archive.get(), at, 0, &stat) != 0 || (stat.valid & wanted) != wanted ||
        stat.size > zip_uint64_t(std::numeric_limits<qint64>::max()))
        throw zipFailure(m_name, QStringLiteral("file %1 of it cannot be read").arg(index + 1));
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    zip_file_get_external_attributes(m_archive.get(), at, 0, &system, &attributes);
    const auto kind = (attributes >> 16) & S_IFMT;
    return {path, qint64(stat.size), system != ZIP_OPSYS_UNIX || kind == 0 || kind == S_IFREG,
            stat.encryption_method != ZIP_EM_NONE};
}

QByteArray ZipReader::contents(int index) const
{
    const Entry told = entry(index);
    const auto refuse = [&](const char* why) {
        return zipFailure(m_name,
                          QStringLiteral("%1: %2").arg(QString::fromUtf8(told.path), QLatin1String(why)));
    };
    const std::unique_ptr<zip_file_t, CloseFile> file(
        zip_fopen_index(m_archive.get(), zip_uint64_t(index), 0));
    if (!file)
        throw refuse(zip_strerror(m_archive.get()));
    QByteArray bytes(int(told.bytes), Qt::Uninitialized);
    zip_int64_t read = 0;
    while (read < told.bytes) {
        const zip_int64_t part = zip_fread(file.get(), bytes.data() + read, zip_uint64_t(told.bytes - read));
        if (part <= 0)
            throw refuse("it is damaged");
        read += part;
    }
    char more = 0;
    if (zip_fread(file.get(), &more, 1) != 0) // by then the checksum has been looked at, too
        throw refuse("it is damaged, or larger than the pack says");
    return bytes;
}

ZipWriter::ZipWriter()
{
    zip_error_t error;
    zip_error_init(&error);
    m_source = zip_source_buffer_create(nullptr, 0, 0, &error);
    if (m_source) {
        zip_source_keep(m_source);
        m_archive = zip_open_from_source(m_source, ZIP_TRUNCATE, &error);
    }
    zip_error_fini(&error);
    if (!m_archive)
        throw noMemoryForZip();
}

ZipWriter::~ZipWriter()
{
    if (m_archive)
        zip_discard(m_archive);
    zip_source_free(m_source);
}

void ZipWriter::add(const QString& path, const QByteArray& bytes)
{
    m_added.push_back(bytes);
    zip_source_t* source =
        zip_source_buffer(m_archive, m_added.back().constData(), zip_uint64_t(bytes.size()), 0);
    const zip_int64_t index =
        source ? zip_file_add(m_archive, path.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) : -1;
    constexpr zip_uint16_t firstDay = (1 << 5) | 1; // of 1980, where the format's time begins
    if (index >= 0 && zip_file_set_dostime(m_archive, zip_uint64_t(index), 0, firstDay, 0) == 0)
        return;
    if (index < 0)
        zip_source_free(source);
    throw noMemoryForZip();
}

QByteArray ZipWriter::finish()
{
    if (zip_close(m_archive) != 0)
        throw noMemoryForZip();
    m_archive = nullptr;
    zip_source_open(m_source);
    zip_source_seek(m_source, 0, SEEK_END);
    QByteArray bytes(int(zip_source_tell(m_source)), Qt::Uninitialized);
    zip_source_seek(m_source, 0, SEEK_SET);
    const zip_int64_t read = zip_source_read(m_source, bytes.data(), zip_uint64_t(bytes.size()));
    zip_source_close(m_source);
    if (read != bytes.size())
        throw noMemoryForZip();
    return bytes;
}
