#pragma once

#include "shownchart.h"

#include <QObject>

namespace vardeno::testcharttools {
class VTestChartTools;
}

class QLabel;

/// Tells of every chart that the preview of an editor shows, before that is on the screen.
class LiveChart : public QObject
{
    Q_OBJECT

public:
    explicit LiveChart(vardeno::testcharttools::VTestChartTools* editor, QObject* parent = nullptr);

    /// The chart as it is now.
    ShownChart current() const;
    /// Off (at first) nothing is told, and it costs nothing.
    void setOn(bool on);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void changed(const ShownChart& chart);

private:
    vardeno::testcharttools::VTestChartTools* m_editor;
    QLabel* m_preview;
    qint64 m_shownKey = 0;
    bool m_isOn = false;
};
