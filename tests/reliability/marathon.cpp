// A long day with one editor, which is shown: reliability_marathon FOLDER CHANGES SAVES SIDE [SEED]
// Random changes with the editor's own controls, and saves in between, which go on during the next changes.
// Prints "saved PICTURE", beside which its record lies, and at the end the peak of the memory. marathon.py
// looks at all of it.

#include "peakmemory.h"
#include "preparedapplication.h"

#include <chartrecordfile.h>
#include <spineditbox.h>
#include <vtestcharttools.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTextStream>
#include <QTimer>

#include <algorithm>

using namespace vardeno::testcharttools;

namespace {

constexpr int largestSide = 4320;        ///< what the entries of the resolution end at; it stays
constexpr int waits[] = {0, 1, 20, 150}; ///< ms, after a change

void say(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

class Day
{
public:
    Day(const QString& folder, int side, quint32 seed);

    void change();
    void save(int number);
    void waitForSave();
    /// Lets the editor work for a while, a random one.
    void pause();

private:
    template <typename Control, typename IsOurs>
    Control* any(IsOurs isOurs);
    int below(int bound) { return m_chance.bounded(bound); }
    void saved(const QString& picture);

    VTestChartTools m_editor;
    QRandomGenerator m_chance;
    QEventLoop m_saving;
    bool m_isSaving = false;
    TestChartToolsData m_record;
};

Day::Day(const QString& folder, int side, quint32 seed)
    : m_chance(seed)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = side;
    record.publicData.resolutionHeight = side;
    m_editor.applyRecord(record);
    m_editor.setSavePath(folder, QStringLiteral("preview"));
    QObject::connect(&m_editor, &VTestChartTools::sigTestToolEditDone, &m_editor,
                     [this](const TestChartToolsData&, const QString& picture, EditType) { saved(picture); });
    QObject::connect(&m_editor, &VTestChartTools::sigFail, &m_editor, [this] {
        say(QStringLiteral("failed ") + m_editor.failedReason());
        m_saving.quit();
    });
    m_editor.show();
}

template <typename Control, typename IsOurs>
Control* Day::any(IsOurs isOurs)
{
    QList<Control*> controls = m_editor.findChildren<Control*>();
    controls.erase(std::remove_if(controls.begin(), controls.end(), [&](Control* c) { return !isOurs(c); }),
                   controls.end());
    return controls.isEmpty() ? nullptr : controls.at(below(controls.size()));
}

void Day::change()
{
    switch (below(4)) {
    case 0:
        if (auto* button =
                any<QAbstractButton>([](auto* one) { return one->isCheckable() && one->isEnabled(); }))
            button->click();
        break;
    case 1:
        if (auto* choice = any<QComboBox>([](auto* one) { return one->isEnabled() && one->count() > 1; }))
            choice->setCurrentIndex(below(choice->count()));
        break;
    default:
        if (auto* entry = any<SpinEditBox>([](auto* one) { return one->maximum() < largestSide; }))
            entry->setValue(entry->minimum() + below(int(entry->maximum() - entry->minimum()) + 1));
    }
}

/// The record is that of the moment in which the picture is composed.
void Day::save(int number)
{
    m_editor.setSmallPng(number % 2 == 0);
    m_editor.setCurrentEditNum(QStringLiteral("chart%1.png").arg(number));
    m_record = m_editor.getTestChartToolsData();
    m_isSaving = true;
    m_editor.slotReplaceApplyButtonClicked();
}

void Day::saved(const QString& picture)
{
    QFile record(QFileInfo(picture).path() + QLatin1Char('/') + QFileInfo(picture).completeBaseName() +
                 QStringLiteral(".json"));
    if (!record.open(QIODevice::WriteOnly) || record.write(ChartRecordFile::toJson(m_record)) < 0)
        say(QStringLiteral("failed ") + record.errorString());
    say(QStringLiteral("saved ") + picture);
    m_isSaving = false;
    m_saving.quit();
}

void Day::waitForSave()
{
    if (m_isSaving)
        m_saving.exec();
}

void Day::pause()
{
    QEventLoop loop;
    QTimer::singleShot(waits[below(int(std::size(waits)))], &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char** argv)
{
    const PreparedApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int changes = arguments.value(2).toInt();
    const int saves = arguments.value(3).toInt();
    const quint32 seed = arguments.size() > 5 ? arguments.at(5).toUInt() : 20261122;
    if (saves < 1 || changes < saves)
        qFatal("usage: reliability_marathon FOLDER CHANGES SAVES SIDE [SEED]");
    Day day(arguments.at(1), arguments.value(4).toInt(), seed);
    for (int i = 0; i < changes; ++i) {
        day.change();
        day.pause();
        if (i % (changes / saves) == 0 && i / (changes / saves) < saves) {
            day.waitForSave();
            day.save(i / (changes / saves));
        }
    }
    day.waitForSave();
    say(QStringLiteral("peak ") + peakMemory());
    return 0;
}
