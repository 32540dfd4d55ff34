#pragma once

#include <finding.h>

#include <QJsonObject>

/// What is wrong with a picture, for programs: `docs/commandline.md` describes it.
QJsonObject findingJson(const ChartComparison::Finding& finding);
