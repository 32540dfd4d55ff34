#include "translatemanager1.h"

TranslateManager1::TranslateManager1() = default;
TranslateManager1::~TranslateManager1() = default;

TranslateManager1& TranslateManager1::instance()
{
    static TranslateManager1 manager;
    return manager;
}

vardeno::trans::Translator& TranslateManager1::translator()
{
    return m_translator;
}

void TranslateManager1::switchLanguage(const QString& language)
{
    m_translator.switchLanguage(language);
    Q_EMIT languageChanged();
}
