#pragma once

#include "shownchart.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QThreadPool>

/// Reads charts ahead, on a thread of its own, so that the next one is shown at once.
class ChartReader : public QObject
{
    Q_OBJECT

public:
    explicit ChartReader(QObject* parent = nullptr);
    ~ChartReader() override;

    /// Keeps and reads these, the first of them first, as many as there is room for; the others go.
    void want(const QStringList& paths);
    /// Null before it is read, and where its file has changed since.
    const ShownChart* find(const QString& path) const;

Q_SIGNALS:
    void read(const QString& path);

private:
    void begin(const QString& path);
    void take(const QString& path, const ShownChart& chart);

    QThreadPool m_pool;
    QStringList m_wanted;
    QSet<QString> m_begun;
    QHash<QString, ShownChart> m_charts;
};
