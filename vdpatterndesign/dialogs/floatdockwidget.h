#pragma once

#include "vdpatterndesign_export.h"

#include <QDockWidget>

#include <memory>

namespace vardeno::testcharttools {

class TitleWidget;

/// A floating tool window with a title bar of its own. It is dragged by its title, kept from leaving the
/// host's rectangle to the right and at the bottom, and, while it is locked, does not close. GUI thread only.
class VDPATTERNDESIGN_EXPORT FloatDockWidget : public QDockWidget
{
    Q_OBJECT

public:
    /// `id` identifies the window to the host.
    explicit FloatDockWidget(const QString& id, QWidget* parent = nullptr);
    ~FloatDockWidget() override;

    QString id() const;
    void setTitle(const QString& text);

    /// Whether moves keep the window in the move range.
    void setMoveClamped(bool clamped);
    /// The rectangle, in global pixels, that the window is kept in; a null one keeps it nowhere.
    void setMoveRange(const QRect& range);
    /// The host's main window has moved by `movePos` and now is `globalRect`.
    void slotMainWindowMove(const QRect& globalRect, const QPoint& movePos);
    /// Whether closing hides the window.
    void setHideOnClose(bool hide);
    bool isLocked() const;
    /// Whether the window was shown, moved or resized.
    bool isGeometryChanged() const;

Q_SIGNALS:
    void sigSendCloseMsg(bool bFlg);
    void sigSendLockMsg(bool bFlg);
    void sigSendShortcut(Qt::Key key);
    void sigMove(QPoint point);
    void sigTitleClicked();

public Q_SLOTS:
    /// Closes the window as its close button does; does nothing while it is locked.
    void slotCloseWidget();
    void slotLockWidget(bool bLock);
    void slotWindowMoveDistance(QPoint distance);
    void slotShowInCursoPos();

protected:
    TitleWidget* titleBar() const;

    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void applyTheme();
    void moveClamped(const QPoint& target);

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
