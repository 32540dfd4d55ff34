#pragma once

#include <QString>

/// A bar on the terminal that the standard error goes to; nothing where that is none.
class ProgressBar
{
public:
    explicit ProgressBar(int total);
    ~ProgressBar();

    /// `done` of the total, `name` the one that is worked on.
    void show(int done, const QString& name) const;

private:
    int m_total;
    bool m_isTerminal;
};
