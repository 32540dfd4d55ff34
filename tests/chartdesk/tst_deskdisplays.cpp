#include "cabinetpattern.h"
#include "chartfiles.h"
#include "chartlist.h"
#include "deskoutput.h"
#include "deskwindow.h"
#include "display.h"
#include "languages.h"
#include "output.h"
#include "outputwindow.h"
#include "showdialog.h"
#include "testcase.h"
#include "walk.h"

#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <QSpinBox>
#include <QTemporaryDir>

using namespace deskwindow;
using namespace vardeno::testcharttools;

namespace {

const QSize displaySize(1920, 1080);

/// What display `number`, from 1, has on it, in physical pixels.
QImage screenshot(int number)
{
    QScreen* screen = screenNamed(QStringLiteral("DUMMY%1").arg(number - 1));
    QImage image = screen->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1);
    return image;
}

QImage placed(const QImage& chart, const QPoint& at)
{
    QImage image(displaySize, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter(&image).drawImage(at, chart);
    return image;
}

bool randr(const QStringList& arguments)
{
    return QProcess::execute(QStringLiteral("xrandr"), arguments) == 0;
}

/// Waits for the display to show exactly this; what differs, otherwise.
QString difference(int number, const QImage& expected)
{
    const bool isShown = QTest::qWaitFor([&] { return screenshot(number) == expected; }, 20000);
    return isShown ? QString() : imageDifference(screenshot(number), expected);
}

#define VD_SHOWS(number, expected)                                                                           \
    do {                                                                                                     \
        const QString difference_ = difference(number, expected);                                            \
        QVERIFY2(difference_.isEmpty(), qPrintable(difference_));                                            \
    } while (false)

} // namespace

/// A technician's day on several displays: the second one shows the charts.
class TestDeskDisplays : public TestCase
{
    Q_OBJECT

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<MainWindow> m_window;

    Output& output() const { return *m_window->output()->output(); }
    ChartList* list() const { return m_window->findChild<ChartList*>(); }
    QString status() const { return m_window->findChild<QLabel*>(QStringLiteral("outputStatus"))->text(); }
    void press(int key) const { QTest::keyClick(output().window(), Qt::Key(key)); }

    bool addChart() const
    {
        return trigger(*m_window, QStringLiteral("New chart")) && settle(*m_window) &&
               click(*m_window->editor(), QStringLiteral("Confirm")) &&
               QTest::qWaitFor([&] { return isListShown(*m_window); }, 20000) && isListed(*m_window);
    }

    /// Through the dialog, as a person does.
    bool showOn(int number, const QPoint& at) const
    {
        if (!trigger(*m_window, QStringLiteral("Show on…")))
            return false;
        auto* dialog = m_window->findChild<ShowDialog*>();
        dialog->findChild<QListWidget*>()->setCurrentRow(number - 1);
        dialog->findChild<QSpinBox*>(QStringLiteral("X"))->setValue(at.x());
        dialog->findChild<QSpinBox*>(QStringLiteral("Y"))->setValue(at.y());
        return click(*dialog, QStringLiteral("Show")) &&
               QTest::qWaitFor([&] { return output().isOn() && output().window(); });
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        QVERIFY(randr({QStringLiteral("--output"), QStringLiteral("DUMMY1"), QStringLiteral("--mode"),
                       QStringLiteral("1920x1080"), QStringLiteral("--right-of"), QStringLiteral("DUMMY0")}));
        QTRY_VERIFY(screenNamed(QStringLiteral("DUMMY1")));
        m_folder.reset(new QTemporaryDir);
        m_window.reset(new MainWindow(m_folder->path()));
        m_window->switchLanguage(QStringLiteral("en"));
        m_window->show();
    }

