#include "draftkeeper.h"

#include <chartrecordfile.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUuid>

using namespace vardeno::testcharttools;

namespace {

constexpr int draftPause = 1000; ///< ms between two drafts on the disk

std::unique_ptr<QLockFile> lockOf(const QString& folder)
{
    auto lock = std::make_unique<QLockFile>(folder + QLatin1String(".lock"));
    lock->setStaleLockTime(0); // an edit may take days; a lock is stale when its process has ended
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

QJsonObject toJson(const Draft& draft)
{
    const QByteArray record = ChartRecordFile::toJson(draft.record, draft.document);
    return {{QStringLiteral("folder"), draft.folder},
            {QStringLiteral("image"), draft.editedImage},
            {QStringLiteral("digest"), QString::fromLatin1(draft.editedDigest)},
            {QStringLiteral("original"), draft.document},
            {QStringLiteral("record"), QJsonDocument::fromJson(record).object()}};
}

} // namespace

std::unique_ptr<DraftFolder> DraftFolder::create(const QString& root)
{
    const QString path = root + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::Id128);
    QDir().mkpath(root);
    auto lock = lockOf(path);
    if (!lock || !QDir().mkpath(path))
        return nullptr;
    return std::unique_ptr<DraftFolder>(new DraftFolder(path, std::move(lock)));
}

std::vector<std::unique_ptr<DraftFolder>> DraftFolder::takeAbandoned(const QString& root)
{
    std::vector<std::unique_ptr<DraftFolder>> found;
    const QFileInfoList folders = QDir(root).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time);
    for (const QFileInfo& folder : folders) {
        auto lock = lockOf(folder.filePath());
        if (!lock)
            continue;
        std::unique_ptr<DraftFolder> draft(new DraftFolder(folder.filePath(), std::move(lock)));
        if (QFileInfo::exists(draft->draftPath()))
            found.push_back(std::move(draft));
        else
            draft->remove();
    }
    return found;
}

DraftFolder::DraftFolder(const QString& path, std::unique_ptr<QLockFile> lock)
    : m_path(path)
    , m_lock(std::move(lock))
{
}

QString DraftFolder::draftPath() const
{
    return m_path + QLatin1String("/draft.json");
}

QString DraftFolder::picturesPath() const
{
    return m_path + QLatin1String("/files");
}

Draft DraftFolder::read(bool* isValid) const
{
    QFile file(draftPath());
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QJsonObject json = QJsonDocument::fromJson(isOpen ? file.readAll() : QByteArray()).object();
    const QByteArray record = QJsonDocument(json.value(QLatin1String("record")).toObject()).toJson();
    const auto reading = ChartRecordFile::fromJson(record);
    *isValid = json.contains(QLatin1String("record")) && reading.problems.isEmpty();
    return {json.value(QLatin1String("folder")).toString(),
            json.value(QLatin1String("image")).toString(),
            json.value(QLatin1String("digest")).toString().toLatin1(),
            json.value(QLatin1String("original")).toObject(),
            reading.record,
            QFileInfo(file).lastModified()};
}

bool DraftFolder::write(const Draft& draft) const
{
    QSaveFile file(draftPath());
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(toJson(draft)).toJson()) > 0 &&
           file.flush() && file.commit(); // which alone does not see a full disk
}

void DraftFolder::remove()
{
    QDir(m_path).removeRecursively();
    m_lock->unlock();
}

QString draftsRoot()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1String("/drafts");
}

DraftKeeper::DraftKeeper(std::function<Draft()> collect, QObject* parent)
    : QObject(parent)
    , m_collect(std::move(collect))
{
    m_soon.setSingleShot(true); // a change tells of itself many times
    m_pause.setSingleShot(true);
    m_pause.setInterval(draftPause);
    connect(&m_soon, &QTimer::timeout, this, &DraftKeeper::write);
    connect(&m_pause, &QTimer::timeout, this, [this] {
        if (m_isTouched)
            write();
    });
}

void DraftKeeper::start(std::unique_ptr<DraftFolder> folder)
{
    m_folder = std::move(folder);
}

void DraftKeeper::touch()
{
    m_isTouched = true;
    if (m_folder && !m_pause.isActive())
        m_soon.start(0);
}

void DraftKeeper::forget()
{
    m_isTouched = false;
    m_soon.stop();
    if (m_folder)
        QFile::remove(m_folder->draftPath());
}

void DraftKeeper::end()
{
    forget();
    if (m_folder)
        m_folder->remove();
    m_folder.reset();
}

void DraftKeeper::write()
{
    if (!m_folder)
        return;
    m_isTouched = false;
    m_folder->write(m_collect());
    m_pause.start();
}
