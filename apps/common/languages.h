#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QLocale;

/// A language that the programs speak.
struct Language
{
    QString code; ///< as a language file names it: "en", "zh_CN"
    QString name; ///< in the language itself
    QString file; ///< where its texts are, in the program's resources
};

/// The codes of all of them, sorted. A language file in the resources is all that it takes to be one.
QStringList languageCodes();

/// All of them, sorted by code. Reads their names from their files.
const QVector<Language>& languages();

/// The code of the language that suits `locale` best: that of its language and country, else one of its
/// language, else English.
QString languageFor(const QLocale& locale);

/// Loads the texts of the language `code` and makes it the language of the process. A chart tool that is
/// already there has its own way to another language.
void chooseLanguage(const QString& code);
