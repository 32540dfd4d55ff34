#pragma once

#include <QString>
#include <QVector>

class QLocale;

/// A language of the chart desk.
struct Language
{
    QString code; ///< as a language file names it: "en", "zh_CN"
    QString name; ///< in the language itself
    QString file; ///< where its texts are, in the program's resources
};

/// All of them, sorted by code. A language file in the resources is all that it takes to be one.
const QVector<Language>& languages();

/// The code of the language that suits `locale` best: that of its language and country, else one of its
/// language, else English.
QString languageFor(const QLocale& locale);
