#include "livechart.h"

#include <vtestcharttools.h>

#include <QEvent>
#include <QLabel>
#include <QPixmap>

using namespace vardeno::testcharttools;

LiveChart::LiveChart(VTestChartTools* editor, QObject* parent)
    : QObject(parent)
    , m_editor(editor)
    , m_preview(editor->findChild<QLabel*>(QStringLiteral("ViewWidget")))
{
    m_preview->installEventFilter(this);
}

ShownChart LiveChart::current() const
{
    return {m_editor->chartImage(), {}, m_editor->getTestChartToolsData(), {}};
}

void LiveChart::setOn(bool on)
{
    m_isOn = on;
    m_shownKey = 0;
}

bool LiveChart::eventFilter(QObject* watched, QEvent* event)
{
    if (m_isOn && event->type() == QEvent::Paint) {
        const qint64 key = m_preview->pixmap(Qt::ReturnByValue).cacheKey();
        if (key != m_shownKey) {
            m_shownKey = key;
            // Not within a paint; the events of this turn are still before the next frame.
            QMetaObject::invokeMethod(
                this, [this] { Q_EMIT changed(current()); }, Qt::QueuedConnection);
        }
    }
    return QObject::eventFilter(watched, event);
}
