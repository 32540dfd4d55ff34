#include "hosttext.h"

#include "languages.h"

#include <translatemanager1.h>

using vardeno::trans::Translator;

namespace {

QStringList readChartNames()
{
    const QString source = QStringLiteral("TestImage");
    QStringList names = {source};
    Translator texts;
    for (const Language& language : languages()) {
        texts.load(language.file);
        texts.switchLanguage(language.code);
        names.append(texts.text(QStringLiteral("TestChartTools"), QStringLiteral("Widget"), source));
    }
    names.removeDuplicates();
    return names;
}

} // namespace

QString hostText(const QString& source)
{
    return vardeno::trans::translate(TranslateManager1::instance().translator(), QStringLiteral("ChartDesk"),
                                     QStringLiteral("MainWindow"), source);
}

QString hostTitle(const QString& source)
{
    return hostText(source).remove(QChar(0x2026));
}

QStringList chartNames()
{
    static const QStringList names = readChartNames();
    return names;
}
