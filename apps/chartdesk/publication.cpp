#include "publication.h"

#include "charttags.h"

#include <QFileInfo>

Publication::Outcome Publication::publish(const ChartStore& store) const
{
    const auto published = store.publish(stagedImage, record, document, picture);
    Outcome outcome = {published.image, published.problem, {}, false};
    if (outcome.image.isEmpty())
        return outcome;
    if (!pathWithin(store.folder(), replaced).isEmpty()) {
        ChartTags::set(outcome.image, ChartTags::of(replaced));
        if (recordDigest(replaced) == replacedDigest)
            removeChartFiles(replaced);
        else
            outcome.isReplacedKept = QFileInfo::exists(replaced);
    }
    outcome.digest = recordDigest(outcome.image);
    return outcome;
}

Publisher::~Publisher()
{
    drop();
}

void Publisher::start(const Publication& publication, const ChartStore& store,
                      const std::function<void(const Publication::Outcome&)>& done)
{
    const auto outcome = std::make_shared<Publication::Outcome>();
    m_outcome = outcome;
    m_thread.reset(
        QThread::create([publication, outcome, &store] { *outcome = publication.publish(store); }));
    connect(m_thread.get(), &QThread::finished, this, [this, outcome, done] {
        if (m_outcome != outcome)
            return; // it was dropped, and its end was on its way
        m_thread.release()->deleteLater();
        m_outcome.reset();
        done(*outcome);
    });
    m_thread->start();
}

void Publisher::drop()
{
    if (m_thread)
        m_thread->wait();
    m_thread.reset();
    m_outcome.reset();
}
