#pragma once

#include <QObject>

namespace vardeno::testcharttools {
class VTestChartTools;
}

/// What this host wants otherwise than the editor has it: Confirm is always the last of its buttons, the only
/// blue one, and the question before a colour is deleted stays in the window and off its button.
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
