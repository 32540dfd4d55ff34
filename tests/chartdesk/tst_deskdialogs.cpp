#include "chartfiles.h"
#include "cuttexts.h"
#include "deskdialogs.h"
#include "deskoutput.h"
#include "desksettings.h"
#include "deskstyle.h"
#include "deskwalls.h"
#include "deskwindow.h"
#include "draftkeeper.h"
#include "hosttext.h"
#include "languages.h"
#include "readdialog.h"
#include "shortcomings.h"
#include "testcase.h"
#include "wallcanvas.h"
#include "wallwindow.h"

#include <chartpicture.h>
#include <chartrecordfile.h>
#include <translatemanager1.h>
#include <wallfile.h>

#include <QDialog>
#include <QFileSystemModel>
#include <QProgressBar>
#include <QTemporaryDir>
#include <QTreeView>
#include <QTreeWidget>

using namespace deskwindow;
using namespace shortcomings;
using namespace vardeno::testcharttools;

/// Every dialog of the desk, in every language.
class TestDeskDialogs : public TestCase
{
    Q_OBJECT

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<MainWindow> m_window;

    /// By the English text of its action.
    QDialog* open(const char* action)
    {
        const QString source = QString::fromUtf8(action);
        const QString wanted = source.isEmpty() ? source : hostText(source);
        if (!trigger(*m_window, wanted))
            return nullptr;
        for (QDialog* dialog : m_window->findChildren<QDialog*>()) {
            if (!dialog->isVisible())
                continue;
            dialog->activateWindow(); // where no window manager does
            return QTest::qWaitForWindowActive(dialog) ? dialog : nullptr;
        }
        return nullptr;
    }

    WallWindow* openWall()
    {
        const QString file = m_folder->filePath(QStringLiteral("a.wall.json"));
        return vardeno::walls::WallFile::write(file, {}).isEmpty()
                   ? m_window->findChild<DeskWalls*>()->open(file)
                   : nullptr;
    }

    /// Of a photo, or of none.
    QDialog* openReading(const QString& photo)
    {
        TestChartToolsData record;
        record.publicData.resolutionWidth = 720;
        record.publicData.resolutionHeight = 480;
        const QString chart = m_folder->filePath(QStringLiteral("wall.json"));
        const bool isThere = chartfiles::writeFile(chart, ChartRecordFile::toJson(record)) &&
                             ChartPicture(record, ChartCaptions::current())
                                 .image()
                                 .save(m_folder->filePath(QStringLiteral("photo.png")));
        auto* read =
            new ReadDialog(m_folder->filePath(photo), chart, m_window->output()->output(), m_window.get());
        read->open();
        const auto isRead = [read] { return !read->findChild<QProgressBar*>()->isVisible(); };
        return isThere && QTest::qWaitFor(isRead, 120000) ? read : nullptr;
    }

    /// The dialog that `opener` shows on its parent's window.
    template <typename Opener>
    QDialog* shownBy(const QWidget* parent, const Opener& opener)
    {
        opener();
        const auto find = [parent]() -> QDialog* {
            for (QDialog* dialog : parent->findChildren<QDialog*>()) {
                if (dialog->isVisible())
                    return dialog;
            }
            return nullptr;
        };
        return QTest::qWaitFor([&] { return find() != nullptr; }) ? find() : nullptr;
    }

    void writeDraft()
    {
        Draft draft;
        draft.folder = m_folder->path();
        draft.changed = QDateTime::currentDateTime();
        QVERIFY(DraftFolder::create(draftsRoot())->write(draft));
    }

    QWidget* openWallWindow(const QByteArray& name)
    {
        WallWindow* wall = openWall();
        if (!wall || name == "wall")
            return wall;
        if (name == "keys of the wall")
            return shownBy(wall,
                           [wall] { wall->findChild<QAction*>(QStringLiteral("wallKeys"))->trigger(); });
        wall->canvas()->select({{0, 0}});
        wall->canvas()->turn();
        return shownBy(wall, [wall] { wall->close(); });
    }

