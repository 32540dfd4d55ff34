#include "deskwalls.h"
#include "edittestcase.h"

#include <chartpicture.h>

#include <QStatusBar>

using namespace vardeno::testcharttools;
using namespace chartfiles;
using namespace deskwindow;

/// Edits at the desk: nothing that is worth something is lost by them.
class TestEditSession : public EditTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void neighboursStay_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("Confirm") << "Confirm";
        QTest::newRow("Apply") << "Apply";
    }

    void neighboursStay()
    {
        QFETCH(QString, button);
        const QString edited = at("20240101_120000/a.png");
        QVERIFY(writeChart(edited, Qt::red));
        QVERIFY(writeChart(at("20240101_120000/b.png"), Qt::blue));
        QVERIFY(writeFile(at("20240101_120000/notes.txt"), "mine"));
        openDesk();
        QVERIFY(openChart(*m_window, edited));
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(click(*m_window, button));
        QTRY_VERIFY(!QFileInfo::exists(edited));
        QTest::qWait(2300); // when the editor removes what it was told to
        QCOMPARE(QDir(at("20240101_120000")).entryList(QDir::Files),
                 QStringList({"b.json", "b.png", "notes.txt"}));
        QCOMPARE(charts().size(), 2);
        QCOMPARE(rowsOf(charts().first()), 4);
    }

    /// The disk of a chart may be a slow one.
    void theInterfaceDoesNotWaitForTheDisk()
    {
        openDesk();
        QVERIFY(openNewChart());
        bool isSaving = false;
        connect(m_window->editor(), &VTestChartTools::sigTestToolEditDone, this,
                [&] { isSaving = m_window->session()->isSaving(); });
        QSignalSpy saved(m_window->session(), &EditSession::saved);
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_COMPARE(saved.count(), 1);
        QVERIFY(isSaving); // the picture was written, and the chart was still on its way
        QTRY_VERIFY(isEnded());
        QVERIFY(!m_window->session()->isSaving());
    }

    /// As the window of a wall opens it: fitted to the wall, which is nobody's change.
    void theChartOfAWallIsUnchangedAtFirst()
    {
        openDesk();
        TestChartToolsData wall;
        wall.publicData.resolutionWidth = 1920;
        wall.publicData.resolutionHeight = 1152;
        wall.publicData.boxCol = 15;
        wall.publicData.boxRow = 9;
        Q_EMIT m_window->findChild<DeskWalls*>()->chartWanted(wall, {});
        QVERIFY(settle(*m_window));
        QTRY_COMPARE(m_window->editor()->getTestChartToolsData().inLineData.circleSize, 576);
        QVERIFY(!m_window->session()->isChanged());
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(m_window->session()->isChanged());
        m_window->session()->end();
    }

    /// The switch is in a menu; the document has it, beside what it had.
    void markersGoOnAndOff()
    {
        openDesk();
        auto* markers = m_window->findChild<QAction*>(QStringLiteral("markerSwitch"));
        QVERIFY(!markers->isEnabled());
        QVERIFY(openNewChart());
        QVERIFY(markers->isEnabled() && !markers->isChecked());
        markers->trigger();
        QVERIFY(m_window->editor()->markersShown());
        QVERIFY(m_window->session()->isChanged());
        QVERIFY(settle(*m_window));
        const TestChartToolsData record = m_window->editor()->getTestChartToolsData();
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QVERIFY(!markers->isEnabled() && !markers->isChecked());
        const QString image = charts().first();
        const auto saved = ChartRecordFile::read(ChartFolderList::recordPath(image));
        QVERIFY(ChartRecordFile::markersOf(saved.document).showMarkers);
        const ChartPicture expected(record, ChartCaptions::current(), {true});
        QCOMPARE(imageDifference(QImage(image).convertToFormat(QImage::Format_RGB32), expected.image()),
                 QString());

        QVERIFY(m_window->session()->edit(m_window->session()->folder(), image).isEmpty());
        QVERIFY(m_window->session()->hasMarkers());
        QVERIFY(!m_window->session()->isChanged());
        m_window->session()->setMarkers(false);
        QVERIFY(m_window->session()->isChanged());
        m_window->session()->setMarkers(true);
        QVERIFY(!m_window->session()->isChanged());
        m_window->session()->end();
    }

    void markersWithoutRoomAreTold()
    {
        openDesk();
        QVERIFY(openNewChart());
        QVERIFY(setRows(*m_window, 100));
        auto* markers = m_window->findChild<QAction*>(QStringLiteral("markerSwitch"));
        markers->trigger();
        QTRY_COMPARE(m_window->statusBar()->currentMessage(),
                     QStringLiteral("The cabinets have no room for markers."));
        m_window->session()->end();
    }

    void anEditThatEndsOnTheWayIsSaved()
    {
        openDesk();
        QVERIFY(openNewChart());
        connect(m_window->editor(), &VTestChartTools::sigTestToolEditDone, this,
                [&] { m_window->session()->end(); });
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(charts().size(), 1);
        QVERIFY(QFileInfo::exists(ChartFolderList::recordPath(charts().first())));
        QCoreApplication::processEvents(); // what was on its way is not told
        QVERIFY(isEnded());
    }

    void theReplacedChartGoesWithItsFolder()
    {
        QVERIFY(writeChart(at("20240101_120000/a.png"), Qt::red, "pictures/logo.png"));
        QVERIFY(writePicture(at("20240101_120000/pictures/logo.png"), Qt::yellow));
        openDesk();
        QVERIFY(replace(at("20240101_120000/a.png"), 4));
        QVERIFY(!QFileInfo::exists(at("20240101_120000")));
        QCOMPARE(charts().size(), 1);
        QCOMPARE(storedPicture(charts().first()), QString("pictures/logo.png"));
        QCOMPARE(QImage(QFileInfo(charts().first()).dir().filePath("pictures/logo.png")).pixelColor(0, 0),
                 QColor(Qt::yellow));
    }

    /// The editor writes nothing under "a.PNG", and calls that a success.
    void anEndingInCapitals()
    {
        QVERIFY(writePicture(at("20240101_120000/a.PNG"), Qt::red));
        QVERIFY(writeFile(at("20240101_120000/a.json"), ChartRecordFile::toJson({})));
        openDesk();
        QVERIFY(replace(at("20240101_120000/a.PNG"), 4));
        QCOMPARE(charts().size(), 1);
        QCOMPARE(QFileInfo(charts().first()).fileName(), QString("a.png"));
        QCOMPARE(QImage(charts().first()).size(), QSize(1920, 1080));
    }

    void whatSomebodyElseChangedStays()
    {
        const QString edited = at("20240101_120000/a.png");
        QVERIFY(writeChart(edited, Qt::red));
        openDesk();
        QVERIFY(openChart(*m_window, edited));
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(writeChart(edited, Qt::red, "other.png"));
        QVERIFY(click(*m_window, "Confirm"));
        QVERIFY(answer(*m_window, "OK"));
        QCOMPARE(charts().size(), 2);
        QCOMPARE(storedPicture(edited), QString("other.png"));
        QCOMPARE(rowsOf(charts().first()), 4);
    }

    void eachChartHasItsOwnLogo()
    {
        const QTemporaryDir clients;
        QVERIFY(writePicture(clients.filePath("A/logo.png"), Qt::red));
        QVERIFY(writePicture(clients.filePath("B/logo.png"), Qt::blue));
        openDesk();
        QMap<QString, QColor> expected;
        for (const char* client : {"A", "B"}) {
            QVERIFY(openNewChart());
            QVERIFY(upload(clients.filePath(QLatin1String(client) + "/logo.png")));
            const QColor color = *client == 'A' ? Qt::red : Qt::blue;
            QTRY_COMPARE(shownLogo().pixelColor(0, 0), color);
            QVERIFY(click(*m_window, "Confirm"));
            QTRY_VERIFY(isEnded());
            expected.insert(charts().first(), color);
        }
        QCOMPARE(expected.size(), 2);
        for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
            QCOMPARE(storedPicture(it.key()), QString("pictures/logo.png"));
            QVERIFY(openChart(*m_window, it.key()));
            QCOMPARE(shownLogo().pixelColor(0, 0), it.value());
            QVERIFY(click(*m_window, "Cancel"));
        }
    }

    void aNewChartFitsItsWall_data()
    {
        QTest::addColumn<bool>("isTouched");
        QTest::newRow("nothing else chosen") << false;
        QTest::newRow("rows of the user's own first, then the resolution") << false;
        QTest::newRow("a text of the user's own") << true;
    }

    void aNewChartFitsItsWall()
    {
        QFETCH(bool, isTouched);
        openDesk();
        QVERIFY(openNewChart());
        const int circle = m_window->editor()->getTestChartToolsData().inLineData.circleSize;
        if (QByteArray(QTest::currentDataTag()).startsWith("rows"))
            QVERIFY(setRows(*m_window, 10));
        if (isTouched)
            m_window->editor()->findChild<SelfSettingBox*>()->findChild<QLineEdit*>()->setText("my wall");
        setResolution(3840, 2160);
        const auto record = m_window->editor()->getTestChartToolsData();
        QCOMPARE(record.publicData.resolutionWidth, 3840);
        QCOMPARE(record.publicData.resolutionHeight, 2160);
        QCOMPARE(record.inLineData.circleSize, isTouched ? circle : 2 * circle);
        QCOMPARE(int(record.basicData.colorStripeColors.size()), 5);
        QVERIFY(m_window->editor()->isShowForAdd());
    }

    void anotherLogoInOneEdit()
    {
        const QTemporaryDir clients;
        QVERIFY(writePicture(clients.filePath("A/logo.png"), Qt::red));
        QVERIFY(writePicture(clients.filePath("B/logo.png"), Qt::blue));
        openDesk();
        QVERIFY(openNewChart());
        for (const char* client : {"A", "B"})
            QVERIFY(upload(clients.filePath(QLatin1String(client) + "/logo.png")));
        QTRY_COMPARE(shownLogo().pixelColor(0, 0), QColor(Qt::blue));
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        const QDir folder = QFileInfo(charts().first()).dir();
        QCOMPARE(QImage(folder.filePath(storedPicture(charts().first()))).pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(QDir(folder.filePath("pictures")).entryList(QDir::Files).size(), 1);
    }

    void aMissingLogoIsNamed()
    {
        QVERIFY(writeChart(at("20240101_120000/a.png"), Qt::red, "pictures/client.png"));
        openDesk();
        QVERIFY(openChart(*m_window, at("20240101_120000/a.png")));
        QTRY_VERIFY(message(*m_window));
        QCOMPARE(message(*m_window)->informativeText(), QString("client.png"));
        QVERIFY(answer(*m_window, "OK"));
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(storedPicture(charts().first()), QString("pictures/client.png"));
    }
};

VD_TEST_MAIN(TestEditSession)
#include "tst_editsession.moc"
