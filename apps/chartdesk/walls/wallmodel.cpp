#include "wallmodel.h"

#include <cabinetorder.h>

#include <QFileInfo>
#include <QUndoCommand>

using namespace vardeno::walls;

/// The wall before and after a change.
class WallChange : public QUndoCommand
{
public:
    WallChange(WallModel& model, const QString& text, WallModel::Shared after, const QString& series)
        : QUndoCommand(text)
        , m_model(model)
        , m_before(model.m_wall)
        , m_after(std::move(after))
        , m_series(series)
    {
    }

    void undo() override
    {
        setObsolete(m_model.m_isTakingBack); // the history drops it then
        m_model.show(m_before);
    }
    void redo() override { m_model.show(m_after); }
    const QString& series() const { return m_series; }
    int id() const override { return m_series.isEmpty() ? -1 : 1; }

    bool mergeWith(const QUndoCommand* other) override
    {
        const auto* next = static_cast<const WallChange*>(other);
        if (next->m_series != m_series)
            return false;
        m_after = next->m_after;
        return true;
    }

private:
    WallModel& m_model;
    const WallModel::Shared m_before;
    WallModel::Shared m_after;
    const QString m_series;
};

WallModel::WallModel(QObject* parent)
    : QObject(parent)
{
    show(std::make_shared<const WallDocument>());
}

QStringList WallModel::open(const QString& path)
{
    WallFile::Reading reading = WallFile::read(path);
    if (!reading.problems.isEmpty())
        return reading.problems;
    m_path = path;
    m_document = reading.document;
    m_history.clear();
    show(std::make_shared<const WallDocument>(std::move(reading.wall)));
    return {};
}

QString WallModel::save()
{
    const QString problem = WallFile::write(m_path, *m_wall, m_document);
    if (problem.isEmpty())
        m_history.setClean();
    return problem;
}

WallFile::Chart WallModel::chart() const
{
    return WallFile::chartOf(*m_wall, QFileInfo(m_path).absolutePath());
}

vardeno::testcharttools::MarkerData WallModel::markers() const
{
    return WallFile::markersOf(*m_wall, chart().file);
}

const std::vector<QString>& WallModel::names()
{
    if (!m_names)
        m_names = std::make_unique<std::vector<QString>>(cabinetNames(*m_wall, *m_plan, chart().record));
    return *m_names;
}

const std::vector<CableRun>& WallModel::dataRuns()
{
    if (!m_data)
        m_data = std::make_unique<std::vector<CableRun>>(vardeno::walls::dataRuns(*m_wall, *m_plan));
    return *m_data;
}

const std::vector<CableRun>& WallModel::powerRuns()
{
    if (!m_power)
        m_power = std::make_unique<std::vector<CableRun>>(vardeno::walls::powerRuns(*m_wall, *m_plan));
    return *m_power;
}

void WallModel::change(const QString& text, const WallDocument& wall, const QString& series)
{
    if (wall != *m_wall)
        m_history.push(new WallChange(*this, text, std::make_shared<const WallDocument>(wall), series));
}

void WallModel::takeBack(const QString& series)
{
    const auto* last = static_cast<const WallChange*>(m_history.command(m_history.index() - 1));
    if (!last || last->series() != series)
        return;
    m_isTakingBack = true;
    m_history.undo();
    m_isTakingBack = false;
}

void WallModel::show(const Shared& wall)
{
    m_wall = wall;
    m_plan = std::make_unique<CabinetPlan>(*wall);
    m_names.reset();
    m_data.reset();
    m_power.reset();
    Q_EMIT changed();
}
