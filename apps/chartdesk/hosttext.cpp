#include "hosttext.h"

#include "languages.h"

#include <translatemanager1.h>

using vardeno::trans::Translator;

namespace {

QString textOf(const Translator& translator, const QString& source)
{
    return vardeno::trans::translate(translator, QStringLiteral("ChartDesk"), QStringLiteral("MainWindow"),
                                     source);
}

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
    return textOf(TranslateManager1::instance().translator(), source);
}

std::function<QString(const char*)> hostTexts()
{
    return [translator = TranslateManager1::instance().translator()](const char* source) {
        return textOf(translator, QString::fromUtf8(source));
    };
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
