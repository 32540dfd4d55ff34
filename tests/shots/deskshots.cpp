// Takes a picture of every window and dialog of the chart desk, and tells what is cut in them:
// deskshots FOLDER-OF-CHARTS TARGET THEME LANGUAGE …

#include "chartfont.h"
#include "chartlist.h"
#include "cuttexts.h"
#include "desklibrary.h"
#include "deskoutput.h"
#include "deskstyle.h"
#include "desktheme.h"
#include "deskwalls.h"
#include "deskwindow.h"
#include "display.h"
#include "draftkeeper.h"
#include "hosttext.h"
#include "languages.h"
#include "mainwindow.h"
#include "newfromdialog.h"
#include "outputwindow.h"
#include "readdialog.h"
#include "themepalette.h"
#include "walk.h"
#include "wallcanvas.h"
#include "wallmodel.h"
#include "wallwindow.h"

#include <chartpreview.h>

#include <QColorDialog>
#include <QDialog>
#include <QDir>
#include <QListWidget>
#include <QLoggingCategory>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextStream>
#include <QUndoStack>

using namespace deskwindow;

namespace {

constexpr int settleTime = 200;  ///< ms in which a window is drawn
constexpr int quickToWrite = 80; ///< quality of a PNG file that is compressed little

void need(bool isDone)
{
    if (!isDone)
        qFatal("The desk did not get there.");
}

/// The pictures of one language.
class Shots
{
public:
    Shots(const QString& folder, const QString& target, const QString& language)
        : m_target(target)
        , m_language(language)
        , m_window(folder)
    {
        QDir().mkpath(target);
        m_window.switchLanguage(language);
        m_window.library()->setUsesTrash(false);
        m_window.show();
        m_list = m_window.findChild<ChartList*>();
        need(QTest::qWaitForWindowExposed(&m_window) && isListed(m_window));
        need(QTest::qWaitFor([this] { return !m_list->item(m_list->count() - 1)->icon().isNull(); }, 20000));
        m_list->selectChart(m_list->charts().at(1));
    }

    void take()
    {
        shoot("list", m_window);
        const QList<QAction*> menus = m_window.menuBar()->actions();
        for (int menu = 0; menu < menus.size(); ++menu)
            shootMenu(QStringLiteral("menu%1").arg(menu + 1), menus.at(menu));
        dialog("newfrom", [this] {
            m_window.library()->newFrom();
            const auto* pictures = m_window.findChild<NewFromDialog*>()->findChild<QListWidget*>();
            need(QTest::qWaitFor([&] { return !pictures->item(pictures->count() - 1)->icon().isNull(); },
                                 20000));
        });
        dialog("rename", [this] { m_window.library()->askName(); });
        dialog("tags", [this] { m_window.library()->askTags(); });
        dialog("export", [this] { m_window.library()->askTarget(); });
        dialog("choose", [this] { trigger(QStringLiteral("Choose folder…")); });
        dialog("photo", [this] { trigger(QStringLiteral("Read a photo…")); });
        dialog(
            "show", [this] { trigger(QStringLiteral("Show on…")); }, 3000);
        const QList<QAction*> help = menus.last()->menu()->actions();
        dialog("shortcuts", [&] { help.at(0)->trigger(); });
        dialog("manual", [&] { help.at(1)->trigger(); });
        dialog("about", [&] { help.at(2)->trigger(); });
        takeUndo();
        takeMessages();
        takeWalk();
        takeReading();
        takeWalls();
        takeEditor();
        takeEmpty();
    }

private:
    /// The whole screen, as a person sees it.
    void shoot(const QString& name, const QWidget& window)
    {
        QTest::qWait(settleTime);
        saveScreen(name);
        tell(name, window);
    }

    void saveScreen(const QString& name) const
    {
        QGuiApplication::primaryScreen()->grabWindow(0).save(path(name), "PNG", quickToWrite);
    }

    /// The action with this English text.
    void trigger(const QString& source) { need(deskwindow::trigger(m_window, hostText(source))); }

    void tell(const QString& name, const QWidget& window) const
    {
        const QStringList cut = cuttexts::in(window);
        for (const QString& text : cut)
            QTextStream(stdout) << path(name) << ": " << text << '\n';
    }

