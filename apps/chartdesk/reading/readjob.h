#pragma once

#include "wallread.h"

#include <QObject>

#include <memory>

/// Reads a photo on a thread of its own. Whoever does not want to wait destroys it: nothing is told then, and
/// the thread ends soon.
class ReadJob : public QObject
{
    Q_OBJECT

public:
    ReadJob(const QString& photo, const QString& chart, QObject* parent);
    ~ReadJob() override;

Q_SIGNALS:
    void done(const WallRead& read);

private:
    struct Shared;
    std::shared_ptr<Shared> m_shared;
};
