#include "chartfiles.h"
#include "chartlist.h"
#include "deskmemory.h"
#include "deskoutput.h"
#include "desksettings.h"
#include "desktheme.h"
#include "deskwindow.h"
#include "diagnostics.h"
#include "languages.h"
#include "nametips.h"
#include "newfromdialog.h"
#include "recentfolders.h"
#include "shortcomings.h"
#include "showdialog.h"
#include "testcase.h"

#include <chartpreview.h>
#include <vdpatterndesign_version.h>

#include <QAbstractSpinBox>
#include <QClipboard>
#include <QComboBox>
#include <QHelpEvent>
#include <QMenuBar>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QToolButton>
#include <QToolTip>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using namespace deskwindow;
using namespace shortcomings;

/// What makes the desk a program that one keeps: keys, help, memory, names for everything.
class TestDeskHome : public TestCase
{
    Q_OBJECT

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<MainWindow> m_window;

    template <typename Widget>
    Widget* shown(const char* name) const
    {
        auto* widget = m_window->findChild<Widget*>(QLatin1String(name));
        return widget && QTest::qWaitFor([&] { return widget->isVisible(); }) ? widget : nullptr;
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        // Nobody else's settings: another test may run beside this one.
        QCoreApplication::setApplicationName(QStringLiteral("deskhome-%1").arg(qApp->applicationPid()));
        m_folder.reset(new QTemporaryDir);
        m_window.reset(new MainWindow(m_folder->path()));
        m_window->switchLanguage(QStringLiteral("en"));
        m_window->show();
    }

