// What a person waits for in the editor: a key until the chart shows what it has changed, and a confirmed
// chart until its file is written. The times are those of a clock on the wall, with all that the editor does
// in between.

#include "inlinesettingbox.h"
#include "spineditbox.h"
#include "vtestcharttools.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <functional>

using namespace vardeno::testcharttools;

namespace {

void waitUntil(const std::function<bool()>& isDone)
{
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

TestChartToolsData recordOf(const benchmark::State& state)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = ushort(state.range(0));
    record.publicData.resolutionHeight = ushort(state.range(1));
    return record;
}

/// The editor as a user has it before them, idle.
class ShownEditor
{
public:
    explicit ShownEditor(const TestChartToolsData& record)
    {
        tool.show();
        tool.applyRecord(record);
        waitUntilIdle();
    }

    void waitUntilIdle()
    {
        waitUntil([this] { return !m_mask->isVisible() && m_cancel->isEnabled(); });
    }

    /// Of the lines, of those that a user could change now.
    SpinEditBox* entryOfLine() const
    {
        const auto entries = tool.findChild<InLineSettingBox*>()->findChildren<SpinEditBox*>();
        return *std::find_if(entries.begin(), entries.end(), [](const SpinEditBox* entry) {
            return entry->isVisible() && entry->isEnabled() && entry->value() + 1 < entry->maximum();
        });
    }

    VTestChartTools tool;

private:
    QWidget* m_mask = tool.findChild<QWidget*>(QStringLiteral("maskWidget"));
    QWidget* m_cancel = tool.findChild<QWidget*>(QStringLiteral("CancleButton")); // locked with the panels
};

/// Arrow keys in an entry of a line's width. `prompt`: as `VTestChartTools::promptPreview`.
void keyToPreview(benchmark::State& state, bool prompt)
{
    ShownEditor editor(recordOf(state));
    editor.tool.setPromptPreview(prompt);
    auto* const shown = editor.tool.findChild<QLabel*>(QStringLiteral("ViewWidget"));
    SpinEditBox* const entry = editor.entryOfLine();
    entry->setFocus();
    auto key = Qt::Key_Up;
    for (auto _ : state) {
        const auto cacheKey = [shown] { return shown->pixmap(Qt::ReturnByValue).cacheKey(); };
        const qint64 before = cacheKey();
        QTest::keyClick(editor.tool.windowHandle(), key);
        waitUntil([&] { return cacheKey() != before; });
        state.PauseTiming();
        editor.waitUntilIdle();
        key = key == Qt::Key_Up ? Qt::Key_Down : Qt::Key_Up;
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(keyToPreview, asItWas, false)
    ->Args({3840, 2160})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keyToPreview, prompt, true)
    ->Args({3840, 2160})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

/// A new chart. `small`: as `VTestChartTools::smallPng`.
void confirmToFile(benchmark::State& state, bool small)
{
    const QTemporaryDir folder;
    ShownEditor editor(recordOf(state));
    editor.tool.setShowForAdd(true);
    editor.tool.setSmallPng(small);
    editor.tool.setSavePath(folder.path(), QStringLiteral("chart"));
    bool done = false;
    QObject::connect(&editor.tool, &VTestChartTools::sigTestToolEditDone, &editor.tool, [&] { done = true; });
    int number = 0;
    for (auto _ : state) {
        editor.tool.setTestImageNum(++number);
        done = false;
        editor.tool.slotAddConfirmButtonClicked();
        waitUntil([&] { return done; });
    }
}
BENCHMARK_CAPTURE(confirmToFile, asItWas, false)
    ->Args({4320, 4320})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(confirmToFile, small, true)
    ->Args({4320, 4320})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
