#pragma once

#include <QSettings>

/// What the desk remembers of its user, in a file of its own.
QSettings deskSettings();
