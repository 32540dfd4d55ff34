#pragma once

#include "chartfont.h"
#include "languages.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QStandardPaths>

/// As the chart desk begins, in English, with settings of its own and without the library's log.
class PreparedApplication
{
public:
    PreparedApplication(int& argc, char** argv)
        : m_application(argc, argv)
    {
        QStandardPaths::setTestModeEnabled(true);
        QLoggingCategory::setFilterRules(QStringLiteral("vardeno.*=false"));
        QApplication::setFont(chartFont());
        chooseLanguage(QStringLiteral("en"));
    }

private:
    QApplication m_application;
};
