#pragma once

#include "vdpatterndesign_export.h"

#include <QLineEdit>

namespace vardeno::testcharttools {

/// A text box that leaves its undo history to its owner: the keys for undo and redo (Ctrl+Y on every
/// platform) are announced, and its own history is not to be reached, for it has no context menu either.
/// While it is read-only they are left to the window. It asks for no more room than a number needs. GUI
/// thread only.
class VDPATTERNDESIGN_EXPORT LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit LineEdit(QWidget* parent = nullptr);

    QSize sizeHint() const override;

Q_SIGNALS:
    void undoRequested();
    void redoRequested();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace vardeno::testcharttools
