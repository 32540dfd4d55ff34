#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QTimer>

class QAbstractSpinBox;
class QWidget;

namespace vardeno::testcharttools {

/// Lets the arrow of a numeric entry that is held with the mouse go on stepping after the entry was inert for
/// a moment, which ends its own repetition.
class HeldArrow : public QObject
{
public:
    /// Watches the entries in `tool`.
    explicit HeldArrow(QWidget* tool);

    /// The entries work again: steps once, and not before an entry would begin to repeat. The step's own
    /// change makes the entries inert again, and so on.
    void resume();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void step();

    QWidget* m_tool;
    QPointer<QAbstractSpinBox> m_entry; ///< null while no arrow is held
    QPoint m_place;                     ///< of the mouse in the entry
    QElapsedTimer m_held;
    QTimer m_pause;
    bool m_stepping = false;
};

} // namespace vardeno::testcharttools
