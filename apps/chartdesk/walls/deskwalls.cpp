#include "deskwalls.h"

#include "chartfolderlist.h"
#include "chartlist.h"
#include "hosttext.h"
#include "mainwindow.h"
#include "walldocuments.h"
#include "wallwindow.h"

#include <wallfile.h>

#include <QAction>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace vardeno::walls;
using namespace vardeno::testcharttools;

namespace {

// What the editor takes; the wall decides these by itself.
constexpr int editorSide = 4320;
constexpr int editorCabinets = 100;

/// A name that is free in the folder: "wall-2.wall.json".
QString freeWallPath(const QString& folder)
{
    for (int number = 1;; ++number) {
        const QString path = QStringLiteral("%1/wall-%2.wall.json").arg(folder).arg(number);
        if (!QFileInfo::exists(path))
            return path;
    }
}

} // namespace

DeskWalls::DeskWalls(ChartList* list, MainWindow* window)
    : QObject(window)
    , m_list(list)
    , m_window(window)
    , m_new(new QAction(this))
{
    m_new->setObjectName(QStringLiteral("newWall"));
    connect(m_new, &QAction::triggered, this, &DeskWalls::create);
}

bool DeskWalls::openSelected()
{
    const QString path = m_list->selectedDocument();
    if (path.isEmpty())
        return false;
    const QStringList walls =
        WallDocuments::isShow(path) ? WallDocuments::wallsOfShow(path) : QStringList{path};
    if (walls.isEmpty())
        Q_EMIT failed(hostText(QStringLiteral("This wall cannot be read:")), path);
    for (const QString& wall : walls)
        open(wall);
    return true;
}

WallWindow* DeskWalls::open(const QString& path)
{
    QPointer<WallWindow>& window = m_open[QFileInfo(path).absoluteFilePath()];
    if (!window) {
        window = new WallWindow(m_window);
        window->setAttribute(Qt::WA_DeleteOnClose);
        const QStringList problems = window->open(path);
        if (!problems.isEmpty()) {
            delete window;
            Q_EMIT failed(hostText(QStringLiteral("This wall cannot be read:")),
                          path + QLatin1Char('\n') + problems.join(QLatin1Char('\n')));
            return nullptr;
        }
        connect(window, &WallWindow::chartWanted, this,
                [this, asking = window.data()](const TestChartToolsData& record, const MarkerData& markers) {
                    askFor(asking, record, markers);
                });
    }
    window->show();
    window->raise();
    window->activateWindow();
    return window;
}

bool DeskWalls::closeAll()
{
    for (const QPointer<WallWindow>& window : qAsConst(m_open)) {
        if (window && !window->close()) {
            window->raise();
            return false;
        }
    }
    return true;
}

void DeskWalls::create()
{
    WallDocument wall;
    wall.layers.outlines = true;
    wall.layers.names = true;
    wall.layers.dataRuns = true;
    QDir().mkpath(m_folder);
    const QString path = freeWallPath(m_folder);
    const QString problem = WallFile::write(path, wall);
    if (!problem.isEmpty()) {
        Q_EMIT failed(hostText(QStringLiteral("The wall could not be saved:")), problem);
        return;
    }
    m_list->refresh();
    open(path);
}

void DeskWalls::askFor(WallWindow* window, TestChartToolsData record, const MarkerData& markers)
{
    PublicChartData& screen = record.publicData;
    screen.resolutionWidth = std::min(screen.resolutionWidth, editorSide);
    screen.resolutionHeight = std::min(screen.resolutionHeight, editorSide);
    screen.boxCol = std::min(screen.boxCol, editorCabinets);
    screen.boxRow = std::min(screen.boxRow, editorCabinets);
    m_asking = window;
    Q_EMIT chartWanted(record, markers);
}

void DeskWalls::takeChart(const QString& imagePath)
{
    if (!m_asking)
        return;
    m_asking->takeChart(ChartFolderList::recordPath(imagePath));
    m_asking->raise();
    m_asking->activateWindow();
}

void DeskWalls::endChart()
{
    m_asking = nullptr;
}

void DeskWalls::retranslate()
{
    m_new->setText(hostText(QStringLiteral("New wall")));
}
