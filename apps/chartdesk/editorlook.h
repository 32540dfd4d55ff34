#pragma once

#include <QColor>
#include <QObject>

namespace vardeno::testcharttools {
class VTestChartTools;
}

/// The custom colours of the colour dialog that hold none: the editor fills them with the grey of its dark
/// theme, which says something on a light one. Gives the grey back, by which the editor knows them at the
/// end.
class EmptySlots
{
public:
    explicit EmptySlots(const QColor& color);
    ~EmptySlots();
    Q_DISABLE_COPY(EmptySlots)

private:
    QColor m_color;
};

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
    EmptySlots m_slots;
};
