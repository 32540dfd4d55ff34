#pragma once

#include <cabinetplan.h>
#include <cableruns.h>
#include <wallfile.h>

#include <QObject>
#include <QUndoStack>

#include <memory>

/// A wall that is edited, with what follows from it, and its history.
class WallModel : public QObject
{
    Q_OBJECT

public:
    explicit WallModel(QObject* parent = nullptr);

    /// Takes the wall of the file `path`, and returns what is wrong with it; then all stays as it was.
    QStringList open(const QString& path);
    /// Writes its file. Returns an empty text, or the reason.
    QString save();
    QString path() const { return m_path; }

    const vardeno::walls::WallDocument& wall() const { return *m_wall; }
    const vardeno::walls::CabinetPlan& plan() const { return *m_plan; }
    /// What is drawn on it, by its file or its document. A default record where that cannot be read.
    vardeno::walls::WallFile::Chart chart() const;
    /// And whether it has coded markers.
    vardeno::testcharttools::MarkerData markers() const;
    /// These are found when they are asked for first.
    const std::vector<QString>& names();
    const std::vector<vardeno::walls::CableRun>& dataRuns();
    const std::vector<vardeno::walls::CableRun>& powerRuns();

    /// A change that the user can take back; `text` names it. Changes of one `series` that follow one another
    /// are one step; an empty one is a series of its own. Nothing happens where `wall` is the wall as it is.
    void change(const QString& text, const vardeno::walls::WallDocument& wall, const QString& series = {});
    /// Undoes the last step where it is of that series, and forgets it: it cannot be redone.
    void takeBack(const QString& series);
    QUndoStack* history() { return &m_history; }

Q_SIGNALS:
    void changed();

private:
    friend class WallChange;
    using Shared = std::shared_ptr<const vardeno::walls::WallDocument>;
    void show(const Shared& wall);

    QString m_path;
    QJsonObject m_document; ///< as it was read, with what is unknown here
    Shared m_wall;
    std::unique_ptr<vardeno::walls::CabinetPlan> m_plan;
    std::unique_ptr<std::vector<QString>> m_names;
    std::unique_ptr<std::vector<vardeno::walls::CableRun>> m_data;
    std::unique_ptr<std::vector<vardeno::walls::CableRun>> m_power;
    QUndoStack m_history;
    bool m_isTakingBack = false;
};
