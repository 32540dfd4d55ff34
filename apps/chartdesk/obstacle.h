#pragma once

#include <QString>

/// What keeps a file from being written.
enum class Obstacle
{
    None,
    NoPermission,
    ReadOnly,
    NoSpace,
    NotAFolder,
    Gone,
    Other
};

/// The obstacle that the system tells of with the error number `error`, 0 for none.
Obstacle obstacleOf(int error);

/// Finds out by trying what keeps a chart from being written into `folder`, which is made for it if need be.
Obstacle obstacleIn(const QString& folder);

/// A sentence on it, in the language of the window.
QString obstacleText(Obstacle obstacle, const QString& folder);
