#pragma once

#include <markerdata.h>
#include <testcharttoolsdata.h>

#include <QDialog>
#include <QThreadPool>

class QComboBox;
class QListWidget;

/// Offers the presets of the command line: a wall, and a picture for it, each drawn.
class NewFromDialog : public QDialog
{
    Q_OBJECT

public:
    explicit NewFromDialog(QWidget* parent);
    ~NewFromDialog() override;

    /// What is chosen, as a record.
    vardeno::testcharttools::TestChartToolsData record() const;
    /// And whether it has coded markers.
    vardeno::testcharttools::MarkerData markers() const;

private:
    void createLayout();
    void drawPictures();
    vardeno::testcharttools::TestChartToolsData recordOf(int picture) const;
    vardeno::testcharttools::MarkerData markersOf(int picture) const;

    QComboBox* m_walls;
    QListWidget* m_pictures;
    QThreadPool m_pool;
    int m_round = 0; ///< of drawing
};