    QWidget* openQuestion(const QByteArray& name)
    {
        MainWindow* window = m_window.get();
        EditSession* session = window->session();
        const QString chart = window->findChild<ChartList*>()->selectedChart();
        if (name == "missing file")
            return shownBy(window, [window] { window->openPaths({QStringLiteral("/nowhere/wall.json")}); });
        if (name == "failed save")
            return shownBy(window, [&] { Q_EMIT session->failed(chart, QStringLiteral("disk full")); });
        if (name == "picture")
            return shownBy(window, [&] { Q_EMIT session->notEditable(chart, {QStringLiteral("boxRow")}); });
        if (name == "draft") {
            writeDraft();
            return shownBy(window, [window] { window->offerDrafts(); });
        }
        window->addChart();
        return settle(*window) && setRows(*window, 4) ? shownBy(window, [window] { window->close(); })
                                                      : nullptr;
    }

    /// One that no action of the menus opens.
    QWidget* openWindow(const QByteArray& name)
    {
        if (name == "list")
            return m_window.get();
        if (name == "editor") {
            m_window->addChart();
            return settle(*m_window) ? m_window.get() : nullptr;
        }
        if (name.contains("wall"))
            return openWallWindow(name);
        if (name.startsWith("photo"))
            return openReading(name == "photo" ? QStringLiteral("photo.png") : QStringLiteral("none.png"));
        return openQuestion(name);
    }

    static void close(QDialog* dialog)
    {
        dialog->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// What a person reads in it: captions, buttons and tips.
    static QHash<QString, QString> texts(const QDialog& dialog)
    {
        QHash<QString, QString> found;
        for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
            const QString key = QLatin1String(widget->metaObject()->className()) + widget->objectName();
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const auto* label = qobject_cast<const QLabel*>(widget);
            const QString text = button  ? button->text() + button->toolTip()
                                 : label ? label->text()
                                         : QString();
            if (!widget->objectName().isEmpty() && text.size() > 2)
                found.insert(key, text);
        }
        return found;
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        QCoreApplication::setApplicationName(QStringLiteral("deskdialogs-%1").arg(qApp->applicationPid()));
        m_folder.reset(new QTemporaryDir);
        const QString chart = m_folder->filePath(QStringLiteral("20260101_120000/wall.png"));
        QVERIFY(chartfiles::writeChart(chart, Qt::red));
        m_window.reset(new MainWindow(m_folder->path()));
        m_window->switchLanguage(QStringLiteral("en"));
        m_window->show();
        QVERIFY(isListed(*m_window));
        m_window->findChild<ChartList*>()->selectChart(chart);
    }

    void cleanup()
    {
        m_window.reset();
        QDir(QFileInfo(deskSettings().fileName()).path()).removeRecursively();
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void everyControlIsNamedAndReached_data()
    {
        QTest::addColumn<QByteArray>("action");
        for (const char* action : {"Rename…", "Tags…", "Export…", "Choose folder…", "New from…", "Show on…",
                                   "Read a photo…", "Keyboard shortcuts", "Manual", "About"})
            QTest::newRow(action) << QByteArray(action);
    }

    void everyControlIsNamedAndReached()
    {
        QFETCH(QByteArray, action);
        QDialog* dialog = open(action.constData());
        QVERIFY(dialog);
        QCOMPARE(shortcomingsOf(*dialog).join(QLatin1Char('\n')), QString());
        QCOMPARE(beyondTab(*dialog).join(QLatin1Char('\n')), QString());
        close(dialog);
    }

    void everyControlOfAWindowIsNamedAndReached_data()
    {
        QTest::addColumn<QByteArray>("window");
        for (const char* window :
             {"list", "editor", "wall", "keys of the wall", "changed wall", "photo",
              "photo that says nothing", "picture", "missing file", "failed save", "changed chart", "draft"})
            QTest::newRow(window) << QByteArray(window);
    }

    void everyControlOfAWindowIsNamedAndReached()
    {
        QFETCH(QByteArray, window);
        QWidget* shown = openWindow(window);
        QVERIFY(shown);
        shown->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(shown));
        QCOMPARE(shortcomingsOf(*shown).join(QLatin1Char('\n')), QString());
        QCOMPARE(beyondTab(*shown).join(QLatin1Char('\n')), QString());
        m_window->session()->end();
    }

    void nothingIsCutInAnyLanguage_data() { everyControlIsNamedAndReached_data(); }

