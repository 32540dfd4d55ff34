#include "testcase.h"

#include <basicsettingbox.h>
#include <customcolordialog.h>
#include <customdialog.h>
#include <floatdockwidget.h>
#include <searchedit.h>
#include <theme.h>
#include <theming.h>
#include <titlewidget.h>
#include <vlineedit.h>
#include <vtestcharttools.h>

#include <QDir>
#include <QListWidget>
#include <QPainter>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

using namespace vardeno::testcharttools;

namespace {

constexpr char reportArgument[] = "--report-theme";

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

/// A host whose window holds the editor, so that the editor has a colour picker.
struct Host
{
    QWidget window;
    QWidget page{&window};
    VTestChartTools* tool = new VTestChartTools(&page);
};

/// The colour of the frame that is seen at the left edge of the first panel.
QColor panelFrame(VTestChartTools* tool)
{
    tool->grab(); // lays out
    const QImage section = tool->findChild<BasicSettingBox*>()->parentWidget()->grab().toImage();
    return section.pixelColor(0, section.height() / 2);
}

/// What an editor in an installation of its own looks like, line by line.
int reportTheme()
{
    Host host;
    QTextStream out(stdout);
    out << "name " << Theme::currentTheme()->displayName() << '\n';
    out << "text " << Theming::themeValues().value(QStringLiteral("Text01")).value<QColor>().name() << '\n';
    out << "sheet " << host.tool->styleSheet().section(QLatin1Char('\n'), 0, 0) << '\n';
    out << "length " << host.tool->styleSheet().size() << '\n';
    out << "frame " << panelFrame(host.tool).name() << '\n';
    out << "picker " << (host.tool->findChild<CustomColorDialog*>()->styleSheet() == host.tool->styleSheet())
        << '\n';
    return 0;
}

} // namespace

class TestInstalledTheme : public TestCase
{
    Q_OBJECT

    QTemporaryDir installation;
    QString m_complaints; ///< of the last host

    QString configFolder() const { return installation.filePath(QStringLiteral("config")); }

    QString themeFolder() const
    {
        return installation.filePath(QStringLiteral("share/themes/testcharttools"));
    }

    /// What a copy of this program reports, which stands in the installation's "bin".
    QString report()
    {
        const QString copy = installation.filePath(QStringLiteral("bin/host"));
        QDir().mkpath(QFileInfo(copy).absolutePath());
        if (!QFile::exists(copy))
            QFile::copy(QCoreApplication::applicationFilePath(), copy);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("*.debug=false"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), installation.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), configFolder());
        process.setProcessEnvironment(environment);
        process.start(copy, {QLatin1String(reportArgument)});
        process.waitForFinished(60000);
        m_complaints = QString::fromUtf8(process.readAllStandardError());
        return QString::fromUtf8(process.readAllStandardOutput());
    }

