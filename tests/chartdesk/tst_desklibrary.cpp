#include "chartfiles.h"
#include "chartlist.h"
#include "desklanguage.h"
#include "desklibrary.h"
#include "deskoutput.h"
#include "deskwindow.h"
#include "languages.h"
#include "newchart.h"
#include "newfromdialog.h"
#include "presets.h"
#include "testcase.h"
#include "thumbnailcache.h"

#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QInputDialog>
#include <QMenu>
#include <QMimeData>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolButton>

using namespace chartfiles;
using namespace deskwindow;

/// The library of charts in the desk's window: menu, dialogs, search and drops.
class TestDeskLibrary : public TestCase
{
    Q_OBJECT

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<MainWindow> m_window;
    ChartList* m_list = nullptr;

    QString chart(int number) const
    {
        return m_folder->filePath(
            QStringLiteral("2026010%1_000000/%2.png").arg(number).arg(QStringLiteral("wall%1").arg(number)));
    }

    QStringList names() const
    {
        QStringList found;
        const QStringList charts = m_list->charts();
        for (const QString& image : charts)
            found.append(QFileInfo(image).completeBaseName());
        return found;
    }

    template <typename Dialog>
    Dialog* dialog() const
    {
        const bool isThere = QTest::qWaitFor([&] { return m_window->findChild<Dialog*>() != nullptr; });
        return isThere ? m_window->findChild<Dialog*>() : nullptr;
    }

    /// The toolkit's clear button fades in and out, and loses what fades it if it goes meanwhile.
    void letFade() const
    {
        auto* entry = m_window->findChild<QLineEdit*>(QStringLiteral("chartSearch"));
        const auto* button = entry->findChild<QToolButton*>();
        entry->setText(QStringLiteral("wall"));
        QTRY_COMPARE(button->property("opacity").toReal(), 1.0);
        entry->clear();
        QTRY_COMPARE(button->property("opacity").toReal(), 0.0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void dropFile(const QString& file) const
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_list->viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_list->viewport(), &drop);
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_folder.reset(new QTemporaryDir);
        QVERIFY(writeChart(chart(1), Qt::red));
        QVERIFY(writeChart(chart(2), Qt::green));
        QVERIFY(writeChart(chart(3), Qt::blue));
        m_window.reset(new MainWindow(m_folder->path()));
        m_window->switchLanguage(QStringLiteral("en"));
        m_window->library()->setUsesTrash(false);
        m_window->show();
        m_list = m_window->findChild<ChartList*>();
        QVERIFY(isListed(*m_window));
        QCOMPARE(names(), (QStringList{"wall3", "wall2", "wall1"}));
        m_list->selectChart(chart(2));
    }

