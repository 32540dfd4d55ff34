#include "languages.h"

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

QVector<Language> readLanguages()
{
    QVector<Language> found;
    const QFileInfoList files = QDir(QStringLiteral(":/translations"))
                                    .entryInfoList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        const QString code = file.completeBaseName();
        found.append({code, nameIn(file.filePath(), code), file.filePath()});
    }
    return found;
}

} // namespace

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
