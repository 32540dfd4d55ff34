#include "edittestcase.h"

using namespace vardeno::testcharttools;
using namespace chartfiles;
using namespace deskwindow;

/// A save that fails: its edit goes on.
class TestFailedSave : public EditTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFailedSaveCanBeRepeated_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("Confirm") << "Confirm";
        QTest::newRow("Apply") << "Apply";
    }

    void aFailedSaveCanBeRepeated()
    {
        QFETCH(QString, button);
        QVERIFY(writeChart(at("charts/20240101_120000/a.png"), Qt::red));
        openDesk(at("charts"));
        QVERIFY(openChart(*m_window, at("charts/20240101_120000/a.png")));
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(QDir().rename(at("charts"), at("moved")));
        QVERIFY(writeFile(at("charts"), "in the way"));
        QVERIFY(click(*m_window, button));
        QTRY_VERIFY(message(*m_window));
        QVERIFY2(message(*m_window)->text().contains("a file is in its way"),
                 qPrintable(message(*m_window)->text()));
        QVERIFY(message(*m_window)->informativeText().endsWith("/a.png"));
        QVERIFY(!message(*m_window)->informativeText().contains(".chartdesk"));

        QVERIFY(QFile::remove(at("charts")));
        QVERIFY(QDir().rename(at("moved"), at("charts")));
        QVERIFY(answer(*m_window, "Try again"));
        QTRY_VERIFY(!QFileInfo::exists(at("charts/20240101_120000/a.png")));
        QTRY_COMPARE(isEnded(), button == QLatin1String("Confirm"));
        const QFileInfoList saved = ChartFolderList::charts(at("charts"));
        QCOMPARE(saved.size(), 1);
        QCOMPARE(rowsOf(saved.first().filePath()), 4);
    }

    void aFailedSaveCanGoElsewhere()
    {
        QVERIFY(writeFile(at("charts"), "in the way"));
        QVERIFY(QDir().mkpath(at("elsewhere")));
        openDesk(at("charts"));
        QVERIFY(openNewChart());
        QVERIFY(setRows(*m_window, 4));
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(message(*m_window));
        chooseInDialog(at("elsewhere"));
        QVERIFY(answer(*m_window, "Save elsewhere…"));
        QTRY_VERIFY(isEnded());
        const QFileInfoList saved = ChartFolderList::charts(at("elsewhere"));
        QCOMPARE(saved.size(), 1);
        QCOMPARE(rowsOf(saved.first().filePath()), 4);
        QVERIFY(m_window->windowTitle().endsWith(at("elsewhere"))); // where the list shows it
        QTRY_COMPARE(m_window->findChild<QListWidget*>("chartList")->count(), 1);
    }

    void afterAFailedSaveTheEditGoesOn_data()
    {
        QTest::addColumn<bool>("adds");
        QTest::newRow("new") << true;
        QTest::newRow("replaced") << false;
    }

    void afterAFailedSaveTheEditGoesOn()
    {
        QFETCH(bool, adds);
        QVERIFY(writeChart(at("charts/20240101_120000/a.png"), Qt::red));
        openDesk(at("charts"));
        QVERIFY(adds ? openNewChart() : openChart(*m_window, at("charts/20240101_120000/a.png")));
        QVERIFY(QDir().rename(at("charts"), at("moved")));
        QVERIFY(writeFile(at("charts"), "in the way"));
        QVERIFY(click(*m_window, "Confirm"));
        QVERIFY(answer(*m_window, "Continue editing"));
        QVERIFY(!isEnded());
        for (const char* text : {"Confirm", "Apply"}) {
            if (QPushButton* button = buttonIn(*m_window, QLatin1String(text)))
                QTRY_VERIFY2(button->isEnabled(), text);
        }
        QVERIFY(QFile::remove(at("charts")));
        QVERIFY(QDir().rename(at("moved"), at("charts")));
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(ChartFolderList::charts(at("charts")).size(), adds ? 2 : 1);
    }

    void nothingUnfinishedIsLeftInTheFolder()
    {
        openDesk();
        QVERIFY(openNewChart());
        QVERIFY(click(*m_window, "Confirm"));
        QTRY_VERIFY(isEnded());
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({QFileInfo(charts().first()).dir().dirName()}));
    }
};

VD_TEST_MAIN(TestFailedSave)
#include "tst_failedsave.moc"
