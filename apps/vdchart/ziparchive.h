#pragma once

#include <QByteArray>
#include <QString>

#include <zip.h>

#include <memory>
#include <vector>

/// A zip archive in memory, to be read. Throws Failure with `name` for bytes that are none.
class ZipReader
{
public:
    ZipReader(const QByteArray& bytes, const QString& name);

    int count() const;

    /// What the archive says of a file, which is not read for it.
    struct Entry
    {
        QByteArray path;
        qint64 bytes = 0; ///< when it is inflated
        bool isRegular = true;
        bool isEncrypted = false;
    };
    Entry entry(int index) const;

    /// Throws Failure where it is not as large as the archive says, or damaged.
    QByteArray contents(int index) const;

private:
    struct Discard
    {
        void operator()(zip_t* archive) const { zip_discard(archive); }
    };
    const QByteArray m_bytes;
    const QString m_name;
    std::unique_ptr<zip_t, Discard> m_archive;
};

/// A zip archive that is made in memory. Its bytes depend on what is added only, not on the time. Throws
/// Failure where there is not enough memory.
class ZipWriter
{
public:
    ZipWriter();
    ~ZipWriter();
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;

    void add(const QString& path, const QByteArray& bytes);
    /// Nothing can be added any more.
    QByteArray finish();

private:
    zip_source_t* m_source = nullptr; ///< what is written
    zip_t* m_archive = nullptr;
    std::vector<QByteArray> m_added; ///< the archive refers to it until it is finished
};
