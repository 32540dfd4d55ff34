#include "testcase.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

/// The desk as a program, without a display.
class TestChartDeskProgram : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_runtimeFolder; // its absence is logged
    QTemporaryDir m_home;          // the user's own keeps no drafts of tests

    void start(QProcess& process, const QStringList& arguments, const QStringList& without = {}) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtimeFolder.path());
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.path());
        for (const QString& variable : without)
            environment.remove(variable);
        process.setProcessEnvironment(environment);
        process.start(programPath("chartdesk"), arguments);
    }

    void run(QProcess& process, const QStringList& arguments, const QStringList& without = {}) const
    {
        start(process, arguments, without);
        QVERIFY2(process.waitForFinished(), qPrintable(process.errorString()));
    }

private Q_SLOTS:
    void aChartWithoutADisplay()
    {
        const QTemporaryDir folder;
        QProcess desk;
        run(desk, {"--headless", "--folder", folder.path()});
        QCOMPARE(desk.readAllStandardError(), QByteArray());
        QCOMPARE(desk.exitCode(), 0);
        const QString path = QString::fromLocal8Bit(desk.readAllStandardOutput()).trimmed();
        QVERIFY2(path.startsWith(folder.path()), qPrintable(path));
        QCOMPARE(QImage(path).size(), QSize(1920, 1080));
    }

    void aFolderThatCannotBeMade()
    {
        QProcess desk;
        run(desk, {"--headless", "--folder", "/dev/null/charts"});
        QVERIFY(desk.readAllStandardError().contains("/dev/null/charts"));
        QCOMPARE(desk.exitCode(), 1);
        QCOMPARE(desk.readAllStandardOutput(), QByteArray());
    }

    /// Nobody edited anything: the next user is asked nothing.
    void aFailureWithoutAUserLeavesNoDraft()
    {
        QProcess desk;
        run(desk, {"--headless", "--folder", "/dev/null/charts"});
        QDirIterator drafts(m_home.path(), {QStringLiteral("draft.json")}, QDir::Files,
                            QDirIterator::Subdirectories);
        QVERIFY2(!drafts.hasNext(), qPrintable(drafts.next()));
    }

    /// All of them say success, and so each chart must be there.
    void manyDesksAtOnce()
    {
        const QTemporaryDir folder;
        QProcess desks[4];
        for (QProcess& desk : desks)
            start(desk, {"--headless", "--folder", folder.path()});
        QSet<QString> charts;
        for (QProcess& desk : desks) {
            QVERIFY2(desk.waitForFinished(60000), qPrintable(desk.errorString()));
            QCOMPARE(desk.readAllStandardError(), QByteArray());
            QCOMPARE(desk.exitCode(), 0);
            const QString path = QString::fromLocal8Bit(desk.readAllStandardOutput()).trimmed();
            QCOMPARE(QImage(path).size(), QSize(1920, 1080));
            QVERIFY(QFileInfo::exists(QString(path).replace(".png", ".json")));
            charts.insert(path);
        }
        QCOMPARE(charts.size(), 4);
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(),
                 4);
    }

    void informationWithoutADisplay_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("help") << "--help" << QByteArray("--folder");
        QTest::newRow("help, short") << "-h" << QByteArray("--folder");
        QTest::newRow("version") << "--version" << QByteArray("chartdesk ");
        QTest::newRow("version, short") << "-v" << QByteArray("chartdesk ");
    }

    void informationWithoutADisplay()
    {
        QFETCH(QString, option);
        QFETCH(QByteArray, output);
        QProcess desk;
        run(desk, {option}, {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"});
        QCOMPARE(desk.exitStatus(), QProcess::NormalExit);
        QCOMPARE(desk.exitCode(), 0);
        QVERIFY(desk.readAllStandardOutput().contains(output));
        QCOMPARE(desk.readAllStandardError(), QByteArray());
    }

    void aWindowNeedsADisplay()
    {
        QProcess desk;
        run(desk, {}, {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"});
        QCOMPARE(desk.exitStatus(), QProcess::NormalExit);
        QCOMPARE(desk.exitCode(), 1);
        QVERIFY(desk.readAllStandardError().contains("There is no display"));
    }

    void aMistypedOptionWithoutADisplay()
    {
        QProcess desk;
        run(desk, {"--foldr", "/tmp"}, {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"});
        QCOMPARE(desk.exitStatus(), QProcess::NormalExit);
        QCOMPARE(desk.exitCode(), 1);
        QVERIFY(desk.readAllStandardError().contains("Unknown option 'foldr'"));
    }

    void anUnknownLanguage()
    {
        QProcess desk;
        run(desk, {"--headless", "--language", "tlh"});
        QVERIFY(desk.readAllStandardError().contains("The language \"tlh\" is none of"));
        QCOMPARE(desk.exitCode(), 1);
    }

    void theLogIsThereWhenAskedFor()
    {
        const QTemporaryDir folder;
        qputenv("QT_LOGGING_RULES", "vardeno.testcharttools=true");
        QProcess desk;
        run(desk, {"--headless", "--folder", folder.path()});
        qunsetenv("QT_LOGGING_RULES");
        QVERIFY(desk.readAllStandardError().contains("PaintPicLogoWidget::setDefaultPicLogo()"));
    }
};

VD_TEST_MAIN(TestChartDeskProgram)
#include "tst_chartdeskprogram.moc"
