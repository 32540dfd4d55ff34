#pragma once

#include <chartlanguages.h>
#include <translatemanager1.h>

/// The programs speak what the library speaks.
using Language = vardeno::testcharttools::ChartLanguages::Language;

inline QStringList languageCodes()
{
    return vardeno::testcharttools::ChartLanguages::codes();
}

inline const QVector<Language>& languages()
{
    return vardeno::testcharttools::ChartLanguages::list();
}

inline QString languageFor(const QLocale& locale)
{
    return vardeno::testcharttools::ChartLanguages::codeFor(locale);
}

/// Loads the texts of the language `code` and makes it the language of the process. An editor that is
/// already there has its own way to another language.
inline void chooseLanguage(const QString& code)
{
    vardeno::testcharttools::ChartLanguages::load(code);
    TranslateManager1::instance().switchLanguage(code);
}
