#include "testcase.h"

#include <QFileInfo>
#include <QFont>
#include <QHashFunctions>
#include <QLocale>
#include <QStandardPaths>

void TestCase::init()
{
    log().start();
    // The offscreen platform's own, for every window of a fixed size.
    log().allowWarning(QStringLiteral("^This plugin does not support propagateSizeHints"));
    log().allowWarning(QStringLiteral("^This plugin does not support raise"));
    // The X server's, when a window is gone before it gets the focus.
    log().allowWarning(QStringLiteral("^QXcbConnection: XCB error: 8 \\(BadMatch\\).*SetInputFocus"));
}

void TestCase::cleanup()
{
    log().stop();
    const QStringList warnings = log().undeclaredWarnings();
    if (!warnings.isEmpty())
        QFAIL(qPrintable(QStringLiteral("undeclared warnings:\n") + warnings.join(QLatin1Char('\n'))));
}

QString imageDifference(const QImage& actual, const QImage& expected)
{
    if (actual == expected)
        return QString();
    if (actual.size() != expected.size())
        return QStringLiteral("%1 x %2 instead of %3 x %4")
            .arg(actual.width())
            .arg(actual.height())
            .arg(expected.width())
            .arg(expected.height());
    const QImage a = actual.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage e = expected.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int count = 0;
    QString first;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) == e.pixel(x, y))
                continue;
            if (count++ == 0)
                first = QStringLiteral("(%1, %2) is %3 instead of %4")
                            .arg(x)
                            .arg(y)
                            .arg(a.pixel(x, y), 8, 16, QLatin1Char('0'))
                            .arg(e.pixel(x, y), 8, 16, QLatin1Char('0'));
        }
    }
    return count == 0 ? QString() : QStringLiteral("%1 pixels differ, first %2").arg(count).arg(first);
}

void prepareTestProcess()
{
    qSetGlobalQHashSeed(0);
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    qunsetenv("QT_STYLE_OVERRIDE");
    qunsetenv("QT_SCALE_FACTOR");
    QLocale::setDefault(QLocale::c());
    QStandardPaths::setTestModeEnabled(true);
}

void prepareTestApplication()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    QFont font(QStringLiteral("DejaVu Sans"), 9);
    font.setHintingPreference(
        QFont::PreferFullHinting); // otherwise large glyphs depend on what was drawn before
    QApplication::setFont(font);
}

int rounds(int all)
{
    return VD_ALL_ROUNDS || qEnvironmentVariableIsSet("VD_ALL_ROUNDS") ? all : all / 10;
}

QString sourcePath(const char* path)
{
    return QStringLiteral(VD_SOURCE_DIR "/") + QLatin1String(path);
}

QString programPath(const char* name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name);
}
