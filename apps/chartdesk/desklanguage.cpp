#include "desklanguage.h"

#include <translatemanager1.h>

#include <QCoreApplication>
#include <QLibraryInfo>

QLocale localeOf(const QString& code)
{
    const QLocale system = QLocale::system();
    const QLocale named(code);
    const bool isSystems = system.language() == named.language() && system.script() == named.script();
    return isSystems ? system : named;
}

ToolkitTexts::ToolkitTexts(QObject* parent)
    : QTranslator(parent)
{
    QCoreApplication::installTranslator(this);
}

ToolkitTexts::~ToolkitTexts()
{
    QCoreApplication::removeTranslator(this);
}

void ToolkitTexts::switchLanguage(const QString& code)
{
    QCoreApplication::removeTranslator(this);
    // Without such a file, or with an older one, the toolkit's texts stay as they are in the code.
    if (!load(QLatin1String("qtbase_") + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        static_cast<void>(load(QString()));
    QCoreApplication::installTranslator(this);
}

QString ToolkitTexts::translate(const char* context, const char* sourceText, const char* disambiguation,
                                int n) const
{
    if (qstrcmp(sourceText, "Cancel") == 0 || qstrcmp(sourceText, "&Cancel") == 0)
        return vardeno::trans::translate(TranslateManager1::instance().translator(),
                                         QStringLiteral("TestChartTools"), QStringLiteral("Widget"),
                                         QStringLiteral("Cancel"));
    return QTranslator::translate(context, sourceText, disambiguation, n);
}