    void cleanup()
    {
        m_window.reset();
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void theDisplays()
    {
        const QVector<DeskDisplay> all = displays();
        QVERIFY(all.size() >= 2);
        for (const DeskDisplay& display : all) {
            QCOMPARE(display.pixels, displaySize);
            QCOMPARE(display.name, QStringLiteral("DUMMY%1").arg(display.number - 1));
        }
    }

    void aDay()
    {
        // From an empty folder to a chart on the second display.
        QVERIFY(addChart());
        QCOMPARE(list()->count(), 1);
        list()->setCurrentRow(0);
        const QString chart = list()->selectedChart();
        QVERIFY(showOn(2, QPoint()));
        VD_SHOWS(2, QImage(chart).convertToFormat(QImage::Format_RGB32));
        QVERIFY2(status().contains(QStringLiteral("DUMMY1")), qPrintable(status()));

        // Walked.
        press(Qt::Key_H);
        press(Qt::Key_Right);
        QVERIFY2(status().contains(QStringLiteral("Cabinet A-B (2 of 144)")), qPrintable(status()));
        QImage highlighted = QImage(chart).convertToFormat(QImage::Format_RGB32);
        {
            const auto record = ChartRecordFile::read(ChartFolderList::recordPath(chart)).record;
            QPainter painter(&highlighted);
            CabinetPattern(record, CabinetLook::Highlight).draw(painter, 1, highlighted.rect());
        }
        VD_SHOWS(2, highlighted);
        press(Qt::Key_L);
        press(Qt::Key_Space);
        QImage line(displaySize, QImage::Format_RGB32);
        line.fill(Qt::black);
        QPainter(&line).fillRect(0, output().walk()->currentStep(), 1920, 1, Qt::white);
        VD_SHOWS(2, line);
        press(Qt::Key_Escape);
        VD_SHOWS(2, QImage(chart).convertToFormat(QImage::Format_RGB32));

        // Changed, live.
        QVERIFY(openChart(*m_window, chart));
        VD_SHOWS(2, m_window->editor()->chartImage().convertToFormat(QImage::Format_RGB32));
        QVERIFY(setRows(*m_window, 5));
        const QImage edited = m_window->editor()->chartImage().convertToFormat(QImage::Format_RGB32);
        QVERIFY(edited != QImage(chart).convertToFormat(QImage::Format_RGB32));
        VD_SHOWS(2, edited);

        // Unplugged, and back.
        QVERIFY(randr({QStringLiteral("--output"), QStringLiteral("DUMMY1"), QStringLiteral("--off")}));
        QTRY_COMPARE(output().window(), nullptr);
        QVERIFY2(status().contains(QStringLiteral("unplugged")), qPrintable(status()));
        QVERIFY(output().isOn());
        QVERIFY(randr({QStringLiteral("--output"), QStringLiteral("DUMMY1"), QStringLiteral("--mode"),
                       QStringLiteral("1920x1080"), QStringLiteral("--right-of"), QStringLiteral("DUMMY0")}));
        QTRY_VERIFY(output().window());
        VD_SHOWS(2, edited);

        // Given up: the chart as it was saved.
        m_window->session()->end();
        VD_SHOWS(2, QImage(chart).convertToFormat(QImage::Format_RGB32));
        press(Qt::Key_Escape);
        QVERIFY(!output().isOn());
        QCOMPARE(status(), QString());
    }

    void atItsPlace_data()
    {
        QTest::addColumn<QPoint>("at");
        QTest::newRow("right and below") << QPoint(133, 77);
        QTest::newRow("cut") << QPoint(-201, -99);
    }

    void atItsPlace()
    {
        QFETCH(QPoint, at);
        QVERIFY(addChart());
        list()->setCurrentRow(0);
        const QImage chart = QImage(list()->selectedChart()).convertToFormat(QImage::Format_RGB32);
        QVERIFY(showOn(2, at));
        VD_SHOWS(2, placed(chart, at));
    }

    void onTheLastDisplay()
    {
        QVERIFY(addChart());
        list()->setCurrentRow(0);
        const int last = displays().size();
        QVERIFY(showOn(last, QPoint()));
        VD_SHOWS(last, QImage(list()->selectedChart()).convertToFormat(QImage::Format_RGB32));
    }

    /// Another process, as a script starts it.
    void fromAScript()
    {
        QVERIFY(addChart());
        const QString chart = ChartFolderList::charts(m_folder->path()).first().filePath();
        QProcess desk;
        desk.start(programPath("chartdesk"), {"--show", chart, "--display", "2", "--at", "10,20"});
        const QString found = difference(2, placed(QImage(chart), QPoint(10, 20)));
        desk.kill();
        QVERIFY(desk.waitForFinished());
        QVERIFY2(found.isEmpty(), qPrintable(found));
        QVERIFY(desk.readAllStandardError().contains("Pixels cut off: 10 right, 20 below."));
    }
};

/// The scale factor is the first argument.
int main(int argc, char** argv)
{
    prepareTestProcess();
    qputenv("QT_SCALE_FACTOR", argv[1]);
    argv[1] = argv[0];
    QApplication application(--argc, ++argv);
    prepareTestApplication();
    TestDeskDisplays test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_deskdisplays.moc"
