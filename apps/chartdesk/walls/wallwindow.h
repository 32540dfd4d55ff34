#pragma once

#include <markerdata.h>
#include <testcharttoolsdata.h>

#include <QMainWindow>

#include <vector>

class QLabel;
class WallCanvas;
class WallFieldPane;
class WallModel;

/// Edits a wall file: its canvas, beside it its fields, and a history.
class WallWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit WallWindow(QWidget* parent = nullptr);

    /// Shows the wall of the file `path`, and returns what is wrong with it; then nothing is shown.
    QStringList open(const QString& path);
    WallModel* model() const { return m_model; }
    WallCanvas* canvas() const { return m_canvas; }
    /// Draws the record of the file `path` on the wall from now on; the user can take that back.
    void takeChart(const QString& path);
    /// Of the menus and fields, in the language that is set.
    void retranslate();

Q_SIGNALS:
    /// The record of the wall is to be edited.
    void chartWanted(const vardeno::testcharttools::TestChartToolsData& record,
                     const vardeno::testcharttools::MarkerData& markers);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct NamedAction
    {
        QAction* action;
        const char* source;
    };
    template <typename Slot>
    QAction* add(const char* name, const char* source, const QKeySequence& shortcut, Slot slot);
    void createActions();
    void createTools();
    void save();
    void showState();
    void showKeys();

    WallModel* m_model;
    WallCanvas* m_canvas;
    WallFieldPane* m_fields;
    QLabel* m_state;
    QLabel* m_place;
    std::vector<NamedAction> m_actions;
};
