#pragma once

#include "vdtranslate_export.h"

#include <QHash>
#include <QString>

namespace vardeno::trans {

/// Texts in several languages, read from Qt Linguist's `.ts` files.
///
/// A text is looked up by module, context and source text. In a file the module and the context stand
/// together as the name of the Linguist context, "<module>::<context>". A file names its language in the
/// `language` attribute of its root element ("en", "zh_CN"); any number of files may be loaded, also several
/// for one language, where the later file wins text by text.
///
/// The `.ts` file itself is read, not the compiled `.qm`: a damaged XML file is refused as a whole, while a
/// damaged `.qm` can take the process down with it.
///
/// Copyable value; not thread-safe.
class VDTRANSLATE_EXPORT Translator
{
public:
    Translator();
    ~Translator();

    /// Adds the translations in the language file `file`. Texts marked obsolete or vanished and texts without
    /// a translation are skipped. Returns false, says why in a warning of the category "vardeno.translate",
    /// and changes nothing when the file is missing, unreadable, truncated, not a `.ts` file, or names no
    /// language.
    bool load(const QString& file);

    /// Makes `language` ("en", "zh_CN"; "zh-CN" is the same) the language of later look-ups. A language that
    /// no file has been loaded for is accepted: its texts are their own translation.
    void switchLanguage(const QString& language);

    /// The current language, empty before the first switch.
    QString language() const;

    /// The text for `source` in the current language, or `source` itself when there is none. What a loaded
    /// language lacks is logged in the category "vardeno.translate", which is silent unless it is enabled.
    QString text(const QString& module, const QString& context, const QString& source) const;

private:
    using Texts = QHash<QString, QString>; ///< key (module, context, source) to translation

    QHash<QString, Texts> m_languages;
    QString m_language;
};

/// `translator.text(module, context, source)`: the form in which the library and its hosts look texts up.
VDTRANSLATE_EXPORT QString translate(const Translator& translator, const QString& module,
                                     const QString& context, const QString& source);

} // namespace vardeno::trans
