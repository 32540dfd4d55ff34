#pragma once

#include "chartreader.h"
#include "outputplacement.h"

#include <QObject>
#include <QPointer>

#include <memory>

class OutputWindow;
class QKeyEvent;
class QScreen;
class ScreenAwake;
class Walk;

/// What a display shows: the charts of a list, one at a time, or what the editor makes of one right now. It
/// stays with its display: when that is unplugged it goes, when it comes back it is there again.
class Output : public QObject
{
    Q_OBJECT

public:
    explicit Output(QObject* parent = nullptr);
    ~Output() override;

    /// What the arrow keys go through: pictures, and records.
    void setCharts(const QStringList& paths);
    const QStringList& charts() const { return m_charts; }

    /// Shows `chart` on the display of that name, with its top left at `at`, in physical pixels.
    void start(const QString& display, const QPoint& at, const QString& chart);
    void stop();
    /// From the start to the stop, whether the display is plugged in or not.
    bool isOn() const { return m_isOn; }
    /// Null while nothing is shown.
    OutputWindow* window() const { return m_window.get(); }
    const QString& display() const { return m_display; }
    const QPoint& place() const { return m_at; }

    void showChart(int index);
    /// The chart that is shown, -1 for none.
    int current() const { return m_charts.indexOf(m_current); }

    /// Shows `chart`, which is being edited, in the place of the current one.
    void setLive(const ShownChart& chart);
    /// The edit has ended: shows `chart`, or what was shown before where that is empty.
    void endLive(const QString& chart);

    Walk* walk() const { return m_walk.get(); }
    /// What has been read ahead.
    const ChartReader& reader() const { return m_reader; }

    /// A line on what is shown where, in the language of the desk; empty while it is off.
    QString status() const;

public Q_SLOTS:
    void next();
    void previous();
    /// What a key does while the output has the focus, and the same key in the desk's menu.
    void press(QKeyEvent* event);

Q_SIGNALS:
    void started();
    void ended();
    /// `status` tells something else.
    void changed();
    /// A chart cannot be shown.
    void failed(const QString& path, const QString& problem);

private:
    bool pressOnCharts(int key);
    void readAhead();
    void chartRead(const QString& path);
    void showCurrent();
    void show(const ShownChart& chart);
    void plugged(QScreen* screen);
    void unplugged(QScreen* screen);
    void openWindow(QScreen* screen);
    void closeWindow();

    QStringList m_charts;
    QString m_current;
    QString m_display;
    QPoint m_at;
    bool m_isOn = false;
    bool m_isLive = false;
    ShownChart m_shown;
    ChartReader m_reader;
    std::unique_ptr<OutputWindow> m_window;
    std::unique_ptr<ScreenAwake> m_awake;
    std::unique_ptr<Walk> m_walk;
};
