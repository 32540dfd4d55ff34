#pragma once

#include "vdchartcore_export.h"

#include <translator.h>

#include <QObject>

/// The one translator of the process, shared by all editors and by the host.
///
/// The host loads language files into `translator()`. The language of an editor that is already built is
/// switched with the tool's own `switchLanguage`, which also renews its texts; `switchLanguage` here only
/// changes what later look-ups answer. GUI thread only, except that `instance()` may be called from any
/// thread.
class VDCHARTCORE_EXPORT TranslateManager1 : public QObject
{
    Q_OBJECT

public:
    static TranslateManager1& instance();
    ~TranslateManager1() override;

    vardeno::trans::Translator& translator();

    /// Makes `language` current ("en", "zh_CN") and emits `languageChanged`.
    void switchLanguage(const QString& language);

Q_SIGNALS:
    void languageChanged();

private:
    TranslateManager1();

    vardeno::trans::Translator m_translator;
};