    void cleanup()
    {
        m_window.reset();
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void duplicate()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("Duplicate")));
        QTRY_COMPARE(m_list->count(), 4);
        QTRY_COMPARE(QFileInfo(m_list->selectedChart()).fileName(), QStringLiteral("wall2 2.png"));
    }

    void rename()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("Rename…")));
        auto* input = dialog<QInputDialog>();
        QVERIFY(input);
        QCOMPARE(input->textValue(), QStringLiteral("wall2"));
        input->setTextValue(QStringLiteral("left wing"));
        input->accept();
        QTRY_COMPARE(names(), (QStringList{"wall3", "left wing", "wall1"}));
        QTRY_COMPARE(QFileInfo(m_list->selectedChart()).fileName(), QStringLiteral("left wing.png"));
    }

    void aNameThatCannotBeIsTold()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("Rename…")));
        auto* input = dialog<QInputDialog>();
        QVERIFY(input);
        input->setTextValue(QStringLiteral("a/b"));
        input->accept();
        QTRY_VERIFY(message(*m_window));
        QVERIFY(message(*m_window)->informativeText().contains(QStringLiteral("“a/b”")));
        QVERIFY(answer(*m_window, QStringLiteral("OK")));
    }

    void deleteAndUndo()
    {
        const QStringList before = tree(m_folder->path());
        QVERIFY(trigger(*m_window, QStringLiteral("Delete")));
        QTRY_COMPARE(names(), (QStringList{"wall3", "wall1"}));
        QVERIFY(click(*m_window, QStringLiteral("Undo")));
        QTRY_COMPARE(names(), (QStringList{"wall3", "wall2", "wall1"}));
        QTRY_COMPARE(m_list->selectedChart(), chart(2));
        QCOMPARE(tree(m_folder->path()), before);
        QVERIFY(!buttonIn(*m_window, QStringLiteral("Undo")));
    }

    void whatIsDeletedIsGoneWithTheDesk()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("Delete")));
        m_window.reset();
        QVERIFY(!tree(m_folder->path()).join(QLatin1Char(' ')).contains(QStringLiteral("wall2")));
        QVERIFY(!tree(m_folder->path()).join(QLatin1Char(' ')).contains(QStringLiteral(".chartdesk")));
    }

    void search_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("name") << "WALL2" << QStringList{"wall2"};
        QTest::newRow("part") << "wall" << QStringList{"wall3", "wall2", "wall1"};
        QTest::newRow("tag") << "stage" << QStringList{"wall1"};
        QTest::newRow("both") << "stage wall1" << QStringList{"wall1"};
        QTest::newRow("one of them") << "stage wall2" << QStringList();
        QTest::newRow("size") << "16 x 9" << QStringList{"wall3", "wall2", "wall1"};
    }

    void search()
    {
        QFETCH(QString, words);
        QFETCH(QStringList, found);
        m_list->selectChart(chart(1));
        QVERIFY(trigger(*m_window, QStringLiteral("Tags…")));
        auto* input = dialog<QInputDialog>();
        QVERIFY(input);
        input->setTextValue(QStringLiteral("stage, night"));
        input->accept();
        QTRY_VERIFY(!m_list->item(2)->data(ChartList::DetailsRole).toString().isEmpty());
        auto* entry = m_window->findChild<QLineEdit*>(QStringLiteral("chartSearch"));
        QTest::keyClicks(entry, words);
        QTRY_COMPARE(names(), found);
        entry->clear();
        QCOMPARE(m_list->charts().size(), 3);
        letFade();
    }

    void order()
    {
        auto* order = m_window->findChild<QComboBox*>(QStringLiteral("chartOrder"));
        order->setCurrentIndex(1);
        QTRY_COMPARE(names(), (QStringList{"wall1", "wall2", "wall3"}));
        QVERIFY(QFile::rename(chart(1), QFileInfo(chart(1)).path() + QStringLiteral("/Wall10.png")));
        order->setCurrentIndex(2);
        QTRY_COMPARE(names(), (QStringList{"wall2", "wall3", "Wall10"}));
        QTRY_COMPARE(m_list->selectedChart(), chart(2)); // it stays
    }

    void aRecordIsDropped()
    {
        const QTemporaryDir elsewhere;
        const QString record = elsewhere.filePath(QStringLiteral("show.json"));
        const QByteArray size = R"("publicData": {"resolutionWidth": 64, "resolutionHeight": 36})";
        QVERIFY(writeFile(record, R"({"format": "testchart", "version": 1, )" + size + "}"));
        dropFile(record);
        QTRY_VERIFY_WITH_TIMEOUT(names().contains(QStringLiteral("show")) || message(*m_window), 30000);
        QVERIFY(!message(*m_window));
        QTRY_COMPARE(QImage(m_list->selectedChart()).size(), QSize(64, 36));
    }

    void aWallIsDropped()
    {
        const QTemporaryDir elsewhere;
        const QString wall = elsewhere.filePath(QStringLiteral("stage.wall.json"));
        const QByteArray json = R"({"format": "testwall", "version": 1, "chart": {"path": "chart.json"}})";
        QVERIFY(writeFile(wall, json));
        QVERIFY(writeFile(elsewhere.filePath(QStringLiteral("chart.json")),
                          R"({"format": "testchart", "version": 1})"));
        dropFile(wall);
        QTRY_COMPARE(m_list->selectedDocument(), m_folder->filePath(QStringLiteral("stage.wall.json")));
        QCOMPARE(m_window->statusBar()->currentMessage(),
                 QStringLiteral("Taken in, with its chart: stage.wall.json"));
        const QDateTime saved = QFileInfo(m_list->selectedDocument()).lastModified();
        QCOMPARE(m_list->currentItem()->text(),
                 QStringLiteral("stage.wall.json\n") +
                     localeOf(QStringLiteral("en")).toString(saved, QLocale::ShortFormat));
        QVERIFY(!message(*m_window));
    }

    void aWallThatCannotBeReadIsTold()
    {
        const QTemporaryDir elsewhere;
        const QString wall = elsewhere.filePath(QStringLiteral("broken.wall.json"));
        QVERIFY(writeFile(wall, R"({"format": "testwall", "version": 1, "data": {"bitDepth": 7}})"));
        m_window->library()->take({wall});
        QTRY_VERIFY(message(*m_window));
        QCOMPARE(message(*m_window)->informativeText(),
                 QStringLiteral("broken.wall.json: data.bitDepth: 7 is not in 8..16"));
        QVERIFY(answer(*m_window, QStringLiteral("OK")));
        QVERIFY(isListed(*m_window));
        QCOMPARE(m_list->count(), 3);
    }

    void aRecordThatCannotBeReadIsTold()
    {
        const QTemporaryDir elsewhere;
        const QString record = elsewhere.filePath(QStringLiteral("broken.json"));
        QVERIFY(writeFile(record, "{}"));
        m_window->library()->take({record});
        QTRY_VERIFY(message(*m_window));
        QVERIFY(message(*m_window)->informativeText().contains(QStringLiteral("broken.json: format")));
        QVERIFY(answer(*m_window, QStringLiteral("OK")));
        QVERIFY(isListed(*m_window));
        QCOMPARE(m_list->count(), 3);
    }

    void aChartIsDraggedOutAsAFile()
    {
        const QModelIndex index = m_list->model()->index(1, 0);
        const QScopedPointer<QMimeData> data(m_list->model()->mimeData({index}));
        QCOMPARE(data->urls(), QList<QUrl>{QUrl::fromLocalFile(chart(2))});
    }

    void theImageIsCopied()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("Copy image")));
        QTRY_COMPARE(QGuiApplication::clipboard()->image().size(), QSize(16, 9));
        QCOMPARE(QGuiApplication::clipboard()->image().pixelColor(1, 1), QColor(Qt::green));
    }

    void anExportIsWritten()
    {
        const QTemporaryDir elsewhere;
        const QString target = elsewhere.filePath(QStringLiteral("a.bmp"));
        m_window->library()->exportTo(target);
        QTRY_COMPARE(QImage(target).size(), QSize(16, 9));
        m_window->library()->exportTo(QStringLiteral("/dev/null/a.bmp"));
        QTRY_VERIFY(message(*m_window));
        QVERIFY(answer(*m_window, QStringLiteral("OK")));
    }

    void newFromAPreset()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("New from…")));
        auto* presets = dialog<NewFromDialog>();
        QVERIFY(presets);
        auto* walls = presets->findChild<QComboBox*>(QStringLiteral("presetWalls"));
        walls->setCurrentIndex(walls->findData(QStringLiteral("banner-128x256")));
        auto* pictures = presets->findChild<QListWidget*>(QStringLiteral("presetPictures"));
        pictures->setCurrentRow(
            pictures->row(pictures->findItems(QStringLiteral("Chessboard"), Qt::MatchExactly).first()));
        QTRY_VERIFY(!pictures->item(0)->icon().isNull());
        const auto wanted = presets->record();
        QCOMPARE(wanted.publicData.resolutionWidth, 3840);
        QCOMPARE(wanted.publicData.boxRow, 2);
        presets->accept();
        QVERIFY(m_window->session()->isOpen());
        QCOMPARE(m_window->editor()->getTestChartToolsData().publicData, wanted.publicData);
        QVERIFY(m_window->editor()->isShowForAdd());
        QVERIFY(settle(*m_window));
        QVERIFY(!m_window->session()->isChanged());
        m_window->session()->end();
    }

    void newFromThePresetWithMarkers()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("New from…")));
        auto* presets = dialog<NewFromDialog>();
        QVERIFY(presets);
        auto* pictures = presets->findChild<QListWidget*>(QStringLiteral("presetPictures"));
        pictures->setCurrentItem(
            pictures->findItems(QStringLiteral("Coded markers"), Qt::MatchExactly).first());
        presets->accept();
        QVERIFY(m_window->session()->hasMarkers());
        QVERIFY(m_window->editor()->markersShown());
        QVERIFY(settle(*m_window));
        QVERIFY(!m_window->session()->isChanged());
        m_window->session()->end();
        QVERIFY(!m_window->session()->hasMarkers());
    }

    void everyPresetHasItsPicture()
    {
        NewFromDialog presets(m_window.get());
        presets.setAttribute(Qt::WA_DeleteOnClose, false);
        const auto* pictures = presets.findChild<QListWidget*>(QStringLiteral("presetPictures"));
        const auto count = std::count_if(::presets().begin(), ::presets().end(),
                                         [](const Preset& preset) { return !preset.isWall(); });
        QCOMPARE(pictures->count(), int(count) + 1);
        for (int row = 0; row < pictures->count(); ++row) {
            const QListWidgetItem* picture = pictures->item(row);
            QTRY_VERIFY(!picture->icon().isNull());
            QVERIFY2(picture->text() != picture->data(Qt::UserRole), qPrintable(picture->text()));
        }
    }

    /// A chart that the search has hidden is not chosen either.
    void nothingOfItWithoutAChart()
    {
        const auto isAny = [this] {
            const QList<QAction*> actions = m_window->library()->menu()->actions();
            return std::any_of(actions.begin() + 1, actions.end(), [](const QAction* action) {
                return !action->isSeparator() && action->isEnabled();
            });
        };
        QVERIFY(isAny());
        auto* search = m_window->findChild<QLineEdit*>(QStringLiteral("chartSearch"));
        search->setText(QStringLiteral("wall1"));
        QVERIFY(!isAny());
        QVERIFY(!m_window->output()->showAction()->isEnabled());
        search->clear();
        QVERIFY(isAny());
        letFade();
        m_window.reset(new MainWindow(m_folder->path()));
        QVERIFY(!isAny());
    }

    /// While a chart is edited the list cannot be reached.
    void nothingOfItWhileEditing()
    {
        QVERIFY(trigger(*m_window, QStringLiteral("New chart")));
        for (const QAction* action : m_window->library()->menu()->actions())
            QVERIFY2(action->isSeparator() || !action->isEnabled(), qPrintable(action->text()));
        m_window->session()->end();
    }

    void theCacheGoesByContent()
    {
        const ThumbnailCache cache(m_folder->filePath(QStringLiteral("cache")));
        QImage picture(24, 13, QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        QVERIFY(cache.find("abc", picture.size()).isNull());
        cache.insert("abc", picture);
        QCOMPARE(cache.find("abc", picture.size()), picture);
        QVERIFY(cache.find("abd", picture.size()).isNull());
        QVERIFY(cache.find("abc", QSize(48, 26)).isNull());
        cache.insert("abd", picture);
        cache.prune(1);
        QCOMPARE(QDir(m_folder->filePath(QStringLiteral("cache"))).entryList(QDir::Files).size(), 1);
    }
};

VD_TEST_MAIN(TestDeskLibrary)
#include "tst_desklibrary.moc"
