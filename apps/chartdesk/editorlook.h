#pragma once

#include <QObject>

namespace vardeno::testcharttools {
class VTestChartTools;
}

/// What this host wants otherwise than the editor has it: Confirm is always the last of its buttons, the only
/// blue one, the question before a colour is deleted stays in the window and off its button and is not asked
/// of an empty list, the wheel turns a field only with the focus, sliders are live, the lock is calm, and
/// keys undo.
class EditorLook : public QObject
{
    Q_OBJECT

public:
    explicit EditorLook(vardeno::testcharttools::VTestChartTools* editor);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void placeQuestion(QWidget* question) const;

    vardeno::testcharttools::VTestChartTools* m_editor;
};
