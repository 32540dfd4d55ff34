#pragma once

#include <testcharttoolsdata.h>

#include <QDateTime>
#include <QJsonObject>
#include <QLockFile>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

/// An edit as it would be gone on with.
struct Draft
{
    QString folder;          ///< of the charts
    QString editedImage;     ///< the chart that is being replaced, empty for a new one
    QByteArray editedDigest; ///< of its record, as it was read
    QJsonObject document;    ///< its record file as it was read, with what is unknown to this program
    vardeno::testcharttools::TestChartToolsData record;
    QDateTime changed; ///< when it was last written; invalid for a draft that was not read
};

/// The folder of one edit: its draft and copies of its pictures. It belongs to the process that holds its
/// lock, and to nobody once that process has ended, however it did.
class DraftFolder
{
public:
    /// Makes one below `root`; null where that cannot be.
    static std::unique_ptr<DraftFolder> create(const QString& root);
    /// Those below `root` that belong to nobody, the latest first; they belong to the caller then.
    static std::vector<std::unique_ptr<DraftFolder>> takeAbandoned(const QString& root);

    QString path() const { return m_path; }
    QString draftPath() const;
    /// Where the pictures lie, as they are to lie in the chart's folder.
    QString picturesPath() const;

    /// The draft in it; nothing of it is to be used where `isValid` is false.
    Draft read(bool* isValid) const;
    /// Whole or not at all; false where it cannot be written.
    bool write(const Draft& draft) const;
    /// The edit has ended.
    void remove();

private:
    DraftFolder(const QString& path, std::unique_ptr<QLockFile> lock);

    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
};

/// Where the desk keeps its drafts.
QString draftsRoot();

/// Writes the draft of an edit at its changes: at once, but at most once a second.
class DraftKeeper : public QObject
{
    Q_OBJECT

public:
    /// `collect` gives the edit as it is.
    explicit DraftKeeper(std::function<Draft()> collect, QObject* parent = nullptr);

    /// Keeps the drafts of an edit in `folder`.
    void start(std::unique_ptr<DraftFolder> folder);
    /// The edit has changed.
    void touch();
    /// The draft goes, the edit does not: what it says is saved.
    void forget();
    /// The edit has ended.
    void end();

    const DraftFolder* folder() const { return m_folder.get(); }

private:
    void write();

    std::function<Draft()> m_collect;
    std::unique_ptr<DraftFolder> m_folder;
    QTimer m_soon;
    QTimer m_pause;
    bool m_isTouched = false;
};
