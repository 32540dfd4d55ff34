#pragma once

#include "vdpatterndesign_export.h"

#include <QPoint>
#include <QWidget>

class QLabel;
class QPushButton;

namespace vardeno::testcharttools {

/// The title bar of a floating window: buttons to minimise, to lock and to close, and a title by which the
/// window is dragged. GUI thread only.
class VDPATTERNDESIGN_EXPORT TitleWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TitleWidget(QWidget* parent = nullptr);

    void setTitle(const QString& text);
    /// Shows what the buttons do in the current language.
    void retranslate();
    bool isLocked() const;
    /// Shows the lock as `locked`, and tells nobody.
    void setLocked(bool locked);
    /// Ends a drag that is going on.
    void reset();

Q_SIGNALS:
    void sigColseWidget();
    void sigLockWidget(bool bLock);
    /// The title was dragged by `distance` since the last such signal, in global pixels.
    void sigTitleMoved(QPoint distance);
    void sigTitleClicked();

public Q_SLOTS:
    void slotSendCloseWidget();
    void slotSendLockWidget();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QPushButton* createButton(const char* objectName, const QString& hint, const QString& picture);

    QLabel* m_title;
    QPushButton* m_close;
    QPushButton* m_minimise;
    QPushButton* m_lock;
    bool m_locked = false;
    bool m_dragging = false;
    QPoint m_lastPosition;
};

} // namespace vardeno::testcharttools
