#include "theme/themefile.h"

#include "support/chartlog.h"
#include "theme.h"
#include "theme/resources.h"
#include "theming.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace vardeno::testcharttools {

namespace {

constexpr char compiledInFolder[] = ":/theme/teststylesheet";
constexpr char themeName[] = "default.testcharttoolstheme";

/// Warns of nothing: what is odd in the compiled-in theme is meant, and no host can mend it.
class QuietThemeLog
{
public:
    explicit QuietThemeLog(bool quiet)
        : m_before(themeLog().isWarningEnabled())
    {
        setThemeWarnings(m_before && !quiet);
    }
    ~QuietThemeLog() { setThemeWarnings(m_before); }
    QuietThemeLog(const QuietThemeLog&) = delete;
    QuietThemeLog& operator=(const QuietThemeLog&) = delete;

private:
    const bool m_before;
};

constexpr qint64 mostBytes = 1024LL * 1024; ///< of a theme or a sheet, which have some ten thousand

/// Which is told.
bool isTooLarge(const QString& file)
{
    const qint64 bytes = QFileInfo(file).size();
    if (bytes > mostBytes)
        qCWarning(themeLog).noquote()
            << file << "is not read:" << bytes << "bytes are more than" << mostBytes;
    return bytes > mostBytes;
}

/// Empty where `folder` has no sheet that can be read.
QString sheetIn(const QDir& folder)
{
    const QStringList sheets = folder.entryList({QStringLiteral("*.qss")}, QDir::Files, QDir::Name);
    QFile file(folder.filePath(sheets.value(0)));
    if (!sheets.isEmpty() && !isTooLarge(file.fileName()) && file.open(QIODevice::ReadOnly))
        return QString::fromUtf8(file.readAll());
    qCDebug(chartLog) << Q_FUNC_INFO << folder.filePath(QStringLiteral("*.qss")) << "not there!";
    return {};
}

} // namespace

QString installedThemeFile()
{
    ensureResources();
    const QString installed =
        QDir::cleanPath(QCoreApplication::applicationDirPath() +
                        QStringLiteral("/../share/themes/testcharttools/") + QLatin1String(themeName));
    return QFileInfo::exists(installed) && !isTooLarge(installed)
               ? installed
               : QLatin1String(compiledInFolder) + QLatin1Char('/') + QLatin1String(themeName);
}

void loadTheme(const QString& file)
{
    auto* theme = new Theme(QStringLiteral("testcharttools.theme"), QCoreApplication::instance());
    QSettings settings(file, QSettings::IniFormat);
    const QuietThemeLog quiet(file.startsWith(QLatin1String(compiledInFolder)));
    theme->readSettings(settings);
    Theme::setCurrentTheme(theme);
}

void extendTheme(const QString& file)
{
    if (!QFileInfo::exists(file) || !Theme::currentTheme() || isTooLarge(file))
        return;
    const QuietThemeLog quiet(file.startsWith(QLatin1String(compiledInFolder)));
    QSettings settings(file, QSettings::IniFormat);
    Theme::currentTheme()->readSettings(settings);
}

QString findStyleSheet(const QString& themeFile)
{
    ensureResources();
    QString css = sheetIn(QFileInfo(themeFile).dir());
    if (css.isEmpty())
        css = sheetIn(QDir(QLatin1String(compiledInFolder)));
    css = Theming::replaceCssColors(css);
    css = Theming::replaceCssImages(css);
    return Theming::replaceCssIntegers(css);
}

} // namespace vardeno::testcharttools
