#include "languages.h"

#include <translatemanager1.h>
#include <translator.h>

#include <QDir>
#include <QLocale>

#include <algorithm>

namespace {

/// What the file calls its language, under the text "English".
QString nameIn(const QString& file, const QString& code)
{
    vardeno::trans::Translator texts;
    texts.load(file);
    texts.switchLanguage(code);
    return texts.text(QStringLiteral("ChartDesk"), QStringLiteral("MainWindow"), QStringLiteral("English"));
}

QString fileOf(const QString& code)
{
    return QStringLiteral(":/translations/%1.ts").arg(code);
}

QVector<Language> readLanguages()
{
    QVector<Language> found;
    for (const QString& code : languageCodes())
        found.append({code, nameIn(fileOf(code), code), fileOf(code)});
    return found;
}

} // namespace

QStringList languageCodes()
{
    QStringList codes;
    const QFileInfoList files = QDir(QStringLiteral(":/translations"))
                                    .entryInfoList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files)
        codes.append(file.completeBaseName());
    return codes;
}

const QVector<Language>& languages()
{
    static const QVector<Language> all = readLanguages();
    return all;
}

QString languageFor(const QLocale& locale)
{
    const auto find = [](auto suits) {
        const auto it = std::find_if(languages().cbegin(), languages().cend(), suits);
        return it == languages().cend() ? QString() : it->code;
    };
    const QString exact = find([&](const Language& candidate) { return candidate.code == locale.name(); });
    const QString related = find(
        [&](const Language& candidate) { return QLocale(candidate.code).language() == locale.language(); });
    for (const QString& code : {exact, related}) {
        if (!code.isEmpty())
            return code;
    }
    return QStringLiteral("en");
}

void chooseLanguage(const QString& code)
{
    TranslateManager1& manager = TranslateManager1::instance();
    manager.translator().load(fileOf(code));
    manager.switchLanguage(code);
}
