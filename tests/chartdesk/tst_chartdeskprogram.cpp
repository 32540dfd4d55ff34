#include "testcase.h"

#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

/// The desk as a program, without a display.
class TestChartDeskProgram : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_runtimeFolder; // its absence is logged

    void run(QProcess& process, const QStringList& arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtimeFolder.path());
        process.setProcessEnvironment(environment);
        process.start(programPath("chartdesk"), arguments);
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
        qputenv("QT_LOGGING_RULES", "default=true");
        QProcess desk;
        run(desk, {"--headless", "--folder", folder.path()});
        qunsetenv("QT_LOGGING_RULES");
        QVERIFY(desk.readAllStandardError().contains("upLogo is not set"));
    }
};

VD_TEST_MAIN(TestChartDeskProgram)
#include "tst_chartdeskprogram.moc"