    QString path(const QString& name) const
    {
        return m_target + QLatin1Char('/') + name + QLatin1Char('-') + m_language + QLatin1String(".png");
    }

    void shootMenu(const QString& name, const QAction* menu)
    {
        const QRect place = m_window.menuBar()->actionGeometry(const_cast<QAction*>(menu));
        menu->menu()->popup(m_window.menuBar()->mapToGlobal(place.bottomLeft()));
        shoot(name, m_window);
        menu->menu()->hide();
    }

    template <typename Open>
    void dialog(const QString& name, const Open& open, int drawing = 0)
    {
        open();
        QTest::qWait(drawing);
        const auto widgets = QApplication::topLevelWidgets();
        for (QWidget* widget : widgets) {
            auto* shown = qobject_cast<QDialog*>(widget);
            if (!shown || !shown->isVisible())
                continue;
            need(QTest::qWaitForWindowExposed(shown));
            shoot(name, *shown);
            shown->close();
        }
        QTest::qWait(50);
    }

    void takeUndo()
    {
        m_window.library()->remove();
        need(isListed(m_window));
        shoot(QStringLiteral("undo"), m_window);
        const auto buttons =
            m_window.findChild<QWidget*>(QStringLiteral("undoBar"))->findChildren<QPushButton*>();
        buttons.first()->click();
        need(isListed(m_window));
    }

    /// What went wrong, and what is asked.
    void takeMessages()
    {
        dialog(QStringLiteral("missing"),
               [this] { m_window.openPaths({QStringLiteral("/media/usb/wall.json")}); });
        dialog(QStringLiteral("savefailed"), [this] {
            Q_EMIT m_window.session()->failed(
                m_window.folder() + QStringLiteral("/20260305_180000/Chart 5.png"), {});
        });
        dialog(QStringLiteral("draft"), [this] {
            Draft draft;
            draft.folder = m_window.folder();
            draft.changed = QDateTime(QDate(2026, 3, 5), QTime(18, 0));
            need(DraftFolder::create(draftsRoot())->write(draft));
            m_window.offerDrafts();
        });
        dialog(
            QStringLiteral("viewer"),
            [this] {
                Q_EMIT m_window.session()->notEditable(m_list->charts().at(1),
                                                       {QStringLiteral("publicData.resolutionWidth")});
            },
            500);
    }

    /// The output covers its display: the window is drawn by itself.
    void takeWalk()
    {
        Output* output = m_window.output()->output();
        const QString chart = m_list->selectedChart();
        m_window.output()->output()->setCharts(m_list->charts());
        output->start(displays().first().name, QPoint(40, 30), chart);
        need(QTest::qWaitFor([&] { return !output->window()->chart().isNull(); }, 20000));
        output->walk()->setMode(Walk::Mode::Cabinets);
        output->walk()->setRunning(true);
        QTest::qWait(settleTime);
        m_window.grab().save(path(QStringLiteral("walk")), "PNG", quickToWrite);
        tell(QStringLiteral("walk"), m_window);
        saveScreen(QStringLiteral("output"));
        output->stop();
        QTest::qWait(settleTime);
    }

    /// Of a picture in which some of the chart is dark.
    void takeReading()
    {
        const QString chart = m_list->selectedChart();
        const QString photo = QDir(m_target).filePath(QStringLiteral("photo.jpg"));
        QImage seen = QImage(chart).convertToFormat(QImage::Format_RGB32);
        QPainter(&seen).fillRect(seen.width() / 4, seen.height() / 3, seen.width() / 8, seen.height() / 9,
                                 Qt::black);
        seen.save(photo);
        auto* read = openReading(photo, chart);
        const auto* findings = read->findChild<QListWidget*>();
        read->open();
        shoot(QStringLiteral("reading"), *read);
        need(QTest::qWaitFor([&] { return findings->isVisible(); }, 300000));
        dialog(QStringLiteral("read"), [] {});
        dialog(
            QStringLiteral("readnothing"), [&] { openReading(m_target, chart)->open(); }, 1000);
        QFile::remove(photo);
    }

    ReadDialog* openReading(const QString& photo, const QString& chart)
    {
        return new ReadDialog(photo, chart, m_window.output()->output(), &m_window);
    }