    void nothingIsCutInAnyLanguage()
    {
        QFETCH(QByteArray, action);
        for (const QString& language : languageCodes()) {
            m_window->switchLanguage(language);
            QDialog* dialog = open(action.constData());
            QVERIFY2(dialog, qPrintable(language));
            QStringList cut = cuttexts::in(*dialog);
            cut = cut.filter(
                QRegularExpression(QStringLiteral("^(?!QComboBox \"lookInCombo\")"))); // a path of any length
            QVERIFY2(cut.isEmpty(), qPrintable(language + QLatin1String(": ") + cut.join(QLatin1Char('\n'))));
            close(dialog);
        }
    }

    void theToolkitsTextsAreTranslated_data()
    {
        QTest::addColumn<QByteArray>("action");
        QTest::newRow("export") << QByteArray("Export…");
        QTest::newRow("folder") << QByteArray("Choose folder…");
    }

    void theToolkitsTextsAreTranslated()
    {
        QFETCH(QByteArray, action);
        QDialog* dialog = open(action.constData());
        QVERIFY(dialog);
        const QHash<QString, QString> english = texts(*dialog);
        QVERIFY(english.size() >= 8);
        close(dialog);
        for (const char* language : {"de", "es", "ja", "zh_CN"}) {
            m_window->switchLanguage(QLatin1String(language));
            dialog = open(action.constData());
            QVERIFY(dialog);
            const QHash<QString, QString> translated = texts(*dialog);
            close(dialog);
            for (auto it = english.cbegin(); it != english.cend(); ++it)
                QVERIFY2(translated.value(it.key()) != it.value(),
                         qPrintable(language + (": " + it.value())));
        }
    }

    void filesTellSizeAndDateAsTheLanguageDoes()
    {
        const QString name = m_folder->filePath(QStringLiteral("a.bin"));
        QVERIFY(chartfiles::writeFile(name, QByteArray(2560, 'x')));
        const QDateTime when(QDate(2026, 3, 5), QTime(18, 0));
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(when, QFileDevice::FileModificationTime));
        file.close();
        QFileSystemModel files;
        const QLocale german(QLocale::German);
        const auto detail = [&](int column) {
            return DeskDialogs::fileDetail(files, files.index(name, column), german);
        };
        QCOMPARE(detail(0), QString());
        QCOMPARE(detail(1), QStringLiteral("2,50 KiB"));
        QCOMPARE(detail(2), QString());
        QCOMPARE(detail(3), german.toString(when, QLocale::ShortFormat));
        QCOMPARE(DeskDialogs::fileDetail(files, files.index(m_folder->path(), 1), german), QString());
    }

    void messagesAreNamedByTheProgram()
    {
        QCOMPARE(openQuestion("failed save")->windowTitle(), QStringLiteral("Test charts"));
    }

    void aShortSheetHasNoEmptyHalf()
    {
        const auto* sheet = openWallWindow("keys of the wall")->findChild<QTreeWidget*>();
        const QTreeWidgetItem* last = sheet->topLevelItem(sheet->topLevelItemCount() - 1);
        const int bottom = sheet->visualItemRect(last).bottom();
        QVERIFY(bottom <= sheet->viewport()->height());
        QVERIFY(bottom > sheet->viewport()->height() * 8 / 10);
    }

    void buttonsHaveRoomAroundTheirTexts()
    {
        DeskStyle style;
        QPushButton button(QStringLiteral("Discard the changes of this chart"));
        button.setStyle(&style);
        const int text = button.fontMetrics().horizontalAdvance(button.text());
        QVERIFY(button.sizeHint().width() >= text + 24);
        QPushButton small(QStringLiteral("OK"));
        small.setStyle(&style);
        QCOMPARE(small.sizeHint().width(), 80);
    }

    void noWindowIsLargerThanItsScreen()
    {
        QWidget window;
        DeskDialogs::resizeWithinScreen(&window, QSize(300, 200));
        QCOMPARE(window.size(), QSize(300, 200));
        DeskDialogs::resizeWithinScreen(&window, QSize(9000, 9000));
        const QSize room = window.screen()->availableSize();
        QVERIFY(window.width() < room.width() && window.width() > room.width() / 2);
        QVERIFY(window.height() < room.height() && window.height() > room.height() / 2);
    }
};

VD_TEST_MAIN(TestDeskDialogs)
#include "tst_deskdialogs.moc"
