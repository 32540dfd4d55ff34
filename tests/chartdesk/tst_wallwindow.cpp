#include "deskstyle.h"
#include "deskwalls.h"
#include "deskwindow.h"
#include "languages.h"
#include "shortcomings.h"
#include "testcase.h"
#include "wallcanvas.h"
#include "wallmodel.h"
#include "wallwindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <set>

using namespace vardeno::walls;

/// Walls in the hands of the desk's user: the list, the window of a wall, its canvas and its fields.
class TestWallWindow : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WallWindow> m_window;

    QString path(const QString& name) const { return m_folder->filePath(name); }
    WallCanvas& canvas() const { return *m_window->canvas(); }
    WallModel& model() const { return *m_window->model(); }
    const WallDocument& wall() const { return model().wall(); }

    void writeWall(const QString& name, int columns = 4, int rows = 3) const
    {
        WallDocument wall;
        wall.columnWidths.pixels.assign(std::size_t(columns), 64);
        wall.rowHeights.pixels.assign(std::size_t(rows), 64);
        QCOMPARE(WallFile::write(path(name), wall), QString());
    }

    void openWall()
    {
        writeWall("a.wall.json");
        m_window = std::make_unique<WallWindow>();
        QCOMPARE(m_window->open(path("a.wall.json")), QStringList());
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        canvas().setFocus();
        QTRY_VERIFY(canvas().hasFocus());
    }

    QPoint middle(int column, int row) const { return canvas().rectOf({column, row}).center(); }

    void click(int column, int row, Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mouseClick(canvas().viewport(), Qt::LeftButton, keys, middle(column, row));
    }

    void press(const QPoint& at) const { QTest::mousePress(canvas().viewport(), Qt::LeftButton, {}, at); }

    void pull(const QPoint& to) const
    {
        QMouseEvent move(QEvent::MouseMove, to, canvas().viewport()->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(canvas().viewport(), &move);
    }

    void drag(const QPoint& from, const std::vector<QPoint>& way) const
    {
        press(from);
        for (const QPoint& to : way)
            pull(to);
        QTest::mouseRelease(canvas().viewport(), Qt::LeftButton, {}, way.back());
    }

    void key(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(&canvas(), Qt::Key(key), modifiers);
    }

    void trigger(const char* name) const { m_window->findChild<QAction*>(QLatin1String(name))->trigger(); }

    /// The window of a new wall in the desk, which is shown; null where it did not open.
    WallWindow* openedWall(MainWindow& desk)
    {
        writeWall("a.wall.json");
        desk.show();
        return desk.walls()->open(path("a.wall.json"));
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void cleanup()
    {
        m_window.reset();
        m_folder.reset();
        TestCase::cleanup();
    }

    void cabinetsAreSelectedWithTheMouse()
    {
        openWall();
        click(1, 1);
        QVERIFY(canvas().selection() == (WallEdit::Places{{1, 1}}));
        click(3, 2, Qt::ControlModifier);
        QVERIFY(canvas().selection() == (WallEdit::Places{{1, 1}, {3, 2}}));
        click(1, 1, Qt::ControlModifier);
        QVERIFY(canvas().selection() == (WallEdit::Places{{3, 2}}));
        click(2, 1, Qt::ShiftModifier);
        QVERIFY(canvas().selection() == (WallEdit::Places{{1, 1}, {2, 1}}));
        drag(middle(0, 0), {middle(1, 1)});
        QCOMPARE(canvas().selection().size(), std::size_t(4));
        QTest::mouseClick(canvas().viewport(), Qt::LeftButton, {}, QPoint(2, 2));
        QVERIFY(canvas().selection().empty());
    }

    void arrowsResizeByOneAndByTen()
    {
        openWall();
        click(1, 2);
        key(Qt::Key_Right);
        key(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(wall().columnWidths.pixels, (std::vector<int>{64, 75, 64, 64}));
        key(Qt::Key_Up, Qt::ShiftModifier);
        key(Qt::Key_Down);
        QCOMPARE(wall().rowHeights.pixels, (std::vector<int>{64, 64, 55}));
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(wall().rowHeights.pixels, (std::vector<int>{64, 64, 64})); // what was one stroke of keys
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(wall().columnWidths.pixels, std::vector<int>(4, 64));
        key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(wall().columnWidths.pixels[1], 75);
    }

    void keysGoFromCabinetToCabinet()
    {
        openWall();
        click(0, 0);
        key(Qt::Key_Right, Qt::ControlModifier);
        key(Qt::Key_Down, Qt::ControlModifier);
        QVERIFY(canvas().selection() == (WallEdit::Places{{1, 1}}));
        key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(canvas().selection() == (WallEdit::Places{{1, 1}, {2, 1}}));
        key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(canvas().selection().size(), std::size_t(12));
        key(Qt::Key_Escape);
        QVERIFY(canvas().selection().empty());
    }

    void cabinetsAreRemovedAndTurned()
    {
        openWall();
        click(2, 0);
        key(Qt::Key_Delete);
        QCOMPARE(model().plan().cabinetAt(Place{2, 0}), -1);
        key(Qt::Key_Delete);
        QVERIFY(model().plan().cabinetAt(Place{2, 0}) >= 0);
        key(Qt::Key_T);
        QCOMPARE(WallEdit::exceptionAt(wall(), {2, 0}).turned, 90);
    }

    void keysAreListed()
    {
        openWall();
        trigger("wallKeys");
        QTRY_VERIFY(QApplication::activeModalWidget());
        const auto* tree = QApplication::activeModalWidget()->findChild<QTreeWidget*>();
        QVERIFY(tree);
        QHash<QString, QString> keys;
        for (int row = 0; row < tree->topLevelItemCount(); ++row)
            keys.insert(tree->topLevelItem(row)->text(0), tree->topLevelItem(row)->text(1));
        for (const QAction* action : m_window->findChildren<QAction*>(QRegularExpression("^wall"))) {
            if (!action->shortcut().isEmpty())
                QCOMPARE(keys.value(action->text()), action->shortcut().toString(QKeySequence::NativeText));
        }
        QCOMPARE(keys.value("Turn"), QString("T"));
        QCOMPARE(keys.value("Size by ten pixels"), QString("Shift+← → ↑ ↓"));
        QCOMPARE(shortcomings::shortcomingsOf(*tree->window()).join('\n'), QString());
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    void theWindowFitsItsScreen()
    {
        openWall();
        const QSize room = m_window->screen()->availableSize();
        QVERIFY(m_window->width() <= room.width() && m_window->height() <= room.height());
    }

    /// Whatever their group, and in every language.
    void theFieldsBeginBelowOneAnother()
    {
        openWall();
        for (const char* language : {"es", "en"}) {
            chooseLanguage(QLatin1String(language));
            m_window->retranslate();
            std::set<int> widths;
            for (const QLabel* label : m_window->findChildren<QLabel*>()) {
                if (!label->buddy())
                    continue;
                QVERIFY(label->minimumWidth() >= label->sizeHint().width());
                widths.insert(label->minimumWidth());
            }
            QCOMPARE(widths.size(), std::size_t(1));
        }
    }

    void whatIsFilledInStandsOut_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QColor>("text");
        QTest::newRow("dark") << QColor(40, 40, 43) << QColor(235, 235, 240);
        QTest::newRow("light") << QColor(236, 236, 240) << QColor(30, 30, 34);
    }

    /// Entries and boxes to tick have a line around them that can be seen, in every theme.
    void whatIsFilledInStandsOut()
    {
        QFETCH(QColor, window);
        QFETCH(QColor, text);
        DeskStyle style;
        QPalette palette(window, window);
        palette.setColor(QPalette::Base, window);
        palette.setColor(QPalette::WindowText, text);
        QLineEdit entry;
        QSpinBox number;
        QCheckBox box;
        for (QWidget* field : std::initializer_list<QWidget*>{&entry, &number, &box}) {
            field->setStyle(&style);
            field->setPalette(palette);
            field->resize(100, 24);
            const QImage picture = field->grab().toImage();
            int most = 0;
            for (int x = 0; x < 12; ++x)
                most = std::max(most, std::abs(qGray(picture.pixel(x, 12)) - qGray(window.rgb())));
            QVERIFY2(most >= 40, qPrintable(QString::number(most)));
        }
    }

    void edgesAreDragged_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("as it opens") << QSize();
        QTest::newRow("the wall as wide as its window") << QSize(800, 900);
        QTest::newRow("the wall as high as its window") << QSize(1280, 560);
    }

    void edgesAreDragged()
    {
        QFETCH(QSize, size);
        openWall();
        if (size.isValid()) {
            m_window->resize(size);
            QTRY_COMPARE(m_window->size(), size);
        }
        const QRect column = canvas().rectOf({1, 1});
        const QPoint edge(column.right() + 1, column.center().y());
        const int pixels = qRound(30 / canvas().zoom());
        const double whole = canvas().zoom();
        press(edge);
        for (const int way : {10, 60, 30}) {
            pull(edge + QPoint(way, 0));
            QVERIFY(std::abs(canvas().rectOf({1, 1}).right() + 1 - edge.x() - way) <= canvas().zoom());
        }
        QTest::mouseRelease(canvas().viewport(), Qt::LeftButton, {}, edge + QPoint(30, 0));
        QCOMPARE(wall().columnWidths.pixels, (std::vector<int>{64, 64 + pixels, 64, 64}));
        QCOMPARE(model().history()->count(), 1); // one step, however the mouse went
        QVERIFY(canvas().zoom() <= whole);       // and afterwards the whole is seen again
        QVERIFY(canvas().viewport()->rect().contains(canvas().rectOf({3, 2})));
        const QRect row = canvas().rectOf({1, 1});
        drag({row.center().x(), row.bottom() + 1}, {{row.center().x(), row.bottom() - 19}});
        QVERIFY(wall().rowHeights.pixels[1] < 64);
    }

    /// What a drag has changed so far is gone, and so is its step; those before it stay.
    void escapeTakesADragBack_data()
    {
        QTest::addColumn<bool>("isColumn");
        QTest::newRow("column") << true;
        QTest::newRow("row") << false;
    }

    void escapeTakesADragBack()
    {
        QFETCH(bool, isColumn);
        openWall();
        click(1, 1);
        key(Qt::Key_Right);
        const WallDocument before = wall();
        const QRect cabinet = canvas().rectOf({1, 1});
        const QPoint edge = isColumn ? QPoint(cabinet.right() + 1, cabinet.center().y())
                                     : QPoint(cabinet.center().x(), cabinet.bottom() + 1);
        for (int round = 0; round < 2; ++round) { // from the same pixel again
            press(edge);
            pull(edge + QPoint(40, 40));
            QVERIFY(wall() != before);
            key(Qt::Key_Escape);
            QVERIFY(wall() == before);
            pull(edge + QPoint(60, 60)); // the button is down yet
            QTest::mouseRelease(canvas().viewport(), Qt::LeftButton, {}, edge + QPoint(60, 60));
            QVERIFY(wall() == before);
            QCOMPARE(model().history()->count(), 1);
        }
        QVERIFY(!model().history()->canRedo());
        QVERIFY(canvas().selection() == (WallEdit::Places{{1, 1}}));
    }

    /// With nothing moved there is nothing to take back, and two drags are two steps.
    void eachDragIsAStep()
    {
        openWall();
        const auto edge = [this] {
            const QRect cabinet = canvas().rectOf({0, 1});
            return QPoint(cabinet.right() + 1, cabinet.center().y());
        };
        const QPoint at = edge();
        drag(at, {at + QPoint(20, 0)});
        const int wide = wall().columnWidths.pixels[0];
        press(edge());
        key(Qt::Key_Escape);
        QCOMPARE(wall().columnWidths.pixels[0], wide);
        QTest::mouseRelease(canvas().viewport(), Qt::LeftButton, {}, edge());
        QCOMPARE(model().history()->count(), 1);
        m_window->canvas()->showWhole();
        drag(edge(), {edge() - QPoint(20, 0)});
        QCOMPARE(model().history()->count(), 2);
    }

    void cablesAreDrawn()
    {
        openWall();
        key(Qt::Key_D);
        drag(middle(0, 0), {middle(0, 1), middle(1, 1), middle(2, 1)});
        const auto& runs = wall().data.path.byHand.runs;
        QVERIFY(!runs.empty());
        QVERIFY(runs.back() == (std::vector<Place>{{0, 0}, {0, 1}, {1, 1}, {2, 1}}));
        QVERIFY(wall().power.path.byHand.runs.empty());
        key(Qt::Key_P);
        drag(middle(3, 0), {middle(3, 1)});
        QVERIFY(wall().power.path.byHand.runs.back() == (std::vector<Place>{{3, 0}, {3, 1}}));
        key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(wall().power.path.byHand.runs.empty());
        trigger("wallPattern");
        QVERIFY(wall().data.path.byHand.runs.empty());
        key(Qt::Key_S);
        click(1, 1);
        QCOMPARE(canvas().selection().size(), std::size_t(1));
    }

    /// From the whole wall to 64 pixels of the screen for one, the pixel under the pointer staying where it
    /// is.
    void zoom()
    {
        openWall();
        const double whole = canvas().zoom();
        QVERIFY(canvas().viewport()->rect().contains(canvas().rectOf({3, 2})));
        for (int step = 0; step < 40; ++step)
            key(Qt::Key_Plus);
        QCOMPARE(canvas().zoom(), 64.0);
        QCOMPARE(canvas().rectOf({0, 0}).width(), 64 * 64);
        key(Qt::Key_1);
        QCOMPARE(canvas().rectOf({0, 0}).size(), QSize(64, 64));
        const QPoint at = middle(1, 1);
        canvas().setZoom(8);
        QVERIFY(canvas().horizontalScrollBar()->maximum() > 0);
        key(Qt::Key_0);
        QCOMPARE(canvas().zoom(), whole);
        QVERIFY(canvas().viewport()->rect().contains(at));
        QWheelEvent wheel(QPointF(middle(1, 1)), canvas().viewport()->mapToGlobal(middle(1, 1)), {}, {0, 120},
                          {}, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(canvas().viewport(), &wheel);
        QVERIFY(canvas().zoom() > whole);
    }

    void fieldsChangeTheWallAndFollowIt()
    {
        openWall();
        auto* width = m_window->findChild<QSpinBox*>("cabinetWidth");
        QVERIFY(!width->isEnabled());
        click(1, 1);
        QVERIFY(width->isEnabled());
        width->setFocus();
        width->selectAll();
        QTest::keyClicks(width, "96");
        QTest::keyClick(width, Qt::Key_Return);
        QCOMPARE(wall().columnWidths.pixels, (std::vector<int>{64, 96, 64, 64}));
        m_window->findChild<QSpinBox*>("wallRows")->setValue(5);
        QCOMPARE(wall().rowHeights.count(), 5);
        auto* pattern = m_window->findChild<QComboBox*>("dataPattern");
        pattern->setFocus();
        QTest::keyClick(pattern, Qt::Key_Down);
        QVERIFY(wall().data.path.pattern == vardeno::walls::Pattern::OneWay);
        auto* names = m_window->findChild<QCheckBox*>("layerNames");
        QVERIFY(!names->isChecked());
        names->setFocus();
        QTest::keyClick(names, Qt::Key_Space);
        QVERIFY(wall().layers.names);
        auto* name = m_window->findChild<QLineEdit*>("cabinetName");
        name->setFocus();
        QTest::keyClicks(name, "Center");
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(WallEdit::exceptionAt(wall(), {1, 1}).name, std::string("Center"));
        while (model().history()->canUndo())
            model().history()->undo();
        QCOMPARE(width->value(), 64);
        QVERIFY(!names->isChecked());
        QCOMPARE(pattern->currentIndex(), 0);
        QCOMPARE(name->text(), QString());
    }

    void controlsHaveNamesAndTips()
    {
        openWall();
        int controls = 0;
        for (QWidget* control : m_window->findChildren<QWidget*>()) {
            if (!qobject_cast<QAbstractSpinBox*>(control) && !qobject_cast<QComboBox*>(control) &&
                !qobject_cast<QCheckBox*>(control) && control != &canvas())
                continue;
            ++controls;
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
            QVERIFY2(!control->toolTip().isEmpty(), qPrintable(control->objectName()));
        }
        QVERIFY(controls > 20);
        for (QAction* action : m_window->findChildren<QAction*>(QRegularExpression("^wall")))
            QVERIFY2(!action->text().isEmpty() && !action->toolTip().isEmpty(),
                     qPrintable(action->objectName()));
    }

    void changesAreSavedOrAskedFor()
    {
        openWall();
        click(1, 1);
        key(Qt::Key_Right);
        QVERIFY(m_window->isWindowModified());
        m_window->close();
        QTRY_VERIFY(m_window->findChild<QMessageBox*>());
        QVERIFY(m_window->isVisible());
        QVERIFY(deskwindow::click(*m_window->findChild<QMessageBox*>(), "Save"));
        QTRY_VERIFY(!m_window->isVisible());
        QCOMPARE(WallFile::read(path("a.wall.json")).wall.columnWidths.pixels[1], 65);
    }

    /// In the list stand walls and shows with their pictures; a wall opens in its window.
    void walls_data()
    {
        QTest::addColumn<QString>("opened");
        QTest::newRow("a wall") << "a.wall.json";
        QTest::newRow("a show") << "b.show.json";
    }

    void walls()
    {
        QFETCH(QString, opened);
        writeWall("a.wall.json");
        QFile show(path("b.show.json"));
        QVERIFY(show.open(QIODevice::WriteOnly));
        show.write(R"({"format": "testshow", "version": 1, "show": {
            "outputs": [{"name": "A", "width": 320, "height": 200}],
            "walls": [{"name": "Main", "path": "a.wall.json"}], "placements": [{"wall": "Main", "output": "A"}]}})");
        show.close();
        MainWindow desk(m_folder->path());
        desk.show();
        auto* list = desk.findChild<ChartList*>();
        QTRY_COMPARE(list->count(), 2);
        QCOMPARE(list->charts(), QStringList());
        for (int row = 0; row < 2; ++row) {
            QTRY_VERIFY(!list->item(row)->data(ChartList::ThumbnailRole).value<QPixmap>().isNull());
            const QImage picture = list->item(row)->data(ChartList::ThumbnailRole).value<QPixmap>().toImage();
            QVERIFY(picture.pixelColor(picture.rect().center()) != QColor(Qt::black) ||
                    picture.pixelColor(picture.width() / 4, picture.height() / 3) != QColor(Qt::black));
        }
        QCOMPARE(list->item(0)->data(ChartList::DetailsRole).toString(), QString("256 x 192, 4 x 3"));
        list->setCurrentRow(opened == "a.wall.json" ? 0 : 1);
        QCOMPARE(list->selectedChart(), QString());
        QCOMPARE(list->selectedDocument(), path(opened));
        QVERIFY(deskwindow::trigger(desk, "Edit chart"));
        auto* window = desk.findChild<WallWindow*>();
        QVERIFY(window && window->isVisible());
        QCOMPARE(window->model()->path(), path("a.wall.json"));
    }

    void newWalls()
    {
        MainWindow desk(m_folder->path());
        desk.show();
        QVERIFY(deskwindow::trigger(desk, "New wall"));
        QVERIFY(QFile::exists(path("wall-1.wall.json")));
        QVERIFY(desk.findChild<WallWindow*>());
        QTRY_COMPARE(desk.findChild<ChartList*>()->count(), 1);
    }

    void aBadWallIsTold()
    {
        QFile file(path("a.wall.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"format": "testwall", "version": 1, "data": {"bitDepth": 7}})");
        file.close();
        MainWindow desk(m_folder->path());
        desk.show();
        QVERIFY(!desk.walls()->open(path("a.wall.json")));
        QTRY_VERIFY(deskwindow::message(desk));
        QVERIFY(deskwindow::message(desk)->informativeText().contains("data.bitDepth: 7 is not in 8..16"));
    }

    /// The desk asks before it takes changes along.
    void theDeskWaitsForItsWalls()
    {
        MainWindow desk(m_folder->path());
        WallWindow* window = openedWall(desk);
        QVERIFY(window);
        window->model()->change("turn", WallEdit::turned(window->model()->wall(), {{0, 0}}));
        desk.close();
        QVERIFY(desk.isVisible() && window->isVisible());
        QTRY_VERIFY(window->findChild<QMessageBox*>());
        QVERIFY(deskwindow::click(*window->findChild<QMessageBox*>(), "Discard changes"));
        QTRY_VERIFY(!desk.findChild<WallWindow*>());
        desk.close();
        QTRY_VERIFY(!desk.isVisible());
    }

    /// The editor is asked for no more than it can show.
    void theChartOfALargeWallIsCut()
    {
        MainWindow desk(m_folder->path());
        WallWindow* window = openedWall(desk);
        QVERIFY(window);
        TestChartToolsData asked;
        const auto wanted =
            connect(desk.walls(), &DeskWalls::chartWanted, this,
                    [&](const TestChartToolsData& record, const MarkerData&) { asked = record; });
        TestChartToolsData large;
        large.publicData.resolutionWidth = 5000;
        large.publicData.resolutionHeight = 6000;
        large.publicData.boxCol = 1000;
        large.publicData.boxRow = 1000;
        Q_EMIT window->chartWanted(large, {});
        disconnect(wanted);
        QCOMPARE(asked.publicData.resolutionWidth, 4320);
        QCOMPARE(asked.publicData.resolutionHeight, 4320);
        QCOMPARE(int(asked.publicData.boxCol), 100);
        QCOMPARE(int(asked.publicData.boxRow), 100);
        desk.session()->end();
    }

    /// The chart of a wall is edited as any other, and saved beside it.
    void itsChartIsEdited()
    {
        MainWindow desk(m_folder->path());
        WallWindow* window = openedWall(desk);
        QVERIFY(window);
        window->findChild<QAction*>("wallChart")->trigger();
        QVERIFY(desk.session()->isOpen());
        QVERIFY(deskwindow::settle(desk));
        QCOMPARE(desk.editor()->getTestChartToolsData().publicData.resolutionWidth, 256);
        desk.session()->confirm();
        QTRY_VERIFY_WITH_TIMEOUT(!window->model()->wall().chart.path.empty(), 60000);
        const WallFile::Chart chart = window->model()->chart();
        QCOMPARE(chart.problems, QStringList());
        QVERIFY(QFile::exists(chart.file));
        QVERIFY(!desk.session()->isOpen());
        QVERIFY(window->model()->history()->canUndo());
        window->model()->history()->setClean();
    }
};

VD_TEST_MAIN(TestWallWindow)
#include "tst_wallwindow.moc"
