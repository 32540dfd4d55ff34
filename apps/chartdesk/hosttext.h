#pragma once

#include <QString>

/// The host's own texts, translated by the same translator as the editor's.
QString hostText(const QString& source);
