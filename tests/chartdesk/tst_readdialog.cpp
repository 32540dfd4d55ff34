#include "chartfiles.h"
#include "display.h"
#include "languages.h"
#include "output.h"
#include "readdialog.h"
#include "testcase.h"
#include "walk.h"

#include <chartcabinets.h>
#include <chartpicture.h>
#include <chartrecordfile.h>

#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QTemporaryDir>
#include <QThreadPool>

using namespace vardeno::testcharttools;

/// What the desk says of a photo, and how the output goes through what is wrong.
class TestReadDialog : public TestCase
{
    Q_OBJECT

private:
    static constexpr int patience = 120000; ///< ms: a reading on a loaded machine

    QTemporaryDir m_folder;
    TestChartToolsData m_record;

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    template <typename Child>
    static Child* childOf(const QDialog& dialog, const char* name)
    {
        return dialog.findChild<Child*>(QLatin1String(name));
    }

    /// The chart with two cabinets swapped.
    void savePhoto(const QString& file) const
    {
        const QImage chart = ChartPicture(m_record, ChartCaptions::current()).image();
        const QRect one = ChartCabinets::rect(m_record, 0, 1);
        const QRect other = ChartCabinets::rect(m_record, 2, 3);
        QImage shown = chart.copy();
        QPainter painter(&shown);
        painter.drawImage(one.topLeft(), chart.copy(other));
        painter.drawImage(other.topLeft(), chart.copy(one));
        painter.end();
        QVERIFY(shown.save(file, "JPG", 85));
    }

    static QStringList textsOf(const QListWidget& list)
    {
        QStringList texts;
        for (int i = 0; i < list.count(); ++i)
            texts << list.item(i)->text();
        return texts;
    }

