#pragma once

#include <markerdata.h>
#include <testcharttoolsdata.h>

#include <QHash>
#include <QObject>
#include <QPointer>

class ChartList;
class MainWindow;
class QAction;
class WallWindow;

/// The walls of the desk: each that is open has a window of its own.
class DeskWalls : public QObject
{
    Q_OBJECT

public:
    DeskWalls(ChartList* list, MainWindow* window);

    /// Makes a wall.
    QAction* newAction() const { return m_new; }
    /// Opens the wall that is selected in the list, or the walls of a show; false where neither is.
    bool openSelected();
    /// The window of that file, which comes to the front; null where it cannot be read, which is told.
    WallWindow* open(const QString& path);
    void setFolder(const QString& folder) { m_folder = folder; }
    /// Closes their windows. Where one of them asks about its changes, false, and those that are left stay.
    bool closeAll();
    /// A chart was saved: it is drawn on the wall that has asked for it.
    void takeChart(const QString& imagePath);
    /// The edit has ended, with or without a chart.
    void endChart();
    void retranslate();

Q_SIGNALS:
    /// The record of a wall is to be edited.
    void chartWanted(const vardeno::testcharttools::TestChartToolsData& record,
                     const vardeno::testcharttools::MarkerData& markers);
    void failed(const QString& what, const QString& details);

private:
    void create();
    void askFor(WallWindow* window, vardeno::testcharttools::TestChartToolsData record,
                const vardeno::testcharttools::MarkerData& markers);

    ChartList* m_list;
    MainWindow* m_window;
    QAction* m_new;
    QString m_folder;
    QHash<QString, QPointer<WallWindow>> m_open;
    QPointer<WallWindow> m_asking;
};
