#pragma once

#include "livechart.h"
#include "output.h"

#include <QObject>

#include <functional>

class EditSession;
class QAction;
class QLabel;
class QMenu;
class QMainWindow;

/// The output of a desk: its menu, its line in the status bar, and the way of the edited chart to it.
class DeskOutput : public QObject
{
    Q_OBJECT

public:
    /// What the desk knows of its charts.
    struct Charts
    {
        std::function<QStringList()> all;
        std::function<QString()> selected;
    };

    DeskOutput(QMainWindow* window, EditSession* session, vardeno::testcharttools::VTestChartTools* editor,
               const Charts& charts);
    ~DeskOutput() override;

    Output* output() { return &m_output; }
    QMenu* menu() const { return m_menu; }
    QAction* showAction() const { return m_show; }

    /// Tells what `photo` says of the selected chart.
    void readPhoto(const QString& photo);

    void retranslate();
    /// Another chart is selected, another edit is open, or the list is another.
    void update();

private:
    QAction* add(const char* text, const QKeySequence& shortcut, const std::function<void()>& does);
    QAction* addKey(const char* text, int key);
    void createMenu();
    void askPlace();
    void askPhoto();
    QString chosenChart() const;
    void start(const QString& display, const QPoint& at);
    void showState();

    QMainWindow* m_window;
    EditSession* m_session;
    Charts m_charts;
    Output m_output;
    LiveChart m_live;
    QMenu* m_menu;
    QLabel* m_status;
    QAction* m_show = nullptr;
    QAction* m_read = nullptr;
    QList<QAction*> m_whileOn;
};
