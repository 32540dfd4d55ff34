#pragma once

// What the blocks of docs/embedding.md take for granted.

#include <chartlanguages.h>
#include <chartrecordfile.h>
#include <defaultlogo.h>
#include <vtestcharttools.h>

#include <QDialog>
#include <QLocale>
#include <QVBoxLayout>

using namespace vardeno::testcharttools;

inline void tell(const QStringList&) {}

#define GUIDE_ARGUMENTS                                                                                      \
    [[maybe_unused]] VTestChartTools *editor, [[maybe_unused]] QWidget *mainWindow,                          \
        [[maybe_unused]] const QString &folder, [[maybe_unused]] const QString &path,                        \
        [[maybe_unused]] const QString &pathOfTheChartToReplace,                                             \
        [[maybe_unused]] const TestChartToolsData &storedRecord,                                             \
        [[maybe_unused]] const TestChartToolsData &record