    static void start(Output& output, const QString& chart)
    {
        output.setCharts({chart});
        output.start(displays().first().name, QPoint(), chart);
        QTRY_VERIFY(output.walk()->hasCabinets());
    }

private Q_SLOTS:
    void initTestCase()
    {
        chooseLanguage(QStringLiteral("en"));
        m_record.publicData.resolutionWidth = 720;
        m_record.publicData.resolutionHeight = 480;
        m_record.publicData.boxCol = 6;
        m_record.publicData.boxRow = 4;
        QFile file(path("wall.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(ChartRecordFile::toJson(m_record));
        savePhoto(path("photo.jpg"));
        QImage grey(80, 60, QImage::Format_RGB32);
        grey.fill(Qt::gray);
        QVERIFY(grey.save(path("bare.png")));
    }

    void cleanupTestCase() { TranslateManager1::instance().switchLanguage(QString()); }

    void saysWhatIsWrong()
    {
        Output output;
        start(output, path("wall.json"));
        auto* dialog = new ReadDialog(path("photo.jpg"), path("wall.json"), &output, nullptr);
        dialog->open();
        auto* walk = childOf<QPushButton>(*dialog, "walkWrong");
        auto* state = childOf<QLabel>(*dialog, "readState");
        QCOMPARE(state->text(), QStringLiteral("Reading photo.jpg…"));
        QVERIFY(!walk->isEnabled());
        if (!canReadWalls()) {
            QTRY_VERIFY(state->text().contains(QLatin1String("OpenCV")));
            dialog->reject();
            return;
        }
        auto* findings = childOf<QListWidget>(*dialog, "readFindings");
        QTRY_VERIFY_WITH_TIMEOUT(findings->isVisible(), patience);
        QCOMPARE(textsOf(*findings), QStringList(QStringLiteral("A-B and C-D are swapped")));
        QVERIFY(!state->isVisible());
        const QSize room = dialog->screen()->availableSize();
        QVERIFY(childOf<QLabel>(*dialog, "readPlan")->pixmap(Qt::ReturnByValue).width() >
                (room.height() > 800 ? 600 : 300));
        QTRY_VERIFY(dialog->height() <= room.height());
        QVERIFY(walk->isEnabled());
        walk->click();
        QCOMPARE(output.walk()->mode(), Walk::Mode::Chosen);
        QVERIFY(output.walk()->text().endsWith(QLatin1String("of 2)")));
        output.stop();
        QVERIFY(!walk->isEnabled());
        QCOMPARE(walk->toolTip(), QStringLiteral("Show this chart on a display first."));
        dialog->reject();
    }

    /// Each sentence is made of texts of the language, which another test finds in the files.
    void speaksTheLanguageOfTheDesk()
    {
        if (!canReadWalls())
            QSKIP("Built without OpenCV.");
        chooseLanguage(QStringLiteral("de"));
        const auto english = qScopeGuard([] { chooseLanguage(QStringLiteral("en")); });
        savePhoto(path("foto.jpg")); // the chart has texts
        Output output;
        auto* dialog = new ReadDialog(path("foto.jpg"), path("wall.json"), &output, nullptr);
        dialog->open();
        chooseLanguage(QStringLiteral("en")); // the reading keeps that of its beginning
        auto* findings = childOf<QListWidget>(*dialog, "readFindings");
        QTRY_VERIFY_WITH_TIMEOUT(findings->isVisible(), patience);
        QCOMPARE(textsOf(*findings), QStringList(QStringLiteral("A-B und C-D sind vertauscht")));
        dialog->reject();
    }

    void saysWhyNothingWasRead_data()
    {
        QTest::addColumn<QString>("photo");
        QTest::addColumn<QString>("chart");
        QTest::newRow("no photo") << path("none.jpg") << path("wall.json");
        QTest::newRow("no chart") << path("photo.jpg") << path("none.json");
        QTest::newRow("a chart without a record") << path("photo.jpg") << path("bare.png");
    }

    void saysWhyNothingWasRead()
    {
        QFETCH(QString, photo);
        QFETCH(QString, chart);
        Output output;
        QPointer<ReadDialog> dialog = new ReadDialog(photo, chart, &output, nullptr);
        dialog->open();
        auto* state = childOf<QLabel>(*dialog, "readState");
        QTRY_VERIFY_WITH_TIMEOUT(!state->text().startsWith(QLatin1String("Reading")), patience);
        QVERIFY(!state->text().isEmpty());
        QVERIFY(state->isVisible());
        QVERIFY(!childOf<QPushButton>(*dialog, "walkWrong")->isEnabled());
        dialog->reject();
        QTRY_VERIFY(dialog.isNull());
    }

    void aCanceledReadTellsNothing()
    {
        QObject owner;
        auto* job = new ReadJob(path("photo.jpg"), path("wall.json"), &owner);
        bool isTold = false;
        connect(job, &ReadJob::done, this, [&isTold] { isTold = true; });
        delete job;
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QVERIFY(!isTold);
    }

    void walksOnlyThroughCabinetsThatAreThere()
    {
        Walk walk;
        walk.walkThrough({{0, 0}});
        QCOMPARE(walk.mode(), Walk::Mode::None); // no chart
        ShownChart chart;
        chart.picture = ChartPicture(m_record).image();
        chart.record = m_record;
        walk.setChart(chart);
        walk.walkThrough({{2, 3}, {4, 0}, {0, 6}, {-1, 0}, {0, 1}});
        QCOMPARE(walk.mode(), Walk::Mode::Chosen);
        QCOMPARE(walk.text(), QStringLiteral("Cabinet C-D (1 of 2)"));
        walk.step(1);
        QCOMPARE(walk.text(), QStringLiteral("Cabinet A-B (2 of 2)"));
        walk.walkThrough({{9, 9}});
        QCOMPARE(walk.mode(), Walk::Mode::None);
    }

    void anotherWallEndsTheWalk()
    {
        Walk walk;
        ShownChart chart;
        chart.picture = ChartPicture(m_record).image();
        chart.record = m_record;
        walk.setChart(chart);
        walk.walkThrough({{3, 5}});
        walk.setChart(chart);
        QCOMPARE(walk.mode(), Walk::Mode::Chosen);
        chart.record->publicData.boxCol = 2;
        walk.setChart(chart);
        QCOMPARE(walk.mode(), Walk::Mode::None);
    }
};

VD_TEST_MAIN(TestReadDialog)
#include "tst_readdialog.moc"
