#include "require.h"
#include "theme.h"
#include "theming.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdint>

using namespace vardeno::testcharttools;

namespace {

/// The values of the theme that was read first stay those of the process.
void useValuesOf(const Theme& theme)
{
    const_cast<QVariantMap&>(Theming::themeValues()) = theme.values();
}

/// The toolkit remembers what files it has read by their names.
QString writtenFile(const QByteArray& content)
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/theme-XXXXXX"));
    static int number = 0;
    const QString path = folder.filePath(QString::number(++number));
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "there is room");
    return path;
}

void checkValues(const Theme& theme)
{
    const QVariantMap values = theme.values();
    for (const QVariant& value : values)
        require(value.userType() == QMetaType::QColor || value.userType() == QMetaType::QString ||
                    value.userType() == QMetaType::Int,
                "a value is a color, a path or a number");
    require(!theme.displayName().isNull(), "a theme has a name");
}

void checkSheet(const QString& sheet)
{
    Theming::replaceCssColors(sheet);
    Theming::replaceCssImages(sheet);
    Theming::replaceCssIntegers(sheet);
    if (!sheet.contains(QLatin1String("testcharttools.theme."))) {
        require(Theming::replaceCssColors(sheet) == sheet, "a sheet without placeholders stays");
        require(Theming::replaceCssImages(sheet) == sheet, "a sheet without placeholders stays");
        require(Theming::replaceCssIntegers(sheet) == sheet, "a sheet without placeholders stays");
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments)
{
    static const QCoreApplication application(*count, *arguments);
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

/// A theme, a zero byte, and a style sheet.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    const int end = bytes.indexOf('\0');
    const QString path = writtenFile(bytes.left(end));
    Theme theme(QStringLiteral("fuzzed"));
    {
        QSettings settings(path, QSettings::IniFormat);
        theme.readSettings(settings);
    }
    QFile::remove(path);
    checkValues(theme);
    useValuesOf(theme);
    checkSheet(QString::fromUtf8(end < 0 ? bytes : bytes.mid(end + 1)));
    return 0;
}