    void cleanup()
    {
        m_window.reset();
        QDir(QFileInfo(deskSettings().fileName()).path()).removeRecursively();
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void everyControlOfTheListHasAName()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("New chart")));
        QVERIFY(settle(*m_window));
        QVERIFY(click(*m_window->editor(), QStringLiteral("Confirm")));
        QTRY_VERIFY_WITH_TIMEOUT(isListShown(*m_window), 30000);
        QVERIFY2(shortcomingsOf(*m_window).isEmpty(),
                 qPrintable(shortcomingsOf(*m_window).join(QLatin1Char('\n'))));
    }

    void everyControlOfTheEditorHasAName()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("New chart")));
        QVERIFY(settle(*m_window));
        QVERIFY2(shortcomingsOf(*m_window).isEmpty(),
                 qPrintable(shortcomingsOf(*m_window).join(QLatin1Char('\n'))));
        m_window->session()->end();
    }

    void anEditBeginsWithAllOfTheChart()
    {
        const auto* preview = m_window->editor()->preview();
        QVERIFY(trigger(*m_window, QStringLiteral("New chart")) && settle(*m_window));
        m_window->editor()->preview()->zoomIn();
        QVERIFY(!preview->isFitted());
        m_window->session()->end();
        QVERIFY(trigger(*m_window, QStringLiteral("New chart")) && settle(*m_window));
        QVERIFY(preview->isFitted());
        m_window->session()->end();
    }

    void everyControlOfADialogHasAName()
    {
        ShowDialog show(QSize(64, 36), m_window.get());
        NewFromDialog presets(m_window.get());
        for (QDialog* dialog : {static_cast<QDialog*>(&show), static_cast<QDialog*>(&presets)}) {
            dialog->setAttribute(Qt::WA_DeleteOnClose, false);
            dialog->show();
            QCOMPARE(shortcomingsOf(*dialog).join(QLatin1Char('\n')), QString());
        }
    }

    void everyShortcutIsOneActions()
    {
        QHash<QString, QString> taken;
        for (const QAction* action : m_window->findChildren<QAction*>()) {
            const QString key = action->shortcut().toString();
            if (key.isEmpty())
                continue;
            QVERIFY2(!taken.contains(key), qPrintable(key + ": " + action->text() + ", " + taken.value(key)));
            taken.insert(key, action->text());
        }
        QVERIFY(taken.size() >= 15);
    }

    void theSheetHasEveryKey()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("Keyboard shortcuts")));
        auto* tree = shown<QTreeWidget>("shortcuts");
        QVERIFY(tree);
        QHash<QString, QString> keys;
        for (QTreeWidgetItemIterator it(tree); *it; ++it)
            keys.insert((*it)->text(0), (*it)->text(1));
        for (const QAction* menu : m_window->menuBar()->actions()) {
            for (const QAction* action : menu->menu()->actions()) {
                if (!action->shortcut().isEmpty())
                    QCOMPARE(keys.value(action->text()),
                             action->shortcut().toString(QKeySequence::NativeText));
            }
        }
        QCOMPARE(keys.value(QStringLiteral("New chart")), QStringLiteral("Ctrl+N"));
        QCOMPARE(keys.value(QStringLiteral("Black")), QStringLiteral("B"));
        QCOMPARE(keys.value(QStringLiteral("Show on…")), QStringLiteral("F11"));
        QCOMPARE(keys.value(QStringLiteral("Leave the output")), QStringLiteral("Esc"));
        QCOMPARE(keys.value(QStringLiteral("Redo")), QStringLiteral("Ctrl+Shift+Z"));
        QCOMPARE(keys.value(QStringLiteral("Pixel for pixel")), QStringLiteral("1"));
        QCOMPARE(tree->findItems(QStringLiteral("Output"), Qt::MatchExactly).size(), 1);
        QCOMPARE(shortcomingsOf(*tree->window()).join(QLatin1Char('\n')), QString());
    }

    /// They are named as the keyboards of the language have them.
    void keysAreTranslated()
    {
        m_window->switchLanguage(QStringLiteral("de"));
        QStringList texts;
        for (const QAction* action : m_window->output()->menu()->actions())
            texts.append(action->text());
        const QString key = QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText);
        QVERIFY2(texts.contains(QStringLiteral("Starten oder anhalten\t") + key),
                 qPrintable(texts.join(QLatin1Char('\n'))));
        QVERIFY(key != QStringLiteral("Space"));
    }

    void theDiagnosticsAreCopied()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("About")));
        QVERIFY(answer(*m_window, QStringLiteral("Copy diagnostics")));
        const QString copied = QGuiApplication::clipboard()->text();
        QCOMPARE(copied, diagnostics());
        QVERIFY(copied.contains(QStringLiteral(VDPATTERNDESIGN_VERSION)));
        QVERIFY(copied.contains(QLatin1String(qVersion())));
        QVERIFY(copied.contains(QStringLiteral("Display 1 ")));
    }

    /// Every page that a page leads to is there.
    void theManualIsWhole()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("Manual")));
        auto* manual = shown<QTextBrowser>("manual");
        QVERIFY(manual);
        QVERIFY(manual->toPlainText().contains(QStringLiteral("Walk the wall")));
        static const QRegularExpression link(QStringLiteral("\\]\\(([a-z]+\\.md)\\)"));
        QFile start(QStringLiteral(":/chartdesk/manual/README.md"));
        QVERIFY(start.open(QIODevice::ReadOnly));
        auto it = link.globalMatch(QString::fromUtf8(start.readAll()));
        int pages = 0;
        for (; it.hasNext(); ++pages) {
            const QString page = it.next().captured(1);
            QVERIFY2(QFile::exists(QStringLiteral(":/chartdesk/manual/") + page), qPrintable(page));
        }
        QCOMPARE(pages, 5);
        const QRegularExpression picture(QStringLiteral("!\\[[^\\]]*\\]\\(([^)]+)\\)"));
        int pictures = 0;
        for (const QFileInfo& page : QDir(QStringLiteral(":/chartdesk/manual")).entryInfoList(QDir::Files)) {
            QFile file(page.filePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            auto found = picture.globalMatch(QString::fromUtf8(file.readAll()));
            for (; found.hasNext(); ++pictures) {
                const QString path = QStringLiteral(":/chartdesk/manual/") + found.next().captured(1);
                QVERIFY2(!QImage(path).isNull(), qPrintable(path));
            }
        }
        QCOMPARE(pictures, 5);
        manual->window()->close();
    }

    void foldersAreRemembered()
    {
        RecentFolders menu;
        const QTemporaryDir folders[10];
        for (const QTemporaryDir& folder : folders)
            menu.add(folder.path());
        menu.add(folders[5].path());
        QCOMPARE(RecentFolders::folders().size(), 8);
        QCOMPARE(RecentFolders::folders().first(), folders[5].path());
        menu.add(QStringLiteral("/no/such/folder"));
        QSignalSpy chosen(&menu, &RecentFolders::chosen);
        Q_EMIT menu.aboutToShow();
        QCOMPARE(menu.actions().size(), 7); // the one that is not there is not offered
        menu.actions().first()->trigger();
        QCOMPARE(chosen.first().first().toString(), folders[5].path());
    }

    void theLanguageIsRemembered()
    {
        const DeskMemory memory(m_window.get());
        QCOMPARE(DeskMemory::language(QStringLiteral("es")), QStringLiteral("es"));
        QVERIFY(trigger(*m_window, QStringLiteral("Deutsch")));
        QCOMPARE(DeskMemory::language(QStringLiteral("es")), QStringLiteral("de"));
        deskSettings().setValue(QStringLiteral("language"), QStringLiteral("tlh"));
        QCOMPARE(DeskMemory::language(QStringLiteral("es")), QStringLiteral("es"));
    }

    void thePlaceIsRemembered()
    {
        m_window->setWindowState(Qt::WindowNoState);
        const DeskMemory memory(m_window.get());
        m_window->resize(700, 500);
        QTRY_COMPARE(m_window->size(), QSize(700, 500));
        m_window->hide();
        MainWindow next(m_folder->path());
        const DeskMemory again(&next);
        QCOMPARE(next.size(), QSize(700, 500));
    }

    void theFolderIsRemembered()
    {
        const QString other = QStringLiteral("/another");
        QCOMPARE(DeskMemory::folder(other), other);
        const DeskMemory memory(m_window.get());
        m_window->hide();
        QCOMPARE(DeskMemory::folder(other), m_folder->path());
        m_folder.reset(); // a disk that is away
        QCOMPARE(DeskMemory::folder(other), other);
    }

    void pathsAreOpened()
    {
        const QTemporaryDir charts;
        const QString first = charts.filePath(QStringLiteral("20260101_120000/a.png"));
        const QString second = charts.filePath(QStringLiteral("20260101_120001/b.png"));
        QVERIFY(chartfiles::writeChart(first, Qt::red));
        QVERIFY(chartfiles::writeChart(second, Qt::blue));
        const auto* list = m_window->findChild<ChartList*>();
        m_window->openPaths({charts.path()});
        QCOMPARE(m_window->folder(), charts.path());
        QTRY_COMPARE(list->count(), 2);
        m_window->openPaths({first});
        QTRY_COMPARE(list->selectedChart(), first);
        m_window->openPaths({m_folder->path(), ChartFolderList::recordPath(second)});
        QCOMPARE(m_window->folder(), charts.path());
        QTRY_COMPARE(list->selectedChart(), second);
    }

    /// They are copied into the open folder, as if they were dropped there.
    void filesFromElsewhereAreTakenIn()
    {
        const QTemporaryDir elsewhere;
        const QString picture = elsewhere.filePath(QStringLiteral("photo.png"));
        QVERIFY(chartfiles::writePicture(picture, Qt::red));
        m_window->openPaths({picture});
        QTRY_COMPARE(QFileInfo(m_window->findChild<ChartList*>()->selectedChart()).fileName(),
                     QStringLiteral("photo.png"));
        QCOMPARE(m_window->folder(), m_folder->path());
    }

    void wallsFromElsewhereAreTakenIn()
    {
        const QTemporaryDir elsewhere;
        const QString wall = elsewhere.filePath(QStringLiteral("stage.wall.json"));
        QVERIFY(chartfiles::writeFile(wall, R"({"format": "testwall", "version": 1})"));
        m_window->openPaths({wall});
        const QString taken = QDir(m_folder->path()).filePath(QStringLiteral("stage.wall.json"));
        QTRY_COMPARE(m_window->findChild<ChartList*>()->selectedDocument(), taken);
        m_window->openPaths({taken}); // which is here already
        QTest::qWait(0);
        QTRY_COMPARE(m_window->findChild<ChartList*>()->selectedDocument(), taken);
        QCOMPARE(m_window->findChild<ChartList*>()->count(), 1);
    }

    void whatIsNoChartIsTold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("no picture") << "notes.txt";
        QTest::newRow("no record") << "notes.json";
        QTest::newRow("nothing there") << "none.png";
    }

    void whatIsNoChartIsTold()
    {
        QFETCH(QString, name);
        const QTemporaryDir elsewhere;
        const QString path = elsewhere.filePath(name);
        if (!name.startsWith(QStringLiteral("none")))
            QVERIFY(chartfiles::writeFile(path, "Bring the long ladder."));
        m_window->openPaths({path});
        QTRY_VERIFY(message(*m_window));
        const QString told = message(*m_window)->text() + message(*m_window)->informativeText();
        QVERIFY2(told.contains(name), qPrintable(told));
        QVERIFY(answer(*m_window, QStringLiteral("OK")));
        QVERIFY(isListed(*m_window));
        QCOMPARE(m_window->findChild<ChartList*>()->count(), 0);
    }

    void theThemeIsRemembered()
    {
        QCOMPARE(DeskTheme::chosen(), QStringLiteral("dark"));
        QVERIFY(trigger(*m_window, QStringLiteral("Light")));
        QCOMPARE(DeskTheme::chosen(), QStringLiteral("light"));
        QVERIFY(trigger(*m_window, QStringLiteral("Dark")));
        QCOMPARE(DeskTheme::chosen(), QStringLiteral("dark"));
    }
};

VD_TEST_MAIN(TestDeskHome)
#include "tst_deskhome.moc"
