#include "editor/chartsaver.h"

#include "editor/chartfolder.h"
#include "editor/editbuttons.h"
#include "editor/editordelays.h"
#include "saveimagethread.h"
#include "support/chartlog.h"
#include "support/translation.h"
#include "vtestcharttools.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace vardeno::testcharttools {

ChartSaver::ChartSaver(VTestChartTools* tool, EditButtons* buttons, TestChartToolsData& record)
    : m_tool(tool)
    , m_buttons(buttons)
    , m_record(record)
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        while (!m_removals.isEmpty())
            removeReplaced(m_removals.firstKey());
    });
}

/// Not now: a host that hears of the new chart by a queued signal still has the old one.
ChartSaver::~ChartSaver()
{
    if (!qApp)
        return;
    for (auto pending = m_removals.cbegin(); pending != m_removals.cend(); ++pending) {
        auto* late = new QTimer(qApp);
        const auto removeLate = [late, removal = pending.value()] {
            if (QFileInfo::exists(removal.path))
                removeChartFolder(removal.path, removal.replacement, removal.root);
            late->deleteLater();
        };
        connect(late, &QTimer::timeout, late, removeLate);
        connect(qApp, &QCoreApplication::aboutToQuit, late, removeLate);
        late->setSingleShot(true);
        late->start(pending.key()->remainingTime());
    }
}

QString ChartSaver::save(EditType type, const QString& name, const std::function<QImage()>& compose)
{
    const QString folder = chartFolder(root, QDateTime::currentDateTime());
    QDir().mkpath(folder);
    const QString fileName = name.isEmpty() ? translated(QStringLiteral("TestImage")) +
                                                  QString::number(testImageNumber) + QLatin1String(".png")
                                            : name;
    const QString path = folder + QLatin1Char('/') + fileName;
    write(compose(), path, [this, type, path] { chartWritten(type, path); });
    return path;
}

void ChartSaver::savePreview(const std::function<QImage()>& compose)
{
    const QString folder = root + QLatin1Char('/') + previewName;
    QDir().mkpath(folder);
    // The image lies beside the folder of its name, not in it.
    write(compose(), folder + QLatin1String(".png"), [this] { previewWritten(); });
}

void ChartSaver::write(const QImage& image, const QString& path, const std::function<void()>& written)
{
    m_buttons->beginWriting();
    auto* thread = new SaveImageThread(image, path, m_tool);
    thread->setSmallPng(smallPng);
    connect(
        thread, &SaveImageThread::saveFinished, this,
        [this, thread, path, written](bool success) {
            if (success) {
                written();
                return;
            }
            m_failedPath = path;
            m_failedReason = thread->failedReason();
            m_buttons->endWriting(false);
            Q_EMIT m_tool->sigFail();
        },
        Qt::QueuedConnection);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start(QThread::InheritPriority);
}

void ChartSaver::chartWritten(EditType type, const QString& path)
{
    const QString superseded = lastSavePath;       // the host may name the new chart while it is told of it
    const QPointer<VTestChartTools> alive(m_tool); // or delete the tool
    m_tool->getTestChartToolsData();
    m_buttons->endWriting(true);
    Q_EMIT m_tool->sigSave(m_record);
    if (alive)
        Q_EMIT m_tool->sigTestToolEditDone(m_tool->getTestChartToolsData(), path, type);
    qCDebug(chartLog) << Q_FUNC_INFO << "testChartImage Folder Generated success:" << path;
    if (alive && (type == ReplaceConfirm || type == ReplaceApply))
        scheduleFileDeletion(superseded, path);
}

void ChartSaver::previewWritten()
{
    m_tool->getTestChartToolsData();
    m_buttons->endWriting(true);
    m_buttons->cancel()->setEnabled(false);
    Q_EMIT m_tool->sigSave(m_record);
}

void ChartSaver::scheduleFileDeletion(const QString& path, const QString& replacement)
{
    qCDebug(chartLog) << Q_FUNC_INFO << "testChartImage Folder Add to Timer :" << path;
    auto* timer = new QTimer(m_tool);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, [this, timer] { removeReplaced(timer); });
    m_removals.insert(timer, {path, replacement, root});
    qCDebug(chartLog) << Q_FUNC_INFO << "QTimer Start for:" << path << "in 2 seconds";
    timer->start(editorDelays().removal);
}

void ChartSaver::removeReplaced(QTimer* timer)
{
    const Removal removal = m_removals.take(timer);
    removeChartFolder(removal.path, removal.replacement, removal.root);
    timer->deleteLater();
    qCDebug(chartLog) << Q_FUNC_INFO << "Delete timer completed for:" << removal.path;
}

} // namespace vardeno::testcharttools