private Q_SLOTS:
    void cleanup()
    {
        QDir(themeFolder()).removeRecursively();
        TestCase::cleanup();
    }

    void theCompiledInThemeIsTheDefault()
    {
        const QString told = report();
        QVERIFY2(told.startsWith(QLatin1String("name LmTestChartTools\ntext #eeeef9\nsheet /* The look of")),
                 qPrintable(told));
        QVERIFY2(told.endsWith(QLatin1String("picker 1\n")), qPrintable(told));
    }

    void hugeFilesAreNotRead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("theme") << "/default.testcharttoolstheme";
        QTest::newRow("sheet") << "/sheet.qss";
    }

    /// Which take no room on the disk, but would in memory.
    void hugeFilesAreNotRead()
    {
        QFETCH(QString, name);
        QVERIFY(writeFile(themeFolder() + QLatin1String("/default.testcharttoolstheme"), "[General]\n"));
        QVERIFY(writeFile(themeFolder() + name, "/* Huge */\n"));
        QVERIFY(QFile::resize(themeFolder() + name, 100LL * 1000 * 1000));
        const QString told = report();
        QVERIFY2(told.contains(QLatin1String("\nsheet /* The look of")), qPrintable(told));
        QCOMPARE(told.startsWith(QLatin1String("name LmTestChartTools\n")),
                 name != QLatin1String("/sheet.qss"));
        QVERIFY2(m_complaints.contains(name +
                                       QLatin1String(" is not read: 100000000 bytes are more than 1048576")),
                 qPrintable(m_complaints));
    }

    void theCompiledInThemeWarnsOfNothing()
    {
        report();
        m_complaints.remove(QStringLiteral("This plugin does not support propagateSizeHints()\n"));
        QCOMPARE(m_complaints, QString());
    }

    void anInstalledThemeIsWarnedOf()
    {
        QVERIFY(writeFile(themeFolder() + QLatin1String("/default.testcharttoolstheme"),
                          "[Colors]\nText01=red\n"));
        report();
        QVERIFY(m_complaints.contains(QLatin1String("Color \"red\" is neither a named color")));
        QVERIFY(m_complaints.contains(QLatin1String("Theme Color Text02 is not set.")));
    }

    /// All of a user's programs share them.
    void theUsersCustomColorsStay()
    {
        QByteArray colors = "[Qt]\n";
        for (int i = 0; i < 16; ++i)
            colors +=
                "customColors\\" + QByteArray::number(i) + '=' + QByteArray::number(0xff102030U + i) + '\n';
        QVERIFY(writeFile(configFolder() + QLatin1String("/QtProject.conf"), colors));
        report();
        const QSettings settings(configFolder() + QLatin1String("/QtProject.conf"), QSettings::IniFormat);
        for (int i = 0; i < 16; ++i)
            QCOMPARE(settings.value(QStringLiteral("Qt/customColors/%1").arg(i)).toUInt(),
                     0xff102030U + uint(i));
    }

    void anInstalledThemeWins()
    {
        QVERIFY(writeFile(themeFolder() + QLatin1String("/default.testcharttoolstheme"),
                          "[General]\nThemeName=Stage\n[Colors]\nText01=FF010203\n"));
        const QString told = report();
        QVERIFY2(told.startsWith(QLatin1String("name Stage\ntext #010203\nsheet /* The look of")),
                 qPrintable(told));
    }

    void anInstalledSheetWins()
    {
        QVERIFY(writeFile(themeFolder() + QLatin1String("/default.testcharttoolstheme"),
                          "[Colors]\nText01=FF010203\n"));
        QVERIFY(writeFile(themeFolder() + QLatin1String("/b.qss"), "QLabel{color:red;}"));
        QVERIFY(writeFile(themeFolder() + QLatin1String("/a.qss"),
                          "QLabel{color:testcharttools.theme.color.Text01;}"));
        QCOMPARE(report(), QStringLiteral("name unnamed\ntext #010203\nsheet QLabel{color:#010203;}\nlength "
                                          "22\nframe #535465\npicker 1\n"));
    }

    void theLightExampleWins()
    {
        QDir().mkpath(themeFolder());
        const QString name = QStringLiteral("/default.testcharttoolstheme");
        QVERIFY(QFile::copy(sourcePath("examples/themes/light") + name, themeFolder() + name));
        const QString told = report();
        QVERIFY2(told.startsWith(QLatin1String("name Light\ntext #26262c\n")), qPrintable(told));
        QVERIFY2(told.contains(QLatin1String("\nframe #b9bac6\n")), qPrintable(told));
    }

    void everyPlaceholderIsReplaced()
    {
        const Host host;
        QVERIFY(host.tool->styleSheet().size() > 5000);
        QVERIFY(!host.tool->styleSheet().contains(QLatin1String("testcharttools.theme.")));
        QVERIFY(!host.tool->styleSheet().contains(QLatin1String(":;")));
        QVERIFY(log().messages(QStringLiteral("is not exist!")).isEmpty());
        QVERIFY(log().messages(QStringLiteral("not there!")).isEmpty());
        QVERIFY(log().messages(QStringLiteral("Could not parse")).isEmpty());
        QCOMPARE(Theme::currentTheme()->id(), QStringLiteral("testcharttools.theme"));
    }

    void aSheetBesideTheThemeIsTaken()
    {
        const Host host;
        const QString themeFile = themeFolder() + QLatin1String("/own.testcharttoolstheme");
        QVERIFY(writeFile(themeFile, "[General]\nThemeName=Own\n"));
        QVERIFY(writeFile(themeFolder() + QLatin1String("/own.qss"), "QLabel{color:red;} /* für */"));
        host.tool->setTestChartToolsStyleSheet(themeFile);
        QCOMPARE(host.tool->styleSheet(), QStringLiteral("QLabel{color:red;} /* für */"));
        QCOMPARE(host.tool->findChild<CustomColorDialog*>()->styleSheet(), host.tool->styleSheet());
        QCOMPARE(Theme::currentTheme()->displayName(), QStringLiteral("Own"));
    }

    void aMissingThemeIsNone()
    {
        const Host host;
        const QString sheet = host.tool->styleSheet();
        host.tool->setStyleSheet(QString());
        host.tool->setTestChartToolsStyleSheet(themeFolder() + QLatin1String("/none.testcharttoolstheme"));
        QCOMPARE(host.tool->styleSheet(), sheet);
        QCOMPARE(Theme::currentTheme()->displayName(), QStringLiteral("LmTestChartTools"));
        QCOMPARE(log().messages(QStringLiteral("not there!")).size(), 1);
    }

    void theConfirmationHasTheSheet()
    {
        log().allowWarning(QStringLiteral("does not support grabbing the keyboard"));
        Host host;
        auto* basic = host.tool->findChild<BasicSettingBox*>();
        basic->findChild<QListWidget*>(QStringLiteral("_colorStripeListWidget"))->setCurrentRow(0);
        basic->findChild<QPushButton*>(QStringLiteral("CancleButton"))->click();
        const auto windows = QApplication::topLevelWidgets();
        const auto found = std::find_if(windows.begin(), windows.end(),
                                        [](QWidget* window) { return qobject_cast<CustomDialog*>(window); });
        QVERIFY(found != windows.end());
        QCOMPARE((*found)->styleSheet(), host.tool->styleSheet());
        (*found)->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void aFloatingWindowHasTheSheet()
    {
        const FloatDockWidget dock(QStringLiteral("any"));
        QVERIFY(dock.styleSheet().startsWith(QLatin1String("/* The look of")));
        QCOMPARE(dock.findChild<TitleWidget*>()->styleSheet(), dock.styleSheet());
    }

    void clearButtonsShowTheThemesPicture()
    {
        const FloatDockWidget dock(QStringLiteral("any"));
        QWidget window;
        window.setStyleSheet(dock.styleSheet());
        auto* number = new VLineEdit(&window);
        auto* search = new SearchEdit(&window);
        const QPixmap picture(QStringLiteral(":/resources/images/icon_input_clear_normal.png"));
        for (QWidget* entry : {static_cast<QWidget*>(number), static_cast<QWidget*>(search)}) {
            auto* button = entry->findChild<QPushButton*>();
            const QImage shown = button->grab().toImage();
            QImage expected(shown.size(), shown.format());
            expected.fill(shown.pixelColor(0, 0));
            QRect place(QPoint(), picture.size());
            place.moveCenter(expected.rect().center());
            QPainter(&expected).drawPixmap(place, picture);
            VD_COMPARE_IMAGES(shown, expected);
        }
    }

    void aThemeOutlivesItsWindows()
    {
        {
            const Host host;
        }
        QVERIFY(Theme::currentTheme());
        const Host host;
        QVERIFY(Theme::currentTheme());
    }
};

int main(int argc, char** argv)
{
    prepareTestProcess();
    QApplication application(argc, argv);
    prepareTestApplication();
    if (argc == 2 && qstrcmp(argv[1], reportArgument) == 0)
        return reportTheme();
    TestInstalledTheme testCase;
    return QTest::qExec(&testCase, argc, argv);
}

#include "tst_installedtheme.moc"
