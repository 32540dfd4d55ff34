#pragma once

#include "vdpatterndesign_export.h"

#include <QObject>

#include <functional>
#include <memory>

class QKeyEvent;
class QWidget;

namespace vardeno::testcharttools {

class SettingPanel;
struct TestChartToolsData;

/// Undo and redo of what a person changes in the chart tool, which makes it: `VTestChartTools::history`.
///
/// One field's changes in quick succession, and those of one drag, are one step. What the host shows with
/// `setTestChartToolsData` or `applyRecord` is where the history begins. It remembers what takes 4 MiB, at
/// least the last change, and keeps no pictures: a logo's file that is gone by then is missing. GUI thread
/// only.
class VDPATTERNDESIGN_EXPORT EditHistory : public QObject
{
    Q_OBJECT

public:
    /// `collect` gives the record that the panels show, `show` has them show another one.
    EditHistory(QWidget* tool, std::function<TestChartToolsData()> collect,
                std::function<void(const TestChartToolsData&)> show);
    ~EditHistory() override;

    bool canUndo() const;
    bool canRedo() const;

    /// For the tool: a panel that changes the chart.
    void watch(const SettingPanel* panel);
    /// For the tool: what the panels show now is another chart.
    void restart();
    /// For the tool: the host is about to complete the last change, and has done so.
    void settle();
    void amend();
    /// For the tool: whether the keys for undo and redo are the chart's everywhere in it, also in its
    /// entries. A shortcut of the host comes first.
    void setKeysOn(bool on);
    bool keysOn() const;

public Q_SLOTS:
    /// Takes the last change back, or makes it again; nothing where there is none. What is being typed in an
    /// entry is a change first, and is taken back alone where it is no number.
    void undo();
    void redo();

Q_SIGNALS:
    void canUndoChanged(bool can);
    void canRedoChanged(bool can);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Impl;

    bool handleKey(QKeyEvent* event);
    void noteLater();
    bool note();
    void change(const std::function<void()>& step);

    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