    /// Each with some cabinets selected, and their menus.
    void takeWalls()
    {
        auto* walls = m_window.findChild<DeskWalls*>();
        for (const char* name : {"stage", "ribbon"}) {
            const QString file = m_window.folder() + QLatin1Char('/') + QLatin1String(name);
            WallWindow* wall = walls->open(file + QLatin1String(".wall.json"));
            need(wall && QTest::qWaitForWindowExposed(wall));
            shoot(QLatin1String(name), *wall);
            wall->canvas()->select({{1, 1}, {2, 1}});
            shoot(name + QStringLiteral("-selected"), *wall);
            takeFields(name, wall);
            dialog(name + QStringLiteral("-keys"),
                   [wall] { wall->findChild<QAction*>(QStringLiteral("wallKeys"))->trigger(); });
            wall->canvas()->turn();
            dialog(name + QStringLiteral("-unsaved"), [wall] { wall->close(); });
            wall->findChild<WallModel*>()->history()->setClean();
            wall->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    /// Those of the wall that were below the edge of the window.
    void takeFields(const QString& name, const WallWindow* wall)
    {
        const auto areas = wall->findChildren<QScrollArea*>();
        for (const QScrollArea* area : areas)
            area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
        shoot(name + QStringLiteral("-fields"), *wall);
    }

    void takeEditor()
    {
        m_window.addChart();
        need(settle(m_window));
        shoot(QStringLiteral("editor"), m_window);
        takePanels(QStringLiteral("editor"));
        useBar();
        takePanels(QStringLiteral("editor-bar"));
        takePicker();
        takeZoom();
        need(setRows(m_window, 4));
        m_window.close();
        dialog(QStringLiteral("discard"), [] {});
        m_window.session()->end();
    }

    /// The settings, a height of the window after the other.
    void takePanels(const QString& name)
    {
        const auto areas = m_window.editor()->findChildren<QScrollArea*>();
        for (const QScrollArea* area : areas) {
            QScrollBar* bar = area->verticalScrollBar();
            for (int page = 2; area->isVisible() && bar->value() < bar->maximum(); ++page) {
                bar->setValue(bar->value() + bar->pageStep());
                shoot(name + QString::number(page), m_window);
            }
            bar->setValue(0);
        }
    }

    void useBar()
    {
        const QString bar = TranslateManager1::instance().translator().text(
            QStringLiteral("TestChartTools"), QStringLiteral("Widget"), QStringLiteral("Color bar"));
        const auto choices = m_window.editor()->findChildren<QRadioButton*>();
        for (QRadioButton* choice : choices) {
            if (choice->text() == bar)
                choice->click();
        }
        need(settle(m_window));
        shoot(QStringLiteral("editor-bar"), m_window);
    }

    void takePicker()
    {
        auto* swatch = m_window.editor()->findChild<QAbstractButton*>(QStringLiteral("outLineColorButton"));
        swatch->click();
        shoot(QStringLiteral("picker"), m_window);
        auto* picker = m_window.findChild<QColorDialog*>();
        need(picker);
        picker->reject();
        QTest::qWait(settleTime);
    }

    void takeZoom()
    {
        QWidget* preview = m_window.editor()->preview();
        for (int step = 0; step < 20; ++step)
            QTest::keyClick(preview, Qt::Key_Plus);
        QTest::mouseMove(preview, preview->rect().center());
        shoot(QStringLiteral("zoom"), m_window);
        QTest::keyClick(preview, Qt::Key_0);
    }

    /// As it is at the very first start.
    void takeEmpty()
    {
        const QString charts = m_window.folder();
        m_window.openPaths({m_empty.path()});
        need(isListed(m_window));
        shoot(QStringLiteral("empty"), m_window);
        m_window.openPaths({charts});
    }

    QString m_target;
    QString m_language;
    QTemporaryDir m_empty;
    MainWindow m_window;
    ChartList* m_list = nullptr;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("chartdesk"));
    QApplication::setStyle(new DeskStyle);
    QApplication::setFont(chartFont());
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 5)
        return 2;
    DeskTheme::choose(arguments.at(3));
    DeskTheme::apply();
    for (const QString& language : arguments.mid(4)) {
        chooseLanguage(language);
        Shots shots(arguments.at(1), arguments.at(2), language);
        QApplication::setPalette(themePalette());
        shots.take();
    }
    return 0;
}
