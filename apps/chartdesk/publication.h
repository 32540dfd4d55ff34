#pragma once

#include "chartstore.h"

#include <QByteArray>
#include <QObject>
#include <QThread>

#include <functional>
#include <memory>

/// A saved chart on its way to the others, and the one that it replaces out of it: all that waits for the
/// disk. For any thread; the store outlives it.
struct Publication
{
    /// What came of it: `image` where the chart stands now, or else what went wrong.
    struct Outcome
    {
        QString image;
        QString problem;
        QByteArray digest;           ///< of the record that was written
        bool isReplacedKept = false; ///< somebody else has changed it
    };

    QString stagedImage;
    vardeno::testcharttools::TestChartToolsData record;
    QJsonObject document; ///< with members that are kept
    QString picture;      ///< its place in the chart's folder
    QString replaced;     ///< the chart that it takes the place of, empty for none
    QByteArray replacedDigest;

    Outcome publish(const ChartStore& store) const;
};

/// Publishes one chart at a time, in a thread of its own.
class Publisher : public QObject
{
public:
    ~Publisher() override;

    bool isBusy() const { return m_thread != nullptr; }
    /// `store` outlives it, or `drop`.
    void start(const Publication& publication, const ChartStore& store,
               const std::function<void(const Publication::Outcome&)>& done);
    /// Waits until what has begun is done; nobody hears of it.
    void drop();

private:
    std::unique_ptr<QThread> m_thread;
    std::shared_ptr<Publication::Outcome> m_outcome;
};
