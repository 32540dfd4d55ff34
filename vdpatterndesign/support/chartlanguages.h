#pragma once

#include "vdchartcore_export.h"

#include <QString>
#include <QStringList>
#include <QVector>

class QLocale;

namespace vardeno::testcharttools {

/// The languages that the library carries, compiled in. A host calls `load()` once and then the editor's
/// `switchLanguage` with one of the codes; English, too, is a language to load: the sources of the texts are
/// keys.
class VDCHARTCORE_EXPORT ChartLanguages
{
public:
    struct Language
    {
        QString code; ///< as a language file names it: "en", "zh_CN"
        QString name; ///< in the language itself: "Deutsch"
        QString file; ///< where its texts are, for `VTestChartTools::loadLanguageFiles`
    };

    /// The codes of all of them, sorted.
    static QStringList codes();

    /// All of them, sorted by code.
    static const QVector<Language>& list();

    /// The code of the language that suits `locale` best: that of its language and country, else one of its
    /// language, else English.
    static QString codeFor(const QLocale& locale);

    /// Loads all of them into the process's translator; false, with a warning for each, where one cannot be
    /// read. GUI thread only.
    static bool load();

    /// Loads that one alone.
    static bool load(const QString& code);
};

} // namespace vardeno::testcharttools
