#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QWidget;

namespace vardeno::testcharttools {

/// Has a shown widget paint again and again, so seldom that it costs less than two percent of a core whatever
/// one paint takes.
class PaintPace : public QObject
{
public:
    explicit PaintPace(QWidget* widget);

    /// For the beginning of each paint event. What is painted for someone else asks for nothing.
    void begin();

private:
    void ask();
    void pause();

    QWidget* m_widget;
    QElapsedTimer m_begun;
    QTimer m_next;
    bool m_asked = false;
    bool m_measuring = false;
};

} // namespace vardeno::testcharttools
