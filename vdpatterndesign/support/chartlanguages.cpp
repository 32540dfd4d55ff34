#include "chartlanguages.h"

#include "support/coreresources.h"
#include "translatemanager1.h"

#include <QDir>
#include <QLocale>

#include <algorithm>

namespace vardeno::testcharttools {

namespace {

const QString folder = QStringLiteral(":/vardeno/translations");

QString fileOf(const QString& code)
{
    return QStringLiteral("%1/%2.ts").arg(folder, code);
}

/// What the file calls its language, under the text "English".
QString nameIn(const QString& file, const QString& code)
{
    trans::Translator texts;
    texts.load(file);
    texts.switchLanguage(code);
    return texts.text(QStringLiteral("ChartDesk"), QStringLiteral("MainWindow"), QStringLiteral("English"));
}

QVector<ChartLanguages::Language> readLanguages()
{
    QVector<ChartLanguages::Language> found;
    for (const QString& code : ChartLanguages::codes())
        found.append({code, nameIn(fileOf(code), code), fileOf(code)});
    return found;
}

} // namespace

QStringList ChartLanguages::codes()
{
    ensureCoreResources();
    QStringList codes;
    const QFileInfoList files = QDir(folder).entryInfoList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files)
        codes.append(file.completeBaseName());
    return codes;
}

const QVector<ChartLanguages::Language>& ChartLanguages::list()
{
    static const QVector<Language> all = readLanguages();
    return all;
}

QString ChartLanguages::codeFor(const QLocale& locale)
{
    const auto find = [](auto suits) {
        const auto it = std::find_if(list().cbegin(), list().cend(), suits);
        return it == list().cend() ? QString() : it->code;
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

bool ChartLanguages::load()
{
    const QStringList all = codes();
    return std::count_if(all.cbegin(), all.cend(), [](const QString& code) { return load(code); }) ==
           all.size();
}

bool ChartLanguages::load(const QString& code)
{
    ensureCoreResources();
    return TranslateManager1::instance().translator().load(fileOf(code));
}

} // namespace vardeno::testcharttools
