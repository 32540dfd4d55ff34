#include "testcase.h"

#include <chartrecordfile.h>
#include <vtestcharttools.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

using namespace vardeno::testcharttools;

namespace {

constexpr char drawArgument[] = "--draw";

// Everything that a host's style sheet might do to a chart whose layers are labels.
constexpr char foreignSheet[] =
    "* { color: red; background-color: yellow; border: 3px solid blue; padding: 9px;"
    "    margin: 5px; font: bold 20pt; letter-spacing: 3px; }"
    "QLabel { qproperty-alignment: AlignRight; min-width: 7px; }";

/// What a host's application may have set.
struct Desktop
{
    int pointSize = 9;
    QFont::HintingPreference hinting = QFont::PreferFullHinting;
    bool rightToLeft = false;
    bool sheet = false;
};

QStringList toArguments(const Desktop& desktop)
{
    return {QString::number(desktop.pointSize), QString::number(desktop.hinting),
            QString::number(desktop.rightToLeft), QString::number(desktop.sheet)};
}

void apply(const QStringList& arguments)
{
    QFont font(QStringLiteral("DejaVu Sans"), arguments.at(0).toInt());
    font.setHintingPreference(QFont::HintingPreference(arguments.at(1).toInt()));
    QApplication::setFont(font);
    if (arguments.at(2).toInt())
        QApplication::setLayoutDirection(Qt::RightToLeft);
    if (arguments.at(3).toInt())
        qApp->setStyleSheet(QLatin1String(foreignSheet));
}

/// The editor's picture of the record in a file, raw: size and rows. Shown, so that style and scale have had
/// their say.
int draw(const QStringList& arguments)
{
    apply(arguments.mid(2));
    VTestChartTools tool;
    TestChartToolsData record = ChartRecordFile::read(arguments.at(0)).record;
    record.selfData.selfText = "(1) wall A, 70 %!"; // whose ends belong to the direction of the layout
    tool.applyRecord(record);
    tool.show();
    if (!QTest::qWaitForWindowExposed(&tool))
        return 2;
    const QImage chart = tool.chartImage().convertToFormat(QImage::Format_RGB32);
    QFile file(arguments.at(1));
    if (!file.open(QIODevice::WriteOnly))
        return 3;
    file.write(QStringLiteral("%1 %2\n").arg(chart.width()).arg(chart.height()).toLatin1());
    file.write(reinterpret_cast<const char*>(chart.constBits()), chart.sizeInBytes());
    return 0;
}

} // namespace

/// The pixels of a chart are the record's alone: every display and every host gets the same ones from the
/// editor.
class TestDisplays : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char* name : {"portrait-with-everything.json", "wall-1080p-default-look.json"}) {
            m_expected[QLatin1String(name)] = drawn(QLatin1String(name), {}, {});
            QVERIFY(!m_expected[QLatin1String(name)].isEmpty());
        }
    }

    void sameBytes_data()
    {
        QTest::addColumn<QString>("environment");
        QTest::addColumn<QStringList>("desktop");
        const auto row = [](const char* name, const char* environment, const Desktop& desktop) {
            QTest::newRow(name) << QString::fromLatin1(environment) << toArguments(desktop);
        };
        const auto unhinted = QFont::PreferNoHinting;
        row("again", "", {});
        row("scaled by 1.25", "QT_SCALE_FACTOR=1.25", {});
        row("scaled by 1.5", "QT_SCALE_FACTOR=1.5", {});
        row("scaled by 2", "QT_SCALE_FACTOR=2", {});
        row("large and unhinted fonts", "", {14, unhinted, false, false});
        row("144 dots per inch", "QT_FONT_DPI=144", {});
        row("unhinted, scaled by 1.25", "QT_SCALE_FACTOR=1.25", {9, unhinted, false, false});
        row("from right to left", "", {9, QFont::PreferFullHinting, true, false});
        row("a foreign style sheet", "", {9, QFont::PreferFullHinting, false, true});
        row("all at once", "QT_SCALE_FACTOR=1.5 QT_FONT_DPI=144", {14, unhinted, true, true});
    }

    void sameBytes()
    {
        QFETCH(QString, environment);
        QFETCH(QStringList, desktop);
        for (auto expected = m_expected.cbegin(); expected != m_expected.cend(); ++expected) {
            const QByteArray actual = drawn(expected.key(), environment, desktop);
            QVERIFY2(actual == expected.value(),
                     qPrintable(difference(actual, expected.value()).prepend(expected.key() + ": ")));
        }
    }

private:
    /// What a process of its own draws.
    QByteArray drawn(const QString& record, const QString& environment, const QStringList& desktop) const
    {
        const QString path = m_folder.filePath(QStringLiteral("chart"));
        QFile::remove(path);
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        for (const QString& variable : environment.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            variables.insert(variable.section(QLatin1Char('='), 0, 0), variable.section(QLatin1Char('='), 1));
        QProcess process;
        process.setProcessEnvironment(variables);
        process.setWorkingDirectory(
            sourcePath("tests/golden")); // whose records have pictures by relative paths
        process.start(QCoreApplication::applicationFilePath(),
                      QStringList{QLatin1String(drawArgument), sourcePath("tests/golden/") + record, path} +
                          (desktop.isEmpty() ? toArguments({}) : desktop) +
                          QStringList{QStringLiteral("-platform"), QStringLiteral("offscreen")});
        if (!process.waitForFinished(120000) || process.exitCode() != 0)
            return {};
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QString difference(const QByteArray& actual, const QByteArray& expected)
    {
        if (actual.size() != expected.size())
            return QStringLiteral("%1 bytes instead of %2").arg(actual.size()).arg(expected.size());
        int count = 0;
        for (int i = 0; i < actual.size(); ++i)
            count += actual.at(i) != expected.at(i) ? 1 : 0;
        return QStringLiteral("%1 bytes differ").arg(count);
    }

    QTemporaryDir m_folder;
    QMap<QString, QByteArray> m_expected; ///< by record
};

int main(int argc, char** argv)
{
    const bool draws = argc > 1 && qstrcmp(argv[1], drawArgument) == 0;
    const QByteArray scale = qgetenv("QT_SCALE_FACTOR");
    prepareTestProcess();
    if (draws && !scale.isEmpty())
        qputenv("QT_SCALE_FACTOR", scale);
    QApplication application(argc, argv);
    prepareTestApplication();
    if (draws)
        return draw(QCoreApplication::arguments().mid(2));
    TestDisplays testCase;
    return QTest::qExec(&testCase, argc, argv);
}

#include "tst_displays.moc"
